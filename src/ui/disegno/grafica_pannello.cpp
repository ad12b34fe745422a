#include <ui/disegno/grafica_pannello.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/modello_classe.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/disegno/grafica_uscite.h>
#include <ui/disegno/parti_grafica.h>

#include <base/errore.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/mostra_errore.h>

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QSplitter>
#include <QTimer>
#include <QVBoxLayout>

namespace lirmeto::ui {

namespace {

constexpr double PuntiRighe = 9;
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

bool DecideCosaSiCarica(bool VistaGrafica::*flag) {
  return flag != &VistaGrafica::Check2 && flag != &VistaGrafica::NomiSovrapposti;
}

// The picture proposed lies in the folder of the drawing; its name is no file of an extract, whose sheet is a .PNG too.
RichiestaFile RichiestaImmagine(const std::string& disegno) {
  const std::string_view nome = NomeDaPercorso(disegno);
  const std::string_view radice = SenzaEstensione(nome);
  return {"Salva immagine", disegno.substr(0, disegno.size() - nome.size()),
          (radice.empty() ? "Disegno" : std::string(radice) + "_vista") + ".PNG",
          "Immagine PNG (*.png *.PNG);;Disegno SVG (*.svg *.SVG);;Documento PDF (*.pdf *.PDF)"};
}

std::string RifiutoDelDisegno(const std::string& percorso) {
  std::string testo;
  testo += "L'immagine non può prendere il posto del disegno: "_w;
  return testo += percorso;
}

std::string Estensione(std::string_view percorso) {
  const std::string_view nome = NomeDaPercorso(percorso);
  const std::size_t punto = nome.rfind('.');
  return punto == nome.npos ? std::string() : Maiuscolo(nome.substr(punto));
}

} // namespace

GraficaPannello::GraficaPannello(Ambiente& ambiente, Grafica& grafica, std::int16_t ospite, QWidget* padre)
    : QWidget(padre), ambiente_(ambiente), grafica_(grafica), barra_(new BarraACapo(this)),
      superficie_(new GraficaSuperficie(grafica, ospite, this)),
      righe_(new ModelloClasse(grafica.Liste().LibrettoOriginale, FontMonospazio(PuntiRighe), this)),
      elenco_(new QListView(this)), menu_(new QMenu(this)), posto_(new QLabel(this)), conteggi_(new QLabel(this)) {
  auto* piano = new QSplitter(this);
  piano->setChildrenCollapsible(false);
  piano->setHandleWidth(1);
  piano->addWidget(superficie_);
  piano->addWidget(CreaRighe());
  piano->setStretchFactor(0, 1);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(barra_);
  colonna->addWidget(piano, 1);
  colonna->addLayout(PiedeGrafica(*posto_, *conteggi_));
  RiempiBarra();
  RiempiMenu();
  connect(superficie_, &GraficaSuperficie::MenuRichiesto, this, &GraficaPannello::MostraMenu);
  connect(superficie_, &GraficaSuperficie::Sopra, this, &GraficaPannello::MostraPosto);
  connect(superficie_, &GraficaSuperficie::Uscito, posto_, &QLabel::clear);
  connect(superficie_, &GraficaSuperficie::Ridisegnata, this, &GraficaPannello::MostraConteggi);
  MostraConteggi();
}

void GraficaPannello::RiempiMenu() {
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
}

// The rows that the drawing was made from.
QWidget* GraficaPannello::CreaRighe() {
  elenco_->setObjectName(QStringLiteral("LibrettoOriginale"));
  elenco_->setAccessibleName(QStringLiteral("Righe del disegno"));
  elenco_->setModel(righe_);
  elenco_->setUniformItemSizes(true);
  elenco_->setFont(FontMonospazio(PuntiRighe));
  elenco_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  elenco_->setToolTip(QStringLiteral("Una riga 8 accende il suo punto, una riga 7 i suoi vertici"));
  elenco_->hide();
  connect(elenco_->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& riga) {
    grafica_.AccendiRiga(riga.isValid() ? std::optional(static_cast<std::size_t>(riga.row())) : std::nullopt);
  });
  return elenco_;
}

