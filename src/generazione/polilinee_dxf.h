#pragma once
// The polylines of a DXF file as a listing of polylines.
//
// A DXF is text: pairs of lines, a group code and its value.
//
//     0 / SECTION / 2 / ENTITIES     only this section is read, up to 0 / ENDSEC
//     0 / LWPOLYLINE, 8 / layer, 70 / 1 for a closed one, 10 / X, 20 / Y for each vertex
//     0 / POLYLINE, 8 / layer, 70 / flags, then 0 / VERTEX with its 10 / X, 20 / Y each, then 0 / SEQEND
//
// Layers RT, RP, RC, NC, PARTICELLE (as NC) and FABBRICATI (as RC), by their exact names, are taken and no others.

#include <base/dialoghi.h>

#include <string>
#include <string_view>

namespace lirmeto {

// "LAYER RC", a row "al punto  X=1.000  Y=2.000  Z=   0" a vertex, the first one again at the end of a closed polyline,
// two rows of one blank. Arcs are straight lines; meshes and the frames of curves are no vertices. Throws Errore 5 for a
// binary file and for one without ENTITIES, 62 for one that is cut before the section ends.
[[nodiscard]] std::string ElencoDaDxf(Dialoghi& dialoghi, std::string_view byte);

} // namespace lirmeto
