#pragma once
// Shows the window that belongs to a model.

#include <base/dialoghi.h>

namespace lirmeto::ui {

class FinestreQt final : public Finestre {
public:
  // Throws Errore 51 for a model that has no window.
  void MostraModale(Modello& modello) override;

  // No form is reached by name yet: false, and opening one throws Errore 51.
  [[nodiscard]] bool Disponibile(std::string_view nome) const override;
  void Apri(std::string_view nome) override;
};

} // namespace lirmeto::ui
