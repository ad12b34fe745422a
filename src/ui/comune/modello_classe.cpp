#include <ui/comune/modello_classe.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>

#include <QFontMetrics>

#include <algorithm>

namespace lirmeto::ui {

namespace {

// A view lays out all of a text it is given; rows of a million characters exist.
constexpr std::size_t MassimoMostrato = 1000;

} // namespace

ModelloClasse::ModelloClasse(const ListaRighe& righe, const QFont& carattere, QObject* padre, Fondo fondo)
    : QAbstractListModel(padre), righe_(righe), carattere_(carattere), fondo_(fondo) {}

void ModelloClasse::Ricarica() {
  beginResetModel();
  std::size_t lunga = 0;
  for (const std::string_view riga : righe_) lunga = std::max(lunga, std::min(riga.size(), MassimoMostrato));
  const QFontMetrics misure(carattere_);
  mostrate_ = static_cast<int>(righe_.size());
  misura_ = QSize(static_cast<int>(lunga + 4) * misure.horizontalAdvance(u'0'), misure.height() + 4);
  endResetModel();
}

int ModelloClasse::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(righe_.size());
}

QVariant ModelloClasse::data(const QModelIndex& indice, int ruolo) const {
  const auto riga = static_cast<std::size_t>(indice.row());
  if (!indice.isValid() || riga >= righe_.size()) return {};
  if (ruolo == Qt::BackgroundRole && fondo_ == Fondo::Bianco) return {};
  if (ruolo == Qt::BackgroundRole) return ColoriDelGenere(righe_[riga]).fondo;
  if (ruolo == Qt::SizeHintRole) return misura_;
  if (ruolo != Qt::DisplayRole) return {};
  const QString testo = PerDisegno(righe_[riga].substr(0, MassimoMostrato));
  return righe_[riga].size() > MassimoMostrato ? testo + QStringLiteral("...") : testo;
}

} // namespace lirmeto::ui
