#pragma once
// What is wrong with a box of the header form.

#include <core/sessione.h>
#include <intestazione/catasto1_caselle.h>

#include <optional>
#include <string>
#include <string_view>

namespace lirmeto {

// The reason, as the box shows it; empty for a text that will do. An empty box is given its own value at the confirm and
// lacks nothing. A comune is only looked for where the table of the comuni is known.
//   date      "22112026", "221126"                    "2211", "30022027"
//   comune    "G224", "G224A" (a section behind it)   "ZZZZ"
//   sheet     "7", "0010", "0012A", "12B"             "A7", "123456", "12AB"
[[nodiscard]] std::string DifettoCasella(std::size_t indice, std::string_view testo, const Sessione& sessione);

// The first box whose text no row 0 can have: date, comune, sheet. The other faults are told and let through.
[[nodiscard]] std::optional<std::size_t> PrimaDaCorreggere(const CaselleCatasto1& caselle, const Sessione& sessione);

} // namespace lirmeto
