#pragma once
// The survey as a drawing: what the coordinates computed from the rows look like. A picture and a check, no adjustment.

#include <grafica/archivio_grafica.h>
#include <verifiche/atto.h>

namespace lirmeto {

// Fills the store anew, from what lies underneath to what lies on top:
//
//   extract          thin grey rings, where the survey lies on the map
//   sights           grey, dashed; vectors of a base no farther than the survey is wide, dotted
//   traverses        blue, three pixels wide
//   offsets          green, dotted, from the foot on the base
//   contours         red, black or green by their colour, solid, dashed or dotted by their kind
//   fiducial points  their triangle in magenta
//   points           stations blue, fiducial points magenta, all others black; those that a row 8 alone gives grey
void DisegnaRilievo(const Atto& atto, ArchivioGrafica& archivio);

} // namespace lirmeto
