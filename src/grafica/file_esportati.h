#pragma once
// The drawing as files of the folders of the program.

#include <core/ambiente.h>
#include <grafica/disegno_condiviso.h>

#include <string>

namespace lirmeto {

// Each writes the whole file and gives back its path. An empty store has no DXF: error 9.
std::string ScriviDXF(Ambiente& ambiente, const DisegnoCondiviso& disegno);
// The page, which the shell then opens.
std::string ScriviPagina(Ambiente& ambiente, const DisegnoCondiviso& disegno);
std::string ScriviOrdiniStampa(Ambiente& ambiente, const DisegnoCondiviso& disegno);
std::string ScriviScambio(Ambiente& ambiente, const DisegnoCondiviso& disegno);

// The exchange file was all that the program was started for.
[[nodiscard]] bool SoloPerScambio(const Ambiente& ambiente);

} // namespace lirmeto
