#pragma once
// The main window's commands that change or select rows directly.

#include <core/ambiente.h>

#include <string>

namespace lirmeto {

// Mark of the virtual reference station in the note (field 6) of a GPS row; it belongs to the fifth row of the
// list. What does not fit is told and nothing changes; a row without a field 6 throws Errore 9.
void EliminaVrs(Ambiente& ambiente);
// The row under the cursor becomes the fifth, and the fifth gets the mark.
void AssegnaVrs(Ambiente& ambiente);

// Each selects the rows of its kind and no others.
void SelezionaRighe1(Ambiente& ambiente);         // text beginning "1|"
void SelezionaPuntiFiduciali(Ambiente& ambiente); // "|PF" anywhere behind the first character
void Seleziona_Stazioni(Ambiente& ambiente);      // kind 1
void Seleziona_Squadri(Ambiente& ambiente);       // kinds 4 and 5
void Seleziona_Contorni(Ambiente& ambiente);      // kind 7
void InvertiSelezione(Ambiente& ambiente);
void SelezionaTutte(Ambiente& ambiente);

// Asks, telling which row or how many, and removes the selected rows; the first two always stay. Without any other
// there is no question.
void EliminaRigheSelezionate(Ambiente& ambiente);

// The rows of the list to the clipboard and to \temp\TagUno.tag, each with its line end.
void CopiaNegliAppunti(Ambiente& ambiente);

// Lines of a spreadsheet from the clipboard, appended to Libretto: cells at tabs become fields, commas points.
//   "A<tab>1,5<tab>2"  gives  "2|A|1.5|2|", with a number for a name "2|1|A|1.5|2|", as a whole row "A|1.5|2|"
void ImportaRighe8DaExcel(Ambiente& ambiente);
void ImportaRighe8NomeAutoDaExcel(Ambiente& ambiente);
void ImportaRigheCompleteDaExcel(Ambiente& ambiente);

// Pregeo's printout of adjusted coordinates from the clipboard into rows 8, in place of the whole Libretto.
//   "101  5029871.220 +/- 1724410.300 +/- 12.00 +/-"  gives  "8|101|5029871.220|1724410.300|"
void LibrettoDaElaborazionePregeo(Ambiente& ambiente);

// Opens the census workbench, then reorders the rows.
void subModelloCensuario(Ambiente& ambiente);

} // namespace lirmeto
