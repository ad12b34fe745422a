#pragma once
// Fonts of the lists, kept in small files of the program's folder.

#include <core/ambiente.h>

#include <optional>
#include <string>
#include <string_view>

namespace lirmeto {

// The font that a file holds: one line of four values at commas, size in points, name, bold, italic.
//   10,"Courier New",0,-1
// None when the file is not there or makes no sense (fewer values, a size outside 4 to 72).
[[nodiscard]] std::optional<Carattere> LeggiCarattere(Ambiente& ambiente, std::string_view percorso);

void ScriviCarattere(Ambiente& ambiente, std::string_view percorso, const Carattere& carattere);

} // namespace lirmeto
