#pragma once
// Commands of the main window on the libretto as a whole, over the layers below.

#include <core/ambiente.h>

namespace lirmeto {

// The rows of the list as a report, to print, copy or fill into a model.
void StampaLibretto(Ambiente& ambiente);

// The editor of the whole libretto at the Relazione Tecnica.
void ModificaRelazione(Ambiente& ambiente);

} // namespace lirmeto
