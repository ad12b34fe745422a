#pragma once
// The archive of possessors, from which those named in the printed documents are taken.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>
#include <vector>

namespace lirmeto {

// Files of \FIDUCIAL\VISURE, one for an act; a line is one possessor, either as the documents take it or in fields at
// bars, of which 3 and 4 (from 0) are what the documents take.
class ArchivioPossessori : public Modello {
public:
  explicit ArchivioPossessori(Ambiente& ambiente) : ambiente_(ambiente) {}

  enum Indice { IndiceChiudi = 0, IndiceAssocia = 1, IndiceElimina = 2 };

  std::vector<std::string> File1; // names of the files
  long IndiceFile = -1;           // of the file selected; -1 for none
  std::vector<std::string> List1; // its lines, without the empty ones
  long IndiceRiga = -1;
  bool Chiusa = false;

  // The files; that of the open act is selected when it is there.
  void AlCaricamento();

  // Selections. Error 9 for an index that is not there.
  void ScegliFile(std::size_t indice);
  void ScegliRiga(std::size_t indice);

  // Buttons: 0 closes, 1 is Associapossessori, 2 deletes the file selected.
  void Esegui(int indice);

  // Puts the line selected in front of ElencoPossessori and closes; without one it says so and stays.
  void Associapossessori();

private:
  void Ricarica();
  void Elimina();
  [[nodiscard]] std::string Percorso(const std::string& nome) const;

  Ambiente& ambiente_;
};

} // namespace lirmeto
