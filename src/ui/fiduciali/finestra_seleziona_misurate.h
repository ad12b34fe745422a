#pragma once
// The window of the archives of measured distances: one is selected, deleted, or more are fetched.

#include <fiduciali/seleziona_misurate.h>

#include <QDialog>

class QHBoxLayout;
class QListWidget;

namespace lirmeto::ui {

class FinestraSelezionaMisurate : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraSelezionaMisurate(KR_SelezionaMisurate& modello, QWidget* padre = nullptr);

private:
  [[nodiscard]] QHBoxLayout* CreaPiede();
  void Esegui(void (KR_SelezionaMisurate::*comando)());
  void Mostra();

  KR_SelezionaMisurate& modello_;
  QListWidget* file_;
};

} // namespace lirmeto::ui
