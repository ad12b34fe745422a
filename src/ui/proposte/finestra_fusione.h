#pragma once
// The window of a fusion.

#include <ui/proposte/finestra_censuario.h>

#include <proposte/kr_tm_fusione.h>

class QListWidget;

namespace lirmeto::ui {

class FinestraFusione : public FinestraCensuario {
  Q_OBJECT
public:
  explicit FinestraFusione(KR_TMFusione& modello, QWidget* padre = nullptr);

protected:
  void Mostra() override;
  bool event(QEvent* evento) override;

private:
  [[nodiscard]] QWidget* CreaElenchi();
  [[nodiscard]] QWidget* CreaOpzioni();

  KR_TMFusione& modello_;
  QListWidget* file_;
  QListWidget* scelte_;
};

} // namespace lirmeto::ui
