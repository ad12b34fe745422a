#pragma once
// A new contour merged into the contour of the parcel in the extract: which stretches are new lines and which stand on
// the map already.

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// The contour of a parcel as the extract has it.
struct ContornoMappale {
  std::string riga;               // its row 7, continuations joined; empty when the extract does not hold the parcel
  std::vector<std::string> punti; // the rows 8 of its names
};

// From the extract associated with the libretto, for the parcel chosen; empty without one, and under the typology 1000.
[[nodiscard]] ContornoMappale LeggiContornoMappale(Ambiente& ambiente);

// A proposal's rows, at CR LF, repaired: a new point on the very coordinates of a point of the parcel gives way to it,
// and every stretch of the contours of RC gets its code from the marks of its names, "NC" between points of the map and
// "RC" elsewhere. The answer is the new points, `contornoProposta` (rows of other lines), the other rows, the contours
// in reverse order. Their comments are left out: the next routine makes them.
[[nodiscard]] std::string SistemaProposta(std::string_view testo, const ContornoMappale& mappale,
                                          std::string_view contornoProposta);

// The same proposal with a row for every stretch of its contours, "NC" where it lies on the parcel's contour and "RC"
// elsewhere, behind the comment of each contour, and at the end the parcel's contour with the new names. A ring that
// bears a parcel's name and area stays before its stretches.
[[nodiscard]] std::string SistemaModestaEntita(std::string_view proposta, const ContornoMappale& mappale);

} // namespace lirmeto
