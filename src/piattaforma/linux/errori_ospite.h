#pragma once
// The host's error codes as the numbers that the logic knows.

#include <base/errore.h>

namespace lirmeto {

// `codice` is an errno value; `assente` is the number for a path that is not there: 53 for a file to read, 76 for a
// folder to write into.
[[nodiscard]] int NumeroDaErrno(int codice, int assente);

// Throws that error.
[[noreturn]] void LanciaErrno(int codice, int assente);

} // namespace lirmeto
