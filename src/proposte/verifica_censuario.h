#pragma once
// What would get census rows rejected, told where it stands: for the lists of the forms and for the rows of an act. The
// rows themselves stay as the forms compose them.

#include <core/lista_righe.h>
#include <supporto/segnalazione.h>

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Where a row stands in its list, from 0, and itself.
struct RigaInLista {
  std::size_t indice = 0;
  std::string_view testo;
};

// A block of census rows, all checks of the table that begin with M but those that need an extract. `tabellaQualita`
// holds "282   ENTE URBANO "; without it no quality is unknown.
void VerificaBloccoCensuario(std::span<const RigaInLista> righe, const std::vector<std::string>& tabellaQualita,
                             Raccolta& raccolta);

// The same over a list that holds nothing else, in the order of its rows.
[[nodiscard]] std::vector<Segnalazione> VerificaElencoCensuario(const ListaRighe& righe,
                                                                const std::vector<std::string>& tabellaQualita);

} // namespace lirmeto
