#include <ui/generazione/finestra_libretto_disegno.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/invito_elenco.h>
#include <ui/comune/modello_classe.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>

#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStringListModel>
#include <QVBoxLayout>

#include <algorithm>
#include <array>
#include <cmath>

namespace lirmeto::ui {

namespace {

constexpr std::string_view ChiavePlanimetrico = "PUNTO_PLANIMETRICO";
constexpr std::string_view ChiaveTaf = "PF_DA_ESTRATTO";
constexpr std::string_view ChiaveOrientaLibretto = "ORIENTA_LIBRETTO";
constexpr std::string_view ChiavePrimaDellaPrecisione = "INCREMENTO_MILLESIMALE";
constexpr double VicinoPixel = 7; // from the pointer, for a line to be the one under it
constexpr int SpazioGruppi = 10;
constexpr int LarghezzaDisegno = 840;
constexpr int LarghezzaLinee = 200; // "300 - PF02/1230/G224"

// The options in the order of the window; a title begins a group.
struct PostoOpzione {
  std::string_view chiave;
  const char* titolo;
};

constexpr std::array<PostoOpzione, 17> Posti = {{
    {"ORIENTA_AZIMUT", "Orientamento delle stazioni"},
    {"ORIENTA_PRECEDENTE", nullptr},
    {ChiaveOrientaLibretto, nullptr},
    {"INCREMENTO_CENTESIMALE", "Numerazione delle stazioni"},
    {ChiavePrimaDellaPrecisione, nullptr},
    {ChiavePlanimetrico, "Punti e note"},
    {"METTI_CS", nullptr},
    {"ELIMINA_PUNTI_NOTE", nullptr},
    {"COMMENTI_DUPLICATI", nullptr},
    {"MANTIENI_RIGHE4", "Dal libretto esistente"},
    {"MANTIENI_3_7", nullptr},
    {"MANTIENI_8", nullptr},
    {"MANTIENI_GPS", nullptr},
    {ChiaveTaf, "TAF"},
    {"RIORDINO_FITTIZIO", "Al termine"},
    {"NOTE_MANCANTI", nullptr},
    {"MOSTRA_REPORT", nullptr},
}};

const VoceOpzione& VoceDi(std::string_view chiave) {
  const auto voci = VociOpzione();
  return *std::find_if(voci.begin(), voci.end(), [&](const VoceOpzione& voce) { return voce.chiave == chiave; });
}

// The longest caption goes on two lines: a column as wide as it would take the room of the drawing.
QString Didascalia(const VoceOpzione& voce) {
  QString testo = AQString(voce.didascalia);
  const qsizetype stacco = voce.chiave == ChiavePlanimetrico ? testo.indexOf(u" dalla ") : -1;
  return stacco < 0 ? testo : testo.replace(stacco, 1, u'\n');
}

QLabel* Consiglio(const QString& testo, QWidget* padre) {
  auto* consiglio = Tenue(testo, padre);
  consiglio->setTextFormat(Qt::PlainText);
  return consiglio;
}

} // namespace

FinestraLibrettoDisegno::FinestraLibrettoDisegno(LibrettoDaDisegno& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello),
      pannello_(new GraficaPannello(modello.Dintorni(), modello.Grafica1, host::LibrettoDaDisegno, this)),
      linee_(new QListView(this)), testiLinee_(new QStringListModel(this)), quanteLinee_(TitoloGruppo({}, this)),
      lunghezza_(Consiglio({}, this)), dislivello_(new QLineEdit(this)), avviso_(new QLabel(this)),
      genera_(new QPushButton(QStringLiteral("Genera"), this)), precisione_(new QButtonGroup(this)) {
  setObjectName(QStringLiteral("LibrettoDaDisegno"));
  setWindowTitle(AQString(modello_.Titolo));
  auto* piano = new QSplitter(this);
  piano->setChildrenCollapsible(false);
  piano->setHandleWidth(1);
  for (QWidget* parte : {CreaDisegno(), CreaLinee(), CreaOpzioni()}) piano->addWidget(parte);
  piano->setStretchFactor(0, 1);
  piano->setSizes({LarghezzaDisegno, LarghezzaLinee, 0}); // the options take no less than they need
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(piano, 1);
  colonna->addLayout(CreaPiede());
  CollegaLinee();
  AdattaAlloSchermo(*this, 1400, 900);
  MostraLinee();
  Mostra();
  pannello_->Superficie().setFocus(); // the list would choose its first line
}

// The old rows are only looked at, and take what the drawing can spare.
QWidget* FinestraLibrettoDisegno::CreaDisegno() {
  auto* sotto = new QWidget(this);
  auto* vecchie = new QListView(sotto);
  auto* righe = new ModelloClasse(modello_.List0, FontMonospazio(9), vecchie);
  righe->Ricarica();
  vecchie->setObjectName(QStringLiteral("List0"));
  vecchie->setModel(righe);
  vecchie->setUniformItemSizes(true);
  vecchie->setFont(FontMonospazio(9));
  vecchie->setEditTriggers(QAbstractItemView::NoEditTriggers);
  vecchie->setSelectionMode(QAbstractItemView::NoSelection);
  auto* colonna = new QVBoxLayout(sotto);
  colonna->setContentsMargins(10, 0, 10, 0);
  colonna->setSpacing(4);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Libretto esistente: %L1 righe").arg(righe->rowCount()), sotto));
  colonna->addWidget(vecchie, 1);
  pannello_->NascondiCaricamento();
  auto* sinistra = new QSplitter(Qt::Vertical, this);
  sinistra->setChildrenCollapsible(false);
  sinistra->setHandleWidth(1);
  sinistra->addWidget(pannello_);
  sinistra->addWidget(sotto);
  sinistra->setStretchFactor(0, 1);
  sinistra->setSizes({740, 110});
  return sinistra;
}

QWidget* FinestraLibrettoDisegno::CreaLinee() {
  auto* intorno = new QWidget(this);
  linee_->setObjectName(QStringLiteral("List1"));
  linee_->setAccessibleName(QStringLiteral("Linee"));
  linee_->setModel(testiLinee_);
  linee_->setFont(FontMonospazio(10));
  linee_->setUniformItemSizes(true);
  linee_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  linee_->setMouseTracking(true);
  MettiInvito(*linee_, QStringLiteral("Nessuna stazione nel disegno"));
  pannello_->Superficie().MettiInvito(QStringLiteral("Il disegno non ha punti, o non c'è"));
  auto* colonna = new QVBoxLayout(intorno);
  colonna->setContentsMargins(10, 4, 10, 0);
  colonna->setSpacing(4);
  colonna->addWidget(quanteLinee_);
  colonna->addWidget(linee_, 1);
  colonna->addWidget(lunghezza_);
  colonna->addWidget(Consiglio(
      QStringLiteral("Doppio clic o Canc su una linea\nper toglierla dal libretto;\nCtrl+Z la rimette"), intorno));
  return intorno;
}

QWidget* FinestraLibrettoDisegno::CreaOpzioni() {
  auto* dentro = new QWidget(this);
  auto* colonna = new QVBoxLayout(dentro);
  colonna->setContentsMargins(12, 4, 12, 8);
  colonna->setSpacing(SpazioGruppi);
  QVBoxLayout* gruppo = nullptr;
  for (const PostoOpzione& posto : Posti) {
    if (posto.titolo != nullptr) gruppo = &AggiungiGruppo(*colonna, QString::fromUtf8(posto.titolo));
    if (posto.chiave == ChiaveTaf) riquadroTaf_ = gruppo->parentWidget();
    AggiungiVoce(*gruppo, VoceDi(posto.chiave));
    if (posto.chiave == ChiavePrimaDellaPrecisione) AggiungiPrecisione(*colonna);
  }
  colonna->addStretch(1);
  // On a small screen the options are scrolled and the buttons stay in sight.
  auto* area = new QScrollArea(this);
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  area->setWidget(dentro);
  area->setMinimumWidth(dentro->sizeHint().width() + area->verticalScrollBar()->sizeHint().width());
  return area;
}

QVBoxLayout& FinestraLibrettoDisegno::AggiungiGruppo(QBoxLayout& colonna, const QString& titolo) {
  auto* riquadro = new QWidget(this);
  auto* gruppo = new QVBoxLayout(riquadro);
  gruppo->setContentsMargins(0, 0, 0, 0);
  gruppo->setSpacing(4);
  gruppo->addWidget(TitoloGruppo(titolo, riquadro));
  colonna.addWidget(riquadro);
  return *gruppo;
}

void FinestraLibrettoDisegno::AggiungiVoce(QBoxLayout& gruppo, const VoceOpzione& voce) {
  QAbstractButton* bottone = nullptr;
  if (voce.gruppo.empty()) {
    bottone = new QCheckBox(Didascalia(voce), this);
  } else {
    bottone = new QRadioButton(Didascalia(voce), this);
    GruppoDi(voce.gruppo).addButton(bottone);
  }
  bottone->setObjectName(AQString(voce.chiave));
  bottone->setAccessibleName(AQString(voce.didascalia));
  connect(bottone, &QAbstractButton::clicked, this, [this, &voce](bool si) { Scegli(voce, si); });
  voci_.emplace_back(&voce, bottone);
  if (voce.chiave != ChiavePlanimetrico) return gruppo.addWidget(bottone);
  dislivello_->setObjectName(QStringLiteral("PUNTO_PLA_DISLIVELLO"));
  dislivello_->setAccessibleName(AQString(voce.didascalia));
  dislivello_->setAlignment(Qt::AlignRight);
  dislivello_->setFixedWidth(fontMetrics().horizontalAdvance(QStringLiteral("000000")));
  connect(dislivello_, &QLineEdit::textEdited, this, [this](const QString& testo) {
    static_cast<void>(modello_.Imposta("PUNTO_PLA_DISLIVELLO", DaQString(testo)));
  });
  auto* riga = new QHBoxLayout;
  riga->addWidget(bottone);
  riga->addWidget(dislivello_, 0, Qt::AlignBottom);
  riga->addStretch(1);
  gruppo.addLayout(riga);
}

// Six steps in three columns, each below its finer half.
void FinestraLibrettoDisegno::AggiungiPrecisione(QBoxLayout& colonna) {
  constexpr int perRiga = 3;
  QVBoxLayout& gruppo = AggiungiGruppo(colonna, QStringLiteral("Arrotondamento degli angoli"));
  auto* griglia = new QGridLayout;
  griglia->setVerticalSpacing(4);
  for (int i = 0; i < static_cast<int>(PassiAngolari.size()); ++i) {
    auto* bottone = new QRadioButton(AQString(PassiAngolari[static_cast<std::size_t>(i)]), this);
    precisione_->addButton(bottone, i);
    griglia->addWidget(bottone, i / perRiga, i % perRiga);
  }
  connect(precisione_, &QButtonGroup::idClicked, this, [this](int indice) {
    static_cast<void>(modello_.Imposta("PRECISIONE_ANGOLARE", DaQString(QString::number(indice))));
  });
  gruppo.addLayout(griglia);
}

QButtonGroup& FinestraLibrettoDisegno::GruppoDi(std::string_view nome) {
  const auto trovato = std::find_if(gruppi_.begin(), gruppi_.end(), [&](const auto& uno) { return uno.first == nome; });
  if (trovato != gruppi_.end()) return *trovato->second;
  return *gruppi_.emplace_back(nome, new QButtonGroup(this)).second;
}

// Neither button answers to Enter, which also ends the typing of a number: a generation ends the program.
QBoxLayout* FinestraLibrettoDisegno::CreaPiede() {
  auto* chiudi = new QPushButton(QStringLiteral("Chiudi"), this);
  genera_->setObjectName(QStringLiteral("Genera"));
  chiudi->setObjectName(QStringLiteral("Chiudi"));
  for (QPushButton* bottone : {genera_, chiudi}) bottone->setAutoDefault(false);
  connect(genera_, &QPushButton::clicked, this, &FinestraLibrettoDisegno::Genera);
  connect(chiudi, &QPushButton::clicked, this, [this] {
    modello_.ButtonPlus1_1();
    Mostra();
  });
  avviso_->setObjectName(QStringLiteral("Avviso"));
  avviso_->setText(QStringLiteral("Generazione interrotta: per riprovare si chiude e si riapre il disegno."));
  auto* riga = new QHBoxLayout;
  riga->setContentsMargins(12, 10, 12, 12);
  riga->addWidget(avviso_);
  riga->addStretch(1);
  riga->addWidget(genera_);
  riga->addWidget(chiudi);
  return riga;
}

void FinestraLibrettoDisegno::CollegaLinee() {
  GraficaSuperficie& superficie = pannello_->Superficie();
  linee_->viewport()->installEventFilter(this);
  linee_->installEventFilter(this);
  superficie.installEventFilter(this);
  connect(&superficie, &GraficaSuperficie::Sopra, this, &FinestraLibrettoDisegno::PassaSopra);
  connect(&superficie, &GraficaSuperficie::Uscito, this, [this] { Illumina({}); });
  connect(linee_, &QListView::entered, this,
          [this](const QModelIndex& posto) { Illumina(static_cast<std::size_t>(posto.row())); });
  connect(linee_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this] { Illumina(sotto_); });
  auto* rimetti = new QShortcut(QKeySequence::Undo, this);
  connect(rimetti, &QShortcut::activated, this, &FinestraLibrettoDisegno::Rimetti);
  connect(linee_, &QListView::doubleClicked, this, [this](const QModelIndex& posto) { Togli(posto.row()); });
}

