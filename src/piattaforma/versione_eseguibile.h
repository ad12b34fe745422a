#pragma once
// The file version that a Windows program carries.

#include <string>
#include <string_view>

namespace lirmeto {

// "10.6.0.3" from the version resource among the bytes of a program: the key "VS_VERSION_INFO" in UTF-16, at most four
// bytes of filling, then little-endian words of 32 bits: FEEF04BD, the structure's version, and the file's version as
// two words of two halves each, the high one first. Empty when there is none.
[[nodiscard]] std::string VersioneDaEseguibile(std::string_view byte);

} // namespace lirmeto
