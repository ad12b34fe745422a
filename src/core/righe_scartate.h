#pragma once
// The rows that the last command dropped, shown to the user: a reorder, an .LXB, a .PDF, an extract that was saved.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>

namespace lirmeto {

// What the status line says of them; empty when no row was dropped.
[[nodiscard]] std::string AvvisoRigheScartate(const Sessione& sessione);

class FormRigheScartate : public Modello {
public:
  explicit FormRigheScartate(Ambiente& ambiente) : ambiente_(ambiente) {}

  bool Chiusa = false;

  [[nodiscard]] const ListaRighe& Righe() const { return ambiente_.sessione.RigheScartate; }

  // Buttons: all rows to the clipboard, each with its line end; close.
  void Copia();
  void Chiudi() { Chiusa = true; }

private:
  Ambiente& ambiente_;
};

} // namespace lirmeto
