#pragma once
// The general text editor. Its role here is the whole libretto (ModoEditor
// 381).

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>

namespace lirmeto {

class KR_EditorGen : public Modello {
public:
  explicit KR_EditorGen(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::string Titolo; // window caption
  std::string Testo;  // the box: lines at CR LF
  bool Chiusa = false;
  bool Salvato = false; // the rows were changed

  // Fills caption and box; deletes a stray \libretto.lib of the program's
  // folder.
  void AlCaricamento();

  // Button 1: the box's non-empty lines, trimmed, become the rows of the main
  // list, and Libretto is rebuilt from it.
  void Salva();

  // Buttons 0 and 5, and the window's close: asks whether to save. False: the
  // user stays in the editor.
  bool Chiudi();

private:
  Ambiente& ambiente_;
};

// Opens the editor on the whole libretto; the list is filled again when it was
// saved.
void subModificaDiretta(Ambiente& ambiente);

} // namespace lirmeto
