#pragma once
// Reading and writing whole files of the host, with the classic error numbers.

#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>

namespace lirmeto {

inline constexpr std::size_t FileIntero = std::numeric_limits<std::size_t>::max();

// At most the first `massimo` bytes of a regular file. Errors: 53 not there, 70 not allowed, 75 a folder, a pipe, a
// device or a fault while reading.
[[nodiscard]] std::string LeggiFileOspite(const std::filesystem::path& file, std::size_t massimo = FileIntero);

// Replaces or creates a file, whole: killed at any moment it leaves the old content or the new one. Links are followed;
// owner, rights and further names stay. Where no new file can take the old one's place it is written in place, with a
// copy of the old content kept until the new one is known good. Errors: 61 no room; 70 not allowed; 75 a folder, or no
// write permission for anybody; 76 its folder is not there.
void ScriviFileOspite(const std::filesystem::path& file, std::string_view contenuto);

} // namespace lirmeto
