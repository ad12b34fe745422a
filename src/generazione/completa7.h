#pragma once
// The row 7 of a new contour, closed with its parcel and its area.

#include <base/impronta.h>
#include <base/piano.h>
#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

// A contour of so many vertices, the last repeating the first, has no area computed.
inline constexpr std::size_t MassimoVerticiPoligono = 501;

// Square metres, whatever the direction of travel; the contour closes by itself. 0 below three vertices.
[[nodiscard]] double AreaPoligono(const std::vector<PuntoPiano>& vertici);

// Points by their names.
using PuntiPerNome = std::unordered_map<std::string_view, PuntoPiano, ImprontaNome>;

// A row 7 of the new contour as its rows of ten names: every name gets "*", and the first row, behind the code, the
// parcel with "+", the parcel and the area in whole square metres. A name that is no point adds no vertex.
//   "7|4|1|2|3|1|RC|" and the parcel 35   give   "7|4|1*|2*|3*|1*|RC|35+|35|120|"
// With 501 vertices or more the area is not computed: it is 0, and said. With code "08" an area above 20 is told and
// the row made all the same.
[[nodiscard]] std::vector<std::string> Genera7Completa(Ambiente& ambiente, std::string_view riga,
                                                       const PuntiPerNome& punti, std::string_view particella);

} // namespace lirmeto
