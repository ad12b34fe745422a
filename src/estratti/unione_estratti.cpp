#include <estratti/unione_estratti.h>

#include <base/numeri.h>
#include <base/piano.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/anelli_interi.h>
#include <estratti/campi.h>
#include <estratti/righe_nuove.h>
#include <estratti/rinumerazione.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <memory>
#include <unordered_set>
#include <utility>
#include <vector>

namespace lirmeto {

// How two extracts are summed, where it could be done in more than one way:
//
//   a vertex                                a row 8 whose identifier holds "%": a toponym whose text does is none
//   a ring that stands before its vertices  follows them too
//   a vertex near several of the first      becomes the first of them in the order of the file
//   points of one extract near each other   stay: only those of the other are looked at
//   a row whose kind is written "7%"        keeps it: the first field of a row is no vertex to be renumbered

namespace {

constexpr double DistanzaComune = 0.001; // metres

// What of an extract goes into a sum.
struct Addendo {
  ListaRighe punti;              // rows 8
  std::vector<PuntoPiano> posti; // of each
  ListaRighe anelli;             // each with its continuations, CR LF between
};

// Rings as they are gathered from rows of one text: one whose rows stand together, as nearly all do, is a piece of it.
class RaccoltaAnelli {
public:
  explicit RaccoltaAnelli(TestoCondiviso testo) { anelli_.Tieni(std::move(testo)); }

  void Testa(std::string_view riga) {
    Chiudi();
    intero_ = riga;
  }

  void Continuazione(std::string_view riga) {
    if (sparso_.empty() && riga.data() == intero_.data() + intero_.size() + FineRiga.size()) {
      intero_ = {intero_.data(), intero_.size() + FineRiga.size() + riga.size()};
      return;
    }
    if (sparso_.empty()) sparso_ = intero_;
    sparso_.append(FineRiga).append(riga);
  }

  ListaRighe Fine() {
    Chiudi();
    return std::move(anelli_);
  }

private:
  // A ring whose text holds one of the three letters is left out.
  void Chiudi() {
    const std::string_view anello = sparso_.empty() ? intero_ : std::string_view(sparso_);
    if (!anello.empty() && anello.find_first_of("TLP") == std::string_view::npos) {
      if (sparso_.empty())
        anelli_.AggiungiVista(anello);
      else
        anelli_.Aggiungi(anello);
    }
    sparso_.clear();
  }

  ListaRighe anelli_;
  std::string_view intero_; // of rows that stand together
  std::string sparso_;      // of rows that do not
};

ListaRighe AnelliDi(const TestoCondiviso& testo, const std::vector<std::string_view>& righe) {
  const auto teste = TesteDegliAnelli(righe);
  RaccoltaAnelli raccolta(testo);
  for (std::size_t i = 0; i < righe.size(); ++i) {
    if (teste[i] == NessunaTesta) continue;
    if (teste[i] == i)
      raccolta.Testa(righe[i]);
    else
      raccolta.Continuazione(righe[i]);
  }
  return raccolta.Fine();
}

Addendo LeggiAddendo(std::string&& testo) {
  const auto file = std::make_shared<const std::string>(ConFineRiga(std::move(testo)));
  const auto righe = RigheDi(*file);
  Addendo addendo{{}, {}, AnelliDi(file, righe)};
  addendo.punti.Tieni(file);
  addendo.punti.Riserva(righe.size());
  addendo.posti.reserve(righe.size());
  for (const auto riga : righe) {
    if (GenereDi(riga) != Genere::Coordinate || !Contiene(Parte(riga, '|', 1), "%")) continue;
    addendo.punti.AggiungiVista(riga);
    addendo.posti.push_back({Valore(Campo(riga, 3)), Valore(Campo(riga, 2))});
  }
  return addendo;
}

// The rows of a list with the fields behind the first turned into others, those between bars alone or the last too.
template <typename Traduci>
void CambiaCampi(ListaRighe& lista, Traduci traduci) {
  RigheNuove nuove(lista);
  for (const auto riga : lista) {
    std::size_t fine = CampoDa(riga, 0).size();
    nuove.Riga() += riga.substr(0, fine);
    while (fine < riga.size()) {
      nuove.Riga() += '|';
      const std::string_view campo = CampoDa(riga, fine + 1);
      fine += 1 + campo.size();
      nuove.Riga() += traduci(campo, fine < riga.size());
    }
    nuove.Chiudi();
  }
  nuove.Prendi(lista);
}

// A name of the second's numbering behind the first's.
class Spostamento {
public:
  // By the first's last number.
  explicit Spostamento(double cima) : cima_(cima) {}

