#pragma once
// The user's folders on the host.

#include <filesystem>
#include <optional>

namespace lirmeto {

// An environment variable that is set and not empty.
[[nodiscard]] std::optional<std::filesystem::path> VariabileAmbiente(const char* nome);

[[nodiscard]] std::filesystem::path CartellaCasa();           // HOME, else the user's entry
[[nodiscard]] std::filesystem::path CartellaDati();           // XDG_DATA_HOME, else ~/.local/share
[[nodiscard]] std::filesystem::path CartellaConfigurazione(); // XDG_CONFIG_HOME, else ~/.config

} // namespace lirmeto
