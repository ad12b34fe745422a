#pragma once
// Further folders of the user, after the XDG conventions.

#include <filesystem>

namespace lirmeto {

[[nodiscard]] std::filesystem::path CartellaCasa();           // HOME, else the user's entry
[[nodiscard]] std::filesystem::path CartellaConfigurazione(); // XDG_CONFIG_HOME, else ~/.config

} // namespace lirmeto
