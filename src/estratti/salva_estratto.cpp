#include <estratti/kr_estratto.h>

#include <base/avanzamento.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <estratti/campi.h>
#include <estratti/righe_nuove.h>
#include <estratti/rinumerazione.h>
#include <estratti/superfici.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <unordered_map>

namespace lirmeto {

// How an extract is written, where it could be done in more than one way:
//
//   an identifier longer than ten characters   loses its beginning, and its rings no longer name it
//   a point called as a parcel or as "NC"      that field is renamed too: every one between bars is meant
//   several holes of one name                  are summed before they are taken off
//   a ring whose surface rounds to 0           an empty surface, which is what the picture gives

namespace {

constexpr std::size_t ColonneIdentificativo = 10;

// A row 8 whose identifier is right-aligned, so that nine comes before ten.
std::string RigaAllineata(std::string_view riga) {
  const RigaPunto punto = SpezzaPunto(riga);
  std::string allineata(punto.genere);
  allineata += '|';
  allineata += AllineaDestra(punto.identificativo, ColonneIdentificativo);
  allineata += punto.resto;
  return allineata;
}

// A point and the beginning of its aligned row as two numbers that compare as its characters do: they decide nearly
// always, so that the row itself need not be made.
struct PuntoOrdinato {
  std::uint64_t primi = 0;
  std::uint64_t secondi = 0;
  std::string_view riga;

