#pragma once
// An extract that came from outside, into Pregeo's extract folder.

#include <core/ambiente.h>

#include <string_view>

namespace lirmeto {

// Whether a file is one that the extract manager is opened for: .EMP, .PNG, .DXF, .ZIP.
[[nodiscard]] bool EstensioneEstratto(std::string_view percorso);

// Copies an .EMP or a .PNG with its twin, or what a .ZIP holds, to \pregeo\estratti, and associates the extract with
// the open libretto; a .DXF is not copied. Double quotes in the path are passed over. Errors as Disco::Copia.
void CopiaEstrattoInPregeo(Ambiente& ambiente, std::string_view percorso);

} // namespace lirmeto
