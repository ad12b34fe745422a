#pragma once
// Rows that are taken over from the old libretto together with the comments before them.

#include <core/riga.h>
#include <generazione/generazione.h>

namespace lirmeto {

// A row 6 of at least this length is one of the census and no comment.
inline constexpr std::size_t LunghezzaMinimaNonCommento = 44;

// The old rows of a kind, each behind the comments that were held since the one before it; a held comment goes with the
// next row of the kind, wherever that stands, and comments behind the last one go nowhere.
void MantieniConCommenti(Generazione& g, Genere genere);

} // namespace lirmeto
