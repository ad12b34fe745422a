#pragma once
// Paths as texts: what can be said of them without a disk.

#include <string>
#include <string_view>

namespace lirmeto {

// The path without the extension at the end of its last component; a point in the name of a folder is none.
//   "C:\A.LXC\R.1.LXC" gives "C:\A.LXC\R.1"; "C:\A.LXC\R" stays
[[nodiscard]] std::string_view SenzaEstensione(std::string_view percorso);

// The path with another extension there, or with one where it had none: ".TXT".
[[nodiscard]] std::string ConEstensione(std::string_view percorso, std::string_view estensione);

} // namespace lirmeto
