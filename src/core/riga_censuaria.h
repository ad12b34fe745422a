#pragma once
// Rows of the Modello Censuario, and the one place that knows their columns. Unlike the other rows they are fixed: seventy
// characters, bars at fixed columns.
//
//   6|Dati per aggiornare il D.B. Censuario dell'Ufficio Tecnico Erariale|   the heading, once
//   6|51FTP|004|                                                         |   a section and how many rows follow
//   6|O|35   |000|  |     |000029390|SN|  |     |001|1 |                 |   original parcel
//   6|S|35   |000|  |     |000000000|  |  |     |000|  |                 |   suppressed
//   6|C|     |000|a |AAA  |000029090|SN|  |     |282|  |                 |   constituted
//   6|V|79   |000|  |     |000000100|SN|  |     |282|  |                 |   varied, keeps its number

#include <core/lista_righe.h>

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace lirmeto {

inline constexpr std::size_t LunghezzaCensuaria = 70;

// Whether a line is a census row: of kind 6 and of exactly seventy characters. There is no other test, so that the
// heading and the count rows are census rows too, and so is any other row 6 of that length: the
// columns are all that a reader of the form goes by.
[[nodiscard]] bool RigaCensuaria(std::string_view riga);

// A field: its place in a split at the bars, from 0; its first column, from 1, and its width.
struct CampoCensuario {
  std::size_t indice;
  std::size_t prima;
  std::size_t quante;
  std::string_view nome; // as the user reads it
};

namespace censuario {
inline constexpr CampoCensuario Operazione{1, 3, 1, "Operazione"};
inline constexpr CampoCensuario Particella{2, 5, 5, "Particella"};
inline constexpr CampoCensuario Subalterno{3, 11, 3, "Subalterno"};
inline constexpr CampoCensuario Lettera{4, 15, 2, "Lettera"};
inline constexpr CampoCensuario Temporaneo{5, 18, 5, "Nome temporaneo"};
inline constexpr CampoCensuario Area{6, 24, 9, "Area"};
inline constexpr CampoCensuario SrSn{7, 34, 2, "SR/SN"};
inline constexpr CampoCensuario LetteraDestinazione{8, 37, 2, "Lettera di destinazione"};
inline constexpr CampoCensuario TemporaneoDestinazione{9, 40, 5, "Destinazione"};
inline constexpr CampoCensuario Qualita{10, 46, 3, "Qualit\xE0"};
inline constexpr CampoCensuario Classe{11, 50, 2, "Classe"};
inline constexpr CampoCensuario Coda{12, 53, 17, "Coda"};
// Of a count row.
inline constexpr CampoCensuario Sezione{1, 3, 5, "Sezione"};
inline constexpr CampoCensuario Conteggio{2, 9, 3, "Righe"};

inline constexpr std::string_view Intestazione =
    "6|Dati per aggiornare il D.B. Censuario dell'Ufficio Tecnico Erariale|";

// The sections: of a split; of a separation, a variation, a new construction, a fusion; of a fusion by its second
// option.
inline constexpr std::string_view Frazionamento = "51FTP";
inline constexpr std::string_view Stralcio = "3SPC ";
inline constexpr std::string_view Fusione = "M31FU";

// Qualities that the program itself writes or asks for.
inline constexpr std::string_view FabbricatoRurale = "279";
inline constexpr std::string_view EnteUrbano = "282";
inline constexpr double PrimaNonAgraria = 200; // from this code on a quality has no class

// Rows that forms start from, sample values and all.
inline constexpr std::string_view ModelloOriginale =
    "6|O|35   |000|  |     |000029390|SN|  |     |001|1 |                 |";
inline constexpr std::string_view ModelloSoppressa =
    "6|S|35   |000|  |     |000000000|  |  |     |000|  |                 |";
inline constexpr std::string_view ModelloCostituita =
    "6|C|     |000|a |AAA  |000029090|SN|  |     |282|  |                 |";
inline constexpr std::string_view ModelloFabbricato =
    "6|O|79   |000|  |     |000000100|SN|  |     |282|  |                 |";
inline constexpr std::string_view ModelloVariata =
    "6|V|79   |000|  |     |000000100|SN|  |     |282|  |                 |";
// What a row without values has.
inline constexpr std::string_view ModelloVuoto =
    "6| |     |000|  |     |000000000|  |  |     |000|  |                 |";
} // namespace censuario

// Columns of the bars, from 1.
inline constexpr std::array<std::size_t, 13> BarreCensuarie = {2, 4, 10, 14, 17, 23, 33, 36, 39, 45, 49, 52, 70};

// A field as it stands between its bars; empty when the row has not so many.
[[nodiscard]] std::string_view LeggiCampo(std::string_view riga, const CampoCensuario& campo);

// Writes a text over the columns of a field, from the first one on. A shorter text leaves what stands behind it, a
// longer one is cut: no overwrite ever passes a bar, and a bar in the text becomes a blank. Throws Errore 9 for a row
// that is too short to have the field.
void SovrascriviCampo(std::string& riga, const CampoCensuario& campo, std::string_view testo);

// The same with blanks behind a shorter text.
void ScriviCampo(std::string& riga, const CampoCensuario& campo, std::string_view testo);

// The last nine characters of the area behind zeros: "29390" gives "000029390".
void ScriviArea(std::string& riga, std::string_view area);

// The last three digits of a count, with zeros before it.
[[nodiscard]] std::string TreCifre(std::size_t numero);

// The count row of a section.
[[nodiscard]] std::string RigaConteggio(std::string_view sezione, std::size_t righe);

// Whether a row opens a section: any of them, and one of this name.
[[nodiscard]] bool ApreSezione(std::string_view riga);
[[nodiscard]] bool ApreSezione(std::string_view riga, std::string_view sezione);

// Tells the rows of a block from others, asked row by row: from the heading on, as long as they are census rows.
class BloccoCensuario {
public:
  [[nodiscard]] bool Prende(std::string_view riga);

private:
  bool dentro_ = false;
};

// The rows that a block should have by its count rows, the heading counted. Fusions of the second kind are left out:
// their count is of parcels and not of rows, so that a block that holds one never has as many as it says.
[[nodiscard]] double RigheIndicate(const ListaRighe& censuario);

// The row as the province of Gorizia wants it, and nothing generic: fields 2, 5 and 9 in ten columns, field 12 two
// blanks. A row without all the fields stays as it is.
[[nodiscard]] std::string RigaCensuariaGo(std::string_view riga);

} // namespace lirmeto
