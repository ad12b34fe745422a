#pragma once
// Where the names of a drawing stand, so that none covers another.

#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace lirmeto {

// A text to be placed, in pixels, downward. Only the differences of places count.
struct Scritta {
  double x = 0; // of its point
  double y = 0;
  double larga = 0;
  double alta = 0;
  int decimi = 0; // tenths of a degree, counterclockwise: a text that is turned stands where it is told or nowhere
  std::string_view testo;
};

// From the point to the text's upper left corner, pixels.
struct Scarto {
  double x = 0;
  double y = 0;
  bool operator==(const Scarto&) const = default;
};

// The place of each, the first ones choosing first: of the eight round its point the first where it covers no other, none
// when all are taken. The first of the eight is the one that the drawing tells, the corner on the point. A text that
// stands twice at one point stands there twice. The cost grows with the number of texts.
[[nodiscard]] std::vector<std::optional<Scarto>> DisponiScritte(std::span<const Scritta> scritte);

} // namespace lirmeto
