#pragma once
// The window of the choice of a comune by province: the provinces in a column, the comuni of the chosen one beside it.

#include <supporto/comuni8.h>

#include <QDialog>

class QListWidget;

namespace lirmeto::ui {

class RiquadroComuni;

class FinestraComuni : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraComuni(KR_Comuni8& modello, QWidget* padre = nullptr);

private:
  [[nodiscard]] QWidget* CreaProvince();
  void ChiudiSeChiusa();

  KR_Comuni8& modello_;
  QListWidget* province_;
  RiquadroComuni* riquadro_;
};

} // namespace lirmeto::ui
