#pragma once
// Shows the window that belongs to a model.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <typeinfo>
#include <vector>

namespace lirmeto::ui {

class FinestreQt final : public Finestre {
public:
  // Throws Errore 51 for a model that has no window.
  void MostraModale(Modello& modello) override;

  // What the forms opened by name are given; until then there is none. It must outlive this.
  void Usa(Ambiente& ambiente) { ambiente_ = &ambiente; }

  // The forms of applicazione/forme.h; opening any other throws Errore 51.
  [[nodiscard]] bool Disponibile(std::string_view nome) const override;
  void Apri(std::string_view nome) override;

private:
  Ambiente* ambiente_ = nullptr;
};

// The models that have a window.
[[nodiscard]] std::vector<const std::type_info*> ModelliConFinestra();

} // namespace lirmeto::ui
