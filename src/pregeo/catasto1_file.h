#pragma once
// Catasto1.txt: the surveyor's default header, in the layout of rows 0 and 9.
//
//   0|12032026|18|G224|0010|12|ROSSI|GEOMETRA|PADOVA|
//   9|20|10|20|1070|PREGEO 10.00-G,APAG 2.12|FR|STAZIONE TOTALE|
//   6|CONFERMA|                 may be missing
//
// A field that is missing reads as empty; what stands behind the third line is kept as it is.

#include <array>
#include <string>
#include <string_view>

namespace lirmeto {

struct Catasto1 {
  std::array<std::string, 8> zero; // fields 1 to 8 of row 0
  std::array<std::string, 7> nove; // fields 1 to 7 of row 9
  std::string commento;
};

[[nodiscard]] Catasto1 LeggiCatasto1(std::string_view testo);

// The file's bytes with its three lines written anew; `originale` is what the file held, empty when it was not there.
[[nodiscard]] std::string TestoCatasto1(const Catasto1& dati, std::string_view originale);

} // namespace lirmeto
