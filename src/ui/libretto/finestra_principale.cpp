#include <ui/libretto/finestra_principale.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_ricerca.h>
#include <ui/comune/menu_elenchi.h>
#include <ui/comune/ricerca.h>
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
#include <ui/verifiche/segni.h>

#include <QCloseEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QScopedValueRollback>
#include <QShortcut>
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

QString SpiegaTrascina() {
  return QStringLiteral("Trascinare qui un libretto: .TXT, .DAT, .LXB, .PDF");
}

} // namespace

FinestraPrincipale::FinestraPrincipale(KR_LibrettoOriginale& modello, PercorsoDaOspite percorso, QWidget* padre)
    : QMainWindow(padre), modello_(modello), percorso_(std::move(percorso)),
      pulsanti_(new PannelloPulsanti(Disponibile(), this)), dati_(new PannelloDati(modello, this)),
      strumenti_(new PannelloStrumenti(this)), righe_(new VistaRighe(modello.DatiSessione().List1, this)),
      ricerca_(new BarraRicerca(this)), spiegazione_(new RigaDiStato(this)), campi_(new StrisciaCampi(this)),
      nomeFile_(new QLabel(this)), posizione_(new QLabel(this)),
      verifiche_(new ElencoVerifiche(modello.Verifiche, this)), rilievo_(new PannelloRilievo(modello.Rilievo, this)),
      accanto_(new QSplitter(Qt::Horizontal, this)), sopra_(new QSplitter(Qt::Vertical, this)),
      conta_(new QToolButton(this)), ritardo_(new QTimer(this)), scartate_(new QToolButton(this)),
      esito_(new QLabel(this)), consegne_(new QTimer(this)) {
  setObjectName(QStringLiteral("KR_LibrettoOriginale"));
  setAcceptDrops(true);
  RiempiMenu(*menuBar(), Disponibile(), [this](Comando comando) { Comanda(comando); });
  auto* piano = new QSplitter(Qt::Horizontal, this);
  piano->setChildrenCollapsible(false);
  piano->setHandleWidth(1);
  piano->addWidget(pulsanti_);
  piano->addWidget(CreaCentro());
  piano->addWidget(dati_);
  piano->setStretchFactor(1, 1);
  dati_->setMinimumWidth(220);
  AdattaAlloSchermo(*this, Larghezza, Altezza);
  RimettiAlPosto(*this, modello_.PostoSalvato());
  piano->setSizes({pulsanti_->minimumWidth(), width() - pulsanti_->minimumWidth() - LarghezzaDati, LarghezzaDati});
  // The explanation of a row is long: it has the whole width.
  auto* tutto = new QWidget(this);
  auto* colonna = new QVBoxLayout(tutto);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(piano, 1);
  colonna->addWidget(CreaPiede());
  setCentralWidget(tutto);
  CollegaElenco();
  CollegaRicerca();
  CollegaVerifiche();
  CollegaCampi();
  CreaScorciatoie();
  CreaMenuRighe();
  connect(pulsanti_, &PannelloPulsanti::Premuto, this, &FinestraPrincipale::Comanda);
  connect(dati_, &PannelloDati::Premuto, this, &FinestraPrincipale::Comanda);
  connect(strumenti_, &PannelloStrumenti::Premuto, this,
          [this](std::string_view tag) { Fa([&] { modello_.EseguiStrumento(tag); }); });
  connect(pulsanti_, &PannelloPulsanti::PuntatoreSopra, this, [this](int indice) {
    modello_.PuntatoreSuPulsante(indice);
    MostraStrumenti();
  });
  CollegaConsegne();
  DaiMenuAgliElenchi(*this);
  QSet<QChar> deiMenu;
  for (const QAction* menu : menuBar()->actions())
    deiMenu.insert(menu->text()[menu->text().indexOf(u'&') + 1].toUpper());
  AssegnaMnemoniche(*dati_, deiMenu);
  Mostra();
  OrdinaTab(*tutto);
  righe_->setFocus();
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

QWidget* FinestraPrincipale::CreaCentro() {
  auto* centro = new QWidget(this);
  centro->setObjectName(QStringLiteral("Centro"));
  auto* colonna = new QVBoxLayout(centro);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(CreaTestata());
  colonna->addWidget(ricerca_);
  accanto_->addWidget(righe_);
  accanto_->addWidget(rilievo_);
  accanto_->setStretchFactor(0, 1);
  auto* righeECampi = new QWidget(this);
  auto* pila = new QVBoxLayout(righeECampi);
  pila->setContentsMargins(0, 0, 0, 0);
  pila->setSpacing(0);
  pila->addWidget(accanto_, 1);
  pila->addWidget(campi_);
  sopra_->addWidget(righeECampi);
  sopra_->addWidget(verifiche_);
  sopra_->setStretchFactor(0, 1);
  for (QSplitter* diviso : {accanto_, sopra_}) {
    diviso->setChildrenCollapsible(false);
    diviso->setHandleWidth(3);
    connect(diviso, &QSplitter::splitterMoved, this, &FinestraPrincipale::TieniMisure);
  }
  righe_->setMinimumWidth(180);
  colonna->addWidget(sopra_, 1);
  return centro;
}

QWidget* FinestraPrincipale::CreaTestata() {
  auto* testata = new QWidget(this);
  testata->setObjectName(QStringLiteral("Testata"));
  auto* riga = new QHBoxLayout(testata);
  riga->setContentsMargins(10, 3, 6, 3);
  nomeFile_->setObjectName(QStringLiteral("EtichettaFile"));
  nomeFile_->setFont(FontMonospazio(10));
  nomeFile_->setTextFormat(Qt::PlainText);
  nomeFile_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  posizione_->setObjectName(QStringLiteral("EtichettaPosizione"));
  auto* cerca = new QToolButton(testata);
  cerca->setIcon(Icona(QStringLiteral("cerca")));
  cerca->setToolTip(QStringLiteral("Cerca nelle righe (Ctrl+F)"));
  cerca->setAutoRaise(true);
  cerca->setFocusPolicy(Qt::NoFocus);
  connect(cerca, &QToolButton::clicked, ricerca_, &BarraRicerca::Apri);
  riga->addWidget(nomeFile_, 1);
  riga->addWidget(posizione_);
  riga->addWidget(cerca);
  return testata;
}

QWidget* FinestraPrincipale::CreaPiede() {
  auto* piede = new QWidget(this);
  auto* riga = new QHBoxLayout(piede);
  riga->setContentsMargins(0, 0, 6, 0);
  riga->setSpacing(8);
  spiegazione_->setObjectName(QStringLiteral("Spiegazione"));
  scartate_->setObjectName(QStringLiteral("Scartate"));
  scartate_->setIcon(Icona(QStringLiteral("scartate")));
  scartate_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  scartate_->setToolTip(QStringLiteral("Mostra l'elenco delle righe scartate"));
  scartate_->setFocusPolicy(Qt::TabFocus);
  connect(scartate_, &QToolButton::clicked, this, [this] { Comanda(Comando::MostraRigheScartate); });
  esito_->setObjectName(QStringLiteral("Esito"));
  esito_->setTextFormat(Qt::PlainText);
  esito_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  conta_->setObjectName(QStringLiteral("ContaVerifiche"));
  conta_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  conta_->setToolTip(QStringLiteral("Mostra o nasconde l'elenco delle segnalazioni (Ctrl+F8)"));
  conta_->setAutoRaise(true);
  conta_->setFocusPolicy(Qt::TabFocus);
  connect(conta_, &QToolButton::clicked, this, [this] { Comanda(Comando::MostraVerifiche); });
  riga->addWidget(spiegazione_, 3);
  riga->addWidget(esito_, 2);
  riga->addWidget(conta_);
  riga->addWidget(scartate_);
  return piede;
}

void FinestraPrincipale::CollegaElenco() {
  righe_->setToolTip(SpiegaTrascina());
  connect(righe_, &VistaRighe::Toccata, this, [this] {
    if (occupata_) return; // the command that moved the list shows everything at its end
    modello_.Righe_Indice();
    MostraElenco();
  });
  connect(righe_, &VistaRighe::DoppioClick, this,
          [this](std::size_t riga) { Fa([&] { modello_.DoppioClick(riga); }); });
  connect(righe_, &VistaRighe::Invio, this, [this](std::size_t riga) { Fa([&] { modello_.TastoInvio(riga); }); });
  connect(righe_, &VistaRighe::Cancella, this, [this] {
    Fa([&] { modello_.TastoCancella(); });
    righe_->setFocus();
  });
  // The question comes after the drop is over: the program that holds the file must not wait for the answer.
  connect(
      righe_, &VistaRighe::FileLasciato, this,
      [this](const QString& percorso) { Lascia(percorso, &KR_LibrettoOriginale::Trascina); }, Qt::QueuedConnection);
}

void FinestraPrincipale::CollegaRicerca() {
  connect(ricerca_, &BarraRicerca::TestoCambiato, this, &FinestraPrincipale::Cerca);
  connect(ricerca_, &BarraRicerca::Successiva, this, [this] { VaiATrovata(true); });
  connect(ricerca_, &BarraRicerca::Precedente, this, [this] { VaiATrovata(false); });
  connect(ricerca_, &BarraRicerca::Chiusa, this, [this] {
    righe_->Evidenzia({});
    righe_->setFocus();
  });
}

void FinestraPrincipale::CollegaVerifiche() {
  righe_->Segni([this](std::size_t riga) { return modello_.Verifiche.SegnoDi(riga); },
                [this](std::size_t riga) { return AQString(modello_.Verifiche.SpiegazioneDi(riga)); });
  ritardo_->setSingleShot(true);
  ritardo_->setInterval(0);
  connect(ritardo_, &QTimer::timeout, this, &FinestraPrincipale::AggiornaVerifiche);
  connect(verifiche_, &ElencoVerifiche::Scelta, this, [this](std::size_t indice) {
    Fa([&] { modello_.ScegliSegnalazione(indice); });
    VaiAllaCorrente();
  });
  connect(verifiche_, &ElencoVerifiche::RimedioRichiesto, this, [this] { Comanda(Comando::PrendiRimedio); });
  connect(verifiche_, &ElencoVerifiche::CopiaRichiesta, this, [this] { Fa([&] { modello_.CopiaSegnalazioni(); }); });
  connect(verifiche_, &ElencoVerifiche::StampaRichiesta, this, [this] { Fa([&] { modello_.StampaSegnalazioni(); }); });
  connect(verifiche_, &ElencoVerifiche::ChiusuraRichiesta, this, [this] { Comanda(Comando::MostraVerifiche); });
  connect(rilievo_, &PannelloRilievo::ChiusuraRichiesta, this, [this] { Comanda(Comando::MostraRilievo); });
  connect(rilievo_, &PannelloRilievo::Cliccato, this, [this](const PuntoPiano& posto, double entro) {
    Fa([&] { modello_.CliccaRilievo(posto, entro); });
    VaiAllaCorrente();
  });
}

void FinestraPrincipale::CollegaCampi() {
  connect(campi_, &StrisciaCampi::Cambiato, this, [this](std::size_t riga, std::size_t campo, const QString& testo) {
    Fa([&] { modello_.CambiaCampo(riga, campo, DaQString(testo)); });
  });
  connect(campi_, &StrisciaCampi::Lasciata, righe_, qOverload<>(&QWidget::setFocus));
  connect(campi_, &StrisciaCampi::Spostata, this, [this](int passo) {
    const long riga = Elenco().Indice() + passo;
    if (riga >= 0 && static_cast<std::size_t>(riga) < Elenco().Quante()) righe_->VaiA(static_cast<std::size_t>(riga));
  });
}

// On the rows the menu's own entries. Cut, copy, paste and their like are keys of the list alone: a box has them too.
void FinestraPrincipale::CreaMenuRighe() {
  for (const auto comando : {Comando::TagliaRighe, Comando::CopiaRighe, Comando::IncollaRighe, Comando::EliminaRighe,
                             Comando::SelezionaTutte}) {
    QAction* voce = VoceDi(*menuBar(), comando);
    voce->setShortcutContext(Qt::WidgetShortcut);
    righe_->addAction(voce);
  }
  connect(righe_, &VistaRighe::MenuRichiesto, this, [this](const QPoint& posto) {
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("MenuRighe"));
    for (const auto comando :
         {Comando::CampiRiga, Comando::ModificaDiretta, Comando::NessunaAzione, Comando::TagliaRighe,
          Comando::CopiaRighe, Comando::IncollaRighe, Comando::EliminaRighe, Comando::NessunaAzione,
          Comando::SelezionaTutte, Comando::AssegnaDescrizione, Comando::NessunaAzione, Comando::Annulla,
          Comando::Ripeti, Comando::SegnalazioneSuccessiva, Comando::PrendiRimedio, Comando::MostraRilievo})
      comando == Comando::NessunaAzione ? static_cast<void>(menu->addSeparator())
                                        : menu->addAction(VoceDi(*menuBar(), comando));
    menu->popup(posto);
  });
}

