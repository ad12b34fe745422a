#pragma once
// Libretto into the classes of its rows and back.

#include <core/ambiente.h>
#include <core/classi_righe.h>

namespace lirmeto {

// Libretto by class, and PropostaLibretto; warns when the census rows are not as many as they say.
[[nodiscard]] RigheInClassi EsplodiLibretto(Ambiente& ambiente);

// The classes into Libretto.
void RicomponiLibretto(Ambiente& ambiente, RigheInClassi righe);

// PropostaLibretto from Libretto: the rows from "6|ESTRATTO DI MAPPA|" on.
void CatturaPropostaInLibretto(Sessione& sessione);

} // namespace lirmeto
