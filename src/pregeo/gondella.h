#pragma once
// The sibling programs of the suite.

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Starts a program and waits for its end; the answer is its exit code. Throws Errore 53, which names the program,
// when it is not installed.
int AttendiInstallato(Ambiente& ambiente, const std::string& programma, const std::vector<std::string>& argomenti);

// The same for a program of \Gondella in the folder of the installed programs, without arguments.
void AvviaGondella(Ambiente& ambiente, std::string_view programma);

} // namespace lirmeto
