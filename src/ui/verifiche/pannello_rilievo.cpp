#include <ui/verifiche/pannello_rilievo.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_superficie.h>

#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QToolButton>
#include <QVBoxLayout>

#include <utility>

namespace lirmeto::ui {

namespace {

constexpr double Vicino = 12; // pixels: so near a click means a point
constexpr double Fermo = 4;   // pixels: a button that went down and up so near did not drag

} // namespace

PannelloRilievo::PannelloRilievo(FiguraRilievo& figura, QWidget* padre)
    : QWidget(padre), figura_(figura), superficie_(new GraficaSuperficie(figura.Grafica1, host::RilievoAccanto, this)),
      avviso_(new QLabel(this)) {
  setObjectName(QStringLiteral("PannelloRilievo"));
  auto* colonna = new QVBoxLayout(this);
  colonna->setContentsMargins(0, 0, 0, 0);
  colonna->setSpacing(0);
  colonna->addWidget(CreaTestata());
  colonna->addWidget(superficie_, 1);
  avviso_->setObjectName(QStringLiteral("AvvisoRilievo"));
  avviso_->setTextFormat(Qt::PlainText);
  avviso_->setWordWrap(true);
  avviso_->setContentsMargins(8, 4, 8, 4);
  colonna->addWidget(avviso_);
  superficie_->setMinimumSize(120, 100);
  superficie_->installEventFilter(this);
}

QWidget* PannelloRilievo::CreaTestata() {
  auto* testata = new QWidget(this);
  auto* riga = new QHBoxLayout(testata);
  riga->setContentsMargins(8, 2, 4, 2);
  riga->addWidget(new QLabel(QStringLiteral("Rilievo"), testata), 1);
  auto* tutto = new QToolButton(testata);
  tutto->setIcon(Icona(QStringLiteral("zoom_tutto")));
  tutto->setToolTip(QStringLiteral("Mostra tutto il rilievo"));
  connect(tutto, &QToolButton::clicked, this, [this] { figura_.Grafica1.KR_ZoomTutto(); });
  auto* chiudi = new QToolButton(testata);
  chiudi->setIcon(Icona(QStringLiteral("chiudi")));
  chiudi->setToolTip(QStringLiteral("Chiude la figura (F9)"));
  connect(chiudi, &QToolButton::clicked, this, &PannelloRilievo::ChiusuraRichiesta);
  for (QToolButton* bottone : {tutto, chiudi}) {
    bottone->setAutoRaise(true);
    bottone->setFocusPolicy(Qt::NoFocus);
    riga->addWidget(bottone);
  }
  return testata;
}

void PannelloRilievo::Mostra() {
  avviso_->setText(AQString(figura_.Avviso()));
}

// A click that does not drag the view chooses the point under it.
bool PannelloRilievo::eventFilter(QObject* chi, QEvent* evento) {
  const bool giu = evento->type() == QEvent::MouseButtonPress;
  if (giu || evento->type() == QEvent::MouseButtonRelease) {
    const auto* mouse = static_cast<QMouseEvent*>(evento);
    const auto da = std::exchange(premuto_, std::nullopt);
    if (giu && mouse->button() == Qt::LeftButton) premuto_ = mouse->position();
    if (!giu && da && (mouse->position() - *da).manhattanLength() <= Fermo) {
      const QPointF metri = superficie_->Metri(mouse->position());
      const VistaGrafica& vista = figura_.Grafica1.Vista();
      const double metriPixel = vista.Zoom / std::max(1, superficie_->height());
      emit Cliccato({metri.x() + vista.Xc, metri.y() + vista.Yc}, Vicino * metriPixel);
    }
  }
  return QWidget::eventFilter(chi, evento);
}

} // namespace lirmeto::ui
