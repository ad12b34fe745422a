#pragma once
// What an extract leaves in the archive of owners: a row to a file.

#include <core/ambiente.h>

#include <string_view>

namespace lirmeto {

// Writes each row that holds "6|DITTA|" to \fiducial\DITTA\PROVINCE_COMUNE_SHEET_A_B.DIT, A and B being its positions 2
// and 4. Errors: 9 for a row 0 or an owner's row that lacks a field that is read, 52 for one that is no part of a file
// name, before anything is written; those of the disk.
void ArchiviaDitte(Ambiente& ambiente, std::string_view percorso);

// The same, and the rows are taken out of the extract, whose last content is kept as a .BAK in the program's \TEMP.
void ArchiviaEdEliminaDitte(Ambiente& ambiente, std::string_view percorso);

} // namespace lirmeto
