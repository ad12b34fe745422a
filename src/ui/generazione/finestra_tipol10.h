#pragma once
// The window of an automated typology: the extract with the proposal, the rows of the proposal, the drawing tools.

#include <generazione/tipol10.h>

#include <QDialog>

class QButtonGroup;
class QLineEdit;
class QPlainTextEdit;

namespace lirmeto::ui {

class GraficaPannello;
class ModelloClasse;

class FinestraTipol10 : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraTipol10(Tipol10& modello, QWidget* padre = nullptr);

  void done(int esito) override;

protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;

private:
  [[nodiscard]] QWidget* CreaDisegno();
  [[nodiscard]] QWidget* CreaProposta();
  [[nodiscard]] QWidget* CreaStrumenti();
  [[nodiscard]] QLayout* CreaNumeri();
  [[nodiscard]] QLayout* CreaPiede();
  void Premi(int indice);
  void Scegli(int indice);
  void Mostra();

  Tipol10& modello_;
  GraficaPannello* disegno_;
  ModelloClasse* righe_;
  QPlainTextEdit* testo_;
  QLineEdit* ultimo_;
  QLineEdit* passo_;
  QButtonGroup* strumenti_;
};

} // namespace lirmeto::ui
