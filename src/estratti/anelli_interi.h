#pragma once
// Rings with their continuation rows.

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace lirmeto {

// First row of an extract that no office issued.
inline constexpr std::string_view RigaZeroAutoallestito = "0|AUTOALLESTITO|0|0|0|0|0|0|0|0|";

inline constexpr std::size_t NessunaTesta = SIZE_MAX;

// For each row the place of its ring's head: its own, or for a continuation ("7|0|") that of the last head before it;
// NessunaTesta for what is no row 7. A continuation with no head before it is a ring of its own.
[[nodiscard]] std::vector<std::size_t> TesteDegliAnelli(const std::vector<std::string_view>& righe);

} // namespace lirmeto
