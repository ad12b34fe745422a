#pragma once
// What a program of this host does first: its words and its standard streams.

#include <cstdio>
#include <string>
#include <vector>

namespace lirmeto {

// The words behind the program's name, UTF-8.
[[nodiscard]] std::vector<std::string> ParoleRicevute(int quante, char** parole);

// The standard streams carry bytes as they are, a terminal takes them for UTF-8, and one that came closed fails when it is
// used. A reader that goes away, or a file that may not grow, is an error to tell and not a death.
void PreparaCanali();

// Whether somebody reads along.
[[nodiscard]] bool Terminale(std::FILE* canale);

} // namespace lirmeto
