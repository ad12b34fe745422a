#pragma once
// The areas of an update proposal, as the census forms start from them.

#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

// Rows at CR LF.
struct AreeProposta {
  std::string aree;    // "Aree Per Censuario.txt": the heading of the updated extract, then "AAA = 1200"
  std::string modello; // "Modello Censuario.TXT": "35 = 29390_101 = 29090", origin and derived parcel with their areas
};

// From the rows of a proposal, counted behind the last vertex: + 2 the parcel's name, + 3 the parcel it comes from, + 4
// its area in square metres.
//   6|ESTRATTO DI MAPPA|
//   7|4|1%|2%|3%|4%|NC|35|35|29390|
//   6|ESTRATTO DI MAPPA AGGIORNATO|
//   7|4|1%|2%|3%|5*|NC|101|35|29090|
//   7|0|11%|1%|NC|                     a continuation, passed over; a row without an area too
// A parcel whose line would hold "+" or "-" is left out. Throws Errore 9 for a row of more fields than a row has.
[[nodiscard]] AreeProposta LeggiAreeProposta(std::string_view proposta);

// Exports the proposal of the open libretto from Pregeo's archive and writes, in the program's \temp, a copy of it
// (TempProposta) and the two files of LeggiAreeProposta. Without an exported proposal nothing is written. Errors are
// reported here. Whether the files were written.
bool EsplodiAreeProposta(Ambiente& ambiente);

} // namespace lirmeto
