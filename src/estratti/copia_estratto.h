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

// The import of the extract manager, which takes what is dropped on a window too: an .EMP or a .PNG together with its
// twin, or every .EMP and .PNG of a .ZIP. The extract becomes the associated one. Any other file is told of. Error 53 for
// a twin that is not there; those of Disco::Copia and Esplodi_ZIP.
void ImportaFileInEstratti(Ambiente& ambiente, std::string_view percorso);

} // namespace lirmeto
