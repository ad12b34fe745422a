#pragma once
// Forms by their names.

#include <core/ambiente.h>

#include <string_view>

namespace lirmeto {

// What an entry says whose work is still to come.
inline constexpr std::string_view NonAncoraDisponibile = "Non ancora disponibile";

// Opens a form by its name; one that this program has not yet answers with a
// message. Whether it was opened.
bool ApriForm(Ambiente& ambiente, std::string_view nome);

} // namespace lirmeto
