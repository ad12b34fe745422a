#pragma once
// The window of the sum of extracts.

#include <estratti/somma_estratti.h>

#include <QDialog>

class QLineEdit;
class QListWidget;
class QTimer;

namespace lirmeto::ui {

class GraficaPannello;

class FinestraSomma : public QDialog {
  Q_OBJECT
public:
  // The model must outlive the window.
  explicit FinestraSomma(KR_SommaEstratti& modello, QWidget* padre = nullptr);

private:
  void RiempiElenco();

  KR_SommaEstratti& modello_;
  QListWidget* elenco_;
  GraficaPannello* disegno_;
  QLineEdit* nome_;
  QTimer* dopo_; // the drawing of the sum, once the list has stopped changing
};

} // namespace lirmeto::ui
