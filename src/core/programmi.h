#pragma once
// Other programs: started and waited for, ended.

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Starts a program of the suite and waits for its end without limit, but that the user may give up: error 32755. The
// answer is the program's exit code.
int AttendiProgramma(Ambiente& ambiente, const std::string& programma, const std::vector<std::string>& argomenti);

// Opens a document with the program that the desktop has for it. Where there is none that is said in a sentence, with
// the path: the document is there all the same.
void ApriDocumentoODillo(Ambiente& ambiente, const std::string& percorso);

// Ends every process of that name; tells of it only if the last end failed.
void TerminaProcesso(Ambiente& ambiente, std::string_view immagine);

// Ends pregeo.exe, fire.exe, elab.exe, moduli.exe.
void TerminaPregeo(Ambiente& ambiente);

} // namespace lirmeto
