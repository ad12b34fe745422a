#pragma once
// What the header form takes from the rows of the libretto.

#include <core/lista_righe.h>
#include <pregeo/catasto1_file.h>

#include <optional>
#include <string>
#include <string_view>

namespace lirmeto {

// Mean of the smallest and the largest east coordinate (field 3) of the rows 8, metres; none without such a row.
[[nodiscard]] std::optional<double> EstMedioDelleRighe(const ListaRighe& righe);

// Mean of the smallest and the largest height (field 2) of the rows 8, metres; none without such a row.
[[nodiscard]] std::optional<double> QuotaMediaDelleRighe(const ListaRighe& righe);

// Place of the libretto's comment in a list of rows: the third, or the one behind it where an old row 9 stands third.
[[nodiscard]] std::size_t PostoCommento(const ListaRighe& righe);

// The text of the comment at its place, empty when no comment stands there.
[[nodiscard]] std::string CommentoDelleRighe(const ListaRighe& righe);

// Whether a comment may take the place of this row.
[[nodiscard]] bool CedeIlPosto(std::string_view riga);

// Fields of rows 0 and 9, and the comment, of a libretto; what is not there is empty.
[[nodiscard]] Catasto1 DatiDelleRighe(std::string_view libretto);

} // namespace lirmeto