// A line clicked in the picture is the one of the list.
bool FinestraLibrettoDisegno::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == linee_->viewport() && evento->type() == QEvent::Leave) Illumina({});
  if (oggetto == &pannello_->Superficie() && evento->type() == QEvent::MouseButtonPress && sotto_)
    linee_->setCurrentIndex(testiLinee_->index(static_cast<int>(*sotto_)));
  if (oggetto == linee_ && evento->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Delete) {
    Togli(linee_->currentIndex().row());
    return true;
  }
  return QDialog::eventFilter(oggetto, evento);
}

// What the model says, into the boxes. A group may have no button chosen: the settings are taken as they were kept.
void FinestraLibrettoDisegno::Mostra() {
  for (const auto& [nome, gruppo] : gruppi_) gruppo->setExclusive(false);
  for (const auto& [voce, bottone] : voci_) {
    const QSignalBlocker muto(bottone);
    bottone->setChecked(modello_.Opzioni.*voce->valore);
    if (voce->chiave == ChiaveOrientaLibretto) bottone->setEnabled(modello_.OrientaLibrettoAbilitato);
  }
  for (const auto& [nome, gruppo] : gruppi_) gruppo->setExclusive(true);
  precisione_->button(modello_.Opzioni.PrecisioneAngolare)->setChecked(true);
  if (DaQString(dislivello_->text()) != modello_.Opzioni.Dislivello)
    dislivello_->setText(AQString(modello_.Opzioni.Dislivello));
  riquadroTaf_->setEnabled(modello_.TafAbilitata());
  genera_->setEnabled(modello_.GeneraAbilitato);
  avviso_->setVisible(!modello_.GeneraAbilitato && !modello_.Chiusa);
  if (modello_.Chiusa) accept();
}

