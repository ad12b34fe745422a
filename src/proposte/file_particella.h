#pragma once
// The archive of parcels: one small file a parcel, the system's memory of parcels between acts.
//
// A file is named comune, "_0", sheet, "_", parcel, ".MAP" (in any case) and holds one line:
//
//   6|PARTICELLA|57|01|SEMINATIVO  |7544|7544|3.20|4.10|SN|
//       parcel, class in two digits, quality in twelve columns, catastal and graphic area (m2), agrarian and dominical
//       income, "SN" or "SR"
//   6|PARTICELLA|57|  |ENTE URBANO |7544|    | | |    as an extract has it
//   6|PARTICELLA|57|                                  illegal: the fields up to the area must be there

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

inline constexpr std::string_view InizioParticella = "6|PARTICELLA|";

struct DatiParticella {
  std::string nome;
  std::string classe;
  std::string qualita; // the name as it stands, blanks and all
  std::string superficie;
  std::string superficieGrafica;
  std::string agrario;
  std::string dominicale;
  std::string srSn;
};

// Throws Errore 9 for a row without an area, 5 for one that is no parcel's.
[[nodiscard]] DatiParticella LeggiRigaParticella(std::string_view riga);
[[nodiscard]] std::string RigaParticella(const DatiParticella& dati);

// A parcel of which a name and an area are known, with the class and quality given, as the archive's own commands write
// it.
[[nodiscard]] std::string RigaParticellaNuova(std::string_view nome, std::string_view classe, std::string_view qualita,
                                              std::string_view area);

// The last two characters of a class behind two zeros: "7" gives "07".
[[nodiscard]] std::string ClasseInDueCifre(std::string_view classe);

// Folder of the archive, without a closing backslash.
[[nodiscard]] std::string CartellaParticelle(const Sessione& sessione);

// Path of a file of the archive; a name with "\" in it is a path already. Throws Errore 52 for a name that is none.
[[nodiscard]] std::string PercorsoParticella(const Sessione& sessione, std::string_view nome);

// "G224_00041_57.MAP"; a "/" of the parcel's name becomes "_".
[[nodiscard]] std::string NomeFileParticella(std::string_view comune, std::string_view foglio,
                                             std::string_view particella, std::string_view estensione);

// What the names of the open libretto's sheet begin with: comune, "_0", sheet.
[[nodiscard]] std::string InizioFoglio(const Sessione& sessione);

// Names of the archive's files that begin so, without regard to case, in their order.
[[nodiscard]] std::vector<std::string> ElencaParticelle(const Ambiente& ambiente, std::string_view inizio);

// First line of a parcel's file. Errors as those of the disk, and 62 for an empty one.
[[nodiscard]] std::string LeggiFileParticella(const Ambiente& ambiente, std::string_view nome);

// Writes the row as the file of this name, over one that is there.
void ScriviFileParticella(Ambiente& ambiente, std::string_view nome, std::string_view riga);

// A parcel as the proposal forms are given it.
struct ParticellaScelta {
  DatiParticella dati;
  std::string codiceQualita;            // three characters
  std::vector<std::string> derivazioni; // of all parcels: "35 = 29390_101 = 29090"
};

// The same from a row and the lines of a "Modello Censuario.TXT": those of a parcel derived from itself are left out.
[[nodiscard]] ParticellaScelta ScegliParticella(const Sessione& sessione, std::string_view riga,
                                                std::string_view modello);

} // namespace lirmeto
