#include <ui/libretto/finestra_principale.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_ricerca.h>
#include <ui/comune/etichetta_breve.h>
#include <ui/comune/menu_elenchi.h>
#include <ui/comune/tastiera.h>
#include <ui/comune/testo_qt.h>
#include <ui/libretto/menu_principale.h>
#include <ui/libretto/pannello_dati.h>
#include <ui/libretto/pannello_pulsanti.h>
#include <ui/libretto/pannello_strumenti.h>
#include <ui/libretto/riga_di_stato.h>
#include <ui/libretto/striscia_campi.h>
#include <ui/libretto/vista_righe.h>
#include <ui/verifiche/elenco_verifiche.h>
#include <ui/verifiche/pannello_rilievo.h>

#include <QCloseEvent>
#include <QDropEvent>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QSet>
#include <QSplitter>
#include <QTimer>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace lirmeto::ui {

namespace {

constexpr int Larghezza = 1360;
constexpr int Altezza = 860;
constexpr int LarghezzaDati = 290;

} // namespace

FinestraPrincipale::FinestraPrincipale(KR_LibrettoOriginale& modello, PercorsoDaOspite percorso, QWidget* padre)
    : QMainWindow(padre), modello_(modello), percorso_(std::move(percorso)),
      pulsanti_(new PannelloPulsanti(Disponibile(), this)), dati_(new PannelloDati(modello, this)),
      strumenti_(new PannelloStrumenti(this)), righe_(new VistaRighe(modello.DatiSessione().List1, this)),
      ricerca_(new BarraRicerca(this)), spiegazione_(new RigaDiStato(this)), campi_(new StrisciaCampi(this)),
      nomeFile_(new EtichettaBreve(Qt::ElideMiddle, this)), posizione_(new QLabel(this)),
      verifiche_(new ElencoVerifiche(modello.Verifiche, this)), rilievo_(new PannelloRilievo(modello.Rilievo, this)),
      accanto_(new QSplitter(Qt::Horizontal, this)), sopra_(new QSplitter(Qt::Vertical, this)),
      conta_(new QToolButton(this)), ritardo_(new QTimer(this)), scartate_(new QToolButton(this)),
      esito_(new EtichettaBreve(Qt::ElideRight, this)), consegne_(new QTimer(this)) {
  setObjectName(QStringLiteral("KR_LibrettoOriginale"));
  setAcceptDrops(true);
  RiempiMenu(*menuBar(), Disponibile(), [this](Comando comando) { Comanda(comando); });
  AdattaAlloSchermo(*this, Larghezza, Altezza);
  RimettiAlPosto(*this, modello_.PostoSalvato());
  setCentralWidget(CreaPiano());
  CollegaElenco();
  CollegaRicerca();
  CollegaVerifiche();
  CollegaCampi();
  CreaScorciatoie();
  CreaMenuRighe();
  CollegaPannelli();
  CollegaConsegne();
  DaiMenuAgliElenchi(*this);
  Mostra();
  OrdinaTab(*centralWidget());
  righe_->setFocus();
}

QWidget* FinestraPrincipale::CreaPiano() {
  auto* piano = new QSplitter(Qt::Horizontal, this);
  piano->setChildrenCollapsible(false);
  piano->setHandleWidth(1);
  piano->addWidget(pulsanti_);
  piano->addWidget(CreaCentro());
  piano->addWidget(dati_);
  piano->setStretchFactor(1, 1);
  dati_->setMinimumWidth(220);
  piano->setSizes({pulsanti_->minimumWidth(), width() - pulsanti_->minimumWidth() - LarghezzaDati, LarghezzaDati});
  // The explanation of a row is long: it has the whole width.
  auto* tutto = new QWidget(this);
  auto* colonna = new QVBoxLayout(tutto);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(piano, 1);
  colonna->addWidget(CreaPiede());
  return tutto;
}

void FinestraPrincipale::CollegaPannelli() {
  connect(pulsanti_, &PannelloPulsanti::Premuto, this, &FinestraPrincipale::Comanda);
  connect(dati_, &PannelloDati::Premuto, this, &FinestraPrincipale::Comanda);
  connect(dati_, &PannelloDati::Scritto, this, &FinestraPrincipale::MostraTitolo);
  CollegaStrumenti();
  QSet<QChar> deiMenu;
  for (const QAction* menu : menuBar()->actions())
    deiMenu.insert(menu->text()[menu->text().indexOf(u'&') + 1].toUpper());
  AssegnaMnemoniche(*dati_, deiMenu);
}

