#include <ui/proposte/finestra_proposta.h>

#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/tema.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/proposte/parti_censuario.h>

#include <base/numeri.h>
#include <proposte/contorno_particella.h>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QSignalBlocker>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace lirmeto::ui {

namespace {

constexpr int Larghezza = 1240;
constexpr int Altezza = 700;
constexpr int LarghezzaScelte = 255;

} // namespace

FinestraProposta::FinestraProposta(PropostaDerivate& modello, QWidget* padre)
    : FinestraCensuario(modello, padre), modello_(modello), griglia_(modello.MSFlexGrid1),
      tabella_(new QTableView(this)), text1_(new QLineEdit(this)),
      check1_(new QCheckBox(QStringLiteral("Mantieni Numero Particella Frazionata"), this)),
      text2_(new QLineEdit(this)), label2_(new QLabel(this)), somma_(new QLabel(this)) {}

FinestraProposta::FinestraProposta(KR_Fraziona& modello, QWidget* padre)
    : FinestraProposta(static_cast<PropostaDerivate&>(modello), padre) {
  frazionamento_ = &modello;
  disegno_ = new GraficaPannello(modello.Dintorni(), modello.Grafica1(), host::KR_Fraziona, this);
  disegno_->NascondiCaricamento();
  evidenza_ = new EvidenzaParticella(disegno_->Superficie());
  Componi();
}

FinestraProposta::FinestraProposta(KR_Stralcio& modello, QWidget* padre)
    : FinestraProposta(static_cast<PropostaDerivate&>(modello), padre) {
  stralcio_ = &modello;
  Componi();
}

void FinestraProposta::Componi() {
  auto* corpo = new QWidget(this);
  auto* piano = new QHBoxLayout(corpo);
  piano->setContentsMargins(0, 0, 0, 0);
  piano->setSpacing(10);
  QWidget* scelte = CreaScelte();
  scelte->setFixedWidth(std::max(LarghezzaScelte, scelte->minimumSizeHint().width()));
  piano->addWidget(scelte);
  piano->addWidget(CreaGriglia(), 5);
  if (disegno_ != nullptr) piano->addWidget(disegno_, 3);
  if (stralcio_ != nullptr) piano->addWidget(CreaUrbani(*stralcio_), 2);
  CollegaGriglia();
  connect(&Memo(), &ElencoCensuario::DoppioClic, this, [this] {
    modello_.DoppioClickMemo();
    Mostra();
  });
  Completa(corpo, Larghezza, Altezza);
  (modello_.List3.empty() ? text1_ : text2_)->setFocus();
}

