#pragma once
// The measured distances between the points of a view, as lines from one point to another.

#include <base/dialoghi.h>

#include <cstddef>
#include <span>
#include <string_view>
#include <vector>

namespace lirmeto {

struct SegmentoPF { // indices of its points, the lower one first
  std::size_t primo = 0;
  std::size_t secondo = 0;
  bool operator==(const SegmentoPF&) const = default;
};

inline constexpr std::size_t MassimoSegmenti = 10'001;

// Lines of an archive that hold a comune of these points, in byte order, each pair once. The comuni are the last four
// characters of the names, in the order met; of the lines with the same first 30 characters the first counts, those of
// the first comune before those of the others. Names of points of two comuni that differ in the last character alone
// fall together there: a report has one line a pair, and their sheets are one.
[[nodiscard]] std::vector<std::string_view> RigheDeiComuni(Dialoghi& dialoghi, std::span<const std::string_view> nomi,
                                                           std::string_view archivio);

// A segment for each line both whose names are points of the view, the first so named.
[[nodiscard]] std::vector<SegmentoPF> SegmentiDi(std::span<const std::string_view> nomi,
                                                 std::span<const std::string_view> righe);

} // namespace lirmeto
