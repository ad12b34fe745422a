#pragma once
// Files as texts.

#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

// A text file with each line followed by CR LF, whatever its line ends; empty
// when nothing is there.
[[nodiscard]] std::string CaricaFileIntero(Ambiente& ambiente, std::string_view percorso);

// All bytes of a file.
[[nodiscard]] std::string CaricaFileBinario(Ambiente& ambiente, std::string_view percorso);

} // namespace lirmeto
