#pragma once
// The list of findings below the rows: filters, search, order, copy, print, the mend of the chosen one.

#include <verifiche/pannello_verifiche.h>

#include <QAbstractTableModel>
#include <QWidget>

#include <array>

class QBoxLayout;
class QLineEdit;
class QToolButton;
class QTreeView;

namespace lirmeto::ui {

// The findings that the panel shows, read where they are.
class TabellaVerifiche : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Colonna { Gravita, Riga, Codice, Frase, Rimedio, Colonne };

  explicit TabellaVerifiche(const PannelloVerifiche& modello, QObject* padre = nullptr);
  void Rifai();

  [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& indice, int ruolo) const override;
  [[nodiscard]] QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

private:
  const PannelloVerifiche& modello_;
};

class ElencoVerifiche : public QWidget {
  Q_OBJECT
public:
  // The panel must outlive the list.
  explicit ElencoVerifiche(PannelloVerifiche& modello, QWidget* padre = nullptr);

  // Takes up what changed in the panel.
  void Mostra();

signals:
  void Scelta(std::size_t indice); // of what is shown
  void RimedioRichiesto();
  void CopiaRichiesta();
  void StampaRichiesta();
  void ChiusuraRichiesta();

private:
  [[nodiscard]] QWidget* CreaBarra();
  void AggiungiFiltri(QBoxLayout& riga);
  [[nodiscard]] QToolButton* Bottone(const QString& testo, const QString& spiegazione, const char* nome);
  void CreaTabella();
  void MostraScelta();

  PannelloVerifiche& modello_;
  TabellaVerifiche* dati_;
  QTreeView* vista_;
  QLineEdit* cerca_;
  std::array<QToolButton*, 3> filtri_{}; // by severity
  QToolButton* rimedio_ = nullptr;
  unsigned long versione_ = 0; // of the list that the table shows
  bool mostra_ = false;        // the selection is being set from the panel
};

} // namespace lirmeto::ui