  [[nodiscard]] bool operator<(const PuntoOrdinato& altro) const {
    if (primi != altro.primi) return primi < altro.primi;
    if (secondi != altro.secondi) return secondi < altro.secondi;
    return RigaAllineata(riga) < RigaAllineata(altro.riga);
  }
};

PuntoOrdinato DaOrdinare(std::string_view riga) {
  constexpr std::size_t confrontati = 16;
  PuntoOrdinato voce{0, 0, riga};
  const RigaPunto punto = SpezzaPunto(riga);
  std::array<unsigned char, confrontati> inizio{};
  std::size_t n = 0;
  const auto metti = [&](std::string_view testo) {
    for (std::size_t i = 0; i < testo.size() && n < confrontati; ++i)
      inizio.at(n++) = static_cast<unsigned char>(testo[i]);
  };
  const std::string_view nome = punto.identificativo;
  constexpr std::string_view bianchi = "          ";
  metti(punto.genere);
  metti("|");
  metti(bianchi.substr(std::min(nome.size(), ColonneIdentificativo)));
  metti(nome.substr(nome.size() - std::min(nome.size(), ColonneIdentificativo)));
  metti(punto.resto);
  for (std::size_t i = 0; i < confrontati; ++i) {
    std::uint64_t& parte = i < confrontati / 2 ? voce.primi : voce.secondi;
    parte = (parte << 8U) | inizio.at(i);
  }
  return voce;
}

// The points in the order of their aligned rows: in plain byte order. Those of a file that was saved before stand so.
std::vector<PuntoOrdinato> PuntiOrdinati(const ListaRighe& righe) {
  std::vector<PuntoOrdinato> punti;
  punti.reserve(righe.size());
  for (const auto riga : righe) punti.push_back(DaOrdinare(riga));
  if (!std::is_sorted(punti.begin(), punti.end())) std::sort(punti.begin(), punti.end());
  return punti;
}

void AggiungiConNumero(RigheNuove& righe, std::string_view vecchia, std::size_t numero, char classe) {
  const std::size_t nome = InizioCampo(vecchia, 1);
  std::string& riga = righe.Riga();
  riga += vecchia.substr(0, nome);
  riga += TestoIntero(static_cast<long long>(numero));
  riga += classe;
  riga += vecchia.substr(nome + CampoDa(vecchia, nome).size());
  righe.Chiudi();
}

// The rows of rings or lines with the new names of their points.
void RinumeraCampi(ListaRighe& lista, Rinumerazione& rinumerazione) {
  RigheNuove nuove(lista);
  for (const auto riga : lista) {
    rinumerazione.Aggiungi(nuove.Riga(), riga);
    nuove.Chiudi();
  }
  nuove.Prendi(lista);
}

// The rows of a list with the numbers from `primo` on and a class letter.
void RinumeraRighe(ListaRighe& lista, std::size_t primo, char classe) {
  RigheNuove nuove(lista);
  for (const auto riga : lista) AggiungiConNumero(nuove, riga, primo++, classe);
  nuove.Prendi(lista);
}

// Points sorted and numbered from 1 without gaps, the rings following.
void RinumeraPunti(KR_Estratto& estratto) {
  const auto punti = PuntiOrdinati(estratto.Punti);
  std::vector<std::string_view> vecchi;
  vecchi.reserve(punti.size());
  // The sort keeps the last ten characters of an identifier, and trims it afterwards.
  for (const PuntoOrdinato& punto : punti) {
    const std::string_view nome = Campo(punto.riga, 1);
    vecchi.push_back(Taglia(nome.substr(nome.size() - std::min(nome.size(), ColonneIdentificativo))));
  }
  Rinumerazione rinumerazione(vecchi, '%');
  for (std::size_t i = 0; i < vecchi.size(); ++i) rinumerazione.Sostituisci(i, i + 1);
  RinumeraCampi(estratto.SETTE, rinumerazione);
  RigheNuove nuove(estratto.Punti);
  for (std::size_t i = 0; i < punti.size(); ++i) AggiungiConNumero(nuove, punti[i].riga, i + 1, '%');
  nuove.Prendi(estratto.Punti);
}

// Vertices of free lines numbered behind points and toponyms, the lines following. When the first of them bears a
// number that is not beyond the new ones the last goes first, so that a new number does not hit an old one.
void RinumeraLinee(KR_Estratto& estratto) {
  const std::size_t prima = estratto.Punti.size() + estratto.Toponimi.size();
  std::vector<std::string_view> vecchi;
  for (const auto riga : estratto.PLinee) vecchi.push_back(Campo(riga, 1));
  const bool dalFondo = !vecchi.empty() && std::floor(Valore(vecchi.front())) <= static_cast<double>(prima);
  Rinumerazione rinumerazione(vecchi, 'L');
  for (std::size_t passo = 0; passo < vecchi.size(); ++passo) {
    const std::size_t i = dalFondo ? vecchi.size() - 1 - passo : passo;
    rinumerazione.Sostituisci(i, i + 1 + prima);
  }
  RinumeraCampi(estratto.Linee, rinumerazione);
  RinumeraRighe(estratto.PLinee, prima + 1, 'L');
}

// Surface of each row of SETTE, square metres. Throws Errore 6 for one that is no number.
std::vector<double> SuperficiDi(Ambiente& ambiente, KR_Estratto& estratto) {
  SuperficiAnelli anelli(estratto);
  Avanzamento avanzamento(ambiente.dialoghi, "Superfici dell'estratto", estratto.SETTE.size());
  std::vector<double> superfici;
  superfici.reserve(estratto.SETTE.size());
  for (const auto riga : estratto.SETTE) {
    avanzamento.Fatto(superfici.size());
    anelli.SuperficieRigaSette(riga);
    if (!std::isfinite(estratto.SuperficieCalcolata))
      throw Errore(errore::Overflow, "Particella " + std::string(CampoDaUltimo(riga, 2)) + ": coordinate fuori misura");
    superfici.push_back(estratto.SuperficieCalcolata);
  }
  return superfici;
}

// A surface as the text of its row says it.
double ComeScritta(double superficie) {
  return Valore(TestoPieno(superficie));
}

// Takes the holes of a parcel off the rings of its name. Only those that stand behind it in SETTE: a hole before its
// parcel has no ring yet that it could be taken off.
void TogliBuchi(const ListaRighe& sette, std::vector<double>& superfici) {
  constexpr std::size_t secondoNome = 2;              // places before the last
  std::unordered_map<std::string_view, double> buchi; // by the parcel's name, of the rows behind
  for (std::size_t i = sette.size(); i > 0; --i) {
    const std::string_view nome = CampoDaUltimo(sette[i - 1], secondoNome);
    double& superficie = superfici[i - 1];
    if (nome.find_first_of("+-") != std::string_view::npos) {
      if (nome.ends_with('-')) buchi[nome.substr(0, nome.size() - 1)] += ComeScritta(superficie);
    } else if (const auto trovato = buchi.find(nome); trovato != buchi.end()) {
      superficie = ComeScritta(superficie) - trovato->second;
    }
  }
}

// SETTE with whole square metres, whatever the file said.
void RicalcolaSuperfici(Ambiente& ambiente, KR_Estratto& estratto) {
  std::vector<double> superfici = SuperficiDi(ambiente, estratto);
  TogliBuchi(estratto.SETTE, superfici);
  RigheNuove nuove(estratto.SETTE);
  for (std::size_t i = 0; i < superfici.size(); ++i) {
    const std::string_view riga = estratto.SETTE[i];
    const std::size_t posto = InizioCampoDaUltimo(riga, 1);
    nuove.Riga() += riga.substr(0, posto);
    nuove.Riga() += Formatta(superfici[i], "##############");
    nuove.Riga() += riga.substr(posto + CampoDa(riga, posto).size());
    nuove.Chiudi();
  }
  nuove.Prendi(estratto.SETTE);
}

constexpr std::string_view TestaContinuazione = "7|0|";
constexpr std::size_t IdentificativiPerRiga = 10;

// Rows of one ring, ten identifiers each. A last row shorter than seven characters is dropped: a ring of exactly ten or
// twenty identifiers has no empty continuation.
void AggiungiRigheAnello(RigheNuove& righe, std::string_view anello) {
  constexpr std::size_t lunghezzaMinima = 7;
  const std::size_t inizioChiusura = InizioCampoDaUltimo(anello, 4); // "NC", name twice, surface
  const auto chiudi = [&](std::string_view riga) {
    righe.Riga() += riga;
    righe.Riga() += riga.starts_with(TestaContinuazione)
                        ? "NC|"
                        : anello.substr(inizioChiusura, anello.rfind('|') + 1 - inizioChiusura);
    righe.Chiudi();
  };
  std::string riga = "7|";
  riga += Campo(anello, 1);
  riga += '|';
  std::size_t presi = 0;
  for (std::size_t i = std::min(InizioCampo(anello, 2), inizioChiusura); i < inizioChiusura;) {
    const std::string_view identificativo = CampoDa(anello, i);
    riga += identificativo;
    riga += '|';
    i += identificativo.size() + 1;
    if (++presi < IdentificativiPerRiga) continue;
    chiudi(riga);
    riga = TestaContinuazione;
    presi = 0;
  }
  if (riga.size() >= lunghezzaMinima) chiudi(riga);
}

void RifaiList1(KR_Estratto& estratto) {
  RigheNuove nuove(estratto.SETTE);
  for (const auto riga : estratto.SETTE)
    if (!riga.empty()) AggiungiRigheAnello(nuove, riga);
  nuove.Prendi(estratto.List1);
}

// The lists that stand behind row 0, in the order of the file.
constexpr std::array<ListaRighe KR_Estratto::*, 11> ListeDelFile = {
    &KR_Estratto::Punti,  &KR_Estratto::Toponimi, &KR_Estratto::PLinee, &KR_Estratto::PF,
    &KR_Estratto::List1,  &KR_Estratto::Linee,    &KR_Estratto::DITTA,  &KR_Estratto::PARTICELLA,
    &KR_Estratto::PFCART, &KR_Estratto::DISTANZA, &KR_Estratto::ALTRO};

} // namespace

std::string TestoEstratto(Ambiente& ambiente, KR_Estratto& estratto) {
  ambiente.sessione.PuntoErrore = "SalvaEstratto";
  RinumeraPunti(estratto);
  RicalcolaSuperfici(ambiente, estratto);
  ambiente.sessione.PuntoErrore = "SalvaEstratto1";
  RinumeraRighe(estratto.Toponimi, estratto.Punti.size() + 1, 'T');
  RinumeraLinee(estratto);
  RifaiList1(estratto);
  std::string testo;
  testo.reserve(std::accumulate(ListeDelFile.begin(), ListeDelFile.end(),
                                Lunghezza(estratto.ZERO) + Lunghezza(estratto.INQUADRAMENTO),
                                [&](std::size_t somma, auto lista) { return somma + Lunghezza(estratto.*lista); }));
  testo += estratto.ZERO[0];
  testo += FineRiga;
  for (const auto lista : ListeDelFile)
    for (const auto riga : estratto.*lista) testo.append(riga).append(FineRiga);
  if (!estratto.INQUADRAMENTO.empty()) testo.append(estratto.INQUADRAMENTO[0]).append(FineRiga);
  return testo;
}

bool SalvaEstratto(Ambiente& ambiente, KR_Estratto& estratto) {
  return Intrappola(ambiente, [&] {
    const std::string testo = TestoEstratto(ambiente, estratto);
    ambiente.disco.Scrivi(ambiente.sessione.EstrattoFile, testo);
    if (!estratto.Scartate.empty()) ambiente.sessione.RigheScartate = estratto.Scartate;
    estratto.Scarica();
  });
}

} // namespace lirmeto
