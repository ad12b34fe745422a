#include <base/percorsi.h>

namespace lirmeto {

std::string_view SenzaEstensione(std::string_view percorso) {
  const std::size_t segno = percorso.find_last_of("\\/.");
  return segno == std::string_view::npos || percorso[segno] != '.' ? percorso : percorso.substr(0, segno);
}

std::string ConEstensione(std::string_view percorso, std::string_view estensione) {
  return std::string(SenzaEstensione(percorso)).append(estensione);
}

} // namespace lirmeto
