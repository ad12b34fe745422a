#pragma once
// Places of the plane.

#include <vector>

namespace lirmeto {

// Metres of the map. The coordinates have names and not letters, since the rows of an act give the north first and a
// drawing the east.
struct PuntoPiano {
  double est = 0;
  double nord = 0;
  bool operator==(const PuntoPiano&) const = default;
};

// Euclidean distance, metres.
[[nodiscard]] double DistanzaPiana(const PuntoPiano& da, const PuntoPiano& a);

// Of a ring of vertices, the last joined to the first; square metres, whichever way it turns.
[[nodiscard]] double AreaDi(const std::vector<PuntoPiano>& vertici);

[[nodiscard]] PuntoPiano PuntoMedio(const PuntoPiano& primo, const PuntoPiano& secondo);

} // namespace lirmeto
