#pragma once
// Paths between the windows, which speak of the host's files, and the logic, which speaks of drives.

#include <ui/dialoghi_qt.h>

#include <core/ambiente.h>
#include <piattaforma/disco_dischi.h>

namespace lirmeto::ui {

// The disk must outlive the answer.
[[nodiscard]] Percorsi PercorsiDi(const DiscoDischi& disco);

// A host path, or one that has its drive already ("C:\..."), as the logic's; empty, and the error reported, for one
// that cannot be said. The surroundings must outlive the answer.
[[nodiscard]] std::function<std::string(const QString&)> PercorsoDetto(Ambiente& ambiente);

} // namespace lirmeto::ui
