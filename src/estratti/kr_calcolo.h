#pragma once
// The second load of an extract: its rows as grids, to be looked at and counted.

#include <core/ambiente.h>
#include <core/lista_righe.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// Twenty columns; row 0 holds their numbers (column 0 nothing), each other the fields of a row of the file. Fields
// beyond the last column are not held. A row or column that does not exist is error 9.
class Griglia {
public:
  static constexpr std::size_t Colonne = 20;

  // A row of a text that outlives the grid's use or is kept with Tieni.
  void Aggiungi(std::string_view riga) { righe_.AggiungiVista(riga); }
  void Tieni(const TestoCondiviso& testo) { righe_.Tieni(testo); }
  // What the last column of the last row shows in place of the row's own field.
  void UltimaColonna(std::string_view testo);

  [[nodiscard]] std::size_t Righe() const { return righe_.size() + 1; }
  [[nodiscard]] std::string_view Cella(std::size_t riga, std::size_t colonna) const;
  // The whole row with tabs between its fields, as a copy of the grid gives it.
  [[nodiscard]] std::string RigaConTab(std::size_t riga) const;

private:
  ListaRighe righe_;
  std::vector<std::string_view> ultime_; // by row of the file; shorter than the rows where nothing was put
};

struct KR_Calcolo {
  ListaRighe TuttoList; // the rows as read
  Griglia Tutto;
  Griglia Riga8;      // points that are not fiducial
  Griglia Riga7;      // the parcel of a row in the last column, of a continuation too
  Griglia PF;         // fiducial points
  Griglia Misurate;   // measured distances
  Griglia Particelle; // census rows
  ListaRighe List1;   // rows 7
  ListaRighe List2;   // census rows
};

// Loads an extract, selected in a folder, in place of what the lists and grids held. Errors as those of the disk, and 9
// for a row 7 without its parcel's name.
void CaricaEstrattoSuKRCalcolo(Ambiente& ambiente, KR_Calcolo& calcolo, std::string_view cartella,
                               std::string_view nome);

} // namespace lirmeto
