#include <estratti/unione_estratti.h>

#include <base/numeri.h>
#include <base/piano.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/anelli_interi.h>
#include <estratti/campi.h>
#include <estratti/rinumerazione.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
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

namespace {

constexpr double DistanzaComune = 0.001; // metres

struct PuntoSommato {
  std::string riga;
  double nord = 0;
  double est = 0;
};

// What of an extract goes into a sum.
struct Addendo {
  std::vector<PuntoSommato> punti;
  std::vector<std::string> anelli; // each with its continuations, CR LF between
};

PuntoSommato PuntoDi(std::string_view riga) {
  const Campi campi(riga);
  return {std::string(riga), Valore(campi[2]), Valore(campi[3])};
}

std::vector<std::string> AnelliDi(const std::vector<std::string_view>& righe) {
  const auto teste = TesteDegliAnelli(righe);
  std::vector<std::string> anelli;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    if (teste[i] == NessunaTesta) continue;
    if (teste[i] == i)
      anelli.emplace_back(righe[i]);
    else
      anelli.back().append(FineRiga).append(righe[i]);
  }
  std::erase_if(anelli, [](const std::string& anello) { return anello.find_first_of("TLP") != std::string::npos; });
  return anelli;
}

Addendo LeggiAddendo(std::string_view testo) {
  const std::string file = ConFineRiga(testo);
  const auto righe = RigheDi(file);
  Addendo addendo{{}, AnelliDi(righe)};
  for (const auto riga : righe)
    if (GenereDi(riga) == Genere::Coordinate && Contiene(Parte(riga, '|', 1), "%"))
      addendo.punti.push_back(PuntoDi(riga));
  return addendo;
}

// A row with its fields turned into others, those between bars alone or the first and last too.
template <typename Traduci>
std::string ConCampi(std::string_view riga, Traduci traduci) {
  std::string nuova;
  nuova.reserve(riga.size() + riga.size() / 4);
  for (std::size_t inizio = 0;;) {
    const std::size_t fine = std::min(riga.find('|', inizio), riga.size());
    const bool traBarre = inizio > 0 && fine < riga.size();
    nuova += traduci(riga.substr(inizio, fine - inizio), traBarre);
    if (fine == riga.size()) return nuova;
    nuova += '|';
    inizio = fine + 1;
  }
}

// The second's numbering behind the first's, `cima` being the first's last number.
void SpostaNumeri(Addendo& addendo, double cima) {
  std::string spostato;
  const auto sposta = [&](std::string_view campo, bool /*traBarre*/) -> std::string_view {
    if (!campo.ends_with('%')) return campo;
    return spostato = TestoPieno(Valore(campo) + cima) + "%";
  };
  for (PuntoSommato& punto : addendo.punti) punto.riga = ConCampi(punto.riga, sposta);
  for (std::string& anello : addendo.anelli) anello = ConCampi(anello, sposta);
}

// Points in strips of the plane, from south to north, those of a strip from west to east. Strips of twice the distance
// that counts: what is nearer than that lies in the same or a neighbouring one, however the division is rounded. Whoever
// asks for points in that order finds them near each other in memory.
struct PuntoInStriscia {
  double striscia = 0;
  double est = 0;
  std::uint32_t posto = 0; // of the point in its extract

  auto operator<=>(const PuntoInStriscia&) const = default;
};

std::vector<PuntoInStriscia> InStrisce(const std::vector<PuntoSommato>& punti) {
  constexpr double altezza = 2 * DistanzaComune;
  std::vector<PuntoInStriscia> strisce;
  strisce.reserve(punti.size());
  for (std::uint32_t i = 0; i < punti.size(); ++i)
    strisce.push_back({std::floor(punti[i].nord / altezza), punti[i].est, i});
  std::sort(strisce.begin(), strisce.end());
  return strisce;
}

constexpr std::uint32_t Nessuno = UINT32_MAX;

