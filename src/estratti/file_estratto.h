#pragma once
// The files of one extract: all of the same stem.

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// A file's name, or its path, up to its last point.
[[nodiscard]] std::string_view Gambo(std::string_view nome);

// Whether a file holds the rows of an extract: .EMP, .AGG, .SMP.
[[nodiscard]] bool RigheDiEstratto(std::string_view nome);

// Names of the files of the extracts folder with this stem.
[[nodiscard]] std::vector<std::string> FileDelGambo(Ambiente& ambiente, std::string_view gambo);

// Whether a file of this stem may be written: the user is asked where the extract is there already.
[[nodiscard]] bool ConfermaSostituzione(Ambiente& ambiente, const std::string& gambo);

// A name as typed, trimmed and without ".EMP" behind it. Throws Errore 52 for one that is no part of a path.
[[nodiscard]] std::string GamboScritto(std::string_view nome);

} // namespace lirmeto
