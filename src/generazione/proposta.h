#pragma once
// The rows 7 of an update proposal, unfolded to a row a contour and folded back to ten names a row.
//
//   7|13|1*|2*|...|10*|RC|35+|35|120|     head: count, ten names, line code, then its tail: name, parcel, square metres
//   7|0|11*|12*|1*|RC|                    its continuation
//   7|13|1*|2*|...|12*|1*|35+|35|120|     the same contour unfolded: all names, the tail, no code
//
// A name followed by "*" is a point of the new contour, one followed by "%" a point of the extract.

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// The most names that a row 7 holds.
inline constexpr std::size_t NomiPerRiga7 = 10;

// Unfolds the contours of a text, rows at CR LF, and puts them in reverse order: so does every other row that is not
// empty. A head without a tail keeps its line code; a continuation without a head stays as it is.
[[nodiscard]] std::string Esplodi_Proposta(std::string_view testo);

// The rows of one unfolded contour in which each stretch has its code behind it: stretches of one code are joined, ten
// names go in a row, every row is closed by its code, and the tail stands on the first. A row that is no row 7 or holds
// neither "RC" nor "NC" stays as it is.
//   "7|4|1*|2*|RC|3%|4%|NC|35+|35|120|"   gives   "7|4|1*|2*|RC|35+|35|120|", "7|0|3%|4%|NC|"
[[nodiscard]] std::vector<std::string> Implodi_Proposta(std::string_view riga);

// A row 7 of more than ten names in rows of ten, each closed by the line code; the first has the whole count. Any other
// row stays as it is.
[[nodiscard]] std::vector<std::string> SpezzaRiga7(std::string_view riga);

// The rows 7 of a contour: ten names each, all closed by the code; the tail, with its closing bar, on the first.
[[nodiscard]] std::vector<std::string> ComponiRighe7(const std::vector<std::string_view>& nomi, std::string_view codice,
                                                     std::string_view coda);

// Whether a row 7 continues the one before it.
[[nodiscard]] bool Continuazione(std::string_view riga);

} // namespace lirmeto
