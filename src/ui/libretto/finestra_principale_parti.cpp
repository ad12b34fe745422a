// The parts of the main window and what the user does in each.

#include <ui/libretto/finestra_principale.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_ricerca.h>
#include <ui/comune/etichetta_breve.h>
#include <ui/comune/testo_qt.h>
#include <ui/libretto/menu_principale.h>
#include <ui/libretto/riga_di_stato.h>
#include <ui/libretto/striscia_campi.h>
#include <ui/libretto/vista_righe.h>
#include <ui/verifiche/elenco_verifiche.h>
#include <ui/verifiche/pannello_rilievo.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QShortcut>
#include <QSplitter>
#include <QToolButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

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
  conta_->setObjectName(QStringLiteral("ContaVerifiche"));
  conta_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  conta_->setToolTip(QStringLiteral("Mostra o nasconde l'elenco delle segnalazioni (Ctrl+F8)"));
  conta_->setAutoRaise(true);
  conta_->setFocusPolicy(Qt::TabFocus);
  connect(conta_, &QToolButton::clicked, this, [this] { Comanda(Comando::MostraVerifiche); });
  riga->addWidget(spiegazione_, 1);
  riga->addWidget(esito_, 1);
  riga->addWidget(conta_);
  riga->addWidget(scartate_);
  return piede;
}

void FinestraPrincipale::CollegaElenco() {
  righe_->setToolTip(QStringLiteral("Trascinare qui un libretto: .TXT, .DAT, .LXB, .PDF"));
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

void FinestraPrincipale::CreaScorciatoie() {
  const auto aggiungi = [this](const QKeySequence& tasti, const std::function<void()>& azione) {
    connect(new QShortcut(tasti, this), &QShortcut::activated, this, azione);
  };
  aggiungi(QKeySequence(Qt::CTRL | Qt::Key_F), [this] { ricerca_->Apri(); });
  aggiungi(QKeySequence(Qt::Key_F3), [this] { VaiATrovata(true); });
  aggiungi(QKeySequence(Qt::SHIFT | Qt::Key_F3), [this] { VaiATrovata(false); });
}

} // namespace lirmeto::ui
