#include <ui/disegno/finestra_disegno.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_a_capo.h>
#include <ui/comune/percorsi_qt.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>

#include <QAction>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QToolButton>
#include <QVBoxLayout>

namespace lirmeto::ui {

FinestraDisegno::FinestraDisegno(FormDisegno& modello, QWidget* padre)
    : QDialog(padre, Qt::Window), modello_(modello),
      pannello_(new GraficaPannello(modello.Dintorni(), modello.Grafica1(), host::AnteprimaGrafica, this)) {
  setObjectName(QStringLiteral("FormDisegno"));
  setAcceptDrops(true);
  connect(this, &FinestraDisegno::FileLasciato, this, &FinestraDisegno::Lascia, Qt::QueuedConnection);
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->addWidget(pannello_);
  AggiungiApri();
  pannello_->Superficie().MettiInvito(QStringLiteral("Trascinare qui un disegno (.EMP, .SUR, .CSV, .PDF, .DAT) o "
                                                     "sceglierlo con Apri (Ctrl+O)"));
  connect(pannello_, &GraficaPannello::RicaricaRichiesta, this, [this] {
    modello_.Ricarica();
    Mostra();
  });
  pannello_->MostraRighe(true);
  AdattaAlloSchermo(*this, 1240, 840);
  pannello_->Superficie().setFocus();
  Mostra();
}

// Before all that the drawing itself offers.
void FinestraDisegno::AggiungiApri() {
  BarraACapo& barra = pannello_->Barra();
  auto* apri = new QAction(Icona(QStringLiteral("apri")), QStringLiteral("Apri"), this);
  apri->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_O));
  apri->setToolTip(QStringLiteral("Apre un disegno (Ctrl+O)"));
  connect(apri, &QAction::triggered, this, [this] {
    modello_.Sfoglia();
    Mostra();
  });
  QAction* prima = barra.actions().isEmpty() ? nullptr : barra.actions().first();
  barra.insertAction(prima, apri);
  barra.Separa(prima);
}

void FinestraDisegno::Mostra() {
  setWindowTitle(AQString(modello_.Titolo));
}

void FinestraDisegno::dragEnterEvent(QDragEnterEvent* evento) {
  if (evento->mimeData()->hasUrls()) evento->acceptProposedAction();
}

// The file is read after the drop is over: the program that holds it must not wait for a message to be answered.
void FinestraDisegno::dropEvent(QDropEvent* evento) {
  const auto indirizzi = evento->mimeData()->urls();
  if (indirizzi.isEmpty() || !indirizzi.first().isLocalFile()) return;
  evento->acceptProposedAction();
  emit FileLasciato(indirizzi.first().toLocalFile());
}

void FinestraDisegno::Lascia(const QString& percorsoOspite) {
  const std::string percorso = PercorsoDetto(modello_.Dintorni())(percorsoOspite);
  if (!percorso.empty()) (void)modello_.Apri(percorso);
  Mostra();
}

} // namespace lirmeto::ui
