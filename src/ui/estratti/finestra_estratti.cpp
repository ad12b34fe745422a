#include <ui/estratti/finestra_estratti.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_con_titolo.h>
#include <ui/comune/colonna_elenco.h>
#include <ui/comune/invito_elenco.h>
#include <ui/comune/percorsi_qt.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/estratti/anteprima_raster.h>
#include <ui/estratti/testi_estratto.h>

#include <base/errore.h>
#include <core/apri_form.h>

#include <QButtonGroup>
#include <QDragEnterEvent>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSplitter>
#include <QStackedWidget>
#include <QStringListModel>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <array>

namespace lirmeto::ui {

namespace {

constexpr int Larghezza = 1260;
constexpr int Altezza = 700;
constexpr int LarghezzaElenco = 210;
constexpr int LarghezzaDati = 270;
constexpr int IndiceChiudi = 0;

// The buttons above, parted into groups; the others stand beside their boxes.
constexpr int Stacco = -1;
constexpr std::array<int, 19> Barra = {2,  27, 21,     Stacco, 3,  6,  10,     Stacco, 9,           19,
                                       22, 8,  Stacco, 23,     16, 18, Stacco, 15,     IndiceChiudi};

QString IconaDi(int indice) {
  constexpr std::array<std::pair<int, const char*>, 19> icone = {{{0, "chiudi"},
                                                                  {2, "importa"},
                                                                  {3, "somma"},
                                                                  {6, "copia"},
                                                                  {8, "elimina"},
                                                                  {9, "vuota"},
                                                                  {10, "autoallestito"},
                                                                  {11, "copia"},
                                                                  {12, "modifica"},
                                                                  {13, "elimina"},
                                                                  {14, "modifica"},
                                                                  {15, "associa"},
                                                                  {16, "censuario"},
                                                                  {18, "stampa"},
                                                                  {19, "isolati"},
                                                                  {21, "esporta"},
                                                                  {22, "intestatari"},
                                                                  {23, "nuovo"},
                                                                  {27, "foglio"}}};
  const auto trovata =
      std::find_if(icone.begin(), icone.end(), [indice](const auto& una) { return una.first == indice; });
  return trovata == icone.end() ? QString() : QString::fromLatin1(trovata->second);
}

} // namespace

FinestraEstratti::FinestraEstratti(KR_EstrattiDiMappa1& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello), elenco_(new QListView(this)), nomi_(new QStringListModel(this)),
      filtri_(new QButtonGroup(this)), anteprima_(new QStackedWidget(this)),
      disegno_(new GraficaPannello(modello.Dintorni(), modello.Grafica1(), host::KR_EstrattiDiMappa1, this)),
      raster_(new AnteprimaRaster(this)), soloRaster_(new QToolButton(this)), testi_(new TestiEstratto(this)),
      completa_(new QToolButton(this)), dopo_(new QTimer(this)) {
  setObjectName(QStringLiteral("KR_EstrattiDiMappa1"));
  setAcceptDrops(true);
  dopo_->setSingleShot(true);
  auto* piano = new QSplitter(this);
  piano->setChildrenCollapsible(false);
  piano->setHandleWidth(1);
  for (QWidget* parte : {CreaElenco(), CreaCentro(), CreaDati()}) piano->addWidget(parte);
  piano->setStretchFactor(1, 1);
  piano->setSizes({LarghezzaElenco, Larghezza - LarghezzaElenco - LarghezzaDati, LarghezzaDati});
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(CreaBarra());
  colonna->addWidget(piano, 1);
  connect(dopo_, &QTimer::timeout, this, [this] { Fa([this] { modello_.AnteprimaEstratto3(); }); });
  connect(disegno_, &GraficaPannello::RicaricaRichiesta, this, [this] { Fa([this] { modello_.Ricarica(); }); });
  // A message about the file comes when the drop is over: the program that holds it must not wait.
  connect(
      this, &FinestraEstratti::FileLasciato, this,
      [this](const QString& ospite) {
        const std::string percorso = PercorsoDetto(modello_.Dintorni())(ospite);
        if (!percorso.empty()) Fa([&] { modello_.Lascia(percorso); });
      },
      Qt::QueuedConnection);
  AdattaAlloSchermo(*this, Larghezza, Altezza);
  Mostra();
  dopo_->start(0);
  elenco_->setFocus();
}

QToolButton* FinestraEstratti::CreaBottone(int indice, Qt::ToolButtonStyle stile) {
  const auto pulsanti = KR_EstrattiDiMappa1::Pulsanti();
  const auto pulsante =
      std::find_if(pulsanti.begin(), pulsanti.end(), [indice](const auto& uno) { return uno.indice == indice; });
  if (pulsante == pulsanti.end()) throw Errore(errore::IndiceFuoriIntervallo);
  auto* bottone = new QToolButton(this);
  bottone->setObjectName(QStringLiteral("Pulsante_%1").arg(indice));
  bottone->setIcon(Icona(IconaDi(indice)));
  bottone->setIconSize(QSize(20, 20));
  bottone->setText(AQString(pulsante->didascalia));
  bottone->setAccessibleName(AQString(pulsante->spiegazione));
  bottone->setToolButtonStyle(stile);
  bottone->setAutoRaise(stile == Qt::ToolButtonTextUnderIcon);
  connect(bottone, &QToolButton::clicked, this, [this, indice] { Fa([this, indice] { modello_.Premi(indice); }); });
  voci_.push_back({&*pulsante, bottone});
  return bottone;
}

QWidget* FinestraEstratti::CreaBarra() {
  auto* barra = new QWidget(this);
  barra->setObjectName(QStringLiteral("BarraComandi"));
  barra->setAttribute(Qt::WA_StyledBackground);
  auto* riga = new QHBoxLayout(barra);
  riga->setContentsMargins(4, 3, 4, 3);
  riga->setSpacing(0);
  for (const int indice : Barra) {
    if (indice == Stacco)
      riga->addStretch(1);
    else
      riga->addWidget(CreaBottone(indice, Qt::ToolButtonTextUnderIcon));
  }
  return barra;
}

// A filter pressed again is none: all kinds are listed.
QLayout* FinestraEstratti::CreaFiltri() {
  auto* opzioni = new QHBoxLayout;
  opzioni->setSpacing(4);
  filtri_->setExclusive(false);
  for (const auto& [filtro, testo] : {std::pair(FiltroEstratti::Smp, "SMP"), std::pair(FiltroEstratti::Emp, "EMP"),
                                      std::pair(FiltroEstratti::Png, "PNG")}) {
    auto* bottone = new QPushButton(QString::fromLatin1(testo), this);
    bottone->setObjectName(QStringLiteral("Filtro_") + bottone->text());
    bottone->setToolTip(QStringLiteral("Mostra solo i file *.%1").arg(bottone->text()));
    bottone->setCheckable(true);
    bottone->setAutoDefault(false);
    bottone->setMinimumWidth(0);
    filtri_->addButton(bottone, static_cast<int>(filtro));
    opzioni->addWidget(bottone);
  }
  connect(filtri_, &QButtonGroup::idClicked, this, [this](int id) {
    const bool si = filtri_->button(id)->isChecked();
    Fa([&] { modello_.CambiaFiltro(si ? static_cast<FiltroEstratti>(id) : FiltroEstratti::Tutti); });
  });
  return opzioni;
}

QWidget* FinestraEstratti::CreaElenco() {
  auto* intorno = new QWidget(this);
  elenco_->setObjectName(QStringLiteral("File1"));
  elenco_->setAccessibleName(QStringLiteral("File degli estratti"));
  elenco_->setModel(nomi_);
  elenco_->setUniformItemSizes(true);
  elenco_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  // The list makes its first file the current one when it gets the keys: only what is selected counts.
  connect(elenco_->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this](const QItemSelection& scelti) { Seleziona(scelti.isEmpty() ? -1 : scelti.first().top()); });
  MettiInvito(*elenco_,
              QStringLiteral("Nessun estratto: «Importa» o trascinare qui un file .EMP, .PNG o .ZIP; «Da CXF» "
                             "lo ricava da un foglio"));
  disegno_->Superficie().MettiInvito(QStringLiteral("Scegliere un estratto dall'elenco per vederne il disegno"));
  auto* colonna = new QVBoxLayout(intorno);
  colonna->setContentsMargins(10, 6, 8, 10);
  colonna->addLayout(CreaFiltri());
  colonna->addWidget(elenco_, 1);
  return intorno;
}

