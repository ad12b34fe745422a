#pragma once
// The fields of one row as boxes to type into, and the row that comes of it.

#include <core/ambiente.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

struct CasellaRiga {
  std::string nome;        // as the line under the list calls the field
  std::string unita;       // "m", "gon"; empty for a text
  std::string valore;      // as it stands in the row; without the blanks around it where the row has fixed columns
  std::size_t campo = 0;   // of the row, its kind being 0
  std::size_t lettere = 0; // the most it holds; 0: as many as one likes
};

// The boxes of a row, in its order; never more than MassimeCaselle. A row that others go by has none: the proposal's
// heading, the marks of the Relazione, heading and counts of the census; nor has a row of no known kind.
//   "2|205|323.5725|38.944|SPIGOLO|"   Punto, Hz (gon), Distanza ridotta (m), Nota
//   "6|a|b|"                           Testo, Testo 2
//   a census row                       a box per column, as wide as it is
[[nodiscard]] std::vector<CasellaRiga> CaselleDi(std::string_view riga);

inline constexpr std::size_t MassimeCaselle = 40;

// The row with the text of a box, trimmed, in its field: bars become blanks, the comma of a number its point, an area of
// the census nine digits. Error 9 for a field that is no box of the row.
[[nodiscard]] std::string ConCasella(std::string_view riga, const CasellaRiga& casella, std::string_view testo);

// Puts the text of a box into a row of the list, and the list into Libretto. A field that the row cannot do without stays
// as it is when the text is empty, and that is told. A row or field that is not there does nothing.
void CambiaCasella(Ambiente& ambiente, std::size_t riga, std::size_t campo, std::string_view testo);

} // namespace lirmeto
