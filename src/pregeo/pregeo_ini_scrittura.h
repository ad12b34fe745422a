#pragma once
// PREGEO.INI and its like written back: lines in memory, bytes on disk.
//
// What is written differs from what was read only where a value changed. The lines pass through the session as
// RighePregeoIni, without their ends; the file that is written over says which end each of them had.
//
//   RigheIni("a=1\nb=2")                       {"a=1", "b=2", ""}
//   RigaIniConValore("numero=1=2", "77")       "numero=77=2"
//   TestoIni({"a=1", "b=3", ""}, "a=1\nb=2")   "a=1\nb=3"
//
// A form that edits the whole text gives its lines to the session and its text to the file:
//   sessione.RighePregeoIni = RigheIni(testo);
//   ambiente.disco.Scrivi(PercorsoPregeoIni(sessione), testo);

#include <core/sessione.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// CartellaWindows + "\PREGEO.INI".
[[nodiscard]] std::string PercorsoPregeoIni(const Sessione& sessione);

// The lines of a text, whatever their ends, and behind them the empty one that the last line end leaves: a text that
// lacks it is taken as if it had it. The empty text has no lines.
[[nodiscard]] std::vector<std::string> RigheIni(std::string_view testo);

// The bytes of the lines: line i ends as the line i of `originale` does (CR LF, LF, CR, or nothing where both are the
// last), any other by CR LF. The last entry is what stands behind the last line end, as RigheIni gives it.
// TestoIni(RigheIni(testo), testo) is `testo`.
[[nodiscard]] std::string TestoIni(const std::vector<std::string>& righe, std::string_view originale);

// The line with the part behind its first "=" replaced as far as the next; the line as it is when it has no "=", or
// holds the whole value already: a value with "=" inside does not grow from one write to the next.
[[nodiscard]] std::string RigaIniConValore(std::string_view riga, std::string_view valore);

// The lines with the session's values under their keys; the last entry is never a key, and what is no key passes
// unchanged. "nome=" right behind "[DATI TECNICO]" takes surname and name, "provincia=" right behind "[PROV_DI_COMP]"
// the province's code; "SIGLA PROV." the code that Province has for the name Provincia, and stays where it has none.
[[nodiscard]] std::vector<std::string> RigheIniConValori(std::vector<std::string> righe, const Sessione& sessione);

} // namespace lirmeto
