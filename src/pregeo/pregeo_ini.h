#pragma once
// PREGEO.INI: where Pregeo is installed and who the surveyor is.

#include <core/ambiente.h>

#include <string>

namespace lirmeto {

// Load-time reader: drives, surveyor, version, quality table. Tells of a
// missing PREGEO.INI or Pregeo.EXE and goes on.
void LeggiPregeoIni(Ambiente& ambiente);

// Session fields from RighePregeoIni. A line is cut at "=" and its part 1 is
// the value; keys are found anywhere in the line.
void SistemaDatiPregeoIni(Sessione& sessione);

// Session fields into RighePregeoIni; lines of other keys pass unchanged.
void ScriviDatiPregeoIni(Sessione& sessione);

// ScriviDatiPregeoIni, then the file: its bytes stay but for the values that changed, its line ends as they were.
void SalvaPregeoIni(Ambiente& ambiente);

// MisurateAssociate alone into the file and RighePregeoIni, all other values as they stand there. False when no line of
// PREGEO.INI has the key FILE_DISTANZETAF, and nothing is written.
[[nodiscard]] bool SalvaMisurateInPregeoIni(Ambiente& ambiente);

// Takes the header of the open libretto as the defaults of Pregeo: province codes from the tables, then
// SalvaPregeoIni. A session without a name gets surname and name from the surveyor's text.
void AggiornaConfigurazionePregeo(Ambiente& ambiente);

} // namespace lirmeto
