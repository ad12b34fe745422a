// The groups of boxes of the header form.

#include <ui/intestazione/finestra_catasto1.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/testo_qt.h>

#include <core/apri_form.h>
#include <core/nomi_forme.h>

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

constexpr int SpazioGruppi = 8; // above the title of a group

} // namespace

QWidget* FinestraCatasto1::CreaCaselle() {
  auto* dentro = new QWidget(this);
  auto* piano = new QHBoxLayout(dentro);
  piano->setContentsMargins(0, 0, 6, 0);
  piano->setSpacing(28);
  auto* sinistra = new QVBoxLayout;
  auto* destra = new QVBoxLayout;
  for (QVBoxLayout* colonna : {sinistra, destra}) colonna->setSpacing(4);
  AggiungiAtto(*sinistra);
  AggiungiRilievo(*sinistra);
  AggiungiTecnico(*destra);
  AggiungiArchivi(*destra);
  AggiungiOpzioni(*destra);
  sinistra->addStretch(1);
  destra->addStretch(1);
  piano->addLayout(sinistra, 1);
  piano->addLayout(destra, 1);
  return dentro;
}

QGridLayout& FinestraCatasto1::AggiungiGruppo(QBoxLayout& colonna, const QString& titolo) {
  auto* griglia = new QGridLayout;
  griglia->setHorizontalSpacing(10);
  griglia->setVerticalSpacing(5);
  griglia->setColumnStretch(1, 1);
  // The captions of all groups of a column stand in one line.
  griglia->setColumnMinimumWidth(0, fontMetrics().horizontalAdvance(QStringLiteral("Nome x Backup Arch2 ")));
  colonna.addSpacing(colonna.isEmpty() ? 0 : SpazioGruppi);
  colonna.addWidget(TitoloGruppo(titolo, this));
  colonna.addLayout(griglia);
  return *griglia;
}

void FinestraCatasto1::AggiungiAtto(QBoxLayout& colonna) {
  QGridLayout& griglia = AggiungiGruppo(colonna, QStringLiteral("Atto (riga 0)"));
  comune_->setObjectName(QStringLiteral("NomeComune"));
  comune_->setTextFormat(Qt::PlainText);
  AggiungiCasella(griglia, casella::Data, 10, {Bottone(3)});
  AggiungiCasella(griglia, casella::Protocollo, 10);
  AggiungiCasella(griglia, casella::Comune, 10, {Bottone(6), comune_});
  AggiungiCasella(griglia, casella::Foglio, 10);
  AggiungiCasella(griglia, casella::Mappali, 0);
  AggiungiScelta(griglia, Elenco::Commento);
  AggiungiRiga(griglia, {}, {Bottone(18), Bottone(20)});
}

void FinestraCatasto1::AggiungiRilievo(QBoxLayout& colonna) {
  QGridLayout& griglia = AggiungiGruppo(colonna, QStringLiteral("Rilievo (riga 9)"));
  AggiungiScelta(griglia, Elenco::Tipologia);
  AggiungiScelta(griglia, Elenco::Strumentazione);
  AggiungiRiga(griglia, {}, {Bottone(16), Bottone(17)});
  AggiungiCasella(griglia, casella::PrecisioneLineare, 10, {Tenue(QStringLiteral("cm"), this)});
  AggiungiCasella(griglia, casella::PrecisioneAngolare, 10);
  AggiungiCasella(griglia, casella::QuotaMedia, 10, {Tenue(QStringLiteral("m"), this), Bottone(4), Bottone(5)});
  AggiungiCasella(griglia, casella::EstMedio, 10, {Tenue(QStringLiteral("m"), this), Bottone(7)});
  AggiungiCasella(griglia, casella::Versione, 0);
}

void FinestraCatasto1::AggiungiTecnico(QBoxLayout& colonna) {
  QGridLayout& griglia = AggiungiGruppo(colonna, QStringLiteral("Tecnico"));
  AggiungiElencoTecnici(griglia);
  AggiungiCasella(griglia, casella::Cognome, 0);
  AggiungiCasella(griglia, casella::Nome, 0);
  AggiungiScelta(griglia, Elenco::Qualifica, PiuMeno(9, 11));
  AggiungiScelta(griglia, Elenco::Provincia, PiuMeno(12, 15));
  AggiungiCasella(griglia, casella::Iscrizione, 20);
  AggiungiCasella(griglia, casella::CodiceFiscale, 20);
  AggiungiCasella(griglia, casella::Recapito, 0);
}

