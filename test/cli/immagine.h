#pragma once
// A picture read back, by what each system has for it.

#include <cstdint>
#include <string>
#include <vector>

namespace lirmeto::prova {

struct Immagine {
  int larga = 0;
  std::vector<std::uint32_t> tinte; // red, green and blue of a pixel, a byte each; row after row

  [[nodiscard]] std::uint32_t Tinta(int x, int y) const {
    return tinte.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(larga) + static_cast<std::size_t>(x));
  }
  // Whether anything is painted there.
  [[nodiscard]] bool Dipinta(int x1, int y1, int x2, int y2) const {
    for (int y = y1; y < y2; ++y)
      for (int x = x1; x < x2; ++x)
        if (Tinta(x, y) != 0xFDFDFB) return true;
    return false;
  }
};

// An empty one when it cannot be read.
[[nodiscard]] Immagine ImmagineDaPng(const std::string& png);

} // namespace lirmeto::prova