void FinestraPrincipale::CollegaStrumenti() {
  connect(strumenti_, &PannelloStrumenti::Premuto, this, [this](std::string_view tag) {
    strumenti_->hide(); // it would stand behind the tool's window
    Fa([&] { modello_.EseguiStrumento(tag); });
    righe_->setFocus();
  });
  connect(strumenti_, &PannelloStrumenti::Lasciato, this, [this] {
    modello_.Righe_Indice();
    MostraStrumenti();
    righe_->setFocus();
  });
  connect(pulsanti_, &PannelloPulsanti::PuntatoreSopra, this, [this](int indice) {
    modello_.PuntatoreSuPulsante(indice);
    MostraStrumenti();
  });
}

// What a second start hands over is taken at once, while a dialog is open too, and done when the window is free.
void FinestraPrincipale::CollegaConsegne() {
  constexpr int ogni = 500; // milliseconds
  connect(consegne_, &QTimer::timeout, this, [this] {
    if (chiusa_ || !modello_.ArrivateConsegne() || occupata_) return;
    setWindowState(windowState() & ~Qt::WindowMinimized);
    raise();
    activateWindow();
    Fa([this] { modello_.EseguiConsegne(); });
  });
  consegne_->start(ogni);
}

// Runs something of the model and shows what came of it. While it runs the list's own events are held back.
void FinestraPrincipale::Fa(const std::function<void()>& azione) {
  if (occupata_) return;
  {
    const QScopedValueRollback occupata(occupata_, true);
    azione();
  }
  Mostra();
  if (modello_.PrimaNuova) righe_->PortaInVista(*std::exchange(modello_.PrimaNuova, std::nullopt));
  ChiudiSeFinita();
}

void FinestraPrincipale::Comanda(Comando comando) {
  campi_->Prendi(); // what is typed there belongs to the row as the command finds it
  if (comando == Comando::CampiRiga) return static_cast<void>(campi_->Entra());
  Fa([&] { modello_.Esegui(comando); });
  const QWidget* utilita = pulsanti_->Bottone(PulsanteUtilita);
  const bool coiTasti = utilita != nullptr && utilita->hasFocus(); // the mouse does not give it the keyboard
  if (comando == Comando::UtilitaCatastali && coiTasti) return strumenti_->Entra();
  // What came back is brought into view.
  const bool segnalazione = comando == Comando::SegnalazioneSuccessiva || comando == Comando::SegnalazionePrecedente ||
                            comando == Comando::PrendiRimedio;
  if (segnalazione) return VaiAllaCorrente();
  if (comando == Comando::IncollaRighe) return righe_->Scopri();
  const bool storia = comando == Comando::Annulla || comando == Comando::Ripeti;
  if (storia && Elenco().Indice() >= 0) righe_->VaiA(static_cast<std::size_t>(Elenco().Indice()));
}

void FinestraPrincipale::Lascia(const QString& percorsoOspite, void (KR_LibrettoOriginale::*dove)(const std::string&)) {
  const std::string percorso = percorso_(percorsoOspite);
  if (!percorso.empty()) Fa([&] { (modello_.*dove)(percorso); });
}

void FinestraPrincipale::dragEnterEvent(QDragEnterEvent* evento) {
  if (evento->mimeData()->hasUrls()) evento->acceptProposedAction();
}

// As over the rows: taken once the drag is over.
void FinestraPrincipale::dropEvent(QDropEvent* evento) {
  const QList<QUrl> indirizzi = evento->mimeData()->urls();
  if (indirizzi.isEmpty() || !indirizzi.first().isLocalFile()) return;
  evento->acceptProposedAction();
  QTimer::singleShot(0, this, [this, percorso = indirizzi.first().toLocalFile()] {
    Lascia(percorso, &KR_LibrettoOriginale::TrascinaAccanto);
  });
}

void FinestraPrincipale::ChiudiSeFinita() {
  if (modello_.Finita && !chiusa_) close();
}

void FinestraPrincipale::Mostra() {
  pulsanti_->MostraProvincia(AQString(modello_.SiglaPulsanteProvincia));
  dati_->Mostra();
  const QFont carattere = FontDa(modello_.CarattereElenco);
  if (righe_->font() != carattere) righe_->setFont(carattere);
  MostraElenco();
  MostraStoria();
  MostraEsito();
  MostraVerifiche();
}

