#pragma once
// The form that shows any drawing file by itself.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <grafica/grafica.h>

#include <string>

namespace lirmeto {

class FormDisegno : public Modello {
public:
  explicit FormDisegno(Ambiente& ambiente) : disegno_(ambiente), grafica_(ambiente, disegno_), ambiente_(ambiente) {}

  std::string Titolo = "Disegno"; // window caption

  [[nodiscard]] Ambiente& Dintorni() { return ambiente_; }
  [[nodiscard]] Grafica& Grafica1() { return grafica_; }

  // The user chooses a file, and it is shown.
  void Sfoglia();
  // Shows a file: by the button, by a drop, or by the command line. False, and the error told, when it cannot be read.
  bool Apri(const std::string& percorso);
  // The same file again, as the display flags now have it loaded; nothing when there is none.
  void Ricarica();

private:
  DisegnoDellUtente disegno_;
  Grafica grafica_;
  Ambiente& ambiente_;
};

} // namespace lirmeto
