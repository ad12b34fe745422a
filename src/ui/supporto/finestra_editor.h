#pragma once
// The window of the general text editor.

#include <supporto/editor_gen.h>

#include <QActionGroup>
#include <QDialog>

class QLabel;

namespace lirmeto::ui {

class BarraACapo;

class BarraRicerca;
class CasellaTesto;
class RigaDiStato;

class FinestraEditor : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraEditor(KR_EditorGen& modello, QWidget* padre = nullptr);

protected:
  void closeEvent(QCloseEvent* evento) override;
  void reject() override;

private:
  [[nodiscard]] BarraACapo* CreaBarra();
  void AggiungiDimensioni(BarraACapo& barra);
  void CreaRicerca();
  void Salva();
  void Chiudi();
  void MostraPosto();
  void Trova(bool avanti);

  KR_EditorGen& modello_;
  QActionGroup dimensioni_{this};
  CasellaTesto* casella_;
  BarraRicerca* ricerca_;
  RigaDiStato* spiegazione_;
  QLabel* posto_;
  QLabel* avviso_;
};

} // namespace lirmeto::ui
