#pragma once
// Replacement of a libretto's measuring rows by those of an .LXB.

#include <core/ambiente.h>

#include <string_view>

namespace lirmeto {

// Takes Libretto as base for all but its rows 1 to 5, 7 and its GPS block,
// which `sostitute` (rows at CR LF) gives anew. A row 6 goes with the row
// behind it: a 7 takes it to the contours, a 2 to the GPS block, anything else
// drops it, as other kinds are. What is dropped, here and in the reorder that this is, stands in RigheScartate.
void UnisciLxb(Ambiente& ambiente, std::string_view sostitute);

} // namespace lirmeto
