#pragma once
// The small edits between a load and a save.

#include <estratti/kr_estratto.h>

#include <string>
#include <string_view>

namespace lirmeto {

// Takes away the rings whose first name field is exactly this, and the vertices that lose their last ring. Further
// rings and holes bear their sign in that field and stay unless named with it.
void EliminaParticellaEstratto(KR_Estratto& estratto, std::string_view nome);

// Takes away the points whose identifier stands in no ring.
void EliminaPuntiIsolati(KR_Estratto& estratto);

// Loads an extract, takes its isolated points away, saves it in its place. A failed load saves nothing. Whether it was
// saved.
bool PulisciEstratto(Ambiente& ambiente, std::string_view nome);

// An extract's text with a parcel's new name in the closing fields of its rings; whatever else bears the name keeps it.
// Throws Errore 5 for a new name that holds a bar.
[[nodiscard]] std::string RinominaParticella(std::string_view testo, std::string_view vecchio, std::string_view nuovo);

} // namespace lirmeto
