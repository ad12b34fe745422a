#pragma once
// The row grammar: kinds of rows, the row splitter, the marks inside notes.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Kind of a row, by the number that it begins with.
enum class Genere : std::uint8_t {
  Intestazione, // 0
  Stazione,     // 1
  Battuta,      // 2, a sighting
  Poligonale,   // 3
  Allineamento, // 4, the base of offsets or of a levelling
  Squadro,      // 5, a point of it
  Libera,       // 6
  Contorno,     // 7
  Coordinate,   // 8
  Chiusura,     // 9
  Altro         // any other number
};

// Its numeric value, the leading number of the text, 0 when there is none; never its first character.
[[nodiscard]] double GenereRiga(std::string_view riga);
[[nodiscard]] Genere GenereDi(std::string_view riga);

inline constexpr std::size_t MassimoCampi = 301;
// A row 6 of at least this length is not split.
inline constexpr std::size_t LunghezzaRiga6Intera = 41;

// What SplitRiga gives: views into the row, which must outlive it.
struct RigaDivisa {
  std::array<std::string_view, MassimoCampi> CampiRiga{}; // index 0 to 300
  int UltimoCampo = 0;                                    // index before the first empty field, counted from 1
  int UltimoVertice = 0; // of a row 7: last index that is a vertex; the line code stands behind
                         // it, the parcel's name at + 2, the area at + 4
};

// The general parser of rows.
//   "2|101|323.57|100.2|38.9|3.6|SPIG|"  seven fields, UltimoCampo 6
//   "2|101||38.9|"                       an empty field ends the count: UltimoCampo 1
//   "6|<39 characters or more>"          two fields, bars and all
//   "7|3|1%|2%|1%|NC|12|12|500|"         UltimoVertice 4: a vertex has a value other than 0 and none of V R N T C P
// The text behind a closing bar is no field. Throws Errore 9 when a 302nd field
// begins.
[[nodiscard]] RigaDivisa SplitRiga(std::string_view riga);

// Whether a field of a row 7 is a line code: N black, R red or V green, then C solid, T dashed or P dotted.
[[nodiscard]] bool CodiceLinea(std::string_view campo);

// Whether a row 1 or 2 is a GPS row: its field 2 holds a comma.
[[nodiscard]] bool RigaGps(std::string_view riga);

// Whether a row 6 belongs to the GPS block: holds "|BAS|", "|RTK|", "|PDOP=" or
// "|GDOP=", or begins "6|L1|" or "6|L2|".
[[nodiscard]] bool Riga6Gps(std::string_view riga);

// Rows of a libretto as views, without the empty part behind its last line end.
[[nodiscard]] std::vector<std::string_view> RigheDi(std::string_view libretto);

// Whether a row holds a mark of the Relazione Tecnica or the heading of the
// Modello Censuario.
[[nodiscard]] bool MarcaRelazioneOCensuario(std::string_view riga);

// Whether a row 6 can be a comment: shorter than 76 characters, with exactly one
// field between its bars, no mark and no heading.
[[nodiscard]] bool PuoEssereCommento(std::string_view riga);

// The text as one field of a row: what would end the field or the row (bars, control characters) becomes a blank.
[[nodiscard]] std::string InUnCampo(std::string_view testo);

// A note without "<PD>", "<PV>", "<P!>", "<00>", "<EL>", "<8P>", "<8=>",
// "<8Q>", trimmed.
[[nodiscard]] std::string TogliMarcatoriNota(std::string_view nota);

// Literal rows and marks.
inline constexpr std::string_view RigaProposta = "6|ESTRATTO DI MAPPA|";
inline constexpr std::string_view RigaPropostaAggiornata = "6|ESTRATTO DI MAPPA AGGIORNATO|";
inline constexpr std::string_view InizioRelazione = "***** Relazione  Tecnica *****";
inline constexpr std::string_view FineRelazione = "*****   Fine   Relazione *****";
inline constexpr std::string_view RigaNovePredefinita = "9|20|10|20|1070|10.00-G,STDA 2.08|18|TIPO SENZA GEOMETRIA|";
// "|1|G693|...": what stands behind the date in the default row 0.
inline constexpr std::string_view CodaRigaZeroPredefinita = "|1|G693|0010|1|COGNOME NOME|GEOMETRA|PADOVA|";

} // namespace lirmeto
