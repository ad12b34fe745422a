#pragma once
// From the row list into Libretto, from Libretto to the disk.

#include <core/ambiente.h>

#include <cstdint>
#include <string>

namespace lirmeto {

// Libretto + trimmed row + CR LF.
void AggiungiRigaLibretto(Sessione& sessione, std::string_view riga);

// Row list to Libretto: a row equal to the one before it (in any case) goes,
// "<P!>" is taken off and an empty note "||" becomes
// "|NOTE:|" in all rows but those of kind 0 and 9; the list takes the same
// text.
void AggiornaLibrettoMisure(Ambiente& ambiente);

// Owners, extract, fiscal code and registration as the tag rows can hold them: a
// bar or a control character would cut them at the next opening; it becomes a
// blank in the session too, and that is told.
void RendiScrivibili(Ambiente& ambiente);

// The bytes of the libretto's file: Libretto, the tag rows, the owners.
[[nodiscard]] std::string TestoDaSalvare(const Sessione& sessione);
// The same from a Libretto that is handed over, so that a large one is not copied.
[[nodiscard]] std::string TestoDaSalvare(std::string&& libretto, const Sessione& sessione);

// Writes NomeFileLibretto, or asks for a name when there is none. The last good content of a file that exists is kept
// first, in the folder \temp of the program's, as NAME.NUMBER.ultimo, the number being the path's; a save that failed
// leaves that copy as it is to the next ones. Errors are reported here; after a failed save one more message says where
// the copy is. The answer is whether it went well.
bool SalvaLibrettoMisure(Ambiente& ambiente);

// The same into a file that is asked for, which becomes NomeFileLibretto when it went well.
[[nodiscard]] bool SalvaLibrettoAltrove(Ambiente& ambiente);

// What a save of the row list, after AggiornaLibrettoMisure, would write, as a number: the same number is the same
// text. Owners count in capitals, as their box shows them. In two halves, as the rows' one costs as much as they are long.
[[nodiscard]] std::uint64_t ImprontaRighe(const ElencoRighe& righe);
[[nodiscard]] std::uint64_t ImprontaElenco(std::uint64_t righe, const Sessione& sessione);
// The same of what a save of Libretto writes.
[[nodiscard]] std::uint64_t ImprontaLibretto(const Sessione& sessione);

// Asks for a file, folder and name of the libretto being proposed, and writes Libretto there, without tag rows;
// NomeFileLibretto does not change. A cancel is silent. The answer is the path written, empty for none.
std::string EsportaLibrettoInFile(Ambiente& ambiente);

// "1 riga", "173 righe".
[[nodiscard]] std::string QuanteRighe(std::size_t quante);
// "aggiunta 1 riga", "aggiunte 173 righe" for "aggiunt".
[[nodiscard]] std::string FattoARighe(std::string_view participio, std::size_t quante);

// The rows as AggiornaLibrettoMisure will leave them.
[[nodiscard]] ElencoRighe Sistemato(ElencoRighe elenco);
// What it will do to them, as a clause of a sentence: "tolte 2 righe uguali alla precedente, sistemate 3 righe con note da
// completare"; empty when nothing is to be mended.
[[nodiscard]] std::string AvvisoSistemate(ElencoRighe elenco);

} // namespace lirmeto
