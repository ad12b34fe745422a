#pragma once
// The form that gives the selected rows one note.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>

namespace lirmeto {

class AssegnaDescrizione : public Modello {
public:
  explicit AssegnaDescrizione(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::string Text1;           // the new note
  std::size_t Selezionate = 0; // rows chosen in the main list
  std::size_t ConNota = 0;     // those of them that have a note; the others stay as they are
  bool Chiusa = false;

  // Counts; the note of the first such row stands in the box.
  void AlCaricamento();

  // The note of every chosen row that has one becomes the box's text; says how many rows changed, and closes. With
  // nothing to change it says so and stays.
  void Conferma();

private:
  Ambiente& ambiente_;
};

} // namespace lirmeto
