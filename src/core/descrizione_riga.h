#pragma once
// What the fields of a row are, for the line under the row list.

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

struct CampoDescritto {
  std::string nome;   // "Distanza"
  std::string unita;  // "m", "gon"; empty for a text
  std::string valore; // as it stands in the row
};

struct RigaDescritta {
  std::string genere; // "Riga 2 - Battuta"
  std::vector<CampoDescritto> campi;
};

[[nodiscard]] RigaDescritta DescriviRiga(std::string_view riga);

// One line: "Riga 2 - Battuta: Punto 101 · Hz 323.5725 gon · ...".
[[nodiscard]] std::string TestoDescrizione(const RigaDescritta& descritta);

} // namespace lirmeto
