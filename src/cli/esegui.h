#pragma once
// One run of lirmeto-cli.

#include <cstdio>
#include <string>
#include <vector>

namespace lirmeto {

struct Canali {
  std::FILE* uscita;
  std::FILE* errori;
};

// Runs the words behind the program's name. The answer is the exit code: 0 done, 1 an error report was shown, 2 wrong
// usage, 3 input file missing or unreadable. Nothing is written to the output after an error.
[[nodiscard]] int Esegui(const std::vector<std::string>& parole, const Canali& canali);

} // namespace lirmeto
