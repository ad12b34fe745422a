#pragma once
// The window that sets the fiducial points of the libretto beside their rows in the TAF.

#include <fiduciali/importa_fiduciali.h>

#include <QDialog>

class QCheckBox;
class QHBoxLayout;
class QLabel;
class QListWidget;

namespace lirmeto::ui {

class FinestraImportaFiduciali : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraImportaFiduciali(FormImportaFiduciali& modello, QWidget* padre = nullptr);

private:
  [[nodiscard]] QHBoxLayout* CreaElenchi();
  [[nodiscard]] QHBoxLayout* CreaPiede();
  void Mostra();

  FormImportaFiduciali& modello_;
  QListWidget* libretto_;
  QListWidget* taf_;
  QCheckBox* quote_;
  QLabel* conto_;
};

} // namespace lirmeto::ui
