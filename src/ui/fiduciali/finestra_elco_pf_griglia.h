#pragma once
// The window of the fiducial points of a comune as a table.

#include <ui/fiduciali/modello_tabella_pf.h>

#include <QDialog>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QTableView;

namespace lirmeto::ui {

class FinestraElcoPfGriglia : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraElcoPfGriglia(KR_ElcoPfGriglia& modello, QWidget* padre = nullptr);

private:
  [[nodiscard]] QHBoxLayout* CreaTestata();
  [[nodiscard]] QHBoxLayout* CreaPiede();
  void PreparaTabella();
  void Cambia(const std::function<void()>& cambia);
  void PrendiSelezione();
  void ApriGrafica();
  void Mostra();

  KR_ElcoPfGriglia& modello_;
  ModelloTabellaPF righe_;
  QTableView* tabella_;
  QLineEdit* cerca_;
  QLabel* totale_;
  QLabel* invito_; // what to do with an empty table
};

} // namespace lirmeto::ui
