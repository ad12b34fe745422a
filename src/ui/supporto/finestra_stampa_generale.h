#pragma once
// The window of the report list: the lines, what reworks them below, paper, models and .CSV file beside.

#include <supporto/stampa_generale.h>

#include <QDialog>

class QAbstractButton;
class QGroupBox;
class QLabel;
class QListView;
class QListWidget;
class QMenuBar;
class QVBoxLayout;

namespace lirmeto::ui {

class BarraACapo;

class ModelloClasse;

class FinestraStampaGenerale : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraStampaGenerale(KR_StampaGenerale& modello, QWidget* padre = nullptr);

protected:
  void changeEvent(QEvent* evento) override;
  void closeEvent(QCloseEvent* evento) override;
  void reject() override;

private:
  [[nodiscard]] QMenuBar* CreaMenu();
  [[nodiscard]] BarraACapo* CreaBarra();
  [[nodiscard]] QWidget* CreaElenco();
  [[nodiscard]] QWidget* CreaColonna();
  [[nodiscard]] QGroupBox* CreaCarta();
  [[nodiscard]] QGroupBox* CreaModelli();
  [[nodiscard]] QGroupBox* CreaCsv();
  [[nodiscard]] QAbstractButton* Bottone(int comando, const QString& testo, const QString& spiegazione);
  void Esegui(int comando);
  void Mostra();
  void MostraModelli();
  void MostraCarattere();

  KR_StampaGenerale& modello_;
  ModelloClasse* righe_;
  QListView* lista_;
  QLabel* quante_;
  QListWidget* modelli_;
  QLabel* visualizzatore_;
};

} // namespace lirmeto::ui
