#pragma once
// What an extract says of itself: its header for the libretto, its kind, its age.

#include <core/ambiente.h>

#include <optional>
#include <string>
#include <string_view>

namespace lirmeto {

struct DatiEstratto {
  std::string comune;     // "G224"
  std::string foglio;     // the last four characters of the sheet
  std::string particelle; // the names of its rings, comma between
  std::string estMedio;   // whole metres
};

// The data that a libretto takes over from an extract of Pregeo's folder; Provincia follows. A name or a file that is
// not there gives empty data. For an .AGG it tells the user to choose an .EMP and gives none. Throws Errore 9 for a row
// 0 of fewer than seven fields and for rows that lack a field that is read.
[[nodiscard]] std::optional<DatiEstratto> CopiaIDatiDellEstratto(Ambiente& ambiente, std::string_view nome);

// VersionePregeoEstratto ("10" or "9") and TipoEstratto ("AUTOALLESTITO" or empty) from the whole text of an extract.
void RiconosciEstratto(Sessione& sessione, std::string_view testo);

// The expiry sentence: an extract is valid for six months from its release. The months left are shown with their sign.
[[nodiscard]] std::string ScadenzaEstratto(const Sessione& sessione);

// "Rilasciato il dd-mm-yyyy".
[[nodiscard]] std::string RilascioEstratto(const Sessione& sessione);

} // namespace lirmeto
