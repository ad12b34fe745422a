#pragma once
// One field of a row put in place of another.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace lirmeto {

// Which field of a row is its note: the last one of rows 1, 2, 4, 5 and 8 that have one, counted from 0 at the kind.
// None for a row that has no note.
//   "2|101|323.57|100.2|38.9|3.6|SPIG|"  6
//   "4|100|12.500|", "7|2|1|2|RC|"       none
[[nodiscard]] std::optional<std::size_t> CampoNota(std::string_view riga);

// The row with this field changed; bars of the new text become blanks, since a bar would shift the fields behind it.
// Error 9 for a field that the row does not have.
[[nodiscard]] std::string ConCampo(std::string_view riga, std::size_t campo, std::string_view testo);

} // namespace lirmeto
