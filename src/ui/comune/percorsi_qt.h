#pragma once
// Paths between the windows, which speak of the host's files, and the logic, which speaks of drives.

#include <ui/comune/dialoghi_qt.h>

#include <core/ambiente.h>
#include <piattaforma/disco_dischi.h>

#include <functional>
#include <optional>
#include <string>

namespace lirmeto::ui {

// The disk must outlive the answer.
[[nodiscard]] Percorsi PercorsiDi(const DiscoDischi& disco);

// A host path, or one that has its drive already ("C:\..."), as the logic's; empty, and the error reported, for one
// that cannot be said. The surroundings must outlive the answer.
[[nodiscard]] std::function<std::string(const QString&)> PercorsoDetto(Ambiente& ambiente);

// The program's command line, "file" or "file|COMMAND|parameter", with its file said by `percorso`; double quotes are
// taken off. None for a command on a file that cannot be said: it would run on another.
[[nodiscard]] std::optional<std::string> RigaDiComando(const QString& riga,
                                                       const std::function<std::string(const QString&)>& percorso);

} // namespace lirmeto::ui
