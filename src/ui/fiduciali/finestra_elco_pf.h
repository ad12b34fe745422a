#pragma once
// The window where the comune is chosen whose fiducial points are looked at.

#include <fiduciali/elco_pf.h>

#include <QDialog>
#include <QStringListModel>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListView;

namespace lirmeto::ui {

class FinestraElcoPf : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraElcoPf(KR_ElcoPf& modello, QWidget* padre = nullptr);

private:
  [[nodiscard]] QWidget* CreaRicerca();
  void Seleziona();
  void Mostra();

  KR_ElcoPf& modello_;
  QStringListModel righe_;
  QLineEdit* nome_;
  QCheckBox* installati_;
  QListView* elenco_;
  QLabel* invito_; // what to do with an empty list
};

} // namespace lirmeto::ui
