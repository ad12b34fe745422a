#include <ui/comune/invito_elenco.h>

#include <QAbstractItemModel>
#include <QAbstractItemView>
#include <QLabel>
#include <QVBoxLayout>

namespace lirmeto::ui {

void MettiInvito(QAbstractItemView& elenco, const QString& testo) {
  auto* invito = new QLabel(testo, elenco.viewport());
  invito->setObjectName(QStringLiteral("InvitoElenco"));
  invito->setWordWrap(true);
  invito->setAlignment(Qt::AlignCenter);
  invito->setAttribute(Qt::WA_TransparentForMouseEvents);
  auto* colonna = new QVBoxLayout(elenco.viewport());
  colonna->addWidget(invito);
  const QAbstractItemModel* modello = elenco.model();
  const auto mostra = [invito, modello] { invito->setVisible(modello->rowCount() == 0); };
  QObject::connect(modello, &QAbstractItemModel::modelReset, invito, mostra);
  QObject::connect(modello, &QAbstractItemModel::rowsInserted, invito, mostra);
  QObject::connect(modello, &QAbstractItemModel::rowsRemoved, invito, mostra);
  mostra();
}

} // namespace lirmeto::ui
