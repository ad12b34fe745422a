#include <ui/libretto/pannello_dati.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/difetto.h>
#include <ui/comune/senza_barre.h>
#include <ui/comune/testo_qt.h>

#include <QAction>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QTextCursor>
#include <QToolButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

QLabel* EtichettaElastica(QWidget* padre) {
  auto* etichetta = new QLabel(padre);
  etichetta->setTextFormat(Qt::PlainText);
  etichetta->setWordWrap(true);
  return etichetta;
}

// Sets a line's text and leaves the caret where it was.
} // namespace

PannelloDati::PannelloDati(KR_LibrettoOriginale& modello, QWidget* padre)
    : QWidget(padre), modello_(modello), estratto_(new QToolButton(this)), misurate_(EtichettaElastica(this)),
      versione_(EtichettaElastica(this)), iscrizione_(new QLineEdit(this)), codiceFiscale_(new QLineEdit(this)),
      ditta_(new QPlainTextEdit(this)), opzioni_(new QListWidget(this)) {
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(10, 6, 10, 8);
  colonna->setSpacing(4);
  AggiungiEtichette(*colonna);
  AggiungiTecnico(*colonna);
  AggiungiDitta(*colonna);
  AggiungiOpzioni(*colonna);
}

void PannelloDati::AggiungiEtichette(QVBoxLayout& colonna) {
  colonna.addWidget(TitoloGruppo(QStringLiteral("Atto"), this));
  estratto_->setObjectName(QStringLiteral("EtichettaEstratto"));
  estratto_->setIcon(Icona(QStringLiteral("estratti")));
  estratto_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  estratto_->setAutoRaise(true);
  estratto_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  estratto_->setEnabled(modello_.Disponibile(Comando::EstrattiDiMappa));
  estratto_->setToolTip(
      AQString(estratto_->isEnabled() ? DidascaliaDi(Comando::EstrattiDiMappa) : NonAncoraDisponibile));
  connect(estratto_, &QToolButton::clicked, this, [this] { emit Premuto(Comando::EstrattiDiMappa); });
  misurate_->setObjectName(QStringLiteral("EtichettaMisurate"));
  versione_->setObjectName(QStringLiteral("EtichettaVersione"));
  colonna.addWidget(estratto_);
  colonna.addWidget(misurate_);
  colonna.addWidget(versione_);
}

void PannelloDati::AggiungiTecnico(QVBoxLayout& colonna) {
  colonna.addWidget(TitoloGruppo(QStringLiteral("Tecnico"), this));
  iscrizione_->setObjectName(QStringLiteral("CasellaIscrizione"));
  codiceFiscale_->setObjectName(QStringLiteral("CasellaCodiceFiscale"));
  auto* modulo = new QFormLayout;
  modulo->setContentsMargins(0, 0, 0, 0);
  modulo->setHorizontalSpacing(8);
  modulo->setVerticalSpacing(4);
  modulo->addRow(QStringLiteral("Iscrizione Albo"), iscrizione_);
  modulo->addRow(QStringLiteral("Codice Fiscale"), codiceFiscale_);
  colonna.addLayout(modulo);
  connect(iscrizione_, &QLineEdit::textEdited, this, [this](const QString& testo) {
    modello_.CambiaIscrizione(DaQString(testo));
    emit Scritto();
  });
  connect(codiceFiscale_, &QLineEdit::textEdited, this, [this](const QString& testo) {
    modello_.CambiaCodiceFiscale(DaQString(testo));
    MettiTesto(*codiceFiscale_, modello_.CasellaCodiceFiscale);
    if (modello_.DifettoCodiceFiscale().empty()) SegnaDifetto(*codiceFiscale_, {});
    emit Scritto();
  });
  connect(codiceFiscale_, &QLineEdit::editingFinished, this,
          [this] { SegnaDifetto(*codiceFiscale_, AQString(modello_.DifettoCodiceFiscale())); });
  RifiutaBarre(*iscrizione_);
  RifiutaBarre(*codiceFiscale_);
}

