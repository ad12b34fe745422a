#pragma once
// The rows 8 of a fiducial point of the TAF, its place and its height:
//
//   8|PF01/0010/G693|5000.123|1000.456|06|SPIGOLO DI FABBRICATO|
//   8|PF01/0010/G693|12.345|02|BASE DELLO SPIGOLO|
//
// Two writers compose them, the import from the TAF and the libretto from a drawing. Pregeo takes both; they differ in
// what stands for a field that the TAF leaves empty.
//
//                                      import            drawing
//   no height                          9999.000          9999, type 04
//   type of the height empty           04                04
//   type of the height "00"            00                04
//   no height reference                NOTE:             empty
//   height of a building's base        Base Spigolo, 04  BASE MANUFATTO-SUOLO
//   quotes in the place                kept              apostrophes

#include <fiduciali/taf.h>

#include <string>

namespace lirmeto {

struct RighePF {
  std::string posto;
  std::string quota;
};

[[nodiscard]] RighePF RighePFImportate(const RecordTaf& taf);

// `riga` is the line of the TAF, which holds the place with its own apostrophes.
[[nodiscard]] RighePF RighePFDelDisegno(const RecordTaf& taf, std::string_view riga);

} // namespace lirmeto
