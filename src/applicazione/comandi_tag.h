#pragma once
// The command line that the sibling programs start this one with, and the dispatcher of its commands.
//
//   C:\act.dat                          a libretto to open; .EMP, .PNG, .DXF, .ZIP: an extract
//   C:\act.lxc                          a drawing: the forms that make a libretto of it, and then that libretto
//   C:\act.dat|CONFIGURA_PREGEO|        a libretto, a command, its parameter: one command, then the process ends
//   |DA_PREGEO                          no libretto: \Nuovo.DAT in the program's folder
//   |||                                 no command: nothing is done
//
// Double quotes are passed over and letters count as capitals.

#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

enum class DopoComando { Finisce, FinestraPrincipale };

// What ComandoTag asks for, read as the command line. The answer is whether the main window comes up or the process
// ends. Errors are reported here; one that stops a command ends the process all the same.
[[nodiscard]] DopoComando ComandoTag1(Ambiente& ambiente);

// What makes a libretto of a drawing, behind its path.
inline constexpr std::string_view ComandoDisegno = "|LIBRETTO_DA_DISEGNO|";

// Whether a file is a drawing: an .LXC with a point in it. One with the rows of a libretto is none.
[[nodiscard]] bool EDisegno(const Ambiente& ambiente, const std::string& percorso);

// One line "file|command|parameter" on the running session; a line that names no file runs on the open libretto.
void EseguiLineaDiComando(Ambiente& ambiente, std::string_view linea);

// Runs the command that ComandoTag names; any other text does nothing. One whose work is still to come says so.
//   LIBRETTO_DA_DISEGNO, CONFIGURA_PREGEO, SELEZIONA_MISURATE, MISURATE_DA1_PF, INFO_MISURATE, GESTIONE_PF,
//   DA_PREGEO, DA_PREGEO_DXF, IMPORT-INST_TAF-MISURATE
// The answer is whether the command wants the main window behind it.
DopoComando EseguiComandoTag(Ambiente& ambiente);

} // namespace lirmeto
