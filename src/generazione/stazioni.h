#pragma once
// Which points a station sights by their names alone.

#include <generazione/tabelle_disegno.h>

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

// Names of three characters must share the first with the station's, of four the first two unless the station ends
// "000"; names of the same length from four on all but the last three. So station 1000 sees 1100, and 1100 does not see
// 1000: a thousand opens a survey, and is sighted by none of it. A point marked "<EL>" is not sighted.
class PuntiPerNome {
public:
  explicit PuntiPerNome(const TabelleDisegno& tabelle);

  // In table order, the station itself among them. Views into the tables.
  [[nodiscard]] const std::vector<std::string_view>& Di(std::string_view stazione) const;

private:
  std::unordered_map<std::string, std::vector<std::string_view>> gruppi_;
};

// Whether a name is that of a station wherever stations go by the thousand: three characters ending "00", or more
// ending "000".
[[nodiscard]] bool NomeMillesimale(std::string_view nome);

} // namespace lirmeto
