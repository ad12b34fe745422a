#include <ui/pregeo/finestra_configura_pregeo.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/casella_testo.h>
#include <ui/comune/testo_qt.h>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraConfiguraPregeo::FinestraConfiguraPregeo(FormConfiguraPregeo& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello), casella_(new CasellaTesto(this)), avviso_(new QLabel(this)),
      versione_(new QLabel(this)) {
  avviso_->setObjectName(QStringLiteral("Avviso"));
  avviso_->setTextFormat(Qt::PlainText);
  avviso_->hide();
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(CreaBarra());
  colonna->addWidget(casella_, 1);
  colonna->addWidget(avviso_);
  colonna->addWidget(CreaPiede());
  connect(casella_, &CasellaTesto::LettereNonAmmesse, this, [this](const QString& lettere) {
    avviso_->setText(QStringLiteral("PREGEO.INI non può contenere %1: al salvataggio diventa «?».").arg(lettere));
    avviso_->show();
  });
  AdattaAlloSchermo(*this, 820, 640);
  casella_->MettiTesto(modello_.Testo);
  MostraEtichette();
  casella_->setFocus();
}

BarraACapo* FinestraConfiguraPregeo::CreaBarra() {
  auto* barra = new BarraACapo(this);
  const auto aggiungi = [&](const char* icona, const QString& testo, const QString& spiega, auto&& azione) {
    QAction* voce = barra->addAction(Icona(QString::fromLatin1(icona)), testo, this, azione);
    voce->setToolTip(spiega);
    return voce;
  };
  aggiungi("salva", QStringLiteral("Salva"), QStringLiteral("Scrive il testo in PREGEO.INI (Ctrl+S)"), [this] {
    Salva();
  })->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_S));
  aggiungi("ricarica", QStringLiteral("Ricarica"),
           QStringLiteral("Legge di nuovo PREGEO.INI: le modifiche non salvate si perdono"), [this] { Ricarica(); });
  barra->Separa();
  aggiungi("collegamento", QStringLiteral("Crea Collegamenti"),
           QStringLiteral("Collegamenti a Pregeo sul desktop e nel menu dei programmi"),
           [this] { modello_.CreaCollegamenti(); });
  barra->Allarga();
  aggiungi("chiudi", QStringLiteral("Chiudi"), QStringLiteral("Chiude; chiede se qualcosa non è salvato (Esc)"),
           [this] { reject(); });
  return barra;
}

QWidget* FinestraConfiguraPregeo::CreaPiede() {
  auto* piede = new QWidget(this);
  auto* riga = new QHBoxLayout(piede);
  riga->setContentsMargins(10, 4, 6, 4);
  versione_->setObjectName(QStringLiteral("Posto"));
  versione_->setTextFormat(Qt::PlainText);
  auto* leggi = new QToolButton(piede);
  leggi->setObjectName(QStringLiteral("VersioneFile"));
  leggi->setText(QStringLiteral("Versione di Pregeo.EXE"));
  leggi->setToolTip(QStringLiteral("Legge la versione dal programma installato e la mostra nel titolo"));
  connect(leggi, &QToolButton::clicked, this, [this] {
    modello_.Carica_Versione_Pregeo();
    MostraEtichette();
  });
  riga->addWidget(versione_, 1);
  riga->addWidget(leggi);
  return piede;
}

void FinestraConfiguraPregeo::Salva() {
  modello_.Testo = casella_->Testo();
  modello_.Salva();
  avviso_->hide();
}

void FinestraConfiguraPregeo::Ricarica() {
  modello_.Ricarica();
  casella_->MettiTesto(modello_.Testo);
  avviso_->hide();
  MostraEtichette();
}

void FinestraConfiguraPregeo::reject() {
  modello_.Testo = casella_->Testo();
  modello_.Chiudi();
  if (modello_.Chiusa) accept();
}

void FinestraConfiguraPregeo::MostraEtichette() {
  setWindowTitle(AQString(modello_.Titolo));
  versione_->setText(AQString(modello_.EtichettaVersione));
}

} // namespace lirmeto::ui
