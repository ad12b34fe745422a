#include <generazione/ripara_proposta.h>

#include <base/impronta.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/campi.h>
#include <estratti/kr_estratto.h>
#include <generazione/proposta.h>
#include <generazione/tipologia.h>

#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <unordered_set>

namespace lirmeto {

// What could be done in more than one way:
//
//   a contour                   a row 7 with its continuations: one that holds RC anywhere is wholly among the contours
//   separate contours           are never joined, and each has its comment before it
//   a contour that ends where   closes with RC: a last name without a code would pass for a part of the tail
//   it comes back to the map
//   a comment                   goes with the contour behind it
//   coordinates                 are equal when their texts are
//   a ring with its area        only a contour that closes and whose parcel is known is one; any other is its stretches
//   the parcel's own row        keeps the order of its names, its name and its area

namespace {

constexpr std::string_view CommentoContorno = "6|Contorno fabbricato|";
constexpr std::size_t PrimoNome = 2;     // field of a row 7
constexpr std::size_t CampiDietroNc = 4; // of a ring of the extract: "NC", name, name, surface

using Righe = std::vector<std::string_view>;

// A row 7 with its continuations and the row 6 before it.
struct Contorno {
  std::string_view commento;
  Righe righe;
};

// A proposal's rows by what they are, each group in its order.
struct RigheProposta {
  Righe punti;                    // rows 8
  std::vector<Contorno> contorni; // those that hold RC
  Righe altre;
};

bool HaRc(const Contorno& contorno) {
  return std::any_of(contorno.righe.begin(), contorno.righe.end(),
                     [](std::string_view riga) { return Contiene(riga, "|RC|"); });
}

class Smistamento {
public:
  explicit Smistamento(std::string_view testo) {
    for (const auto riga : RigheDi(testo)) Riga(riga);
    Chiudi();
  }

  RigheProposta righe;

private:
  void Riga(std::string_view riga) {
    const Genere genere = GenereDi(riga);
    if (genere == Genere::Contorno) return Riga7(riga);
    Chiudi();
    if (genere == Genere::Coordinate)
      righe.punti.push_back(riga);
    else if (genere == Genere::Libera)
      aperto_.commento = riga;
    else if (!Taglia(riga).empty())
      righe.altre.push_back(riga);
  }

  void Riga7(std::string_view riga) {
    if (!Continuazione(riga) && !aperto_.righe.empty()) Chiudi();
    aperto_.righe.push_back(riga);
  }

  // The usual comment of a contour is made again with its stretches.
  void Chiudi() {
    const bool contorno = HaRc(aperto_);
    if (!aperto_.commento.empty() && !(contorno && aperto_.commento == CommentoContorno))
      righe.altre.push_back(aperto_.commento);
    if (contorno) {
      righe.contorni.push_back(aperto_);
    } else {
      righe.altre.insert(righe.altre.end(), aperto_.righe.begin(), aperto_.righe.end());
    }
    aperto_ = {};
  }

