#pragma once
// Search of a text in the rows, without regard to case.

#include <core/lista_righe.h>

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

namespace lirmeto::ui {

// Indices of the rows that hold the text, in their order; none for an empty
// text.
[[nodiscard]] std::vector<std::size_t> RigheCheContengono(const ListaRighe& righe, std::string_view testo);

// Where the text stands in one row: first column and length, from left to right
// and not overlapping.
[[nodiscard]] std::vector<std::pair<std::size_t, std::size_t>> PostiNellaRiga(std::string_view riga,
                                                                              std::string_view testo);

// Which of the hits follows (or comes before) row `daRiga`, wrapping round; -1
// stands before the first row. The hits must not be empty.
[[nodiscard]] std::size_t TrovataDopo(const std::vector<std::size_t>& trovate, long daRiga);
[[nodiscard]] std::size_t TrovataPrima(const std::vector<std::size_t>& trovate, long daRiga);

} // namespace lirmeto::ui
