#pragma once
// The offset of a point from a base.

#include <generazione/tabelle_disegno.h>

#include <optional>

namespace lirmeto {

struct Squadratura { // metres
  double ascissa = 0;
  double ordinata = 0;
};

// Abscissa along AB from A, below zero behind A. The ordinate is above zero on the right of AB before the foot of A and
// changes its sign behind it, since the rows 5 of such a point are read by one who looks back from A. None when A and B
// are one point.
[[nodiscard]] std::optional<Squadratura> MisuraSquadro(const PuntoDisegno& a, const PuntoDisegno& b,
                                                       const PuntoDisegno& c);

} // namespace lirmeto
