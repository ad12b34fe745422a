#pragma once
// From a file into Libretto, from Libretto into the row list.

#include <core/ambiente.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// What a .PDF of an act holds between its section marks.
struct ContenutoPdf {
  std::vector<std::string> righe1000;  // rows 0 and 9
  std::vector<std::string> righe2000;  // the other rows
  std::vector<std::string> dati3000;   // data of the associated extract and
                                       // further data (5000), a line a section
  std::optional<std::string> estratto; // identifier of the associated extract, upper case; none
                                       // without a section 3000
  std::string ditta;                   // the owners, lines at CR LF
  std::vector<std::string> scartate;   // pieces that are no section, and sections of other numbers
};

// A section of a .PDF of an act: a view into its bytes.
struct SezionePdf {
  double numero = 0;
  std::string_view contenuto;
};

// The sections in the order of the file, those of numbers that nobody knows too; a piece without "]|" is broken and
// has number 0. One that nothing closes ends with the file.
[[nodiscard]] std::vector<SezionePdf> DividiSezioniPdf(std::string_view byte);

// A section is "[TAG" number "]|" content "[/TAG"; its rows stand between
// "<nr>". Numbers: 1000, 2000, 3000, 4000, 5000; any other is left out. The
// last row of a section counts also when no "<nr>" closes it.
//   [TAG1000]|0|...|<nr>9|...|<nr>[/TAG1000]
[[nodiscard]] ContenutoPdf LeggiSezioniPdf(std::string_view byte);

// What opening takes: a command fills what a file lacks, a user who picked the wrong file is told so. SoloLibretti is
// error 5 for a file with no row of a kind or with bytes that are zero.
enum class Accetta : std::uint8_t { OgniFile, SoloLibretti };

// Reads NomeFileLibretto into Libretto, Ditta, EstrattoAssociato,
// CodiceFiscale, NumeroIscrizione; the list is not touched. An .LXB gives new
// measuring rows to the .DAT of the same name, and NomeFileLibretto stays at
// the .DAT. A file that is not there leaves Libretto as it was. After an error the session is as it was.
void CaricaLibrettoDaFile(Ambiente& ambiente, Accetta accetta = Accetta::OgniFile);

// Reads a .PDF into Libretto, Ditta and EstrattoAssociato; NomeFileLibretto
// becomes the .TXT of the same name, upper case. Nothing is written. Throws
// Errore 5 for a file without the sections of a libretto; the session is then
// as it was.
void EsplodiPDF(Ambiente& ambiente, std::string_view percorso);

// Opens a file by its extension, as a drop on the list does: .PDF by its
// sections, anything else as a libretto. When that fails the session keeps the
// file name it had.
void ApriLibretto(Ambiente& ambiente, std::string_view percorso, Accetta accetta = Accetta::OgniFile);

// The .EMP of Pregeo's extract folder whose first row has the identifier in
// field 2; empty when there is none. An empty identifier is nobody's.
[[nodiscard]] std::string CercaEstratto(Ambiente& ambiente, std::string_view identificativo);

// Fills the row list from Libretto and puts rows 0 and 9 where they belong;
// then DecoZeroNove.
void CaricaLibrettoInList1(Ambiente& ambiente);

// Puts rows 0 and 9 where they belong in the row list as it stands.
void AssicuraZeroNoveInList1(Ambiente& ambiente);

// Fills the row list from Libretto without deriving anything; sets the position
// label.
void RiempiList1(Ambiente& ambiente);

} // namespace lirmeto