  Contorno aperto_;
};

void AggiungiRiga(std::string& testo, std::string_view riga) {
  testo.append(riga).append(FineRiga);
}

// Field 2 and field 3 of a row 8, as they are written, with the bar between.
std::string_view Coordinate(std::string_view riga8) {
  const std::string_view nord = Parte(riga8, '|', 2);
  const std::string_view est = Parte(riga8, '|', 3);
  return est.data() == nullptr ? nord : std::string_view(nord.data(), nord.size() + 1 + est.size());
}

// --- the marks of the names

enum class Segno { Nessuno, Nuovo, Mappa };

Segno SegnoDi(std::string_view nome) {
  return Contiene(nome, "%") ? Segno::Mappa : Contiene(nome, "*") ? Segno::Nuovo : Segno::Nessuno;
}

// The code of the stretch that ends at a name, by the names around it; empty where none ends.
std::string_view CodiceTratto(Segno prima, Segno qui, Segno poi) {
  if (qui == Segno::Mappa && poi == Segno::Nuovo && prima == Segno::Mappa) return "|NC";
  if (qui == Segno::Nuovo && poi == Segno::Mappa) return "|RC";
  if (prima == Segno::Mappa && qui == Segno::Mappa && poi == Segno::Nessuno) return "|NC";
  if (qui == Segno::Nuovo && poi == Segno::Nessuno) return "|RC";
  if (prima == Segno::Nuovo && qui == Segno::Mappa && poi == Segno::Nessuno) return "|RC";
  return {};
}

// An unfolded contour with a code behind each stretch.
std::string ConCodici(std::string_view riga) {
  const auto campi = Dividi(riga, "|");
  const auto segno = [&](std::size_t i) { return i < campi.size() ? SegnoDi(campi[i]) : Segno::Nessuno; };
  std::string uscita;
  for (std::size_t i = 0; i < campi.size(); ++i) {
    if (i > 0) uscita += '|';
    uscita += campi[i];
    if (i > 0) uscita += CodiceTratto(segno(i - 1), segno(i), segno(i + 1));
  }
  return uscita;
}

// --- coincident points

// Names of the parcel's points by their coordinates, the first of equal ones.
std::unordered_map<std::string_view, std::string_view> NomiPerCoordinate(const std::vector<std::string>& punti) {
  std::unordered_map<std::string_view, std::string_view> nomi;
  nomi.reserve(punti.size());
  for (const std::string& riga : punti) nomi.try_emplace(Coordinate(riga), Parte(riga, '|', 1));
  return nomi;
}

using Cambi = std::unordered_map<std::string_view, std::string_view, ImprontaNome>; // new name, name on the map

// Takes away the points that coincide with one of the parcel; the answer is what they are called from now on.
Cambi TogliCoincidenti(Righe& punti, const ContornoMappale& mappale) {
  const auto vecchi = NomiPerCoordinate(mappale.punti);
  Cambi cambi;
  std::erase_if(punti, [&](std::string_view riga) {
    const auto vecchio = vecchi.find(Coordinate(riga));
    if (vecchio == vecchi.end()) return false;
    cambi.try_emplace(Parte(riga, '|', 1), vecchio->second);
    return true;
  });
  return cambi;
}

// A row with the names that have changed.
std::string ConNomiCambiati(std::string_view riga, const Cambi& cambi) {
  auto campi = Dividi(riga, "|");
  for (std::size_t i = 1; i + 1 < campi.size(); ++i)
    if (const auto cambio = cambi.find(campi[i]); cambio != cambi.end()) campi[i] = cambio->second;
  return Unisci(campi, "|");
}

// --- stretches

// The names of a contour, and what stands behind its last code.
struct NomiContorno {
  Righe nomi;
  Righe coda;
  std::vector<std::uint64_t> posti; // of the names
};

// The last code ends the names of a row; in one without codes all fields are names.
NomiContorno LeggiNomi(const Contorno& contorno) {
  NomiContorno letti;
  for (const auto riga : contorno.righe) {
    auto campi = Dividi(riga, "|");
    if (!campi.empty() && campi.back().empty()) campi.pop_back();
    const auto codice = std::find_if(campi.rbegin(), campi.rend(), CodiceLinea);
    const auto fine = codice == campi.rend() ? campi.end() : codice.base();
    const auto quanti = static_cast<std::size_t>(fine - campi.begin());
    for (std::size_t i = PrimoNome; i < quanti; ++i)
      if (!CodiceLinea(campi[i])) letti.nomi.push_back(campi[i]);
    letti.coda.insert(letti.coda.end(), fine, campi.end());
  }
  return letti;
}

// Places of the plane by number: two names of the same coordinates are at one place.
class Posti {
public:
  explicit Posti(const std::vector<std::string>& puntiMappa) {
    for (const std::string& riga : puntiMappa) Aggiungi(riga);
  }

