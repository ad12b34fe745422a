#pragma once
// The central directory of a ZIP archive, as far as names go.

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

namespace lirmeto {

struct ElencoZip {
  std::size_t quante = 0;                                   // entries
  std::unordered_map<std::string, std::string> nomiUnicode; // name in the local header, "/" between folders; in UTF-8
};

// Reads the directory and takes the marks of Unicode names off the archive: the library that unpacks would turn such
// names into the character set of the process, where most do not exist; without the marks it hands over the plain
// bytes. What is not as it should be is passed over: the library will find it.
[[nodiscard]] ElencoZip PreparaNomiZip(std::string& archivio);

// Whether the archive is complete and has no entries at all.
[[nodiscard]] bool ZipSenzaVoci(std::string_view archivio);

} // namespace lirmeto