QWidget* FinestraProposta::CreaScelte() {
  auto* dentro = new QWidget(this);
  auto* colonna = new QVBoxLayout(dentro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(4);
  auto* quante = new QHBoxLayout;
  auto* etichetta = new QLabel(QStringLiteral("Numero Particelle Costituite"), this);
  etichetta->setBuddy(text1_);
  quante->addWidget(etichetta, 1);
  quante->addWidget(text1_);
  text1_->setObjectName(QStringLiteral("Text1"));
  text1_->setFixedWidth(60);
  check1_->setObjectName(QStringLiteral("Check1"));
  colonna->addSpacing(6);
  colonna->addLayout(quante);
  colonna->addWidget(check1_);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Derivazioni della proposta"), this));
  colonna->addWidget(CreaElenco("List3", modello_.List3), 1);
  colonna->addWidget(TitoloGruppo(QStringLiteral("Aree della proposta (un clic le prende)"), this));
  QListWidget* aree = CreaElenco("Combo1", modello_.Combo1);
  connect(aree, &QListWidget::itemClicked, this, [this, aree](const QListWidgetItem* voce) {
    modello_.ScegliArea(static_cast<std::size_t>(aree->row(voce)));
    Tocca();
  });
  colonna->addWidget(aree, 1);
  CollegaScelte();
  return dentro;
}

void FinestraProposta::CollegaScelte() {
  connect(text1_, &QLineEdit::textEdited, this, [this](const QString& testo) {
    modello_.CambiaText1(DaQString(testo));
    Tocca();
  });
  connect(text1_, &QLineEdit::editingFinished, this, [this] {
    if (!text1_->isModified()) return;
    text1_->setModified(false);
    modello_.LasciaText1();
  });
  connect(check1_, &QCheckBox::clicked, this, [this](bool si) {
    modello_.CambiaCheck1(si);
    Tocca();
  });
}

QListWidget* FinestraProposta::CreaElenco(const char* nome, const std::vector<std::string>& voci) {
  auto* elenco = new QListWidget(this);
  elenco->setObjectName(QString::fromLatin1(nome));
  elenco->setUniformItemSizes(true);
  for (const std::string& voce : voci) elenco->addItem(AQString(voce));
  return elenco;
}

QWidget* FinestraProposta::CreaGriglia() {
  auto* dentro = new QWidget(this);
  auto* colonna = new QVBoxLayout(dentro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(4);
  auto* area = new QHBoxLayout;
  area->addWidget(label2_);
  area->addWidget(text2_);
  area->addWidget(Tenue(QStringLiteral("mq"), dentro));
  area->addStretch(1);
  text2_->setObjectName(QStringLiteral("Text2"));
  text2_->setFixedWidth(120);
  text2_->setToolTip(QStringLiteral("Invio: riga seguente. R: SR. N: SN. F: FISSA."));
  text2_->installEventFilter(this);
  label2_->setBuddy(text2_);
  label2_->setTextFormat(Qt::PlainText);
  somma_->setObjectName(QStringLiteral("Somma"));
  PreparaTabella();
  colonna->addSpacing(6);
  colonna->addLayout(area);
  colonna->addWidget(tabella_, 1);
  colonna->addWidget(somma_);
  return dentro;
}

void FinestraProposta::PreparaTabella() {
  tabella_->setObjectName(QStringLiteral("MSFlexGrid1"));
  tabella_->setModel(&griglia_);
  tabella_->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella_->setSelectionMode(QAbstractItemView::SingleSelection);
  tabella_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella_->verticalHeader()->hide();
  tabella_->verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  QHeaderView& testata = *tabella_->horizontalHeader();
  testata.setSectionResizeMode(QHeaderView::ResizeToContents);
  testata.setResizeContentsPrecision(0); // the rows in sight
  testata.setStretchLastSection(true);
  testata.setHighlightSections(false);
  tabella_->setToolTip(QStringLiteral("Doppio clic su SR/SN e su Area FISSA: cambia il valore"));
}

// Lines of the proposal; the parcels of those selected become urban entities.
QWidget* FinestraProposta::CreaUrbani(KR_Stralcio& stralcio) {
  auto* elenco = new ElencoCensuario(QStringLiteral("Derivate che diventano enti urbani"), stralcio.List4, this);
  elenco->Vista().setObjectName(QStringLiteral("List4"));
  elenco->Vista().setSelectionMode(QAbstractItemView::MultiSelection);
  elenco->Ricarica();
  connect(elenco, &ElencoCensuario::SelezioneCambiata, this, [this, &stralcio] {
    stralcio.CambiaUrbani();
    Tocca();
  });
  return elenco;
}

void FinestraProposta::CollegaGriglia() {
  connect(text2_, &QLineEdit::textEdited, this, &FinestraProposta::Batti);
  connect(text2_, &QLineEdit::returnPressed, this, [this] {
    modello_.Invio();
    MostraCasella();
  });
  connect(tabella_, &QTableView::clicked, this,
          [this](const QModelIndex& indice) { VaiARiga(GrigliaQt::Griglia(indice.row())); });
  connect(tabella_, &QTableView::doubleClicked, this, [this](const QModelIndex& indice) {
    modello_.DoppioClick(GrigliaQt::Griglia(indice.row()), static_cast<std::size_t>(indice.column()));
    Tocca();
  });
}

void FinestraProposta::Batti(const QString& testo) {
  modello_.CambiaText2(DaQString(testo));
  MettiTesto(*text2_, modello_.Text2);
  griglia_.Ricarica();
  Composizione().Ricarica();
  MostraSomma();
  MostraRilievi();
}

void FinestraProposta::VaiARiga(std::size_t riga) {
  modello_.VaiARiga(riga);
  MostraCasella();
  text2_->setFocus();
}

// The arrows go from row to row as Enter does.
bool FinestraProposta::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto == text2_ && evento->type() == QEvent::KeyPress) {
    const int tasto = static_cast<QKeyEvent*>(evento)->key();
    if (tasto == Qt::Key_Down) VaiARiga(modello_.RigaCorrente + 1);
    if (tasto == Qt::Key_Up && modello_.RigaCorrente > GrigliaProposta::PrimaDerivata)
      VaiARiga(modello_.RigaCorrente - 1);
    if (tasto == Qt::Key_Down || tasto == Qt::Key_Up) return true;
  }
  return FinestraCensuario::eventFilter(oggetto, evento);
}

// --- what it shows

void FinestraProposta::Tocca() {
  Mostra();
}

void FinestraProposta::Mostra() {
  MettiTesto(*text1_, modello_.Text1);
  const QSignalBlocker fermo(check1_);
  check1_->setChecked(modello_.Check1);
  griglia_.Ricarica();
  MostraCasella();
  MostraSomma();
  FinestraCensuario::Mostra();
}

// The edit field and the parcel that it is about, lit.
void FinestraProposta::MostraCasella() {
  const bool derivata =
      modello_.RigaCorrente >= GrigliaProposta::PrimaDerivata && modello_.RigaCorrente < modello_.MSFlexGrid1.Righe();
  label2_->setText(modello_.Label2.empty() ? QStringLiteral("Indicare il numero delle particelle costituite")
                                           : AQString(modello_.Label2));
  text2_->setEnabled(derivata);
  text2_->setText(AQString(modello_.Text2));
  text2_->selectAll();
  tabella_->setCurrentIndex(griglia_.index(GrigliaQt::Vista(modello_.RigaCorrente), GrigliaProposta::PropAree));
  if (frazionamento_ != nullptr)
    evidenza_->Illumina(ContornoParticella(frazionamento_->Grafica1(), modello_.ParticellaCorrente()));
}

void FinestraProposta::MostraSomma() {
  const double differenza = modello_.DifferenzaAree();
  const auto mq = [](double area) { return std::isfinite(area) ? AQString(TestoPieno(area)) : QStringLiteral("?"); };
  somma_->setText(QStringLiteral("Somma delle aree <b>%1</b> mq &nbsp;·&nbsp; area catastale <b>%2</b> mq "
                                 "&nbsp;·&nbsp; differenza <b style='color:%4'>%3</b> mq")
                      .arg(mq(modello_.SommaAree()), mq(modello_.SommaAree() - differenza), mq(differenza),
                           ColoreTema(differenza == 0 ? Tono::TestoGiusto : Tono::TestoErrore).name()));
}

} // namespace lirmeto::ui
