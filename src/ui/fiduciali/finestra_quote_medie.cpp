#include <ui/fiduciali/finestra_quote_medie.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/invito_elenco.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraQuoteMedie::FinestraQuoteMedie(QuoteMedie& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), comuni_(new QTreeWidget(this)) {
  setWindowTitle(QStringLiteral("Quota Media Comuni Italiani"));
  auto* cerca = new QLineEdit(this);
  cerca->setObjectName(QStringLiteral("Testo"));
  cerca->setPlaceholderText(QStringLiteral("Nome o codice catastale del comune"));
  cerca->setClearButtonEnabled(true);
  comuni_->setHeaderLabels({QStringLiteral("Codice"), QStringLiteral("Comune"), QStringLiteral("Quota media (m)")});
  comuni_->setRootIsDecorated(false);
  MettiInvito(*comuni_, QStringLiteral("Nessun comune con questo nome o codice."));
  comuni_->setUniformRowHeights(true);
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Metti nella Riga 9"), *this);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addWidget(cerca);
  colonna->addWidget(comuni_, 1);
  colonna->addLayout(piede.riga);
  connect(cerca, &QLineEdit::textChanged, this, [this](const QString& testo) {
    modello_.Cerca(DaQString(testo));
    Mostra();
  });
  connect(comuni_, &QTreeWidget::currentItemChanged, this,
          [this](QTreeWidgetItem* voce) { modello_.Scegli(comuni_->indexOfTopLevelItem(voce)); });
  connect(comuni_, &QTreeWidget::itemDoubleClicked, this, &FinestraQuoteMedie::Prendi);
  connect(piede.conferma, &QPushButton::clicked, this, &FinestraQuoteMedie::Prendi);
  Mostra();
  AdattaAlloSchermo(*this, 520, 520);
}

void FinestraQuoteMedie::Mostra() {
  const long indice = modello_.Indice;
  const QSignalBlocker fermo(comuni_);
  comuni_->clear();
  QList<QTreeWidgetItem*> voci;
  for (const QuoteMedie::Comune& comune : modello_.Righe) {
    auto* voce = new QTreeWidgetItem({AQString(comune.codice), AQString(comune.nome), AQString(comune.quota)});
    voce->setTextAlignment(2, Qt::AlignRight | Qt::AlignVCenter);
    voci.append(voce);
  }
  comuni_->addTopLevelItems(voci);
  comuni_->header()->resizeSection(0, fontMetrics().horizontalAdvance(QLatin1Char('0')) * 10);
  comuni_->header()->resizeSection(1, fontMetrics().horizontalAdvance(QLatin1Char('0')) * 34);
  if (indice >= 0) comuni_->setCurrentItem(comuni_->topLevelItem(static_cast<int>(indice)));
}

void FinestraQuoteMedie::Prendi() {
  modello_.MettiInRigaNove();
  if (modello_.Chiusa) accept();
}

} // namespace lirmeto::ui
