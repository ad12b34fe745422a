#include <grafica/posti_nomi.h>

#include <grafica/pittura.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <functional>
#include <numbers>
#include <unordered_set>
#include <utility>

namespace lirmeto {

namespace {

using pittura::Rettangolo;

constexpr double Lontano = 1e9; // pixels: beyond there is nothing to see, and no cell

bool Tocca(const Rettangolo& a, const Rettangolo& b) {
  return a.sinistra < b.destra && b.sinistra < a.destra && a.alto < b.basso && b.alto < a.basso;
}

// The eight places: below right as the drawing tells, the other corners, then the middles of the sides.
std::array<Scarto, 8> Posti(const Scritta& scritta) {
  constexpr double stacco = 4; // from a mark that the text would otherwise touch
  const double sinistra = -scritta.larga - stacco;
  const double sopra = -scritta.alta;
  return {{{0, 0},
           {stacco, sopra},
           {sinistra, 0},
           {sinistra, sopra},
           {stacco * 2, sopra / 2},
           {sinistra - stacco, sopra / 2},
           {-scritta.larga / 2, sopra - stacco},
           {-scritta.larga / 2, stacco}}};
}

// The upright rectangle round a text turned about its corner.
Rettangolo Ingombro(const Scritta& scritta, const Scarto& scarto) {
  const double x = scritta.x + scarto.x;
  const double y = scritta.y + scarto.y;
  if (scritta.decimi == 0) return {x, y, x + scritta.larga, y + scritta.alta};
  const double angolo = scritta.decimi * std::numbers::pi / 1800;
  const double seno = std::sin(angolo);
  const double coseno = std::cos(angolo);
  Rettangolo dentro{x, y, x, y};
  for (const auto& [lungo, basso] :
       {std::pair(scritta.larga, 0.0), std::pair(0.0, scritta.alta), std::pair(scritta.larga, scritta.alta)}) {
    const double px = x + lungo * coseno + basso * seno;
    const double py = y - lungo * seno + basso * coseno;
    dentro = {std::min(dentro.sinistra, px), std::min(dentro.alto, py), std::max(dentro.destra, px),
              std::max(dentro.basso, py)};
  }
  return dentro;
}

// Rectangles by the cells of a grid that they touch. The cells share a table of fixed size: what another cell brings along
// is sorted out by looking at the rectangles themselves.
class Griglia {
public:
  explicit Griglia(std::size_t quanti) : teste_(Potenza(quanti), Nessuno) {
    anelli_.reserve(quanti * 2);
    occupati_.reserve(quanti);
  }

  [[nodiscard]] bool Libero(const Rettangolo& dove) {
    if (ultimo_ < occupati_.size() && Tocca(occupati_[ultimo_], dove)) return false;
    bool libero = true;
    Celle(dove, [&](std::size_t cella) {
      for (std::uint32_t anello = teste_[cella]; libero && anello != Nessuno; anello = anelli_[anello].dopo)
        if (Tocca(occupati_[anelli_[anello].occupato], dove)) {
          libero = false;
          ultimo_ = anelli_[anello].occupato;
        }
      return libero;
    });
    return libero;
  }

  void Occupa(const Rettangolo& dove) {
    occupati_.push_back(dove);
    Celle(dove, [&](std::size_t cella) {
      anelli_.push_back({static_cast<std::uint32_t>(occupati_.size() - 1), teste_[cella]});
      teste_[cella] = static_cast<std::uint32_t>(anelli_.size() - 1);
      return true;
    });
  }

private:
  struct Anello {
    std::uint32_t occupato;
    std::uint32_t dopo;
  };
  static constexpr std::uint32_t Nessuno = UINT32_MAX;

  static std::size_t Potenza(std::size_t quanti) {
    std::size_t celle = 1024;
    while (celle < quanti * 2) celle *= 2;
    return celle;
  }

  template <typename Fa>
  void Celle(const Rettangolo& dove, Fa&& fa) const {
    constexpr double larga = 64;
    constexpr double alta = 16;
    const auto cella = [](double pixel, double lato) { return static_cast<std::int64_t>(std::floor(pixel / lato)); };
    const std::int64_t ultimaX = cella(dove.destra, larga);
    const std::int64_t ultimaY = cella(dove.basso, alta);
    for (std::int64_t y = cella(dove.alto, alta); y <= ultimaY; ++y)
      for (std::int64_t x = cella(dove.sinistra, larga); x <= ultimaX; ++x) {
        const auto misto =
            static_cast<std::uint64_t>(x) * 0x9E3779B97F4A7C15U ^ static_cast<std::uint64_t>(y) * 0xC2B2AE3D27D4EB4FU;
        if (!fa(static_cast<std::size_t>((misto ^ misto >> 29U) & (teste_.size() - 1)))) return;
      }
  }

  std::vector<std::uint32_t> teste_; // the last ring of each cell
  std::vector<Anello> anelli_;
  std::vector<Rettangolo> occupati_;
  std::size_t ultimo_ = 0; // what stood in the way last often does so again
};

// The room of a text. One that is longer than any surface takes no more than that: its cells would be beyond number.
Scritta Spaziosa(Scritta scritta) {
  constexpr double larghissima = 8192; // pixels
  constexpr double aria = 2;           // pixels between two names
  scritta.larga = std::min(scritta.larga, larghissima) + aria;
  return scritta;
}

bool SiPosa(const Scritta& scritta) {
  return !scritta.testo.empty() && std::abs(scritta.x) < Lontano && std::abs(scritta.y) < Lontano;
}

// The first text that is the same at the same point, for each; its own index for the first one itself.
std::vector<std::size_t> Gemelle(std::span<const Scritta> scritte) {
  const auto impronta = [&](std::size_t i) {
    const std::hash<double> numero;
    return std::hash<std::string_view>()(scritte[i].testo) ^ numero(scritte[i].x) * 3 ^ numero(scritte[i].y) * 7;
  };
  const auto uguali = [&](std::size_t i, std::size_t k) {
    const Scritta& una = scritte[i];
    const Scritta& altra = scritte[k];
    return una.x == altra.x && una.y == altra.y && una.decimi == altra.decimi && una.testo == altra.testo;
  };
  std::unordered_set<std::size_t, decltype(impronta), decltype(uguali)> prime(scritte.size(), impronta, uguali);
  std::vector<std::size_t> gemelle;
  gemelle.reserve(scritte.size());
  for (std::size_t i = 0; i < scritte.size(); ++i) gemelle.push_back(SiPosa(scritte[i]) ? *prime.insert(i).first : i);
  return gemelle;
}

std::optional<Scarto> Posa(const Scritta& scritta, Griglia& griglia) {
  for (const Scarto& scarto : Posti(scritta)) {
    const Rettangolo dove = Ingombro(scritta, scarto);
    if (griglia.Libero(dove)) {
      griglia.Occupa(dove);
      return scarto;
    }
    if (scritta.decimi != 0) break;
  }
  return {};
}

} // namespace

std::vector<std::optional<Scarto>> DisponiScritte(std::span<const Scritta> scritte) {
  const std::vector<std::size_t> gemelle = Gemelle(scritte);
  Griglia griglia(scritte.size());
  std::vector<std::optional<Scarto>> posti(scritte.size());
  for (std::size_t i = 0; i < scritte.size(); ++i) {
    if (gemelle[i] != i)
      posti[i] = posti[gemelle[i]];
    else if (SiPosa(scritte[i]))
      posti[i] = Posa(Spaziosa(scritte[i]), griglia);
  }
  return posti;
}

} // namespace lirmeto
