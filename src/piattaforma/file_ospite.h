#pragma once
// Files of the host, with the classic error numbers. Links are followed where nothing else is said.

#include <base/data.h>

#include <cstddef>
#include <filesystem>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// What stands at a path; a pipe or a device is Altro.
enum class GenereFile { Niente, Regolare, Cartella, Altro };
[[nodiscard]] GenereFile GenereOspite(const std::filesystem::path& file);

// Whether something stands there, be it a link that leads nowhere.
[[nodiscard]] bool EsisteVoce(const std::filesystem::path& voce);

inline constexpr std::size_t FileIntero = std::numeric_limits<std::size_t>::max();

// At most the first `massimo` bytes of a regular file. Errors: 53 not there, 70 not allowed, 75 a folder, a pipe, a
// device or a fault while reading.
[[nodiscard]] std::string LeggiFileOspite(const std::filesystem::path& file, std::size_t massimo = FileIntero);

// Replaces or creates a file, whole: killed at any moment it leaves the old content or the new one. Links are followed;
// owner, rights and further names stay. Where no new file can take the old one's place it is written in place, with a
// copy of the old content kept until the new one is known good. Errors: 61 no room; 70 not allowed; 75 a folder, or no
// write permission for anybody; 76 its folder is not there.
// `sicuro`: it is on the disk when this returns, whatever happens to the machine. Without it a new file of many is written
// far quicker; one in the place of another is always safe.
void ScriviFileOspite(const std::filesystem::path& file, std::string_view contenuto, bool sicuro = true);

// When it was last written, local time. Error 53 not there.
[[nodiscard]] Istante ModificatoOspite(const std::filesystem::path& file);

// A new folder in one that is there. Errors: 70, 76.
void CreaCartellaOspite(const std::filesystem::path& cartella);

// A file or a link, not what it leads to. Errors: 53, 70, 75 a folder or read-only.
void EliminaOspite(const std::filesystem::path& file);

// Names of the regular files of a folder, UTF-8; none when it is not there. Error 70: it may not be read.
[[nodiscard]] std::vector<std::string> FileDellaCartella(const std::filesystem::path& cartella);

} // namespace lirmeto
