#include <ui/supporto/finestra_autore.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraAutore::FinestraAutore(autore& modello, QWidget* padre) : QDialog(padre) {
  setWindowTitle(AQString(modello.Titolo));
  constexpr int lato = 64;
  auto* figura = new QLabel(this);
  figura->setPixmap(Icona(QStringLiteral("lirmeto")).pixmap(QSize(lato, lato), devicePixelRatioF()));
  auto* testi = new QVBoxLayout;
  testi->setSpacing(6);
  for (const std::string& riga : modello.Righe) {
    auto* testo = new QLabel(AQString(riga), this);
    testo->setTextFormat(Qt::PlainText);
    testo->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (&riga == &modello.Righe.front()) testo->setObjectName(QStringLiteral("TitoloProgramma"));
    testi->addWidget(testo);
  }
  testi->addWidget(new QLabel(AQString(modello.Pagina), this));
  auto* piano = new QHBoxLayout;
  piano->setSpacing(20);
  piano->addWidget(figura, 0, Qt::AlignTop);
  piano->addLayout(testi, 1);
  auto* chiudi = new QPushButton(QStringLiteral("Chiudi"), this);
  chiudi->setObjectName(QStringLiteral("Chiudi"));
  connect(chiudi, &QPushButton::clicked, this, &QDialog::accept);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(20, 18, 20, 14);
  colonna->setSpacing(16);
  colonna->addLayout(piano);
  colonna->addWidget(chiudi, 0, Qt::AlignRight);
}

} // namespace lirmeto::ui
