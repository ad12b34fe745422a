#pragma once
// The window of a new construction and of a variation.

#include <ui/proposte/finestra_censuario.h>

#include <proposte/tipo_mappale.h>

namespace lirmeto::ui {

class FinestraTipoMappale : public FinestraCensuario {
  Q_OBJECT
public:
  explicit FinestraTipoMappale(KR_NuovaCostruzione& modello, QWidget* padre = nullptr);
  explicit FinestraTipoMappale(KR_TMVariazione& modello, QWidget* padre = nullptr);
};

} // namespace lirmeto::ui