void PannelloDati::AggiungiDitta(QVBoxLayout& colonna) {
  colonna.addWidget(TitoloGruppo(QStringLiteral("Ditta"), this));
  ditta_->setObjectName(QStringLiteral("CasellaDitta"));
  ditta_->setAccessibleName(QStringLiteral("Ditta"));
  ditta_->setTabChangesFocus(true);
  for (QWidget* casella : {static_cast<QWidget*>(iscrizione_), static_cast<QWidget*>(codiceFiscale_),
                           static_cast<QWidget*>(ditta_), ditta_->viewport()})
    casella->setAcceptDrops(false); // a file dropped there is for the window
  ditta_->setMinimumHeight(90);
  colonna.addWidget(ditta_, 1);
  connect(ditta_, &QPlainTextEdit::textChanged, this, &PannelloDati::DittaCambiata);
}

void PannelloDati::AggiungiOpzioni(QVBoxLayout& colonna) {
  colonna.addWidget(TitoloGruppo(QStringLiteral("Opzioni del Libretto Automatico"), this));
  opzioni_->setObjectName(QStringLiteral("Opzioni"));
  opzioni_->setSelectionMode(QAbstractItemView::NoSelection);
  opzioni_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  opzioni_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  opzioni_->setUniformItemSizes(true);
  colonna.addWidget(opzioni_);
  opzioni_->setEnabled(false); // nothing in the system stands behind them
  opzioni_->setToolTip(AQString(EffettoDi(Comando::NessunaAzione)));
}

// What was typed goes in upper case into the model, and the box shows the same letters.
void PannelloDati::DittaCambiata() {
  modello_.CambiaDitta(TestoDocumento(*ditta_->document()));
  emit Scritto();
  const QString scritto = ditta_->document()->toRawText();
  const QString maiuscolo = InMaiuscolo(scritto);
  if (scritto == maiuscolo) return;
  const QSignalBlocker fermo(ditta_);
  const int posto = ditta_->textCursor().position();
  QTextCursor cursore(ditta_->document());
  cursore.joinPreviousEditBlock();
  cursore.select(QTextCursor::Document);
  cursore.insertText(maiuscolo);
  cursore.endEditBlock();
  cursore.setPosition(posto);
  ditta_->setTextCursor(cursore);
}

void PannelloDati::Mostra() {
  estratto_->setText(AQString(modello_.EtichettaEstratto));
  misurate_->setText(AQString(modello_.EtichettaMisurate));
  versione_->setText(AQString(modello_.EtichettaVersione));
  MettiTesto(*iscrizione_, modello_.CasellaIscrizione);
  MettiTesto(*codiceFiscale_, modello_.CasellaCodiceFiscale);
  if (!codiceFiscale_->hasFocus()) SegnaDifetto(*codiceFiscale_, AQString(modello_.DifettoCodiceFiscale()));
  if (TestoDocumento(*ditta_->document()) != modello_.CasellaDitta) {
    const QSignalBlocker fermo(ditta_);
    ditta_->setPlainText(AQString(modello_.CasellaDitta));
  }
  const QSignalBlocker fermo(opzioni_);
  while (opzioni_->count() < static_cast<int>(modello_.Opzioni.size())) opzioni_->addItem(QString());
  for (std::size_t i = 0; i < modello_.Opzioni.size(); ++i) {
    QListWidgetItem* voce = opzioni_->item(static_cast<int>(i));
    voce->setText(AQString(modello_.Opzioni[i].testo));
    voce->setCheckState(modello_.Opzioni[i].spuntata ? Qt::Checked : Qt::Unchecked);
  }
  const int altezza = opzioni_->count() * (opzioni_->sizeHintForRow(0)) + 2 * opzioni_->frameWidth() + 8;
  opzioni_->setFixedHeight(altezza);
}

} // namespace lirmeto::ui
