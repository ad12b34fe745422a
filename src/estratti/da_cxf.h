#pragma once
// A whole cadastral sheet made into a map extract.

#include <core/ambiente.h>
#include <estratti/foglio_cxf.h>

#include <string>
#include <string_view>

namespace lirmeto {

// A ring in one row as the rows 7 of an extract, CR LF between: ten identifiers each.
//   "7|3|1%|2%|1%", "272|272|20|"   gives   "7|3|1%|2%|1%|NC|272|272|20|"
// `riga` is the count and the identifiers behind "7|", bars between; `coda` stands behind the first row only.
[[nodiscard]] std::string SplittaSette(std::string_view riga, std::string_view coda);

// The extract of a sheet: vertices of the same text once, numbered in text order; a ring for each border; a fixed header
// and framing. Throws Errore 13 for a surface that holds a bar.
[[nodiscard]] std::string EmpDaFoglio(const FoglioCxf& foglio, SuperficiSup& superfici);

// The same from the file of a sheet and the .SUP beside it; a .SUP that is not there is told, and the surfaces are then
// not known. Errors as LeggiCxf and Disco::Leggi.
[[nodiscard]] std::string EmpDaCxf(Ambiente& ambiente, std::string_view percorso);

// Asks for a sheet and writes its extract beside it, and a raster's stand-in where there is no raster. Errors are
// reported here, and nothing is written then.
void DaCXFaEMP(Ambiente& ambiente);

} // namespace lirmeto
