#pragma once
// A second start hands its command line to the window that runs already, through a file of the program's folder \temp:
//
//   \temp\4711.consegna    named by the process that hands over; its content is the command line, empty for none
//
// The window that runs looks for them from time to time, takes them away and does what they say.

#include <core/ambiente.h>

#include <string>
#include <vector>

namespace lirmeto {

// Image name of this program's processes.
inline constexpr std::string_view ImmagineProgramma = "Lirmeto.exe";

// Other processes of this program.
[[nodiscard]] std::vector<long> AltriModuli(Ambiente& ambiente);
// Ends them.
void TerminaAltriModuli(Ambiente& ambiente);

// Hands over, and waits some seconds for it to be taken. Whether it was; what nobody took is withdrawn. Errors as
// Disco::Scrivi.
[[nodiscard]] bool ConsegnaComando(Ambiente& ambiente, std::string_view comando);

// What was handed over since the last time, in the order of their names; it is gone afterwards.
[[nodiscard]] std::vector<std::string> PrendiConsegne(Ambiente& ambiente);

} // namespace lirmeto
