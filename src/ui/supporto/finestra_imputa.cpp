#include <ui/supporto/finestra_imputa.h>

#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraImputa::FinestraImputa(Imputa& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), valore_(new QLineEdit(AQString(modello.Text1), this)) {
  setWindowTitle(AQString(modello_.Titolo));
  auto* domanda = new QLabel(AQString(modello_.Label1), this);
  domanda->setBuddy(valore_);
  valore_->setObjectName(QStringLiteral("Text1"));
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Conferma"), *this);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addWidget(domanda);
  colonna->addWidget(valore_);
  colonna->addLayout(piede.riga);
  connect(piede.conferma, &QPushButton::clicked, this, &FinestraImputa::Conferma);
  setMinimumWidth(fontMetrics().horizontalAdvance(QLatin1Char('W')) * 28);
}

void FinestraImputa::Conferma() {
  modello_.Text1 = DaQString(valore_->text());
  modello_.Conferma();
  accept();
}

} // namespace lirmeto::ui
