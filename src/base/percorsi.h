#pragma once
// Paths as texts.

#include <base/macchina.h>

#include <string>
#include <string_view>

namespace lirmeto {

// The path without the extension at the end of its last component; a point in the name of a folder is none.
//   "C:\A.LXC\R.1.LXC" gives "C:\A.LXC\R.1"; "C:\A.LXC\R" stays
[[nodiscard]] std::string_view SenzaEstensione(std::string_view percorso);

// The path with another extension there, or with one where it had none: ".TXT".
[[nodiscard]] std::string ConEstensione(std::string_view percorso, std::string_view estensione);

// A text taken from data as one component of a path: throws Errore 52 when it
// holds "\", "/" or ":" or is "..".
[[nodiscard]] std::string ComponenteFile(std::string_view nome);

// A path in capitals, as what comes from a command line is taken; as it was given where the capitals lead elsewhere.
[[nodiscard]] std::string PercorsoInCapitali(const Disco& disco, std::string_view percorso);

// Last component of a path.
[[nodiscard]] std::string_view NomeDaPercorso(std::string_view percorso);

} // namespace lirmeto
