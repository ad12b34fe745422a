#pragma once
// A whole cadastral sheet as the office hands it out: its borders from the .CXF, their surfaces from the .SUP beside it.
//
// A .CXF is text read as tokens. Blanks before a token are skipped; it ends at a comma or at the line's end; one in
// double quotes keeps what stands between them. A blank line is an empty token. The first three tokens (kind, name and
// scale of the map) are skipped, then every token that is not exactly BORDO. Behind a BORDO stand
//
//   PD10           code of the border: the parcel's name
//        10        size of the text, angle, place of the label: six tokens that nobody looks at
//     0.000
//   1250.000
//    300.000
//   1251.000
//    301.000
//         1        islands
//         9        vertices of all rings
//         4        vertices of each island, up to 32767: the rest are the outer ring's
//   1200.000       east, whole line
//    250.000       north, whole line; so on for every vertex, the outer ring's first
//
// Legal: "PD10,10,0.0,1250,300,1251,301,0,2" in one line; ends of line CR LF, LF or CR; other sections in between.
// Illegal: no BORDO at all; a code that is empty or holds a bar; a count that is no whole number, is below 1 (islands:
// below 0) or leaves the outer ring without vertices; a coordinate that is no number; an end in the middle of a border.
//
// A .SUP is lines: a title, then "272        " and the surface in square metres from the tenth character on.

#include <cstddef>
#include <optional>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

struct VerticeCxf {
  std::string_view est; // whole lines of the file, blanks and all
  std::string_view nord;
  bool operator==(const VerticeCxf&) const = default;
};

struct BordoCxf {
  std::string_view codice;
  std::vector<std::size_t> anelli; // vertices of each ring, the outer one first
};

// Views into the text that it was read from.
struct FoglioCxf {
  std::vector<BordoCxf> bordi;
  std::vector<VerticeCxf> vertici; // of all rings of all borders, in their order
};

// Reads a sheet, its lines at CR LF. Errors: 62 it ends in the middle of a border, 13 a count, code or coordinate is
// none; the description names the line.
[[nodiscard]] FoglioCxf LeggiCxf(std::string_view testo);

// The surfaces of a .SUP, a text that must outlive this, its lines at CR LF. A line too short has an empty surface.
class SuperficiSup {
public:
  SuperficiSup() = default;
  explicit SuperficiSup(std::string_view testo);

  // The surface of the first line, in the order of the file, that begins with the name: that of "2720" serves for "272"
  // where it stands before: names have no end of their own in that file. None when no line does.
  [[nodiscard]] std::optional<std::string_view> CaricaSuperficiParticelle(std::string_view nome);

private:
  using PerInizio = std::unordered_map<std::string_view, std::size_t>; // first line of each beginning

  std::vector<std::string_view> righe_;
  std::unordered_map<std::size_t, PerInizio> perLunghezza_; // of the beginning; made when one of that length is asked
};

} // namespace lirmeto