// The first of the points, in the order of their extract, that is less than a millimetre away.
std::uint32_t PuntoComune(const std::vector<PuntoInStriscia>& strisce, const std::vector<PuntoSommato>& punti,
                          const PuntoInStriscia& cercato, const PuntoSommato& punto) {
  std::uint32_t trovato = Nessuno;
  for (const double passo : {-1., 0., 1.}) {
    const double striscia = cercato.striscia + passo;
    const PuntoInStriscia inizio{striscia, punto.est - 2 * DistanzaComune, 0};
    auto voce = std::lower_bound(strisce.begin(), strisce.end(), inizio);
    for (; voce != strisce.end() && voce->striscia == striscia && voce->est <= punto.est + 2 * DistanzaComune; ++voce)
      if (voce->posto < trovato &&
          DistanzaPiana({punti[voce->posto].est, punti[voce->posto].nord}, {punto.est, punto.nord}) < DistanzaComune)
        trovato = voce->posto;
  }
  return trovato;
}

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
  const auto strisce = InStrisce(primo.punti);
  std::vector<std::pair<std::uint32_t, std::uint32_t>> comuni;
  for (const PuntoInStriscia& cercato : InStrisce(secondo.punti)) {
    const auto comune = PuntoComune(strisce, primo.punti, cercato, secondo.punti[cercato.posto]);
    if (comune != Nessuno) comuni.emplace_back(comune, cercato.posto);
  }
  std::sort(comuni.begin(), comuni.end());
  return comuni;
}

// The second's rings run through the first's vertices where the two have one, and the second's own is gone.
void FondiPunti(const Addendo& primo, Addendo& secondo) {
  const auto comuni = PuntiComuni(primo, secondo);
  Cambi cambi;
  cambi.reserve(comuni.size());
  for (const auto& [a, b] : comuni) cambi.emplace_back(Campo(secondo.punti[b].riga, 1), Campo(primo.punti[a].riga, 1));
  const NomiFinali finali(cambi, primo.punti.size() + secondo.punti.size());
  const auto traduci = [&finali](std::string_view campo, bool traBarre) { return traBarre ? finali.Di(campo) : campo; };
  for (std::string& anello : secondo.anelli) anello = ConCampi(anello, traduci);
  for (const auto& [a, b] : comuni) secondo.punti[b].riga.clear();
  std::erase_if(secondo.punti, [](const PuntoSommato& punto) { return punto.riga.empty(); });
}

void TogliAnelliUguali(const Addendo& primo, Addendo& secondo) {
  const std::unordered_set<std::string_view> tenuti(primo.anelli.begin(), primo.anelli.end());
  std::erase_if(secondo.anelli, [&tenuti](const std::string& anello) { return tenuti.contains(anello); });
}

// The rows of both, numbered from 1.
std::string Scrivi(const std::array<const Addendo*, 2>& addendi) {
  std::vector<std::string_view> punti;
  std::vector<std::string_view> vecchi;
  for (const Addendo* addendo : addendi)
    for (const PuntoSommato& punto : addendo->punti) {
      punti.push_back(punto.riga);
      vecchi.push_back(Campo(punto.riga, 1));
    }
  Rinumerazione rinumerazione(vecchi, '%');
  std::string testo(RigaZeroAutoallestito);
  testo += FineRiga;
  for (std::size_t i = 0; i < punti.size(); ++i) {
    rinumerazione.Sostituisci(i, i + 1);
    const RigaPunto punto = SpezzaPunto(punti[i]);
    testo.append(punto.genere).append("|").append(TestoIntero(static_cast<long long>(i) + 1)).append("%");
    testo.append(punto.resto).append(FineRiga);
  }
  for (const Addendo* addendo : addendi)
    for (const std::string& anello : addendo->anelli) {
      rinumerazione.Aggiungi(testo, anello);
      testo += FineRiga;
    }
  return testo;
}

} // namespace

std::string UnisciEstratti(std::string_view primo, std::string_view secondo) {
  const Addendo a = LeggiAddendo(primo);
  Addendo b = LeggiAddendo(secondo);
  // A saved extract runs in order: its last number is its highest.
  const double cima = a.punti.empty() ? 0 : Valore(Campo(a.punti.back().riga, 1));
  SpostaNumeri(b, cima);
  FondiPunti(a, b);
  TogliAnelliUguali(a, b);
  return Scrivi({&a, &b});
}

} // namespace lirmeto
