#pragma once
// The working table of a split as Qt's table views want it; reads the logic's grid directly. The grid's header row is
// the view's header.

#include <proposte/griglia_proposta.h>

#include <QAbstractTableModel>

namespace lirmeto::ui {

class GrigliaQt : public QAbstractTableModel {
  Q_OBJECT
public:
  // The grid must outlive the model.
  explicit GrigliaQt(const GrigliaProposta& griglia, QObject* padre = nullptr)
      : QAbstractTableModel(padre), griglia_(griglia) {}

  void Ricarica();

  // Row of the view and of the grid.
  [[nodiscard]] static int Vista(std::size_t riga) { return static_cast<int>(riga) - 1; }
  [[nodiscard]] static std::size_t Griglia(int riga) { return static_cast<std::size_t>(riga) + 1; }

  [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& indice, int ruolo) const override;
  [[nodiscard]] QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

private:
  const GrigliaProposta& griglia_;
  int righe_ = 0; // that the view knows
};

} // namespace lirmeto::ui
