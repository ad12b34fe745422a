#include <ui/fiduciali/finestra_elco_pf_grafica.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/disegno/parti_grafica.h>

#include <QCheckBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QRubberBand>
#include <QToolButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

// Entries that only move the view have keys and no caption.
QKeySequence TastoDi(int indice) {
  switch (indice) {
  case 1:
    return Qt::Key_Left;
  case 2:
    return Qt::Key_Right;
  case 3:
    return Qt::Key_Plus;
  case 4:
    return Qt::Key_Minus;
  case 5:
    return Qt::Key_Home;
  default:
    return {};
  }
}

QString Invito(StrumentoPF strumento) {
  switch (strumento) {
  case StrumentoPF::ZoomFinestra:
    return QStringLiteral("Tracciare il riquadro da ingrandire (Esc lascia)");
  case StrumentoPF::Foglio:
    return QStringLiteral("Clic su un punto del foglio da selezionare (Esc lascia)");
  case StrumentoPF::Intorno:
    return QStringLiteral("Clic al centro dei punti da selezionare (Esc lascia)");
  case StrumentoPF::Nessuno:
    break;
  }
  return {};
}

} // namespace

FinestraElcoPfGrafica::FinestraElcoPfGrafica(KR_ElcoPFGrafica& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello), comandi_(new BarraACapo(this)), selezione_(new BarraACapo(this)),
      superficie_(new GraficaSuperficie(modello.Grafica1(), host::KR_ElcoPFGrafica, this)), menu_(new QMenu(this)),
      riquadro_(new QRubberBand(QRubberBand::Rectangle, superficie_)), posto_(new QLabel(this)),
      conteggi_(new QLabel(this)) {
  setWindowTitle(QStringLiteral("Grafica dei Punti Fiduciali"));
  RiempiComandi();
  RiempiSelezione();
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(comandi_);
  colonna->addWidget(selezione_);
  colonna->addWidget(superficie_, 1);
  colonna->addLayout(PiedeGrafica(*posto_, *conteggi_));
  superficie_->installEventFilter(this);
  connect(superficie_, &GraficaSuperficie::MenuRichiesto, this, [this](const QPoint& dove) { menu_->popup(dove); });
  connect(superficie_, &GraficaSuperficie::Sopra, this, [this](double x, double y) {
    posto_->setText(AQString(modello_.Leggenda({x, y})));
  });
  connect(superficie_, &GraficaSuperficie::Uscito, this, &FinestraElcoPfGrafica::Mostra);
  AdattaAlloSchermo(*this, 1240, 720);
  superficie_->MettiInvito(QStringLiteral("Nessun punto fiduciale in questo comune: «Estratto» aggiunge quelli di un "
                                          "estratto di mappa"));
  superficie_->setFocus();
  Mostra();
}

