#pragma once
// Shortcuts to the installed Pregeo.

#include <core/ambiente.h>

namespace lirmeto {

// Makes the three of them, on the desktop, in the programs menu and on the quick-launch bar, and tells of each whether
// it could. One that fails does not hold up the others.
void CreaCollegamentiPregeo(Ambiente& ambiente);

} // namespace lirmeto
