#pragma once
// Start of a session, as far as it is the same with and without a window.

#include <core/ambiente.h>

namespace lirmeto {

// The session's folders; with a window it also tells them to the sibling
// programs.
void PreparaCartelle(Ambiente& ambiente);
void ScriviCartellaDocumenti(Ambiente& ambiente);

// PREGEO.INI and the tables. What is missing is told and the session goes on.
void CaricaInstallazione(Ambiente& ambiente);

} // namespace lirmeto
