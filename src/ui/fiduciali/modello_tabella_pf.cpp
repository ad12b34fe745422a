#include <ui/fiduciali/modello_tabella_pf.h>

#include <ui/comune/testo_qt.h>

namespace lirmeto::ui {

int ModelloTabellaPF::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(griglia_.Viste.size());
}

int ModelloTabellaPF::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(ColonnePF.size());
}

QVariant ModelloTabellaPF::data(const QModelIndex& indice, int ruolo) const {
  const auto colonna = static_cast<std::size_t>(indice.column());
  if (ruolo == Qt::DisplayRole) return PerDisegno(griglia_.Cella(static_cast<std::size_t>(indice.row()), colonna));
  if (ruolo == Qt::TextAlignmentRole)
    return static_cast<int>((ColonnePF[colonna].numero ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
  return {};
}

QVariant ModelloTabellaPF::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  if (ruolo != Qt::DisplayRole) return {};
  if (verso == Qt::Vertical) return sezione + 1;
  return AQString(ColonnePF[static_cast<std::size_t>(sezione)].titolo);
}

} // namespace lirmeto::ui