QWidget* FinestraEstratti::CreaCentro() {
  anteprima_->setObjectName(QStringLiteral("Anteprima"));
  anteprima_->addWidget(disegno_);
  anteprima_->addWidget(raster_);
  auto* sopra = new QWidget(this);
  soloRaster_->setObjectName(QStringLiteral("SoloRaster"));
  soloRaster_->setIcon(Icona(QStringLiteral("immagine")));
  soloRaster_->setText(QStringLiteral("Raster"));
  soloRaster_->setToolTip(QStringLiteral("Mostra l'immagine del foglio al posto del disegno"));
  soloRaster_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  soloRaster_->setCheckable(true);
  soloRaster_->setAutoRaise(true);
  connect(soloRaster_, &QToolButton::clicked, this, &FinestraEstratti::MostraAnteprima);
  auto* riga = new QHBoxLayout;
  riga->setContentsMargins(6, 2, 6, 2);
  riga->addStretch(1);
  riga->addWidget(soloRaster_);
  auto* colonna = new QVBoxLayout(sopra);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addLayout(riga);
  colonna->addWidget(anteprima_, 1);
  auto* centro = new QSplitter(Qt::Vertical, this);
  centro->setChildrenCollapsible(false);
  centro->setHandleWidth(1);
  centro->addWidget(sopra);
  centro->addWidget(testi_);
  centro->setStretchFactor(0, 1);
  centro->setSizes({Altezza * 2 / 3, Altezza / 3});
  return centro;
}

