#include <grafica/posti_nomi.h>

#include <grafica/pittura.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numbers>

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

  struct Occupato {
    Rettangolo dove;
    std::size_t quale = 0;
  };

  // Calls `visita` with those that touch a rectangle, some more than once, until it says that it has seen enough.
  template <typename Visita>
  void Toccati(const Rettangolo& dove, Visita&& visita) const {
    bool basta = false;
    Celle(dove, [&](std::size_t cella) {
      for (std::uint32_t anello = teste_[cella]; !basta && anello != Nessuno; anello = anelli_[anello].dopo)
        if (const Occupato& uno = occupati_[anelli_[anello].occupato]; Tocca(uno.dove, dove)) basta = visita(uno);
      return !basta;
    });
  }

  void Occupa(const Rettangolo& dove, std::size_t quale) {
    occupati_.push_back({dove, quale});
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
  std::vector<Occupato> occupati_;
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

class Dispositore {
public:
  explicit Dispositore(std::span<const Scritta> scritte)
      : scritte_(scritte), griglia_(scritte.size()), posti_(scritte.size()) {}

  [[nodiscard]] std::vector<std::optional<Scarto>> Disponi() && {
    for (std::size_t i = 0; i < scritte_.size(); ++i)
      if (SiPosa(scritte_[i])) Posa(i);
    return std::move(posti_);
  }

private:
  void Posa(std::size_t quale) {
    const Scritta scritta = Spaziosa(scritte_[quale]);
    for (const Scarto& scarto : Posti(scritta)) {
      const Rettangolo dove = Ingombro(scritta, scarto);
      bool libero = true;
      griglia_.Toccati(dove, [&](const Griglia::Occupato& altro) {
        libero = false;
        const bool gemella = Gemelle(scritta, scritte_[altro.quale]);
        if (gemella) posti_[quale] = posti_[altro.quale];
        return gemella;
      });
      if (posti_[quale]) return;
      if (libero) {
        griglia_.Occupa(dove, quale);
        posti_[quale] = scarto;
        return;
      }
      if (scritta.decimi != 0) return;
    }
  }

  static bool Gemelle(const Scritta& una, const Scritta& altra) {
    return una.x == altra.x && una.y == altra.y && una.testo == altra.testo && una.decimi == altra.decimi;
  }

  std::span<const Scritta> scritte_;
  Griglia griglia_;
  std::vector<std::optional<Scarto>> posti_;
};

} // namespace

std::vector<std::optional<Scarto>> DisponiScritte(std::span<const Scritta> scritte) {
  return Dispositore(scritte).Disponi();
}

} // namespace lirmeto
