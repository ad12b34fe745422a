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

// Replaces or creates a file, in place. Errors: 61 no room, told before the old content is touched unless the room goes
// while writing; 70 not allowed; 75 a folder, or no write permission for anybody; 76 its folder is not there.
void ScriviFileOspite(const std::filesystem::path& file, std::string_view contenuto);

// The same, but through a new file beside it that takes its place when it is whole: a file that exists is replaced,
// with its permissions, or stays as it was.
void RimpiazzaFileOspite(const std::filesystem::path& file, std::string_view contenuto);

} // namespace lirmeto