QWidget* FinestraEstratti::CreaDati() {
  auto* intorno = new QWidget(this);
  auto* colonna = new QVBoxLayout(intorno);
  colonna->setContentsMargins(12, 4, 12, 10);
  colonna->setSpacing(4);
  AggiungiEtichette(*colonna);
  AggiungiCompleta(*colonna);
  colonna->addStretch(1);
  AggiungiNomi(*colonna);
  return intorno;
}

void FinestraEstratti::AggiungiEtichette(QBoxLayout& colonna) {
  constexpr std::array<std::pair<const char*, std::string EtichetteEstratto::*>, 9> righe = {
      {{"Comune", &EtichetteEstratto::comune},
       {"Provincia", &EtichetteEstratto::provincia},
       {"Foglio", &EtichetteEstratto::foglio},
       {"Particelle", &EtichetteEstratto::particelle},
       {nullptr, &EtichetteEstratto::rilascio},
       {nullptr, &EtichetteEstratto::scadenza},
       {nullptr, &EtichetteEstratto::estMedio},
       {nullptr, &EtichetteEstratto::versione},
       {nullptr, &EtichetteEstratto::tipo}}};
  colonna.addWidget(TitoloGruppo(QStringLiteral("Estratto"), this));
  auto* griglia = new QGridLayout;
  griglia->setHorizontalSpacing(10);
  griglia->setVerticalSpacing(4);
  griglia->setColumnStretch(1, 1);
  for (const auto& [titolo, campo] : righe) {
    const int riga = griglia->rowCount();
    auto* valore = new QLabel(this);
    valore->setWordWrap(true);
    valore->setTextFormat(Qt::PlainText);
    valore->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (titolo != nullptr) griglia->addWidget(new QLabel(QString::fromLatin1(titolo), this), riga, 0, Qt::AlignTop);
    griglia->addWidget(valore, riga, titolo != nullptr ? 1 : 0, 1, titolo != nullptr ? 1 : 2);
    etichette_.emplace_back(campo, valore);
  }
  colonna.addLayout(griglia);
}

void FinestraEstratti::AggiungiCompleta(QBoxLayout& colonna) {
  completa_->setObjectName(QStringLiteral("Completa"));
  completa_->setText(QStringLiteral("Completa Autoallestito"));
  completa_->setIcon(Icona(QStringLiteral("modifica")));
  completa_->setToolTip(QStringLiteral("Comune, foglio e dati delle particelle dell'estratto autoallestito"));
  completa_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  connect(completa_, &QToolButton::clicked, this, [this] { Fa([this] { modello_.Completa(); }); });
  colonna.addWidget(completa_);
}

// What is typed goes with the buttons beside it.
void FinestraEstratti::AggiungiNomi(QBoxLayout& colonna) {
  const auto riga = [&](std::initializer_list<int> indici) {
    auto* bottoni = new QHBoxLayout;
    for (const int indice : indici) bottoni->addWidget(CreaBottone(indice, Qt::ToolButtonTextBesideIcon));
    bottoni->addStretch(1);
    colonna.addLayout(bottoni);
  };
  const auto griglia = [&](const QString& titolo) -> QGridLayout& {
    colonna.addWidget(TitoloGruppo(titolo, this));
    auto* caselle = new QGridLayout;
    colonna.addLayout(caselle);
    return *caselle;
  };
  (void)AggiungiCasella(griglia(QStringLiteral("Nuovo nome dell'estratto")), QStringLiteral("Nome"),
                        QStringLiteral("NuovoNome"), modello_.NuovoNome, this);
  riga({11, 12});
  QGridLayout& particella = griglia(QStringLiteral("Particella"));
  (void)AggiungiCasella(particella, QStringLiteral("Attuale"), QStringLiteral("NomeParticella"),
                        modello_.NomeParticella, this);
  (void)AggiungiCasella(particella, QStringLiteral("Nuova"), QStringLiteral("NuovoNomeParticella"),
                        modello_.NuovoNomeParticella, this);
  riga({13, 14});
}

