#pragma once
// The window over Pregeo's archive: its libretti above, the one chosen below, as rows, proposal, points and drawing.

#include <pregeo/kr_dapregeo.h>

#include <QDialog>

class QTabWidget;
class QTableWidget;

namespace lirmeto::ui {

class GraficaPannello;
class ModelloClasse;

class FinestraDapregeo : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraDapregeo(KR_Dapregeo& modello, QWidget* padre = nullptr);

  void done(int esito) override;

private:
  [[nodiscard]] QWidget* CreaPiano();
  [[nodiscard]] QWidget* CreaRicerca();
  [[nodiscard]] QWidget* CreaLibretto();
  [[nodiscard]] QLayout* CreaPiede();
  void MostraArchivio();
  void MostraLibretto();
  void Premi(int indice);

  KR_Dapregeo& modello_;
  QTableWidget* archivio_;
  QTableWidget* punti_;
  ModelloClasse* righe_;
  ModelloClasse* proposta_;
  QTabWidget* schede_;
  GraficaPannello* disegno_;
};

} // namespace lirmeto::ui