void FinestraCatasto1::AggiungiElencoTecnici(QGridLayout& griglia) {
  tecnici_->setObjectName(QStringLiteral("File1"));
  tecnici_->setAccessibleName(QStringLiteral("Archivio Tecnici"));
  tecnici_->setUniformItemSizes(true);
  constexpr int righe = 4;
  tecnici_->setFixedHeight(righe * (fontMetrics().height() + 4) + 2 * tecnici_->frameWidth());
  connect(tecnici_, &QListWidget::itemClicked, this, [this](const QListWidgetItem* voce) {
    modello_.ScegliTecnico(static_cast<std::size_t>(tecnici_->row(voce)));
    Mostra();
  });
  connect(tecnici_, &QListWidget::currentRowChanged, this,
          [this](int riga) { modello_.SegnaTecnico(riga < 0 ? std::string::npos : static_cast<std::size_t>(riga)); });
  auto* accanto = new QWidget(this);
  auto* bottoni = new QVBoxLayout(accanto);
  bottoni->setContentsMargins(0, 0, 0, 0);
  bottoni->addWidget(Bottone(21));
  bottoni->addWidget(Bottone(14));
  bottoni->addStretch(1);
  AggiungiRiga(griglia, QStringLiteral("Archivio Tecnici"), {tecnici_, accanto});
}

void FinestraCatasto1::AggiungiArchivi(QBoxLayout& colonna) {
  QGridLayout& griglia = AggiungiGruppo(colonna, QStringLiteral("Estratto, Misurate, Archivio di Pregeo"));
  const bool apribile = modello_.Disponibile(forma::EstrattiDiMappa);
  estratto_->setObjectName(QStringLiteral("EtichettaEstratto"));
  estratto_->setIcon(Icona(QStringLiteral("estratti")));
  estratto_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  estratto_->setAutoRaise(true);
  estratto_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  estratto_->setEnabled(apribile);
  estratto_->setToolTip(apribile ? QStringLiteral("Gestione Estratti di Mappa") : AQString(NonAncoraDisponibile));
  connect(estratto_, &QToolButton::clicked, this, [this] {
    modello_.ApriEstratti();
    Mostra();
  });
  misurate_->setTextFormat(Qt::PlainText);
  misurate_->setObjectName(QStringLiteral("MisurateAssociate"));
  misurate_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  archivio_->setObjectName(QStringLiteral("NomeBackupArch2"));
  archivio_->setPlaceholderText(QStringLiteral("C:\\cartella con arch2.db"));
  archivio_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  connect(archivio_, &QLineEdit::textEdited, this,
          [this](const QString& testo) { modello_.NomeBackupArch2 = DaQString(testo); });
  AggiungiRiga(griglia, QStringLiteral("Estratto"), {estratto_});
  AggiungiRiga(griglia, {}, {Bottone(27), Bottone(13)});
  AggiungiRiga(griglia, QStringLiteral("Misurate"), {misurate_, Bottone(23)});
  AggiungiRiga(griglia, QStringLiteral("Nome x Backup Arch2"), {archivio_, Bottone(8)});
}

void FinestraCatasto1::AggiungiOpzioni(QBoxLayout& colonna) {
  colonna.addSpacing(SpazioGruppi);
  colonna.addWidget(TitoloGruppo(QStringLiteral("Alla Conferma"), this));
  aggiornaIni_->setObjectName(QStringLiteral("AggiornaPregeoIni"));
  aggiornaData_->setObjectName(QStringLiteral("AggiornaData"));
  connect(aggiornaIni_, &QCheckBox::toggled, this, [this](bool si) { modello_.AggiornaPregeoIni = si; });
  connect(aggiornaData_, &QCheckBox::toggled, this, [this](bool si) { modello_.AggiornaData = si; });
  colonna.addWidget(aggiornaIni_);
  colonna.addWidget(aggiornaData_);
}

QWidget* FinestraCatasto1::CreaPiede() {
  auto* piede = new QWidget(this);
  auto* riga = new QHBoxLayout(piede);
  riga->setContentsMargins(0, 0, 0, 0);
  for (const int indice : {2, 22, 30}) riga->addWidget(Bottone(indice));
  riga->addStretch(1);
  QPushButton* conferma = Bottone(0);
  conferma->setDefault(true);
  riga->addWidget(conferma);
  riga->addWidget(Bottone(1));
  return piede;
}

// --- boxes

} // namespace lirmeto::ui
