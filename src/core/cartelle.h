#pragma once
// The folders that the program works in.

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Creates the folder when it is not there; its parent must be.
void CreaCartella(Ambiente& ambiente, std::string_view percorso);

// The same for a folder whose parents may be missing too.
void CreaPercorso(Ambiente& ambiente, std::string_view percorso);

// All folders of the program and of Pregeo's data, one level at a time, in
// their order.
void CreaCartelle(Ambiente& ambiente);

// Their paths, in the same order.
[[nodiscard]] std::vector<std::string> CartelleDiLavoro(const Sessione& sessione);

// Asks the shell for its folders and derives the session's.
void CartelleSpeciali(Ambiente& ambiente);

} // namespace lirmeto