void GraficaPannello::RiempiBarra() {
  constexpr int primaUscita = 1; // the first entry that does more than move the view
  constexpr int scambio = 3;
  barra_->setObjectName(QStringLiteral("BarraGrafica"));
  for (const VoceGrafica& voce : VociToolbar()) {
    if (voce.indice == primaUscita || voce.indice == scambio) barra_->Separa();
    AggiungiVoce(voce);
    if (voce.indice != primaUscita) continue;
    QAction* immagine = barra_->addAction(Icona(QStringLiteral("immagine")), QStringLiteral("Immagine"), this,
                                          &GraficaPannello::SalvaImmagine);
    immagine->setToolTip(QStringLiteral("Salva la vista come immagine PNG, SVG o PDF"));
  }
  barra_->Separa();
  AggiungiStrumenti();
  barra_->Separa();
  for (const VoceFlag& voce : {
           VoceFlag{"nomi", "Nomi", "Mostra i nomi dei punti", &VistaGrafica::Check2, true},
           VoceFlag{"sovrapposti", "Tutti i nomi", "Mostra tutti i nomi, anche dove si coprono",
                    &VistaGrafica::NomiSovrapposti, false},
           VoceFlag{"toponimi", "Toponimi", "Mostra i toponimi", &VistaGrafica::Check3, true},
           VoceFlag{"fiduciali", "Fiduciali", "Carica i punti fiduciali", &VistaGrafica::Check4, true},
           VoceFlag{"proposta", "Proposta", "Disegna l'estratto aggiornato sopra l'originale", &VistaGrafica::Check1,
                    false},
       })
    AggiungiFlag(voce);
  mostraRighe_ = barra_->addAction(Icona(QStringLiteral("righe")), QStringLiteral("Righe"));
  mostraRighe_->setCheckable(true);
  mostraRighe_->setToolTip(QStringLiteral("Mostra accanto al disegno le sue righe"));
  mostraRighe_->setProperty(DecideIlCaricamento, true);
  connect(mostraRighe_, &QAction::toggled, this, &GraficaPannello::MostraRighe);
}

// One that only moves the view has keys and no caption.
void GraficaPannello::AggiungiVoce(const VoceGrafica& voce) {
  const auto tasti = TastiDi(voce.indice);
  barra_->MettiStile(tasti.isEmpty() ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
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
}

void GraficaPannello::AggiungiStrumenti() {
  barra_
      ->addAction(Icona(QStringLiteral("coincidenti")), QStringLiteral("Coincidenti"), this,
                  [this] { grafica_.KR_PuntiCoincidenti(); })
      ->setToolTip(QStringLiteral("Elenca i punti che distano fra loro meno di un centimetro"));
  righello_ = AggiungiRighello(*barra_, *superficie_, [this](bool acceso) { grafica_.AccendiMetro(acceso); });
}

void GraficaPannello::AggiungiFlag(const VoceFlag& voce) {
  QAction* azione = barra_->addAction(Icona(QString::fromLatin1(voce.icona)), QString::fromUtf8(voce.testo));
  azione->setCheckable(true);
  azione->setChecked(grafica_.Vista().*voce.flag != voce.siVedeSeSpento);
  azione->setToolTip(QString::fromUtf8(voce.spiegazione));
  azione->setProperty(DecideIlCaricamento, DecideCosaSiCarica(voce.flag));
  connect(azione, &QAction::toggled, this,
          [this, flag = voce.flag, siVedeSeSpento = voce.siVedeSeSpento](bool premuto) {
            CambiaFlag(flag, premuto != siVedeSeSpento);
          });
}

void GraficaPannello::MostraRighe(bool si) {
  mostraRighe_->setChecked(si);
  elenco_->setVisible(si);
  if (!si) grafica_.AccendiRiga({});
}

// The list is another one after each loading.
void GraficaPannello::AggiornaRighe() {
  const std::uint64_t versione = grafica_.Archivio().Versione();
  const std::size_t quante = grafica_.Liste().LibrettoOriginale.size();
  if (versione == versioneRighe_ && static_cast<std::size_t>(righe_->Mostrate()) == quante) return;
  versioneRighe_ = versione;
  grafica_.PuntiEvidenza.clear();
  righe_->Ricarica();
}

void GraficaPannello::NascondiCaricamento() {
  for (QAction* azione : barra_->actions())
    if (azione->property(DecideIlCaricamento).toBool()) azione->setVisible(false);
}

void GraficaPannello::CambiaFlag(bool VistaGrafica::*flag, bool valore) {
  grafica_.Vista().*flag = valore;
  grafica_.KR_RidisegnaGrafica();
  if (DecideCosaSiCarica(flag)) emit RicaricaRichiesta();
}

// Every window that is open over the main one closes, the innermost first; the program ends behind them.
void GraficaPannello::FiniscePerScambio() {
  if (!ambiente_.sessione.FineScambio) return;
  QTimer::singleShot(0, qApp, [] {
    for (QWidget* finestra = QApplication::activeModalWidget(); finestra != nullptr && finestra->close();)
      finestra = QApplication::activeModalWidget();
  });
}

void GraficaPannello::SalvaImmagine() {
  ambiente_.sessione.PuntoErrore = "SalvaImmagine";
  (void)Intrappola(ambiente_, [&] {
    std::string percorso = ambiente_.dialoghi.ScegliFileDaSalvare(RichiestaImmagine(grafica_.Percorso));
    if (Estensione(percorso).empty()) percorso += ".PNG";
    if (UgualiSenzaCaso(percorso, grafica_.Percorso)) throw Errore(errore::FileEsistente, RifiutoDelDisegno(percorso));
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
  AggiornaRighe();
  const ArchivioGrafica& archivio = grafica_.Archivio();
  conteggi_->setText(QStringLiteral("%L1 punti, %L2 linee")
                         .arg(static_cast<qulonglong>(archivio.Punti().size()))
                         .arg(static_cast<qulonglong>(archivio.Linee().size())));
}

} // namespace lirmeto::ui
