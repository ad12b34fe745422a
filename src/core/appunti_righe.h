#pragma once
// Rows of the list to the clipboard and back.

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// The selected rows, else the current one, each with its line end. Nothing happens where there is none.
void CopiaRighe(Ambiente& ambiente);

// The same, and they go; rows 0 and 9 are neither copied nor taken.
void TagliaRighe(Ambiente& ambiente);

// The rows of the clipboard behind the current one, never before rows 0 and 9; they are selected afterwards. What is
// left out is told: lines that are no row of a libretto, other rows 0 and 9, rows equal to the one before them.
void IncollaRighe(Ambiente& ambiente);

// Whether a line can stand among the rows: a kind from 1 to 8, a bar, something behind it.
//   "2|101|0.0000|12.300|A|", "6|commento|"       yes
//   "", "101 12.3", "0|12032026|...", "12|x|"     no
[[nodiscard]] bool RigaDaIncollare(std::string_view linea);

} // namespace lirmeto
