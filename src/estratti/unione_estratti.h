#pragma once
// Two extracts made into one with a single numbering.

#include <string>

namespace lirmeto {

// The text of the sum of two extracts: row 0 of an auto-assembled one, the vertices of both, the rings of both. Points of
// the second less than a millimetre from one of the first become it; a ring that is then in both, continuations and
// all, is kept once; vertices are numbered from 1. Whatever else the two hold does not survive, and neither does a ring
// that holds one of the letters T, L, P.
//
// The numbering of the second is moved on by the number of the first's last vertex, and the numbers of the sum are put in
// one after the other: an extract whose vertices are not in order should be saved before it is summed.
// Throws Errore 9 for a vertex without coordinates.
[[nodiscard]] std::string UnisciEstratti(std::string primo, std::string secondo);

} // namespace lirmeto
