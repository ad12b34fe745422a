#pragma once
// The distances between the fiducial points of the session's drawing, against the archives.

#include <core/ambiente.h>

#include <optional>
#include <string>

namespace lirmeto {

// The report, lines with their ends. None: a message has told the user why.
[[nodiscard]] std::optional<std::string> MisurateDelDisegno(Ambiente& ambiente);

// Writes it and opens it.
void CalcolaMisuratePF(Ambiente& ambiente);

} // namespace lirmeto
