#pragma once
// What must hold whatever the input: says what does not and stops, so that the
// input is kept.

#include <cstdio>
#include <cstdlib>

namespace lirmeto {

inline void Pretendi(bool vero, const char* cosa) {
  if (vero) return;
  std::fprintf(stderr, "Does not hold: %s\n", cosa);
  std::abort();
}

} // namespace lirmeto
