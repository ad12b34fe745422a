#pragma once
// The census workbench: parcels of the libretto and of the archive, one parcel's fields, the proposal drawn, the forms.

#include <proposte/kr_edm.h>

#include <QAbstractListModel>
#include <QDialog>

#include <span>
#include <utility>
#include <vector>

class QGridLayout;
class QLabel;
class QLineEdit;
class QListView;
class QListWidget;
class QToolButton;

namespace lirmeto::ui {

class EvidenzaParticella;
class GraficaPannello;

// Names of files as Qt's list views want them; ten thousand are not copied.
class ModelloNomi : public QAbstractListModel {
  Q_OBJECT
public:
  explicit ModelloNomi(const std::vector<std::string>& nomi, QObject* padre = nullptr)
      : QAbstractListModel(padre), nomi_(nomi) {}
  void Ricarica();
  [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& indice, int ruolo) const override;

private:
  const std::vector<std::string>& nomi_;
};

class FinestraEdm : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraEdm(KR_EDM& modello, QWidget* padre = nullptr);

protected:
  bool event(QEvent* evento) override;
  void done(int esito) override;

private:
  [[nodiscard]] QWidget* CreaElenchi();
  [[nodiscard]] QWidget* CreaCaselle();
  [[nodiscard]] QLayout* CreaParticella();
  [[nodiscard]] QWidget* CreaDisegno();
  [[nodiscard]] QWidget* Bottoni(std::span<const int> indici, int colonne);
  void AggiungiCasella(QGridLayout& griglia, const QString& nome, const QString& etichetta, std::string KR_EDM::*testo,
                       void (KR_EDM::*lascia)(), const QString& unita = {});
  void Premi(int indice);
  void Mostra();
  void MostraElenchi();

  KR_EDM& modello_;
  QListWidget* list1_;
  ModelloNomi nomi_;
  QListView* file1_;
  QLabel* label1_;
  QLabel* label2_;
  QLabel* errori_; // how many errors the census rows have
  QLabel* codice_;
  GraficaPannello* disegno_;
  EvidenzaParticella* evidenza_;
  std::vector<std::pair<QLineEdit*, std::string KR_EDM::*>> caselle_;
  std::vector<std::pair<QToolButton*, int>> bottoni_;
};

} // namespace lirmeto::ui