// What the last command did; the files opened last.
void FinestraPrincipale::MostraEsito() {
  esito_->Mostra(AQString(modello_.Esito));
  esito_->setVisible(!modello_.Esito.empty());
  if (recenti_ == modello_.Recenti) return;
  recenti_ = modello_.Recenti;
  RiempiRecenti(*menuBar()->findChild<QMenu*>(QString::fromLatin1(MenuRecenti)), recenti_, [this](std::size_t quale) {
    // The command fills the menu anew: its entry must have gone from the stack by then.
    QTimer::singleShot(0, this, [this, quale] { Fa([&] { modello_.ApriRecente(quale); }); });
  });
}

// The entries that name the last command, and the notice of the last reorder.
void FinestraPrincipale::MostraStoria() {
  for (const Comando comando : {Comando::Annulla, Comando::Ripeti}) {
    QAction* voce = VoceDi(*menuBar(), comando);
    voce->setText(u'&' + AQString(modello_.Didascalia(comando)));
    voce->setEnabled(modello_.Attivo(comando));
  }
  scartate_->setText(AQString(modello_.AvvisoScartate));
  scartate_->setVisible(!modello_.AvvisoScartate.empty());
}

// A star says that there is something to save.
void FinestraPrincipale::MostraTitolo() {
  setWindowTitle(AQString(modello_.Titolo) + (modello_.DaSalvare() ? QStringLiteral(" *") : QString()));
}

void FinestraPrincipale::MostraElenco() {
  MostraTitolo();
  nomeFile_->Mostra(AQString(modello_.EtichettaFile));
  posizione_->setText(AQString(modello_.DatiSessione().EtichettaPosizione));
  righe_->Aggiorna();
  MostraSpiegazione();
  MostraStrumenti();
  ritardo_->start();
  if (ricerca_->isVisible() && versioneTrovate_ != Elenco().Versione()) Cerca();
}

void FinestraPrincipale::MostraSpiegazione() {
  const long indice = Elenco().Indice();
  if (indice < 0 || static_cast<std::size_t>(indice) >= Elenco().Quante()) {
    campi_->Pulisci();
    return spiegazione_->Pulisci();
  }
  const std::string_view riga = Elenco().Riga(static_cast<std::size_t>(indice));
  campi_->MostraRiga(static_cast<std::size_t>(indice), riga);
  spiegazione_->MostraRiga(riga);
}

void FinestraPrincipale::MostraStrumenti() {
  if (modello_.PannelloStrumenti && !strumenti_->isVisible()) {
    strumenti_->adjustSize();
    const QWidget* bottone = pulsanti_->Bottone(PulsanteUtilita);
    const QPoint accanto = pulsanti_->mapTo(this, QPoint(pulsanti_->width() + 6, 0));
    const int alto = bottone == nullptr ? accanto.y() : bottone->mapTo(this, QPoint(0, 0)).y() - 8;
    strumenti_->move(accanto.x(), std::clamp(alto, accanto.y(),
                                             std::max(accanto.y(), spiegazione_->mapTo(this, QPoint()).y() -
                                                                       strumenti_->height() - 6)));
    strumenti_->raise();
  }
  strumenti_->setVisible(modello_.PannelloStrumenti);
}

void FinestraPrincipale::changeEvent(QEvent* evento) {
  QMainWindow::changeEvent(evento);
  if (evento->type() != QEvent::ActivationChange || !isActiveWindow() || occupata_ || chiusa_) return;
  modello_.Attivazione(isMinimized());
  Mostra();
}

void FinestraPrincipale::resizeEvent(QResizeEvent* evento) {
  QMainWindow::resizeEvent(evento);
  if (occupata_ || chiusa_) return;
  modello_.Aggiornami();
  Mostra();
}

void FinestraPrincipale::closeEvent(QCloseEvent* evento) {
  if (occupata_) return evento->ignore();
  if (!chiusa_) {
    campi_->Prendi();
    {
      const QScopedValueRollback occupata(occupata_, true);
      modello_.Chiusura({x(), y(), width(), height()});
    }
    if (!modello_.Finita) { // not saved, and the user goes on
      evento->ignore();
      return Mostra();
    }
    chiusa_ = true;
    occupata_ = true;
  }
  evento->accept();
}

void FinestraPrincipale::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() == Qt::Key_Escape && ricerca_->isVisible()) return ricerca_->Chiudi();
  QMainWindow::keyPressEvent(evento);
}

} // namespace lirmeto::ui
