#pragma once
// Commands of the main window on the libretto as a whole, and its tools, over the layers below.

#include <core/ambiente.h>

namespace lirmeto {

// The rows of the list as a report, to print, copy or fill into a model.
void StampaLibretto(Ambiente& ambiente);

// The editor of the whole libretto at the Relazione Tecnica.
void ModificaRelazione(Ambiente& ambiente);

// A dated copy of the libretto's rows into \Backup_Libretti of the program's folder. Errors as Disco::Scrivi.
void ArchiviaLibretto(Ambiente& ambiente);

// The archive of measured distances is chosen, and the choice written to PREGEO.INI; both are told.
void ScegliMisurate(Ambiente& ambiente);

// A surveyor's file of \TECNICI is chosen: what it tells of him goes into the session.
void ScegliTecnico(Ambiente& ambiente);

// The act's proposal in the window of the drawings.
void MostraProposta(Ambiente& ambiente);

// The folder of the forms, on the desktop.
void ApriModulistica(Ambiente& ambiente);

// Starts Pregeo itself and does not wait for its end. Error 53 when it is not installed.
void AvviaPregeo(Ambiente& ambiente);

} // namespace lirmeto
