#pragma once
// The form that asks for one value.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>

namespace lirmeto {

// Its answer is the session's EsitoForm. What it asks for stands in ModoEditor while it is shown.
class Imputa : public Modello {
public:
  Imputa(Ambiente& ambiente, std::string titolo, std::string domanda)
      : Titolo(std::move(titolo)), Label1(std::move(domanda)), ambiente_(ambiente) {
    ambiente_.sessione.EsitoForm = EsitoAnnullato;
  }

  std::string Titolo; // window caption
  std::string Label1; // what is asked for
  std::string Text1;  // the value
  bool Chiusa = false;

  void Conferma() {
    ambiente_.sessione.EsitoForm = EsitoConfermato;
    Chiusa = true;
  }

private:
  Ambiente& ambiente_;
};

} // namespace lirmeto
