#include <ui/intestazione/finestra_catasto1.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/difetto.h>
#include <ui/comune/senza_barre.h>
#include <ui/comune/testo_qt.h>

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalBlocker>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace lirmeto::ui {

namespace {

constexpr int Larghezza = 1040;
constexpr int Altezza = 620;

QString Nome(const char* genere, std::size_t indice) {
  return QStringLiteral("%1_%2").arg(QLatin1String(genere)).arg(indice);
}

QStringList AQStringList(const std::vector<std::string>& voci) {
  QStringList lista;
  lista.reserve(static_cast<qsizetype>(voci.size()));
  for (const auto& voce : voci) lista.append(AQString(voce));
  return lista;
}

QStringList Mostrate(const QComboBox& elenco) {
  QStringList voci;
  for (int i = 0; i < elenco.count(); ++i) voci.append(elenco.itemText(i));
  return voci;
}

// A long text is seen from its beginning, unless the user is writing it.
void MostraTesto(QLineEdit& casella, const std::string& testo) {
  MettiTesto(casella, testo);
  if (!casella.hasFocus()) casella.setCursorPosition(0);
}

// Widgets side by side, from the left where none of them takes the room that is left.
QWidget* Affianca(const std::vector<QWidget*>& parti, QWidget* padre) {
  auto* riga = new QWidget(padre);
  auto* piano = new QHBoxLayout(riga);
  piano->setContentsMargins(0, 0, 0, 0);
  piano->setSpacing(6);
  bool elastica = false;
  for (QWidget* parte : parti) {
    const bool si = parte->sizePolicy().horizontalPolicy() == QSizePolicy::Expanding;
    piano->addWidget(parte, si ? 1 : 0);
    elastica = elastica || si;
  }
  if (!elastica) piano->addStretch(1);
  return riga;
}

} // namespace

FinestraCatasto1::FinestraCatasto1(FormCatasto1TXT& modello, QWidget* padre)
    : QDialog(padre), modello_(modello), tecnici_(new QListWidget(this)), comune_(new QLabel(this)),
      estratto_(new QToolButton(this)), misurate_(new QLabel(this)), archivio_(new QLineEdit(this)),
      aggiornaIni_(new QCheckBox(QStringLiteral("Aggiorna su Pregeo.INI [Default di Pregeo ]"), this)),
      aggiornaData_(new QCheckBox(QStringLiteral("Aggiorna alla Data di Oggi in Automatico alla Conferma"), this)) {
  setObjectName(QStringLiteral("FormCatasto1TXT"));
  setWindowTitle(QStringLiteral("Intestazione del Libretto - Righe 0 e 9"));
  // On a small screen the boxes are scrolled and the buttons stay in sight.
  auto* area = new QScrollArea(this);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setWidget(CreaCaselle());
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(12, 8, 12, 12);
  colonna->setSpacing(10);
  colonna->addWidget(area, 1);
  colonna->addWidget(CreaPiede());
  Mostra();
  AdattaAlloSchermo(*this, Larghezza, Altezza);
  RimettiAlPosto(*this, modello_.PostoSalvato);
  caselle_[casella::Data]->setFocus();
  caselle_[casella::Data]->selectAll();
}

void FinestraCatasto1::AggiungiCasella(QGridLayout& griglia, std::size_t indice, int lettere, Parti dietro) {
  auto* linea = new QLineEdit(this);
  constexpr int aria = 20; // pixels, frame and margins
  if (lettere > 0) linea->setFixedWidth(fontMetrics().horizontalAdvance(u'0') * lettere + aria);
  linea->setSizePolicy(lettere > 0 ? QSizePolicy::Fixed : QSizePolicy::Expanding, QSizePolicy::Fixed);
  CollegaCasella(indice, linea);
  dietro.insert(dietro.begin(), linea);
  constexpr int lettereConPosto = 10; // behind a wider box the reason has no room: it stands below
  if (lettere > 0) {
    difetti_[indice] = new QLabel(this);
    difetti_[indice]->setObjectName(QStringLiteral("Difetto"));
    difetti_[indice]->setTextFormat(Qt::PlainText);
    difetti_[indice]->hide();
  }
  if (lettere > 0 && lettere <= lettereConPosto) dietro.push_back(difetti_[indice]);
  AggiungiRiga(griglia, AQString(EtichetteCaselle()[indice]), dietro);
  if (lettere > lettereConPosto) AggiungiRiga(griglia, {}, {difetti_[indice]});
}

void FinestraCatasto1::AggiungiScelta(QGridLayout& griglia, Elenco elenco, Parti dietro) {
  auto* scelta = new QComboBox(this);
  scelta->setObjectName(Nome("Elenco", static_cast<std::size_t>(elenco)));
  scelta->setEditable(true);
  scelta->setInsertPolicy(QComboBox::NoInsert);
  scelta->setCompleter(nullptr); // what is typed stays as it is typed
  scelta->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  constexpr int lettereMinime = 12;
  scelta->setMinimumContentsLength(lettereMinime);
  scelta->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  connect(scelta, &QComboBox::activated, this, [this, elenco](int voce) {
    modello_.Scegli(elenco, static_cast<std::size_t>(voce));
    Mostra();
  });
  elenchi_[static_cast<std::size_t>(elenco)] = scelta;
  const std::size_t indice = DatiElenco(elenco).casella;
  CollegaCasella(indice, scelta->lineEdit());
  dietro.insert(dietro.begin(), scelta);
  AggiungiRiga(griglia, AQString(EtichetteCaselle()[indice]), dietro);
}

void FinestraCatasto1::AggiungiRiga(QGridLayout& griglia, const QString& etichetta, const Parti& parti) {
  const int posto = griglia.count() == 0 ? 0 : griglia.rowCount();
  const bool alta = parti.front() == tecnici_;
  if (!etichetta.isEmpty()) {
    auto* davanti = new QLabel(etichetta, this);
    davanti->setBuddy(parti.front());
    griglia.addWidget(davanti, posto, 0, alta ? Qt::AlignTop : Qt::AlignVCenter);
  }
  griglia.addWidget(Affianca(parti, this), posto, 1);
}

void FinestraCatasto1::CollegaCasella(std::size_t indice, QLineEdit* linea) {
  linea->setObjectName(Nome("Text1", indice));
  linea->setAccessibleName(AQString(EtichetteCaselle()[indice]));
  connect(linea, &QLineEdit::textEdited, this, [this, indice, linea](const QString& testo) {
    modello_.Cambia(indice, DaQString(testo));
    MostraTesto(*linea, modello_.Caselle()[indice]);
    if (indice == casella::Comune) comune_->setText(AQString(modello_.ComuneInCasella()));
    if (modello_.Difetto(indice).empty()) MostraDifetto(indice); // a fault is told once the box is left
  });
  RifiutaBarre(*linea);
  connect(linea, &QLineEdit::editingFinished, this, [this, indice] {
    modello_.Lascia(indice);
    Mostra();
  });
  caselle_[indice] = linea;
}

QPushButton* FinestraCatasto1::Bottone(int indice) {
  const auto pulsanti = FormCatasto1TXT::Pulsanti();
  const auto pulsante = std::find_if(pulsanti.begin(), pulsanti.end(),
                                     [indice](const FormCatasto1TXT::Pulsante& uno) { return uno.indice == indice; });
  const QString didascalia = AQString(pulsante->didascalia);
  auto* bottone = new QPushButton(didascalia, this);
  bottone->setObjectName(Nome("Pulsante", static_cast<std::size_t>(indice)));
  bottone->setToolTip(AQString(pulsante->spiegazione));
  bottone->setAutoDefault(false);
  connect(bottone, &QPushButton::clicked, this, [this, indice] { Premi(indice); });
  return bottone;
}

// A pair of small buttons that lengthen and shorten the list beside them.
FinestraCatasto1::Parti FinestraCatasto1::PiuMeno(int piu, int meno) {
  Parti coppia{Bottone(piu), Bottone(meno)};
  const QStringList segni{QStringLiteral("+"), QStringLiteral("\u2212")};
  for (qsizetype i = 0; i < segni.size(); ++i) {
    auto* bottone = qobject_cast<QPushButton*>(coppia[static_cast<std::size_t>(i)]);
    bottone->setAccessibleName(bottone->text());
    bottone->setText(segni[i]);
    constexpr int aria = 18; // pixels, frame and margins
    bottone->setFixedWidth(fontMetrics().horizontalAdvance(u'W') + aria);
  }
  return coppia;
}

// --- order, place, commands

void FinestraCatasto1::done(int esito) {
  modello_.SalvaPosto({x(), y()});
  QDialog::done(esito);
}

void FinestraCatasto1::reject() {
  constexpr int chiudi = 1;
  Premi(chiudi);
}

void FinestraCatasto1::Premi(int indice) {
  modello_.DaCorreggere.reset();
  modello_.Premi(indice);
  Mostra();
  if (modello_.DaCorreggere) {
    caselle_[*modello_.DaCorreggere]->setFocus();
    caselle_[*modello_.DaCorreggere]->selectAll();
  }
  if (modello_.Chiusa) accept();
}

// --- what it shows

void FinestraCatasto1::Mostra() {
  MostraElenchi();
  MostraTecnici();
  for (std::size_t i = 0; i < NumeroCaselle; ++i) {
    MostraTesto(*caselle_[i], modello_.Caselle()[i]);
    MostraDifetto(i);
  }
  const Sessione& sessione = modello_.DatiSessione();
  comune_->setText(AQString(modello_.ComuneInCasella()));
  estratto_->setText(modello_.EtichettaEstratto.empty() ? QStringLiteral("(nessuno)")
                                                        : AQString(modello_.EtichettaEstratto));
  misurate_->setText(sessione.MisurateAssociate.empty() ? QStringLiteral("(nessuna)")
                                                        : AQString(sessione.MisurateAssociate));
  MostraTesto(*archivio_, modello_.NomeBackupArch2);
  const QSignalBlocker fermi[] = {QSignalBlocker(aggiornaIni_), QSignalBlocker(aggiornaData_)};
  aggiornaIni_->setChecked(modello_.AggiornaPregeoIni);
  aggiornaData_->setChecked(modello_.AggiornaData);
}

void FinestraCatasto1::MostraDifetto(std::size_t indice) {
  const QString difetto = AQString(modello_.Difetto(indice));
  SegnaDifetto(*caselle_[indice], difetto);
  if (difetti_[indice] == nullptr) return;
  difetti_[indice]->setText(difetto);
  difetti_[indice]->setVisible(!difetto.isEmpty());
}

// Each list stands at the entry that its box holds, so that the keys go on from there; the box keeps its own text.
void FinestraCatasto1::MostraElenchi() {
  for (std::size_t i = 0; i < NumeroElenchi; ++i) {
    const QStringList voci = AQStringList(modello_.Elenchi().Voci(static_cast<Elenco>(i)));
    const std::size_t voce = modello_.VoceInCasella(static_cast<Elenco>(i));
    const int posto = voce == std::string::npos ? -1 : static_cast<int>(voce);
    QComboBox& elenco = *elenchi_[i];
    const bool cambiate = Mostrate(elenco) != voci;
    if (!cambiate && elenco.currentIndex() == posto) continue;
    const QSignalBlocker fermo(&elenco);
    if (cambiate) {
      elenco.clear();
      elenco.addItems(voci);
      elenco.view()->setMinimumWidth(elenco.view()->sizeHintForColumn(0));
    }
    elenco.setCurrentIndex(posto);
  }
}

void FinestraCatasto1::MostraTecnici() {
  const QSignalBlocker fermo(tecnici_);
  const QStringList voci = AQStringList(modello_.Tecnici().File());
  QStringList mostrate;
  for (int i = 0; i < tecnici_->count(); ++i) mostrate.append(tecnici_->item(i)->text());
  if (mostrate != voci) {
    tecnici_->clear();
    tecnici_->addItems(voci);
  }
  const bool scelto = modello_.Tecnici().Scelto() < modello_.Tecnici().File().size();
  tecnici_->setCurrentRow(scelto ? static_cast<int>(modello_.Tecnici().Scelto()) : -1);
}

} // namespace lirmeto::ui
