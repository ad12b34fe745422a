#pragma once
// The two extracts that an empty folder begins with.

#include <core/ambiente.h>

namespace lirmeto {

// Writes ESTRATTO.emp and ESTRATTO1.emp into the extracts folder, which is made when only itself is missing. Errors as
// those of the disk.
void ScriviEstrattiEsempio(Ambiente& ambiente);

} // namespace lirmeto
