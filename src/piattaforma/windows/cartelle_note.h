#pragma once
// The shell's special folders.

#include <filesystem>

#include <windows.h>

#include <knownfolders.h>

namespace lirmeto {

// Error 76: this user has no such folder.
[[nodiscard]] std::filesystem::path CartellaNota(const GUID& quale);

} // namespace lirmeto
