#pragma once
// The sort of sightings under their station.

#include <core/lista_righe.h>

namespace lirmeto {

enum class Ordine {
  Stazioni, // a row 1 opens a group; the row 2 right behind it stays in place
  Gps,      // a row 1 or 6 opens a group; a row 2 right behind a row 1 and any row right behind a row 6 stay in place
};

// Sorts the other rows of each group by their text with field 1 right-aligned in twenty columns: names by length, then
// by bytes; field 1 is trimmed in all rows afterwards. A name of more than twenty characters keeps its last twenty,
// which tell the points of a survey apart.
void OrdinaStazioni(ListaRighe& righe, Ordine ordine);

} // namespace lirmeto
