#pragma once
// Service routines that all parts of the program call.

#include <base/piano.h>
#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// What an entry says whose work is still to come.
inline constexpr std::string_view NonAncoraDisponibile = "Non ancora disponibile";

// Creates the folder when it is not there; its parent must be.
void CreaCartella(Ambiente& ambiente, std::string_view percorso);

// The same for a folder whose parents may be missing too.
void CreaPercorso(Ambiente& ambiente, std::string_view percorso);

// All folders of the program and of Pregeo's data, one level at a time, in
// their order.
void CreaCartelle(Ambiente& ambiente);

// Their paths, in the same order.
[[nodiscard]] std::vector<std::string> CartelleDiLavoro(const Sessione& sessione);

// Asks the shell for its folders and derives the session's.
void CartelleSpeciali(Ambiente& ambiente);

// Starts a program of the suite and waits for its end without limit.
void AttendiProgramma(Ambiente& ambiente, const std::string& programma, const std::vector<std::string>& argomenti);

// Ends every process of that name; tells of it only if the last end failed.
void TerminaProcesso(Ambiente& ambiente, std::string_view immagine);

// Ends pregeo.exe, fire.exe, elab.exe, moduli.exe.
void TerminaPregeo(Ambiente& ambiente);

// A text file with each line followed by CR LF, whatever its line ends; empty
// when nothing is there.
[[nodiscard]] std::string CaricaFileIntero(Ambiente& ambiente, std::string_view percorso);

// All bytes of a file.
[[nodiscard]] std::string CaricaFileBinario(Ambiente& ambiente, std::string_view percorso);

// Libretto + trimmed row + CR LF.
void AggiungiRigaLibretto(Sessione& sessione, std::string_view riga);

// Euclidean distance, metres.
[[nodiscard]] double DistanzaPiana(double x1, double y1, double x2, double y2);

// Opens a form by its name; one that this program has not yet answers with a
// message. Whether it was opened.
bool ApriForm(Ambiente& ambiente, std::string_view nome);

// A text taken from data as one component of a path: throws Errore 52 when it
// holds "\", "/" or ":" or is "..".
[[nodiscard]] std::string ComponenteFile(std::string_view nome);

// A path in capitals, as what comes from a command line is taken; as it was given where the capitals lead elsewhere.
[[nodiscard]] std::string PercorsoInCapitali(const Disco& disco, std::string_view percorso);

// Last component of a path.
[[nodiscard]] std::string_view NomeDaPercorso(std::string_view percorso);

} // namespace lirmeto