  void Aggiungi(std::string_view riga8) {
    const auto posto = numeri_.try_emplace(Coordinate(riga8), numeri_.size() + 1).first->second;
    perNome_.try_emplace(Parte(riga8, '|', 1), posto);
  }

  // 0 for a name that is no point.
  [[nodiscard]] std::uint64_t Di(std::string_view nome) const {
    const auto trovato = perNome_.find(nome);
    return trovato == perNome_.end() ? 0 : trovato->second;
  }

  [[nodiscard]] std::vector<std::uint64_t> DiTutti(const Righe& nomi) const {
    std::vector<std::uint64_t> posti;
    posti.reserve(nomi.size());
    for (const auto nome : nomi) posti.push_back(Di(nome));
    return posti;
  }

  // A stretch between two places, the same in either direction; 0 when an end is no point.
  static std::uint64_t Tratto(std::uint64_t a, std::uint64_t b) {
    const auto [minore, maggiore] = std::minmax(a, b);
    constexpr unsigned bit = 32;
    return minore == 0 ? 0 : maggiore << bit | minore;
  }

private:
  std::unordered_map<std::string_view, std::uint64_t> numeri_; // by coordinates
  std::unordered_map<std::string_view, std::uint64_t, ImprontaNome> perNome_;
};

class ModestaEntita {
public:
  ModestaEntita(const RigheProposta& proposta, const ContornoMappale& mappale)
      : proposta_(proposta), posti_(mappale.punti) {
    for (const auto riga : proposta.punti) posti_.Aggiungi(riga);
    if (!mappale.riga.empty()) nomiMappale_ = LeggiNomi({{}, {mappale.riga}});
    contorni_.reserve(proposta.contorni.size());
    for (const Contorno& contorno : proposta.contorni) contorni_.push_back(LeggiNomi(contorno));
    nomiMappale_.posti = posti_.DiTutti(nomiMappale_.nomi);
    for (NomiContorno& contorno : contorni_) contorno.posti = posti_.DiTutti(contorno.nomi);
    SegnaTrattiComuni();
  }

  std::string Testo() {
    testo_ = RigheUnite(proposta_.punti);
    for (const auto riga : proposta_.altre) testo_ += RigheUnite(Implodi_Proposta(riga));
    for (std::size_t i = 0; i < contorni_.size(); ++i) {
      if (Anello(contorni_[i])) testo_ += RigheUnite(proposta_.contorni[i].righe);
      ScriviTratti(contorni_[i].nomi);
    }
    ScriviMappale();
    return std::move(testo_);
  }

private:
  // Names of the contours' stretches that lie on the parcel's contour.
  void SegnaTrattiComuni() {
    std::unordered_set<std::uint64_t> mappa;
    const auto& anello = nomiMappale_.posti;
    for (std::size_t i = 1; i < anello.size(); ++i) mappa.insert(Posti::Tratto(anello[i - 1], anello[i]));
    mappa.erase(0);
    for (const NomiContorno& contorno : contorni_)
      for (std::size_t i = 1; i < contorno.nomi.size(); ++i)
        if (mappa.contains(Posti::Tratto(contorno.posti[i - 1], contorno.posti[i])))
          comuni_.insert({contorno.nomi[i - 1], contorno.nomi[i]});
  }

  static bool Anello(const NomiContorno& contorno) {
    return contorno.nomi.size() > 3 && contorno.nomi.front() == contorno.nomi.back() && contorno.coda.size() > 1 &&
           !contorno.coda[1].empty();
  }

  // Both ends on the parcel's contour make a stretch of the map, be it another stretch than theirs: its
  // vertices are the map's, whichever way they are joined.
  void ScriviTratti(const Righe& nomi) {
    if (nomi.size() > 1) AggiungiRiga(testo_, CommentoContorno);
    for (std::size_t i = 1; i < nomi.size(); ++i) {
      const bool sullaMappa = comuni_.contains(nomi[i - 1]) && comuni_.contains(nomi[i]);
      testo_.append("7|2|").append(nomi[i - 1]).append("|").append(nomi[i]);
      AggiungiRiga(testo_, sullaMappa ? "|NC|" : "|RC|");
    }
  }

