#pragma once
// The surveyor's file (.PFS) and the dated copy of Pregeo's archive.

#include <core/ambiente.h>

#include <string>
#include <string_view>

namespace lirmeto {

// Writes the surveyor's .PFS, stores IncludiDatiTecnico and saves PREGEO.INI. A
// comma or a double quote in a value is written as a blank, and that is told.
void SalvaTecnico(Ambiente& ambiente);

// Reads a .PFS of the folder TECNICI; a missing file leaves the session as it
// is. The file is one comma list: a comma inside a value of a file that another
// program wrote shifts what follows, and that is known.
void CaricaTecnico(Ambiente& ambiente, std::string_view nomeFile);

// Copies Arch2Db to \pregeo\arch\BackupDB\ as NAME_yyyy-mm-dd_hh-mm-ss.db.
void SalvaArch2(Ambiente& ambiente);

// Now, as the names of dated copies have it: "2026-11-21_09-05-07".
[[nodiscard]] std::string DataEOra(const Orologio& orologio);

} // namespace lirmeto
