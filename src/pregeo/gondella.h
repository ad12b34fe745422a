#pragma once
// The sibling programs that lie in the suite's own folder.

#include <core/ambiente.h>

#include <string_view>

namespace lirmeto {

// Starts a program of \Gondella in the folder of the installed programs and waits for its end. Throws Errore 53, which
// names the program, when it is not installed.
void AvviaGondella(Ambiente& ambiente, std::string_view programma);

} // namespace lirmeto
