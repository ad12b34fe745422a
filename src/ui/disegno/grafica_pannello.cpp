#include <ui/disegno/grafica_pannello.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/disegno/grafica_uscite.h>

#include <base/percorsi.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <grafica/comandi_grafica.h>

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

constexpr const char* DecideIlCaricamento = "decideIlCaricamento"; // property of the action of such a flag

// Entries of the bar that only move the view have keys and no caption.
QList<QKeySequence> TastiDi(int indice) {
  switch (indice) {
  case 0:
    return {QKeySequence(Qt::Key_Home)};
  case 6:
    return {QKeySequence(Qt::Key_Left)};
  case 7:
    return {QKeySequence(Qt::Key_Up)};
  case 8:
    return {QKeySequence(Qt::Key_Down)};
  case 9:
    return {QKeySequence(Qt::Key_Right)};
  case 10:
    return {QKeySequence(Qt::Key_Plus), QKeySequence(Qt::Key_PageUp)};
  case 11:
    return {QKeySequence(Qt::Key_Minus), QKeySequence(Qt::Key_PageDown)};
  default:
    return {};
  }
}

void MostraDidascalia(QToolBar& barra, QAction* voce) {
  if (auto* bottone = qobject_cast<QToolButton*>(barra.widgetForAction(voce)))
    bottone->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
}

// Folder and bare name of the picture proposed: those of the drawing.
RichiestaFile RichiestaImmagine(const std::string& disegno) {
  const std::string_view nome = NomeDaPercorso(disegno);
  const std::string_view radice = SenzaEstensione(nome);
  return {"Salva immagine", disegno.substr(0, disegno.size() - nome.size()),
          std::string(radice.empty() ? "Disegno" : radice) + ".PNG",
          "Immagine PNG (*.png *.PNG);;Disegno SVG (*.svg *.SVG);;Documento PDF (*.pdf *.PDF)"};
}

std::string Estensione(std::string_view percorso) {
  const std::string_view nome = NomeDaPercorso(percorso);
  const std::size_t punto = nome.rfind('.');
  return punto == nome.npos ? std::string() : Maiuscolo(nome.substr(punto));
}

} // namespace

GraficaPannello::GraficaPannello(Ambiente& ambiente, Grafica& grafica, std::int16_t ospite, QWidget* padre)
    : QWidget(padre), ambiente_(ambiente), grafica_(grafica), barra_(new QToolBar(this)),
      superficie_(new GraficaSuperficie(grafica, ospite, this)), menu_(new QMenu(this)), posto_(new QLabel(this)),
      conteggi_(new QLabel(this)) {
  posto_->setObjectName(QStringLiteral("PostoMouse"));
  posto_->setFont(FontMonospazio(9));
  conteggi_->setObjectName(QStringLiteral("Posto"));
  auto* piede = new QHBoxLayout;
  piede->setContentsMargins(10, 4, 10, 4);
  piede->addWidget(posto_, 1);
  piede->addWidget(conteggi_);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(barra_);
  colonna->addWidget(superficie_, 1);
  colonna->addLayout(piede);
  RiempiBarra();
  for (const VoceGrafica& voce : VociMnuZoom1()) {
    if (voce.didascalia.empty()) {
      menu_->addSeparator();
      continue;
    }
    menu_->addAction(Icona(AQString(voce.icona)), AQString(voce.didascalia), this, [this, indice = voce.indice] {
      grafica_.mnuZoom1(indice);
      FiniscePerScambio();
    });
  }
  connect(superficie_, &GraficaSuperficie::MenuRichiesto, this, &GraficaPannello::MostraMenu);
  connect(superficie_, &GraficaSuperficie::Sopra, this, &GraficaPannello::MostraPosto);
  connect(superficie_, &GraficaSuperficie::Uscito, posto_, &QLabel::clear);
  connect(superficie_, &GraficaSuperficie::Ridisegnata, this, &GraficaPannello::MostraConteggi);
  MostraConteggi();
}

