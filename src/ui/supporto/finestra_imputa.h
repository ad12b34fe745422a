#pragma once
// The window that asks for one value.

#include <supporto/imputa.h>

#include <QDialog>

class QLineEdit;

namespace lirmeto::ui {

class FinestraImputa : public QDialog {
  Q_OBJECT
public:
  // The model must outlive the window.
  explicit FinestraImputa(Imputa& modello, QWidget* padre = nullptr);

private:
  void Conferma();

  Imputa& modello_;
  QLineEdit* valore_;
};

} // namespace lirmeto::ui