// --- what it does

void FinestraEstratti::Fa(const std::function<void()>& azione) {
  azione();
  rasterMostrato_.clear(); // the file may be another one now
  Mostra();
  if (modello_.Chiusa) accept();
}

void FinestraEstratti::Seleziona(int riga) {
  modello_.Seleziona(riga);
  Mostra();
  dopo_->start(0);
}

void FinestraEstratti::Mostra() {
  setWindowTitle(AQString(modello_.Titolo));
  MostraElenco();
  MostraEtichette();
  testi_->Mostra(modello_.TestoFile, modello_.TestoParticelle, modello_.TestoDitte);
  soloRaster_->setEnabled(modello_.Anteprima == AnteprimaEstratto::Disegno && !modello_.RasterScelto.empty());
  MostraAnteprima();
  MostraPulsanti();
}

void FinestraEstratti::MostraElenco() {
  const QSignalBlocker muto(elenco_->selectionModel());
  QStringList nomi;
  for (const std::string& nome : modello_.File1) nomi.append(AQString(nome));
  if (nomi_->stringList() != nomi) nomi_->setStringList(nomi);
  const QModelIndex posto = nomi_->index(static_cast<int>(modello_.Indice));
  elenco_->selectionModel()->setCurrentIndex(posto, QItemSelectionModel::ClearAndSelect);
  elenco_->viewport()->update();
  if (posto.isValid()) elenco_->scrollTo(posto);
  for (QAbstractButton* bottone : filtri_->buttons())
    bottone->setChecked(filtri_->id(bottone) == static_cast<int>(modello_.Filtro));
}

void FinestraEstratti::MostraEtichette() {
  constexpr qsizetype moltissime = 160; // of a list of parcels
  for (const auto& [campo, etichetta] : etichette_) {
    const QString testo = AQString(modello_.Etichette.*campo);
    // Commas break nowhere: a blank after them lets a long list go on in the next line.
    QString mostrato = QString(testo).replace(u',', QStringLiteral(", "));
    if (mostrato.size() > moltissime) mostrato = mostrato.left(moltissime) + QStringLiteral("…");
    etichetta->setText(mostrato);
    etichetta->setToolTip(testo.size() > moltissime ? testo.left(2'000) : QString());
  }
  completa_->setVisible(!modello_.Etichette.tipo.empty());
}

void FinestraEstratti::MostraAnteprima() {
  const bool solo = modello_.Anteprima == AnteprimaEstratto::Raster;
  const bool raster = solo || (soloRaster_->isEnabled() && soloRaster_->isChecked());
  anteprima_->setCurrentWidget(raster ? static_cast<QWidget*>(raster_) : disegno_);
  disegno_->Superficie().setVisible(modello_.Anteprima == AnteprimaEstratto::Disegno);
  if (!raster) return;
  if (rasterMostrato_ == modello_.RasterScelto) return;
  rasterMostrato_ = modello_.RasterScelto;
  try {
    raster_->MostraByte(modello_.Dintorni().disco.Leggi(modello_.RasterScelto));
  } catch (const Errore& errore) {
    raster_->Avvisa(AQString(errore.Descrizione()));
  }
}

void FinestraEstratti::MostraPulsanti() {
  for (const auto& [pulsante, bottone] : voci_) {
    const bool ci = modello_.Abilitato(*pulsante);
    const bool suo = ci || pulsante->soloEmp;
    bottone->setEnabled(ci);
    bottone->setToolTip(AQString(suo ? pulsante->spiegazione : NonAncoraDisponibile));
  }
}

void FinestraEstratti::dragEnterEvent(QDragEnterEvent* evento) {
  if (evento->mimeData()->hasUrls()) evento->acceptProposedAction();
}

void FinestraEstratti::dropEvent(QDropEvent* evento) {
  const auto indirizzi = evento->mimeData()->urls();
  if (indirizzi.isEmpty() || !indirizzi.first().isLocalFile()) return;
  evento->acceptProposedAction();
  emit FileLasciato(indirizzi.first().toLocalFile());
}

} // namespace lirmeto::ui
