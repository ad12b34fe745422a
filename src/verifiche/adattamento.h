#pragma once
// One plane laid upon another by points that both have: turned and moved, never stretched. Metres.

#include <base/piano.h>

#include <cstddef>
#include <optional>
#include <vector>

namespace lirmeto {

struct Rototraslazione {
  double coseno = 1;
  double seno = 0; // of the turn counterclockwise
  double dx = 0;
  double dy = 0;

  [[nodiscard]] PuntoPiano Applica(const PuntoPiano& p) const {
    return {coseno * p.est - seno * p.nord + dx, seno * p.est + coseno * p.nord + dy};
  }
};

struct Coppia {
  PuntoPiano da;
  PuntoPiano a;
};

// By least squares over the pairs; none for fewer than two, or when all lie in one place. A pair that spoils an
// agreement of the others, of three or more, is left out.
[[nodiscard]] std::optional<Rototraslazione> Adatta(std::vector<Coppia> coppie);

// The tolerances of the distances of an update survey, for a distance in metres (Circ. 2/88): in towns, where it is
// narrowest, and on hard ground, where it is widest.
[[nodiscard]] double TolleranzaStretta(double distanza);
[[nodiscard]] double TolleranzaLarga(double distanza);

} // namespace lirmeto