  void ScriviMappale() {
    if (nomiMappale_.nomi.empty()) return;
    std::unordered_map<std::uint64_t, std::string_view> nuovi; // the contours' name of a place
    for (const NomiContorno& contorno : contorni_)
      for (std::size_t i = 0; i < contorno.nomi.size(); ++i) nuovi.try_emplace(contorno.posti[i], contorno.nomi[i]);
    nuovi.erase(0);
    Righe nomi = nomiMappale_.nomi;
    for (std::size_t i = 0; i < nomi.size(); ++i)
      if (const auto nuovo = nuovi.find(nomiMappale_.posti[i]); nuovo != nuovi.end()) nomi[i] = nuovo->second;
    testo_ += RigheUnite(ComponiRighe7(nomi, "NC", Unisci(nomiMappale_.coda, "|") + "|"));
  }

  const RigheProposta& proposta_;
  Posti posti_;
  NomiContorno nomiMappale_;
  std::vector<NomiContorno> contorni_;
  std::unordered_set<std::string_view, ImprontaNome> comuni_;
  std::string testo_;
};

// Whether a ring of the extract is that of the parcel, and no further ring or hole of it.
bool AnelloDi(std::string_view riga, std::string_view particella) {
  const Campi campi(riga);
  return campi.Quanti() > CampiDietroNc + PrimoNome && campi.DaUltimo(CampiDietroNc) == "NC" &&
         campi.DaUltimo(CampiDietroNc - 1) == particella;
}

} // namespace

ContornoMappale LeggiContornoMappale(Ambiente& ambiente) {
  const Sessione& sessione = ambiente.sessione;
  if (sessione.TipologiaCorrente == TipologiaSenzaEstratto || sessione.EstrattoAssociato.empty()) return {};
  KR_Estratto estratto;
  if (!EsplodiEstratto(ambiente, estratto, sessione.EstrattoAssociato)) return {};
  const auto anello = std::find_if(estratto.SETTE.begin(), estratto.SETTE.end(),
                                   [&](std::string_view riga) { return AnelloDi(riga, sessione.ParticelleScelte); });
  if (anello == estratto.SETTE.end()) return {};
  ContornoMappale mappale{std::string(*anello), {}};
  const auto nomi = Dividi(mappale.riga, "|");
  const std::unordered_set<std::string_view, ImprontaNome> suoi(nomi.begin() + PrimoNome, nomi.end());
  for (const auto riga : estratto.Punti)
    if (suoi.contains(SpezzaPunto(riga).identificativo)) mappale.punti.emplace_back(riga);
  return mappale;
}

std::string SistemaProposta(std::string_view testo, const ContornoMappale& mappale, std::string_view contornoProposta) {
  Smistamento smistata(testo);
  RigheProposta& righe = smistata.righe;
  const Cambi cambi = TogliCoincidenti(righe.punti, mappale);
  std::string contorni;
  for (const Contorno& contorno : righe.contorni)
    for (const auto riga : contorno.righe) AggiungiRiga(contorni, ConNomiCambiati(riga, cambi));
  std::string uscita = RigheUnite(righe.punti).append(contornoProposta);
  for (const auto riga : righe.altre) AggiungiRiga(uscita, ConNomiCambiati(riga, cambi));
  const std::string esplosi = Esplodi_Proposta(contorni);
  for (const auto riga : RigheDi(esplosi)) uscita += RigheUnite(Implodi_Proposta(ConCodici(riga)));
  return uscita;
}

std::string SistemaModestaEntita(std::string_view proposta, const ContornoMappale& mappale) {
  const Smistamento smistata(proposta);
  return ModestaEntita(smistata.righe, mappale).Testo();
}

} // namespace lirmeto
