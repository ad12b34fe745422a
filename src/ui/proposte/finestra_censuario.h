#pragma once
// The frame of every census form's window: buttons, the form's own part, rows under composition and memo, the row under
// the cursor explained, the findings.

#include <proposte/form_censuario.h>

#include <QDialog>

class QVBoxLayout;

namespace lirmeto::ui {

class ElencoCensuario;
class ElencoRilievi;
class RigaDiStato;

class FinestraCensuario : public QDialog {
  Q_OBJECT
public:
  [[nodiscard]] ElencoCensuario& Composizione() { return *composizione_; }
  [[nodiscard]] ElencoCensuario& Memo() { return *memo_; }

protected:
  // The model must be loaded and outlive the window. `corpo` is the form's own part.
  FinestraCensuario(FormCensuario& modello, QWidget* padre);
  void Completa(QWidget* corpo, int larghezza, int altezza);

  // Shows the model anew.
  virtual void Mostra();
  void Premi(int indice);
  void MostraRilievi();

  void done(int esito) override;

private:
  void Collega();

  FormCensuario& modello_;
  ElencoCensuario* composizione_;
  ElencoCensuario* memo_;
  RigaDiStato* stato_;
  ElencoRilievi* rilievi_;
};

} // namespace lirmeto::ui
