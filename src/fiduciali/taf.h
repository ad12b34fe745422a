#pragma once
// The TAF: the table of the fiducial points of a comune, a line of fixed columns each.

#include <core/ambiente.h>

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

// Columns of a line, from 1; a line cut short reads as blanks where it ends.
//   1-5 comune, 6-10 sheet, 11-12 annex, 14-17 number, 18-26 parcel, 30-94 place, 102-113 north, 115-126 east,
//   128-129 reliability, 130-133 and 139-141 stamp, 143-164 update, 165-224 height reference, 237-238 height
//   reliability, 240 on height
struct RecordTaf {
  std::string comune;
  std::string foglio;   // three characters
  std::string allegato; // one
  std::string numero;   // "PF01"
  std::string mappale;
  std::string riferimentoPlanimetrico;
  std::string nord; // metres, as it stands in the line
  std::string est;
  std::string attendibilitaPlanimetrica;
  std::string timbro;
  std::string aggiornamento;
  std::string riferimentoAltimetrico;
  std::string attendibilitaAltimetrica;
  std::string quota;
  std::string nome; // "PF01/0010/G693"
  double x = 0;     // east, metres
  double y = 0;     // north, metres
  double z = 0;     // metres
};

[[nodiscard]] RecordTaf DecodificaRigaTAF(std::string_view riga);

// Characters `primo` to `ultimo` of a line, from 1, trimmed; what the line lacks is blank.
[[nodiscard]] std::string_view Colonne(std::string_view riga, std::size_t primo, std::size_t ultimo);

// The four characters of the comune in the name of a fiducial point, trimmed: "G693" of "PF01/0010/G693".
[[nodiscard]] std::string_view ComuneDelPunto(std::string_view nome);

// Folder of all archives of the cadastre, with its closing backslash.
[[nodiscard]] std::string CartellaArchivi(const Sessione& sessione);

// Path of the TAF of a comune; empty when the text cannot be a file's name.
[[nodiscard]] std::string PercorsoTaf(const Sessione& sessione, std::string_view comune);

// The TAF of the comuni asked for, each read once.
class ArchivioTaf {
public:
  explicit ArchivioTaf(Ambiente& ambiente) : ambiente_(ambiente) {}

  // The line whose composed name is this one, exactly; the first of several. Empty: no archive, or no such point.
  [[nodiscard]] std::string_view Riga(std::string_view nome);

private:
  struct Comune {
    std::string testo;
    std::unordered_map<std::string, std::string_view> righe;
  };
  [[nodiscard]] const Comune& Leggi(std::string_view comune);

  Ambiente& ambiente_;
  std::unordered_map<std::string, Comune> comuni_;
};

struct CoordinatePF {
  std::string est; // as the line has them
  std::string nord;
};

// The quick look-up. It reads narrower columns than the record, which some archives fill otherwise: sheet 8-10, annex
// 11-13 ("0" when blank), number 16-17, north 103-113, east 116-126. A name whose number is not filled with zeros is not found.
[[nodiscard]] std::optional<CoordinatePF> CercaPFinTAF(Ambiente& ambiente, std::string_view nome);

// The same for several names, in their order; the TAF of a comune is read once for all its points.
[[nodiscard]] std::vector<std::optional<CoordinatePF>> CercaPFinTAF(Ambiente& ambiente,
                                                                    std::span<const std::string> nomi);

} // namespace lirmeto
