#pragma once
// The archives of the distances measured between fiducial points: a file .DDD for each province, its code in front of
// the file's name, a distance a line.
//
//   PF1              PF2                  Distanza     SQM     Anno Prot.       Diff.
//   PF01/1220/G224 - PF01/1230/G224       575.975    0.020     2010 230571
//
// The two names stand in columns 1 to 32, the distance (metres) in those from 33 on; what follows is only ever copied.

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// The tag command IMPORT-INST_TAF-MISURATE, wherever it is asked for: the sibling program that installs and refreshes
// the archives, awaited until it ends.
void ImportaTafMisurate(Ambiente& ambiente);

// Names of the archives that are installed, sorted.
[[nodiscard]] std::vector<std::string> ElencoArchiviMisurate(const Ambiente& ambiente);

// Whether two archives are of one province.
[[nodiscard]] bool StessaProvincia(std::string_view unArchivio, std::string_view altro);

// Name of the archive for the points of a comune, by the province that the comune lies in: the last of several. The
// code of the province alone when none is installed; empty when nobody knows the comune.
[[nodiscard]] std::string TrovaArchivioMisurate(Ambiente& ambiente, std::string_view comune);

// Whether an archive of this name, a file of the folder of archives, is there.
[[nodiscard]] bool ArchivioInstallato(const Ambiente& ambiente, const std::string& nome);

// Writes a report, lines with their ends, to \Gondella\temp\Misurate.TXT in the folder of the installed programs and
// opens it as the user's desktop does.
void ApriListaMisurate(Ambiente& ambiente, std::string_view testo);

// The report of one point: the lines of its archive that contain the name. Without the archive the user may fetch it.
void InfoMisurate(Ambiente& ambiente, std::string_view nome);

} // namespace lirmeto
