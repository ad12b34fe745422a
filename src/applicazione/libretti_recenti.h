#pragma once
// The files opened last, kept per user.

#include <base/macchina.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

inline constexpr std::size_t MassimiRecenti = 10;

// Their paths, the last one first; never more than MassimiRecenti.
[[nodiscard]] std::vector<std::string> LeggiRecenti(const Impostazioni& impostazioni);

// The path becomes the first; one that stands there already, in any case, moves up.
void AggiungiRecente(Impostazioni& impostazioni, std::string_view percorso);
void TogliRecente(Impostazioni& impostazioni, std::string_view percorso);

} // namespace lirmeto