// The current row comes into view, and of a chosen finding its field is lit.
void FinestraPrincipale::VaiAllaCorrente() {
  const long indice = Elenco().Indice();
  if (indice >= 0) righe_->VaiA(static_cast<std::size_t>(indice));
  const auto scelta = modello_.Verifiche.Scelta();
  const bool sua = scelta && modello_.Verifiche.Voce(*scelta).riga == static_cast<std::size_t>(indice);
  righe_->AccendiCampo(static_cast<std::size_t>(indice), sua ? modello_.Verifiche.Voce(*scelta).campo : 0);
}

void FinestraPrincipale::AggiornaVerifiche() {
  if (occupata_ || chiusa_) return;
  if (modello_.AggiornaVerifiche()) righe_->AccendiCampo(0, 0);
  MostraVerifiche();
}

// The model says what stands there and how large; hidden parts take no room.
void FinestraPrincipale::MostraVerifiche() {
  const bool elencoNuovo = modello_.ElencoVerifiche && verifiche_->isHidden();
  const bool rilievoNuovo = modello_.RilievoVisibile && rilievo_->isHidden();
  verifiche_->setVisible(modello_.ElencoVerifiche);
  rilievo_->setVisible(modello_.RilievoVisibile);
  if (elencoNuovo)
    sopra_->setSizes({std::max(1, sopra_->height() - modello_.AltezzaVerifiche), modello_.AltezzaVerifiche});
  if (rilievoNuovo)
    accanto_->setSizes({std::max(1, accanto_->width() - modello_.LarghezzaRilievo), modello_.LarghezzaRilievo});
  if (modello_.ElencoVerifiche) verifiche_->Mostra();
  if (modello_.RilievoVisibile) rilievo_->Mostra();
  const Conteggio& quante = modello_.Verifiche.Esito().Quante();
  const Severita peggiore = quante.errori > 0   ? Severita::Errore
                            : quante.avvisi > 0 ? Severita::Avviso
                                                : Severita::Nota;
  conta_->setIcon(quante.Tutte() == 0 ? QIcon() : IconaSegno(peggiore));
  conta_->setText(AQString(modello_.AvvisoErrori.empty() ? modello_.Verifiche.Riepilogo() : modello_.AvvisoErrori));
  righe_->viewport()->update();
}