void GraficaPannello::RiempiBarra() {
  constexpr int primaUscita = 1; // the first entry that does more than move the view
  constexpr int scambio = 3;
  barra_->setObjectName(QStringLiteral("BarraGrafica"));
  barra_->setToolButtonStyle(Qt::ToolButtonIconOnly);
  barra_->setIconSize(QSize(20, 20));
  for (const VoceGrafica& voce : VociToolbar()) {
    if (voce.indice == primaUscita || voce.indice == scambio) barra_->addSeparator();
    const auto tasti = TastiDi(voce.indice);
    QAction* azione =
        barra_->addAction(Icona(AQString(voce.icona)), AQString(voce.didascalia), this, [this, indice = voce.indice] {
          grafica_.Toolbar(indice);
          FiniscePerScambio();
        });
    azione->setData(voce.indice);
    azione->setShortcuts(tasti);
    azione->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    addAction(azione);
    azione->setToolTip(tasti.isEmpty() ? AQString(voce.spiegazione)
                                       : QStringLiteral("%1 (%2)").arg(AQString(voce.spiegazione),
                                                                       tasti[0].toString(QKeySequence::NativeText)));
    if (tasti.isEmpty()) MostraDidascalia(*barra_, azione);
    if (voce.indice != primaUscita) continue;
    QAction* immagine = barra_->addAction(Icona(QStringLiteral("immagine")), QStringLiteral("Immagine"), this,
                                          &GraficaPannello::SalvaImmagine);
    immagine->setToolTip(QStringLiteral("Salva la vista come immagine PNG, SVG o PDF"));
    MostraDidascalia(*barra_, immagine);
  }
  barra_->addAction(QStringLiteral("Coincidenti"), this, [this] { grafica_.KR_PuntiCoincidenti(); })
      ->setToolTip(QStringLiteral("Elenca i punti che distano fra loro meno di un centimetro"));
  auto* vuoto = new QWidget(barra_);
  vuoto->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  barra_->addWidget(vuoto);
  AggiungiFlag(QStringLiteral("Nomi"), QStringLiteral("Mostra i nomi dei punti"), &VistaGrafica::Check2, true);
  AggiungiFlag(QStringLiteral("Toponimi"), QStringLiteral("Mostra i toponimi"), &VistaGrafica::Check3, true);
  AggiungiFlag(QStringLiteral("Fiduciali"), QStringLiteral("Carica i punti fiduciali"), &VistaGrafica::Check4, true);
  AggiungiFlag(QStringLiteral("Proposta"), QStringLiteral("Disegna l'estratto aggiornato sopra l'originale"),
               &VistaGrafica::Check1, false);
}

// Three of the flags hide something: their buttons are down while it is seen.
void GraficaPannello::AggiungiFlag(const QString& testo, const QString& spiegazione, bool VistaGrafica::*flag,
                                   bool siVedeSeSpento) {
  QAction* azione = barra_->addAction(testo);
  azione->setCheckable(true);
  azione->setChecked(grafica_.Vista().*flag != siVedeSeSpento);
  azione->setToolTip(spiegazione);
  azione->setProperty(DecideIlCaricamento, flag != &VistaGrafica::Check2);
  connect(azione, &QAction::toggled, this,
          [this, flag, siVedeSeSpento](bool premuto) { CambiaFlag(flag, premuto != siVedeSeSpento); });
}

void GraficaPannello::NascondiCaricamento() {
  for (QAction* azione : barra_->actions())
    if (azione->property(DecideIlCaricamento).toBool()) azione->setVisible(false);
}

void GraficaPannello::CambiaFlag(bool VistaGrafica::*flag, bool valore) {
  grafica_.Vista().*flag = valore;
  grafica_.KR_RidisegnaGrafica();
  if (flag != &VistaGrafica::Check2) emit RicaricaRichiesta();
}

void GraficaPannello::FiniscePerScambio() {
  if (grafica_.FineProgramma()) emit FineRichiesta();
}

void GraficaPannello::SalvaImmagine() {
  ambiente_.sessione.PuntoErrore = "SalvaImmagine";
  (void)Intrappola(ambiente_, [&] {
    std::string percorso = ambiente_.dialoghi.ScegliFileDaSalvare(RichiestaImmagine(grafica_.Percorso));
    if (Estensione(percorso).empty()) percorso += ".PNG";
    ambiente_.disco.Scrivi(
        percorso, ImmagineVista(grafica_, superficie_->size(), superficie_->devicePixelRatioF(), Estensione(percorso)));
  });
}

void GraficaPannello::MostraMenu(const QPoint& sulloSchermo) {
  menu_->popup(sulloSchermo);
}

void GraficaPannello::MostraPosto(double x, double y) {
  posto_->setText(QStringLiteral("Est %1   Nord %2").arg(x, 0, 'f', 3).arg(y, 0, 'f', 3));
}

void GraficaPannello::MostraConteggi() {
  const ArchivioGrafica& archivio = grafica_.Archivio();
  conteggi_->setText(QStringLiteral("%L1 punti, %L2 linee")
                         .arg(static_cast<qulonglong>(archivio.Punti().size()))
                         .arg(static_cast<qulonglong>(archivio.Linee().size())));
}

} // namespace lirmeto::ui
