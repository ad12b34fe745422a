#pragma once
// Forms by their names.

#include <core/ambiente.h>

#include <string_view>

namespace lirmeto {

// What an entry says whose form the program cannot open: the command line has none.
inline constexpr std::string_view NonAncoraDisponibile = "Non ancora disponibile";

// Opens a form by its name; where the program has it not a message says so. Whether it was opened.
bool ApriForm(Ambiente& ambiente, std::string_view nome);

} // namespace lirmeto
