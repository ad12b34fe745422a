#pragma once
// From the row list into Libretto, from Libretto to the disk.

#include <core/ambiente.h>

#include <string>

namespace lirmeto {

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

// Writes NomeFileLibretto, or asks for a name when there is none. Errors are
// reported here; after a failed save one more message says where the last good
// content is kept. The answer is whether it went well.
bool SalvaLibrettoMisure(Ambiente& ambiente);

// Writes the file. The last good content of a file that exists is kept first as
// \temp\NAME.ultimo in the program's folder.
void SalvaLibrettoSuFile(Ambiente& ambiente);

// Asks for a file and writes Libretto there, without tag rows; NomeFileLibretto
// does not change. A cancel is silent.
bool EsportaLibrettoInFile(Ambiente& ambiente);

} // namespace lirmeto
