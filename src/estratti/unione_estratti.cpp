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
#include <unordered_map>
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
  std::vector<std::string> perTesta(righe.size());
  for (std::size_t i = 0; i < righe.size(); ++i) {
    if (teste[i] == NessunaTesta) continue;
    std::string& anello = perTesta[teste[i]];
    if (teste[i] != i) anello += FineRiga;
    anello += righe[i];
  }
  std::erase_if(perTesta, [](const std::string& anello) {
    return anello.empty() || anello.find_first_of("TLP") != std::string::npos;
  });
  return perTesta;
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
  const auto sposta = [cima](std::string_view campo, bool /*traBarre*/) {
    return campo.ends_with('%') ? TestoPieno(Valore(campo) + cima) + "%" : std::string(campo);
  };
  for (PuntoSommato& punto : addendo.punti) punto.riga = ConCampi(punto.riga, sposta);
  for (std::string& anello : addendo.anelli) anello = ConCampi(anello, sposta);
}

// Points by the square they lie in. Squares of twice the distance that counts: what is nearer than that lies in the same
// or a neighbouring one, however the division is rounded.
class Quadretti {
public:
  explicit Quadretti(const std::vector<PuntoSommato>& punti) : punti_(punti), seguenti_(punti.size(), Nessuno) {
    primi_.reserve(punti.size());
    for (std::size_t i = punti.size(); i > 0; --i) {
      const auto posto = static_cast<std::uint32_t>(i - 1);
      const auto [primo, nuovo] = primi_.try_emplace(QuadrettoDi(punti[posto], 0, 0), posto);
      if (!nuovo) seguenti_[posto] = std::exchange(primo->second, posto);
    }
  }

  static constexpr std::uint32_t Nessuno = UINT32_MAX;

  // The first point, in their order, less than a millimetre away.
  [[nodiscard]] std::uint32_t Comune(const PuntoSommato& punto) const {
    std::uint32_t trovato = Nessuno;
    for (const double nord : {-1., 0., 1.})
      for (const double est : {-1., 0., 1.}) {
        const auto primo = primi_.find(QuadrettoDi(punto, nord, est));
        if (primo != primi_.end()) trovato = std::min(trovato, NelQuadretto(primo->second, punto));
      }
    return trovato;
  }

private:
  struct Quadretto {
    double nord;
    double est;
    bool operator==(const Quadretto&) const = default;
  };
  struct Impronta {
    std::size_t operator()(const Quadretto& quadretto) const {
      constexpr std::size_t dispari = 0x9E3779B97F4A7C15U;
      return (std::hash<double>{}(quadretto.nord) * dispari) ^ std::hash<double>{}(quadretto.est);
    }
  };

  static Quadretto QuadrettoDi(const PuntoSommato& punto, double nord, double est) {
    constexpr double lato = 2 * DistanzaComune;
    return {std::floor(punto.nord / lato) + nord, std::floor(punto.est / lato) + est};
  }

  [[nodiscard]] std::uint32_t NelQuadretto(std::uint32_t posto, const PuntoSommato& punto) const {
    while (posto != Nessuno &&
           DistanzaPiana({punti_[posto].est, punti_[posto].nord}, {punto.est, punto.nord}) >= DistanzaComune)
      posto = seguenti_[posto];
    return posto;
  }

  const std::vector<PuntoSommato>& punti_;
  std::unordered_map<Quadretto, std::uint32_t, Impronta> primi_;
  std::vector<std::uint32_t> seguenti_; // of the same square, in order
};

// Replacements of one name by another, made one after the other, as one: what each name reads at the end. Looked at from
// the last to the first, a name that is brought in has its end already.
using NomiFinali = std::unordered_map<std::string_view, std::string_view>;
using Cambi = std::vector<std::pair<std::string_view, std::string_view>>;

NomiFinali InFila(const Cambi& cambi) {
  NomiFinali finali;
  finali.reserve(cambi.size());
  for (auto cambio = cambi.rbegin(); cambio != cambi.rend(); ++cambio) {
    const auto dopo = finali.find(cambio->second);
    finali[cambio->first] = dopo == finali.end() ? cambio->second : dopo->second;
  }
  return finali;
}

// The points of the second that lie on one of the first, as pairs (first, second) in the order of the first.
std::vector<std::pair<std::uint32_t, std::uint32_t>> PuntiComuni(const Addendo& primo, const Addendo& secondo) {
  const Quadretti quadretti(primo.punti);
  std::vector<std::pair<std::uint32_t, std::uint32_t>> comuni;
  for (std::size_t i = 0; i < secondo.punti.size(); ++i)
    if (const auto comune = quadretti.Comune(secondo.punti[i]); comune != Quadretti::Nessuno)
      comuni.emplace_back(comune, static_cast<std::uint32_t>(i));
  std::sort(comuni.begin(), comuni.end());
  return comuni;
}

// The second's rings run through the first's vertices where the two have one, and the second's own is gone.
void FondiPunti(const Addendo& primo, Addendo& secondo) {
  const auto comuni = PuntiComuni(primo, secondo);
  Cambi cambi;
  cambi.reserve(comuni.size());
  for (const auto& [a, b] : comuni) cambi.emplace_back(Campo(secondo.punti[b].riga, 1), Campo(primo.punti[a].riga, 1));
  const NomiFinali finali = InFila(cambi);
  const auto traduci = [&finali](std::string_view campo, bool traBarre) {
    const auto finale = traBarre ? finali.find(campo) : finali.end();
    return finale == finali.end() ? campo : finale->second;
  };
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
