#pragma once
// Places of the plane.

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

[[nodiscard]] PuntoPiano PuntoMedio(const PuntoPiano& primo, const PuntoPiano& secondo);

} // namespace lirmeto
