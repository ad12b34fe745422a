#pragma once
// A list of rows as Qt's list views want it; reads the logic's list directly.

#include <core/lista_righe.h>

#include <QAbstractListModel>
#include <QFont>
#include <QSize>

namespace lirmeto::ui {

enum class Fondo { PerGenere, Bianco };

class ModelloClasse : public QAbstractListModel {
  Q_OBJECT
public:
  // The list must outlive the model.
  ModelloClasse(const ListaRighe& righe, const QFont& carattere, QObject* padre = nullptr,
                Fondo fondo = Fondo::PerGenere);

  void Ricarica();
  // Takes effect with the next Ricarica.
  void CambiaCarattere(const QFont& carattere) { carattere_ = carattere; }

  // Rows at the last Ricarica.
  [[nodiscard]] int Mostrate() const { return mostrate_; }

  [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& indice, int ruolo) const override;

private:
  const ListaRighe& righe_;
  int mostrate_ = 0;
  QFont carattere_; // the view's
  Fondo fondo_;
  QSize misura_; // of every row, as wide as the widest
};

} // namespace lirmeto::ui
