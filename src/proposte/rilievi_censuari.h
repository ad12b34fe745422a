#pragma once
// What would get census rows rejected, told where it stands. The rows themselves stay as the forms compose them.

#include <core/lista_righe.h>

#include <string>
#include <vector>

namespace lirmeto {

enum class GravitaRilievo { Errore, Avviso, Nota };

struct RilievoCensuario {
  GravitaRilievo gravita = GravitaRilievo::Nota;
  std::size_t riga = std::string::npos; // in the list looked at, from 0; npos: the list as a whole
  std::string testo;
  bool operator==(const RilievoCensuario&) const = default;
};

// A block of census rows: heading, sections with their counts, columns, names and letters used twice, an original
// without its suppressed or varied row, qualities that the table has not, classes where the quality has none, areas
// that do not add up. In the order of the rows.
[[nodiscard]] std::vector<RilievoCensuario> ControllaCensuario(const ListaRighe& righe,
                                                               const std::vector<std::string>& tabellaQualita);

} // namespace lirmeto
