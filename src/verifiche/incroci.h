#pragma once
// Segments that cross, and how far a place is from one. Metres.

#include <verifiche/adattamento.h>

#include <cstddef>
#include <optional>
#include <utility>
#include <vector>

namespace lirmeto {

struct Tratto {
  PuntoPiano a;
  PuntoPiano b;
  std::size_t primo = 0; // numbers of its ends: segments that share one do not cross
  std::size_t secondo = 0;
};

// The first two that cross, as indices, the lower one first; none when no two do. Gone through from west to east.
[[nodiscard]] std::optional<std::pair<std::size_t, std::size_t>> PrimoIncrocio(const std::vector<Tratto>& tratti);

[[nodiscard]] double DistanzaDaTratto(const PuntoPiano& p, const PuntoPiano& a, const PuntoPiano& b);

} // namespace lirmeto
