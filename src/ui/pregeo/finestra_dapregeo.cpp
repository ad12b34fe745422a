#include <ui/pregeo/finestra_dapregeo.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/invito_elenco.h>
#include <ui/comune/modello_classe.h>
#include <ui/comune/piede_scelta.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>

#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTabWidget>
#include <QTableWidget>
#include <QVBoxLayout>

#include <span>

namespace lirmeto::ui {

namespace {

constexpr int Larghezza = 1220;
constexpr int Altezza = 690;
constexpr int AltezzaArchivio = 200;
constexpr int LarghezzaLibretto = 520;
constexpr int AltezzaRiga = 22;

// A table that is only looked at, with these titles.
QTableWidget* CreaTabella(std::span<const std::string_view> titoli, const QString& nome, QWidget* padre) {
  auto* tabella = new QTableWidget(0, static_cast<int>(titoli.size()), padre);
  QStringList intestazioni;
  for (const auto titolo : titoli) intestazioni << AQString(titolo);
  tabella->setObjectName(nome);
  tabella->setHorizontalHeaderLabels(intestazioni);
  tabella->setEditTriggers(QAbstractItemView::NoEditTriggers);
  tabella->setSelectionBehavior(QAbstractItemView::SelectRows);
  tabella->setSelectionMode(QAbstractItemView::SingleSelection);
  tabella->verticalHeader()->hide();
  tabella->verticalHeader()->setDefaultSectionSize(AltezzaRiga);
  tabella->setWordWrap(false);
  tabella->horizontalHeader()->setStretchLastSection(true);
  tabella->horizontalHeader()->setHighlightSections(false);
  return tabella;
}

template <typename Righe>
void Riempi(QTableWidget& tabella, const Righe& righe) {
  tabella.setRowCount(static_cast<int>(righe.size()));
  for (std::size_t r = 0; r < righe.size(); ++r)
    for (std::size_t c = 0; c < righe[r].size(); ++c)
      tabella.setItem(static_cast<int>(r), static_cast<int>(c), new QTableWidgetItem(AQString(righe[r].at(c))));
  tabella.resizeColumnsToContents();
}

QListView* CreaElenco(ModelloClasse* righe, const QString& nome, QWidget* padre) {
  auto* elenco = new QListView(padre);
  righe->setParent(elenco);
  elenco->setObjectName(nome);
  elenco->setModel(righe);
  elenco->setUniformItemSizes(true);
  elenco->setFont(FontMonospazio(9));
  elenco->setEditTriggers(QAbstractItemView::NoEditTriggers);
  return elenco;
}

} // namespace

FinestraDapregeo::FinestraDapregeo(KR_Dapregeo& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello),
      archivio_(CreaTabella(KR_Dapregeo::TitoliArchivio, QStringLiteral("MSFlexGrid1"), this)),
      punti_(CreaTabella(KR_Dapregeo::TitoliPunti, QStringLiteral("MSFlexGrid2"), this)),
      righe_(new ModelloClasse(modello.List2, FontMonospazio(9))),
      proposta_(new ModelloClasse(modello.List1, FontMonospazio(9))), schede_(new QTabWidget(this)),
      disegno_(new GraficaPannello(modello.Dintorni(), modello.Grafica1, host::KR_Dapregeo, this)) {
  setObjectName(QStringLiteral("KR_Dapregeo"));
  setWindowTitle(AQString(modello_.Titolo));
  disegno_->Superficie().MettiInvito(QStringLiteral("Scegliere un libretto dell'archivio per vederne la proposta"));
  MettiInvito(*archivio_,
              QStringLiteral("L'archivio di Pregeo non ha libretti, o il programma di scambio non risponde."));
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(10, 10, 10, 10);
  if (modello_.ConRicerca) colonna->addWidget(CreaRicerca());
  colonna->addWidget(CreaPiano(), 1);
  colonna->addLayout(CreaPiede());
  MostraArchivio();
  MostraLibretto();
  connect(archivio_, &QTableWidget::currentCellChanged, this, [this](int riga, int /*colonna*/, int prima) {
    if (riga < 0 || riga == prima) return;
    modello_.CambiaRiga(static_cast<std::size_t>(riga));
    MostraLibretto();
  });
  connect(disegno_, &GraficaPannello::RicaricaRichiesta, this, [this] { modello_.Ricarica(); });
  AdattaAlloSchermo(*this, Larghezza, Altezza);
  RimettiAlPosto(*this, modello_.PostoSalvato);
}

// The archive above; below it the libretto chosen there and its drawing.
QWidget* FinestraDapregeo::CreaPiano() {
  auto* sotto = new QSplitter(this);
  sotto->addWidget(CreaLibretto());
  sotto->addWidget(disegno_);
  sotto->setSizes({LarghezzaLibretto, Larghezza - LarghezzaLibretto});
  auto* piano = new QSplitter(Qt::Vertical, this);
  piano->addWidget(archivio_);
  piano->addWidget(sotto);
  piano->setSizes({AltezzaArchivio, Altezza - AltezzaArchivio});
  for (QSplitter* uno : {sotto, piano}) uno->setChildrenCollapsible(false);
  return piano;
}

// Rows of the archive that lack the text are hidden.
QWidget* FinestraDapregeo::CreaRicerca() {
  auto* cerca = new QLineEdit(this);
  cerca->setObjectName(QStringLiteral("Cercato"));
  cerca->setPlaceholderText(QStringLiteral("Cerca: anno, protocollo, tecnico, comune, foglio, stato"));
  cerca->setClearButtonEnabled(true);
  connect(cerca, &QLineEdit::textChanged, this, [this](const QString& testo) {
    modello_.Cercato = DaQString(testo);
    for (int riga = 0; riga < archivio_->rowCount(); ++riga)
      archivio_->setRowHidden(riga, !modello_.Trovata(static_cast<std::size_t>(riga)));
  });
  return cerca;
}

QWidget* FinestraDapregeo::CreaLibretto() {
  schede_->addTab(punti_, QStringLiteral("Punti"));
  schede_->addTab(CreaElenco(righe_, QStringLiteral("List2"), this), QStringLiteral("Libretto"));
  schede_->addTab(CreaElenco(proposta_, QStringLiteral("List1"), this), QStringLiteral("Proposta"));
  return schede_;
}

QLayout* FinestraDapregeo::CreaPiede() {
  const PiedeScelta piede = CreaPiedeScelta(QStringLiteral("Importa Righe 8"), *this);
  auto* dxf = new QPushButton(Icona(QStringLiteral("dxf")), QStringLiteral("Salva in DXF"), this);
  dxf->setObjectName(QStringLiteral("Pulsante_3"));
  dxf->setAutoDefault(false);
  piede.riga->insertWidget(0, dxf);
  connect(dxf, &QPushButton::clicked, this, [this] { Premi(3); });
  connect(piede.conferma, &QPushButton::clicked, this, [this] { Premi(2); });
  return piede.riga;
}

void FinestraDapregeo::Premi(int indice) {
  modello_.Pulsante(indice);
  if (modello_.Chiusa) accept();
}

// However the window goes, the model is closed, and the place kept.
void FinestraDapregeo::done(int esito) {
  if (!modello_.Chiusa) modello_.Pulsante(0);
  modello_.SalvaPosto({x(), y(), width(), height()});
  QDialog::done(esito);
}

void FinestraDapregeo::MostraArchivio() {
  const QSignalBlocker blocco(archivio_);
  Riempi(*archivio_, modello_.MSFlexGrid1);
  if (modello_.Riga) archivio_->setCurrentCell(static_cast<int>(*modello_.Riga), 0);
}

void FinestraDapregeo::MostraLibretto() {
  Riempi(*punti_, modello_.MSFlexGrid2);
  righe_->Ricarica();
  proposta_->Ricarica();
  schede_->setTabText(0, QStringLiteral("Punti (%L1)").arg(modello_.MSFlexGrid2.size()));
  schede_->setTabText(1, QStringLiteral("Libretto (%L1)").arg(modello_.List2.size()));
  schede_->setTabText(2, QStringLiteral("Proposta (%L1)").arg(modello_.List1.size()));
}

} // namespace lirmeto::ui