  // Stands until the next one is asked for.
  std::string_view Di(std::string_view campo) {
    if (!campo.ends_with('%')) return campo;
    spostato_ = TestoPieno(Valore(campo) + cima_);
    return spostato_ += '%';
  }

private:
  double cima_;
  std::string spostato_;
};

// Points in strips of the plane, from south to north, those of a strip from west to east. Strips of twice the distance
// that counts: what is nearer than that lies in the same or a neighbouring one, however the division is rounded.
struct PuntoInStriscia {
  double striscia = 0;
  PuntoPiano posto;
  std::uint32_t quale = 0; // in its extract

  // Whether it stands before a place of a strip.
  [[nodiscard]] bool PrimaDi(double altraStriscia, double est) const {
    return striscia != altraStriscia ? striscia < altraStriscia : posto.est < est;
  }
};

std::vector<PuntoInStriscia> InStrisce(const std::vector<PuntoPiano>& posti) {
  constexpr double altezza = 2 * DistanzaComune;
  std::vector<PuntoInStriscia> strisce;
  strisce.reserve(posti.size());
  for (const PuntoPiano& posto : posti)
    strisce.push_back({std::floor(posto.nord / altezza), posto, static_cast<std::uint32_t>(strisce.size())});
  std::sort(strisce.begin(), strisce.end(),
            [](const PuntoInStriscia& a, const PuntoInStriscia& b) { return a.PrimaDi(b.striscia, b.posto.est); });
  return strisce;
}

constexpr std::uint32_t Nessuno = UINT32_MAX;

// The first extract's points as those of the second are looked for in the order of the strips: each of the three strips
// about a point is walked once from end to end.
class PuntiVicini {
public:
  explicit PuntiVicini(const std::vector<PuntoPiano>& posti) : strisce_(InStrisce(posti)) {}

  // The first of the points, in the order of their extract, that is less than a millimetre away. Must be asked in the
  // order of the strips.
  std::uint32_t Primo(const PuntoInStriscia& cercato) {
    std::uint32_t trovato = Nessuno;
    for (std::size_t i = 0; i < cursori_.size(); ++i) {
      const double striscia = cercato.striscia + static_cast<double>(i) - 1;
      std::size_t& cursore = cursori_.at(i);
      while (cursore < strisce_.size() && strisce_[cursore].PrimaDi(striscia, cercato.posto.est - 2 * DistanzaComune))
        ++cursore;
      for (std::size_t k = cursore; k < strisce_.size() && strisce_[k].striscia == striscia &&
                                    strisce_[k].posto.est <= cercato.posto.est + 2 * DistanzaComune;
           ++k)
        if (strisce_[k].quale < trovato && DistanzaPiana(strisce_[k].posto, cercato.posto) < DistanzaComune)
          trovato = strisce_[k].quale;
    }
    return trovato;
  }

private:
  std::vector<PuntoInStriscia> strisce_;
  std::array<std::size_t, 3> cursori_{}; // in the strip to the south, its own, that to the north
};

// Replacements of one name by another, made one after the other, as one: what each name reads at the end. Looked at from
// the last to the first, a name that is brought in has its end already.
using Cambi = std::vector<std::pair<std::string_view, std::string_view>>;

class NomiFinali {
public:
  NomiFinali(const Cambi& cambi, std::size_t attesi) : indice_(attesi, '%') {
    finali_.reserve(cambi.size());
    for (auto cambio = cambi.rbegin(); cambio != cambi.rend(); ++cambio) {
      const std::string_view finale = Di(cambio->second);
      const std::uint32_t posto = indice_.Cerca(cambio->first);
      if (posto != IndiceIdentificativi::Nessuno) {
        finali_[posto] = finale;
        continue;
      }
      indice_.Aggiungi(cambio->first, static_cast<std::uint32_t>(finali_.size()));
      finali_.push_back(finale);
    }
  }

