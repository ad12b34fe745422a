#include <ui/estratti/finestra_somma.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/colonna_elenco.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_pannello.h>

#include <base/percorsi.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraSomma::FinestraSomma(KR_SommaEstratti& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello), elenco_(new QListWidget(this)),
      disegno_(new GraficaPannello(modello.Dintorni(), modello.Grafica1(), host::KR_SommaEstratti, this)),
      nome_(new QLineEdit(this)), dopo_(new QTimer(this)) {
  setObjectName(QStringLiteral("KR_SommaEstratti"));
  setWindowTitle(QStringLiteral("Somma Estratti - ") + AQString(NomeDaPercorso(modello_.EstrattoSomma)));
  dopo_->setSingleShot(true);
  nome_->setObjectName(QStringLiteral("NomeSomma"));
  nome_->setPlaceholderText(QStringLiteral("Nome dell'estratto risultante"));
  nome_->setAccessibleName(nome_->placeholderText());
  connect(nome_, &QLineEdit::textEdited, this, [this](const QString& testo) { modello_.NomeSomma = DaQString(testo); });
  RiempiElenco();
  QWidget* estratti = ColonnaElenco(QStringLiteral("Estratti da aggiungere"), *elenco_);
  estratti->setMaximumWidth(260);
  auto* piano = new QHBoxLayout;
  piano->setContentsMargins(12, 6, 0, 0);
  piano->addWidget(estratti);
  piano->addWidget(disegno_, 1);
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Somma"), *this);
  piede.riga->setContentsMargins(12, 0, 12, 12);
  piede.riga->insertWidget(0, nome_);
  piede.riga->insertWidget(0, new QLabel(QStringLiteral("Risultato"), this));
  nome_->setMinimumWidth(280);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(10);
  colonna->addLayout(piano, 1);
  colonna->addLayout(piede.riga);
  connect(piede.conferma, &QPushButton::clicked, this, [this] {
    modello_.Somma();
    if (modello_.Chiusa) accept();
  });
  disegno_->NascondiCaricamento();
  connect(dopo_, &QTimer::timeout, this, [this] { modello_.MostraSomma(); });
  AdattaAlloSchermo(*this, 1080, 660);
}

// A click anywhere on a name chooses it.
void FinestraSomma::RiempiElenco() {
  elenco_->setObjectName(QStringLiteral("File1"));
  for (const std::string& nome : modello_.File1) {
    auto* voce = new QListWidgetItem(AQString(nome), elenco_);
    voce->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    voce->setCheckState(Qt::Unchecked);
  }
  connect(elenco_, &QListWidget::itemChanged, this, [this](QListWidgetItem* voce) {
    modello_.Scegli(static_cast<std::size_t>(elenco_->row(voce)), voce->checkState() == Qt::Checked);
    dopo_->start(0);
  });
  connect(elenco_, &QListWidget::itemActivated, this, [](QListWidgetItem* voce) {
    voce->setCheckState(voce->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
  });
}

} // namespace lirmeto::ui