void FinestraLibrettoDisegno::MostraLinee() {
  QStringList testi;
  testi.reserve(static_cast<qsizetype>(modello_.List1.size()));
  for (const std::string& linea : modello_.List1) testi.append(PerDisegno(linea));
  testiLinee_->setStringList(testi);
  quanteLinee_->setText(QStringLiteral("Linee: %L1").arg(testi.size()));
}

void FinestraLibrettoDisegno::Scegli(const VoceOpzione& voce, bool si) {
  static_cast<void>(modello_.Imposta(voce.chiave, si ? "1" : "0"));
  Mostra();
}

void FinestraLibrettoDisegno::Togli(int riga) {
  if (riga < 0) return;
  const std::size_t prima = modello_.List1.size();
  modello_.DoppioClickList1(static_cast<std::size_t>(riga));
  if (modello_.List1.size() == prima) return;
  sotto_.reset();
  testiLinee_->removeRow(riga);
  quanteLinee_->setText(QStringLiteral("Linee: %L1").arg(testiLinee_->rowCount()));
  linee_->setCurrentIndex(testiLinee_->index(std::min(riga, testiLinee_->rowCount() - 1)));
  Illumina({});
}

// A number that is being typed has an undo of its own, and comes first.
void FinestraLibrettoDisegno::Rimetti() {
  const std::optional<std::size_t> riga = modello_.RimettiLinea();
  if (!riga) return;
  sotto_.reset();
  MostraLinee();
  linee_->setCurrentIndex(testiLinee_->index(static_cast<int>(*riga)));
  Illumina({});
}

void FinestraLibrettoDisegno::PassaSopra(double x, double y) {
  const double metriPixel = modello_.Grafica1.Vista().Zoom / std::max(1, pannello_->Superficie().height());
  Illumina(modello_.LineaVicina({x, y}, VicinoPixel * metriPixel));
}

// The line under the pointer; without one, the one selected in the list.
void FinestraLibrettoDisegno::Illumina(std::optional<std::size_t> sotto) {
  sotto_ = sotto;
  const QModelIndex scelta = linee_->currentIndex();
  if (!sotto && scelta.isValid()) sotto = static_cast<std::size_t>(scelta.row());
  modello_.Accendi(sotto);
  const auto& accesa = modello_.Grafica1.Evidenza;
  lunghezza_->setText(accesa && sotto
                          ? QStringLiteral("%1: %2 m")
                                .arg(PerDisegno(modello_.List1[*sotto]))
                                .arg(std::hypot(accesa->X2 - accesa->X1, accesa->Y2 - accesa->Y1), 0, 'f', 3)
                          : QString());
}

void FinestraLibrettoDisegno::Genera() {
  modello_.ButtonPlus1_0();
  Mostra();
}

} // namespace lirmeto::ui
