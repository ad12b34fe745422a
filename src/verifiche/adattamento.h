#pragma once
// One plane laid upon another by points that both have: turned and moved, never stretched. Metres.

#include <cstddef>
#include <optional>
#include <vector>

namespace lirmeto {

struct Posto {
  double x = 0; // east
  double y = 0; // north
};

[[nodiscard]] double Distanza(const Posto& a, const Posto& b);

struct Rototraslazione {
  double coseno = 1;
  double seno = 0; // of the turn counterclockwise
  double dx = 0;
  double dy = 0;

  [[nodiscard]] Posto Applica(const Posto& p) const {
    return {coseno * p.x - seno * p.y + dx, seno * p.x + coseno * p.y + dy};
  }
  [[nodiscard]] Posto Inversa(const Posto& p) const {
    const double x = p.x - dx;
    const double y = p.y - dy;
    return {coseno * x + seno * y, coseno * y - seno * x};
  }
};

struct Coppia {
  Posto da;
  Posto a;
};

// By least squares over the pairs; none for fewer than two, or when all lie in one place. A pair that spoils an
// agreement of the others, of three or more, is left out.
[[nodiscard]] std::optional<Rototraslazione> Adatta(std::vector<Coppia> coppie);

// The tolerances of the distances of an update survey, for a distance in metres (Circ. 2/88): in towns, where it is
// narrowest, and on hard ground, where it is widest.
[[nodiscard]] double TolleranzaStretta(double distanza);
[[nodiscard]] double TolleranzaLarga(double distanza);

} // namespace lirmeto
