#include <ui/proposte/griglia_qt.h>

#include <ui/comune/tema.h>
#include <ui/comune/testo_qt.h>

#include <QColor>

namespace lirmeto::ui {

namespace {

QVariant Fondo(ColoreCella colore) {
  if (colore == ColoreCella::Giallo) return ColoreTema(Tono::CellaGialla);
  if (colore == ColoreCella::Rosso) return ColoreTema(Tono::CellaRossa);
  return {};
}

} // namespace

void GrigliaQt::Ricarica() {
  const int ora = static_cast<int>(griglia_.Righe()) - 1;
  if (ora == righe_) {
    emit dataChanged(index(0, 0), index(ora - 1, columnCount() - 1));
    return;
  }
  beginResetModel();
  righe_ = ora;
  endResetModel();
}

int GrigliaQt::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : righe_;
}

int GrigliaQt::columnCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(GrigliaProposta::Colonne);
}

QVariant GrigliaQt::data(const QModelIndex& indice, int ruolo) const {
  const std::size_t riga = Griglia(indice.row());
  const auto colonna = static_cast<GrigliaProposta::Colonna>(indice.column());
  if (!indice.isValid() || riga >= griglia_.Righe()) return {};
  if (ruolo == Qt::DisplayRole) return AQString(griglia_.Cella(riga, colonna));
  if (ruolo == Qt::BackgroundRole) return Fondo(griglia_.Colore(riga, colonna));
  const bool numero = colonna >= GrigliaProposta::Area && colonna <= GrigliaProposta::PropAree;
  if (ruolo == Qt::TextAlignmentRole)
    return static_cast<int>(numero ? Qt::AlignRight | Qt::AlignVCenter : Qt::AlignCenter);
  return {};
}

QVariant GrigliaQt::headerData(int sezione, Qt::Orientation verso, int ruolo) const {
  if (verso != Qt::Horizontal || ruolo != Qt::DisplayRole) return {};
  return AQString(griglia_.Cella(0, static_cast<GrigliaProposta::Colonna>(sezione)));
}

} // namespace lirmeto::ui
