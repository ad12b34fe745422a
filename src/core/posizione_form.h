#pragma once
// Where a form stood last: kept per user under the form's name.

#include <base/macchina.h>

#include <optional>
#include <string_view>

namespace lirmeto {

// Pixels on the screen. A size of 0 is not known.
struct PosizioneForm {
  int sinistra = 0;
  int alto = 0;
  int larghezza = 0;
  int altezza = 0;
};

// None when left or top were never kept.
[[nodiscard]] std::optional<PosizioneForm> LeggiPosizione(const Impostazioni& impostazioni, std::string_view form);

// Keeps the place, and the size where it is known.
void ScriviPosizione(Impostazioni& impostazioni, std::string_view form, const PosizioneForm& posizione);

} // namespace lirmeto
