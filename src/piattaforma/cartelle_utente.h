#pragma once
// The user's folders on the host.

#include <filesystem>
#include <optional>

namespace lirmeto {

// An environment variable that is set and not empty.
[[nodiscard]] std::optional<std::filesystem::path> VariabileAmbiente(const char* nome);

// Where programs keep what is the user's: XDG_DATA_HOME, else ~/.local/share; on Windows the local application data.
[[nodiscard]] std::filesystem::path CartellaDati();

} // namespace lirmeto
