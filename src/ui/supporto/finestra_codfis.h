#pragma once
// The window of the search of a comune by name or code.

#include <supporto/cod_fis.h>

#include <QDialog>

namespace lirmeto::ui {

class FinestraCodFis : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraCodFis(KR_CodFis& modello, QWidget* padre = nullptr);

private:
  void ChiudiSeChiusa();

  KR_CodFis& modello_;
};

} // namespace lirmeto::ui
