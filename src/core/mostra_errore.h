#pragma once
// The one error report of the program, and the trap in which routines that
// touch the machine run.

#include <base/errore.h>
#include <core/ambiente.h>

#include <functional>
#include <string_view>

namespace lirmeto {

// Shows the report of the session's last error (NumeroErrore, TestoErrore,
// PuntoErrore) and clears PuntoErrore. Error 32755, a cancelled dialog, is
// silent; 75 adds the read-only hint.
void MostraErrore(Ambiente& ambiente);

// Runs a command; an error ends it with the report and the answer false.
// Whatever is not an Errore (no memory, a defect of ours) is turned into one
// here and never swallowed. The state stays as it was at the failure.
[[nodiscard]] bool Intrappola(Ambiente& ambiente, const std::function<void()>& comando);

} // namespace lirmeto