void FinestraElcoPfGrafica::RiempiComandi() {
  comandi_->setObjectName(QStringLiteral("BarraGrafica"));
  for (const VocePF& voce : VociElcoPF()) {
    const QKeySequence tasto = TastoDi(voce.indice);
    comandi_->MettiStile(tasto.isEmpty() ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
    QAction* azione = comandi_->addAction(Icona(AQString(voce.icona)), AQString(voce.didascalia), this,
                                          [this, indice = voce.indice] { Esegui(indice); });
    azione->setData(voce.indice);
    azione->setShortcut(tasto);
    azione->setToolTip(tasto.isEmpty() ? AQString(voce.spiegazione)
                                       : QStringLiteral("%1 (%2)").arg(AQString(voce.spiegazione),
                                                                       tasto.toString(QKeySequence::NativeText)));
    menu_->addAction(azione);
  }
}

void FinestraElcoPfGrafica::RiempiSelezione() {
  selezione_->setObjectName(QStringLiteral("BarraGrafica"));
  auto* titolo = new QLabel(QStringLiteral("Seleziona:"), this);
  titolo->setContentsMargins(6, 0, 6, 0);
  selezione_->Aggiungi(titolo);
  for (const VoceSelezionePF& voce : VociSelezionePF()) {
    QAction* azione = selezione_->addAction(Icona(AQString(voce.icona)), AQString(voce.didascalia), this,
                                            [this, quali = voce.selezione] {
                                              modello_.Seleziona(quali);
                                              Mostra();
                                            });
    azione->setToolTip(AQString(voce.spiegazione));
  }
  selezione_->Allarga();
  AggiungiRighello(*selezione_, *superficie_, [this](bool acceso) {
    modello_.LasciaStrumento();
    modello_.Grafica1().AccendiMetro(acceso);
    Mostra();
  });
  auto* nomi = new QCheckBox(QStringLiteral("&Nomi"), this);
  nomi->setObjectName(QStringLiteral("Check1"));
  nomi->setChecked(modello_.Check1());
  nomi->setToolTip(QStringLiteral("Mostra i nomi accanto ai punti"));
  selezione_->Aggiungi(nomi);
  connect(nomi, &QCheckBox::toggled, this, [this](bool si) { modello_.CambiaCheck1(si); });
  auto* sovrapposti = new QCheckBox(QStringLiteral("&Tutti i nomi"), this);
  sovrapposti->setObjectName(QStringLiteral("NomiSovrapposti"));
  sovrapposti->setToolTip(QStringLiteral("Mostra tutti i nomi, anche dove si coprono"));
  selezione_->Aggiungi(sovrapposti);
  connect(sovrapposti, &QCheckBox::toggled, this, [this](bool si) {
    modello_.Grafica1().Vista().NomiSovrapposti = si;
    modello_.Grafica1().KR_RidisegnaGrafica();
  });
}

void FinestraElcoPfGrafica::Esegui(int indice) {
  modello_.Esegui(indice);
  if (modello_.Chiusa) return accept();
  Mostra();
}

QPointF FinestraElcoPfGrafica::Mappa(const QPointF& posto) const {
  const VistaGrafica& vista = modello_.Grafica1().Vista();
  return superficie_->Metri(posto) + QPointF(vista.Xc, vista.Yc);
}

// While a tool is armed the left button is the tool's, and else the surface's.
bool FinestraElcoPfGrafica::eventFilter(QObject* oggetto, QEvent* evento) {
  if (oggetto != superficie_) return QDialog::eventFilter(oggetto, evento);
  if (evento->type() == QEvent::Resize) Ridimensiona();
  return modello_.Strumento() != StrumentoPF::Nessuno && UsaStrumento(*evento);
}

// Whether the event was the tool's.
bool FinestraElcoPfGrafica::UsaStrumento(QEvent& evento) {
  const bool premuto = evento.type() == QEvent::MouseButtonPress;
  const bool mosso = evento.type() == QEvent::MouseMove && riquadro_->isVisible();
  const bool lasciato = evento.type() == QEvent::MouseButtonRelease && riquadro_->isVisible();
  if (!premuto && !mosso && !lasciato) return false;
  const auto& mouse = static_cast<QMouseEvent&>(evento);
  if (premuto && mouse.button() != Qt::LeftButton) return false;
  if (premuto && modello_.Strumento() == StrumentoPF::ZoomFinestra) {
    angolo_ = mouse.position().toPoint();
    riquadro_->setGeometry(QRect(angolo_, QSize()));
    riquadro_->show();
  } else if (premuto) {
    const QPointF mappa = Mappa(mouse.position());
    modello_.Clic({mappa.x(), mappa.y()});
  } else if (mosso) {
    riquadro_->setGeometry(QRect(angolo_, mouse.position().toPoint()).normalized());
  } else {
    Traccia(mouse.position().toPoint());
  }
  Mostra();
  return true;
}

void FinestraElcoPfGrafica::Traccia(const QPoint& posto) {
  riquadro_->hide();
  const QPointF primo = Mappa(angolo_);
  const QPointF secondo = Mappa(posto);
  modello_.ZoomFinestra({primo.x(), primo.y()}, {secondo.x(), secondo.y()});
}

// The picture's width on the screen gives the scale its measure.
void FinestraElcoPfGrafica::Ridimensiona() {
  constexpr double metriPollice = 0.0254;
  if (superficie_->width() <= 0 || superficie_->height() <= 0) return;
  modello_.LarghezzaFoglio = superficie_->width() * metriPollice / superficie_->logicalDpiX();
  modello_.MettiRapporto(static_cast<double>(superficie_->width()) / superficie_->height());
}

// Esc leaves an armed tool first.
void FinestraElcoPfGrafica::keyPressEvent(QKeyEvent* evento) {
  if (evento->key() != Qt::Key_Escape || modello_.Strumento() == StrumentoPF::Nessuno)
    return QDialog::keyPressEvent(evento);
  modello_.LasciaStrumento();
  riquadro_->hide();
  Mostra();
}

void FinestraElcoPfGrafica::Mostra() {
  const auto numero = [](std::size_t quanti) { return static_cast<qulonglong>(quanti); };
  posto_->setText(Invito(modello_.Strumento()));
  conteggi_->setText(QStringLiteral("%L1 punti, %L2 selezionati, %L3 distanze")
                         .arg(numero(modello_.Punti.size()))
                         .arg(numero(modello_.Selezionati()))
                         .arg(numero(modello_.Segmenti.size())));
}

} // namespace lirmeto::ui
