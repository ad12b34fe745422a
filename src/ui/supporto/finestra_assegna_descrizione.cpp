#include <ui/supporto/finestra_assegna_descrizione.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraAssegnaDescrizione::FinestraAssegnaDescrizione(AssegnaDescrizione& modello, QWidget* padre)
    : QDialog(padre), modello_(modello) {
  setWindowTitle(QStringLiteral("Cambia Descrizione"));
  auto* quante = new QLabel(
      QStringLiteral("Righe selezionate: %1, con una nota: %2").arg(modello.Selezionate).arg(modello.ConNota), this);
  auto* etichetta = new QLabel(QStringLiteral("&Nuova descrizione"), this);
  auto* casella = new QLineEdit(AQString(modello.Text1), this);
  casella->setObjectName(QStringLiteral("Text1"));
  etichetta->setBuddy(casella);
  casella->selectAll();
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Cambia"), *this);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 12, 12, 12);
  colonna->setSpacing(10);
  colonna->addWidget(quante);
  colonna->addWidget(etichetta);
  colonna->addWidget(casella);
  colonna->addStretch(1);
  colonna->addLayout(piede.riga);
  connect(casella, &QLineEdit::textChanged, this, [this](const QString& testo) { modello_.Text1 = DaQString(testo); });
  connect(piede.conferma, &QPushButton::clicked, this, [this] {
    modello_.Conferma();
    if (modello_.Chiusa) accept();
  });
  AdattaAlloSchermo(*this, 460, 190);
}

} // namespace lirmeto::ui
