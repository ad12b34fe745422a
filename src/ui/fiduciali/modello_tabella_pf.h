#pragma once
// The table of the fiducial points as Qt's table views want it; reads the form's rows directly.

#include <fiduciali/elco_pf_griglia.h>

#include <QAbstractTableModel>

namespace lirmeto::ui {

class ModelloTabellaPF : public QAbstractTableModel {
  Q_OBJECT
public:
  // The form must outlive the model.
  explicit ModelloTabellaPF(const KR_ElcoPfGriglia& griglia, QObject* padre = nullptr)
      : QAbstractTableModel(padre), griglia_(griglia) {}

  // The form changes its rows inside.
  void Cambia(const std::function<void()>& cambia) {
    beginResetModel();
    cambia();
    endResetModel();
  }

  [[nodiscard]] int rowCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& padre = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& indice, int ruolo) const override;
  [[nodiscard]] QVariant headerData(int sezione, Qt::Orientation verso, int ruolo) const override;

private:
  const KR_ElcoPfGriglia& griglia_;
};

} // namespace lirmeto::ui