  [[nodiscard]] std::string_view Di(std::string_view nome) const {
    const std::uint32_t posto = indice_.Cerca(nome);
    return posto == IndiceIdentificativi::Nessuno ? nome : finali_[posto];
  }

private:
  IndiceIdentificativi indice_;
  std::vector<std::string_view> finali_;
};

// The points of the second that lie on one of the first, as pairs (first, second) in the order of the first.
std::vector<std::pair<std::uint32_t, std::uint32_t>> PuntiComuni(const Addendo& primo, const Addendo& secondo) {
  PuntiVicini vicini(primo.posti);
  std::vector<std::pair<std::uint32_t, std::uint32_t>> comuni;
  for (const PuntoInStriscia& cercato : InStrisce(secondo.posti))
    if (const auto comune = vicini.Primo(cercato); comune != Nessuno) comuni.emplace_back(comune, cercato.quale);
  std::sort(comuni.begin(), comuni.end());
  return comuni;
}

// The second's rings run through the first's vertices where the two have one, and the second's own is gone.
void FondiPunti(const Addendo& primo, Addendo& secondo, Spostamento& spostamento) {
  CambiaCampi(secondo.punti, [&](std::string_view campo, bool /*traBarre*/) { return spostamento.Di(campo); });
  const auto comuni = PuntiComuni(primo, secondo);
  Cambi cambi;
  cambi.reserve(comuni.size());
  std::vector<bool> fusi(secondo.punti.size());
  for (const auto& [a, b] : comuni) {
    cambi.emplace_back(Campo(secondo.punti[b], 1), Campo(primo.punti[a], 1));
    fusi[b] = true;
  }
  const NomiFinali finali(cambi, primo.punti.size() + secondo.punti.size());
  CambiaCampi(secondo.anelli, [&](std::string_view campo, bool traBarre) {
    const std::string_view spostato = spostamento.Di(campo);
    return traBarre ? finali.Di(spostato) : spostato;
  });
  std::size_t posto = 0;
  secondo.punti.TogliSe([&](std::string_view /*riga*/) { return fusi[posto++]; });
}

void TogliAnelliUguali(const Addendo& primo, Addendo& secondo) {
  const std::unordered_set<std::string_view> tenuti(primo.anelli.begin(), primo.anelli.end());
  secondo.anelli.TogliSe([&tenuti](std::string_view anello) { return tenuti.contains(anello); });
}

// The rows of both, numbered from 1.
std::string Scrivi(const Addendo& primo, const Addendo& secondo) {
  const std::array<const ListaRighe*, 2> punti = {&primo.punti, &secondo.punti};
  std::vector<std::string_view> vecchi;
  vecchi.reserve(primo.punti.size() + secondo.punti.size());
  for (const ListaRighe* lista : punti)
    for (const auto punto : *lista) vecchi.push_back(Campo(punto, 1));
  Rinumerazione rinumerazione(vecchi, '%');
  std::string testo;
  testo.reserve(ConMargine(Lunghezza(primo.punti) + Lunghezza(primo.anelli) + Lunghezza(secondo.punti) +
                           Lunghezza(secondo.anelli)));
  testo.append(RigaZeroAutoallestito).append(FineRiga);
  std::size_t numero = 0;
  for (const ListaRighe* lista : punti)
    for (const auto riga : *lista) {
      rinumerazione.Sostituisci(numero, numero + 1);
      const RigaPunto punto = SpezzaPunto(riga);
      testo.append(punto.genere).append("|").append(TestoIntero(static_cast<long long>(++numero))).append("%");
      testo.append(punto.resto).append(FineRiga);
    }
  for (const ListaRighe* anelli : {&primo.anelli, &secondo.anelli})
    for (const auto anello : *anelli) {
      rinumerazione.Aggiungi(testo, anello);
      testo += FineRiga;
    }
  return testo;
}

} // namespace

std::string UnisciEstratti(std::string primo, std::string secondo) {
  const Addendo a = LeggiAddendo(std::move(primo));
  Addendo b = LeggiAddendo(std::move(secondo));
  // A saved extract runs in order: its last number is its highest.
  Spostamento spostamento(a.punti.empty() ? 0 : Valore(Campo(a.punti.back(), 1)));
  FondiPunti(a, b, spostamento);
  TogliAnelliUguali(a, b);
  return Scrivi(a, b);
}

} // namespace lirmeto
