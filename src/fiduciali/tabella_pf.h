#pragma once
// The fiducial points of a comune as a table: a row for each line of its TAF.

#include <core/ambiente.h>
#include <fiduciali/taf.h>

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

struct TabellaPF {
  std::string comune; // code, with its section where there is one: "G224", "A001B"
  std::string nome;
  std::string provincia; // "PD"
  std::vector<RecordTaf> punti;
};

struct ColonnaPF {
  std::string_view titolo;
  std::string RecordTaf::*cella;
  std::size_t caratteri; // of the printed column
  bool numero;           // sorted by its value
};

inline constexpr std::array<ColonnaPF, 10> ColonnePF = {{
    {"PF", &RecordTaf::nome, 15, false},
    {"Map", &RecordTaf::mappale, 5, true},
    {"Att.Plan.", &RecordTaf::attendibilitaPlanimetrica, 2, true},
    {"Nord", &RecordTaf::nord, 12, true},
    {"Est", &RecordTaf::est, 12, true},
    {"Rif.Plan", &RecordTaf::riferimentoPlanimetrico, 60, false},
    {"Att.Altim.", &RecordTaf::attendibilitaAltimetrica, 2, true},
    {"Quota", &RecordTaf::quota, 8, true},
    {"Rif.Altim.", &RecordTaf::riferimentoAltimetrico, 60, false},
    {"Aggiornamento", &RecordTaf::aggiornamento, 15, false},
}};

// Path of the TAF of a comune: the first four characters of its code name the file. Empty for a code that cannot.
[[nodiscard]] std::string PercorsoTafDelComune(const Sessione& sessione, std::string_view comune);

// Reads the rows of the TAF; a comune without one has none. A blank line is no point.
void CaricaPunti(Ambiente& ambiente, TabellaPF& tabella);

// Cells of a row for a file, trimmed, with a tab between: what would part a cell in two is a blank.
[[nodiscard]] std::string RigaConTab(const RecordTaf& punto, std::size_t colonne = ColonnePF.size());

// The whole table, a row a line.
[[nodiscard]] std::string TestoTabella(const TabellaPF& tabella);

} // namespace lirmeto
