#pragma once
// A hash for tables of numbered names.

#include <cstddef>
#include <functional>
#include <string_view>

namespace lirmeto {

// Names that differ in their last digit alone ("120%" to "129%") lie beside one another in a table that hashes so, and
// those of a file come in that order: a table of many names is gone through in step with the memory.
struct ImprontaNome {
  std::size_t operator()(std::string_view nome) const {
    constexpr std::size_t vicini = 16;
    const auto cifra = nome.find_last_of("0123456789");
    if (cifra == std::string_view::npos || cifra + 2 < nome.size()) return std::hash<std::string_view>{}(nome);
    const std::size_t segno = cifra + 1 < nome.size() ? static_cast<unsigned char>(nome.back()) : 0U;
    const auto gruppo = std::hash<std::string_view>{}(nome.substr(0, cifra)) ^ segno;
    return gruppo * vicini + static_cast<std::size_t>(nome[cifra] - '0');
  }
};

} // namespace lirmeto