void FinestraPrincipale::TieniMisure() {
  modello_.DimensionaVerifiche(verifiche_->isVisible() ? verifiche_->height() : modello_.AltezzaVerifiche,
                               rilievo_->isVisible() ? rilievo_->width() : modello_.LarghezzaRilievo);
}

void FinestraPrincipale::CreaScorciatoie() {
  const auto aggiungi = [this](const QKeySequence& tasti, const std::function<void()>& azione) {
    connect(new QShortcut(tasti, this), &QShortcut::activated, this, azione);
  };
  aggiungi(QKeySequence(Qt::CTRL | Qt::Key_F), [this] { ricerca_->Apri(); });
  aggiungi(QKeySequence(Qt::Key_F3), [this] { VaiATrovata(true); });
  aggiungi(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { VaiATrovata(false); });
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
  esito_->setText(AQString(modello_.Esito));
  esito_->setToolTip(esito_->text());
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

void FinestraPrincipale::MostraElenco() {
  setWindowTitle(AQString(modello_.Titolo));
  nomeFile_->setText(AQString(modello_.EtichettaFile));
  nomeFile_->setToolTip(nomeFile_->text());
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

void FinestraPrincipale::Cerca() {
  const std::string testo = DaQString(ricerca_->Testo());
  trovate_ = RigheCheContengono(Elenco().Righe(), testo);
  versioneTrovate_ = Elenco().Versione();
  righe_->Evidenzia(testo);
  const auto posto = std::find(trovate_.begin(), trovate_.end(), static_cast<std::size_t>(Elenco().Indice()));
  ricerca_->MostraEsito(posto == trovate_.end() ? 0 : static_cast<std::size_t>(posto - trovate_.begin()) + 1,
                        trovate_.size());
}

void FinestraPrincipale::VaiATrovata(bool avanti) {
  if (ricerca_->Testo().isEmpty()) return ricerca_->Apri();
  if (!ricerca_->isVisible() || versioneTrovate_ != Elenco().Versione()) Cerca();
  if (trovate_.empty()) return;
  const long da = Elenco().Indice();
  const std::size_t quale = avanti ? TrovataDopo(trovate_, da) : TrovataPrima(trovate_, da);
  righe_->VaiA(trovate_[quale]);
  ricerca_->MostraEsito(quale + 1, trovate_.size());
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
