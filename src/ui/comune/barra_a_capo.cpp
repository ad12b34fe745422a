#include <ui/comune/barra_a_capo.h>

#include <ui/comune/disposizione_a_capo.h>

#include <QAction>
#include <QActionEvent>
#include <QFrame>
#include <QPainter>
#include <QResizeEvent>
#include <QStyleOption>
#include <QToolButton>

#include <utility>

namespace lirmeto::ui {

namespace {

constexpr const char* Azione = "azione"; // property of a child: the action that it stands for
constexpr int LatoIcona = 20;

} // namespace

BarraACapo::BarraACapo(QWidget* padre) : QWidget(padre), riga_(new DisposizioneACapo(this)) {
  setObjectName(QStringLiteral("BarraACapo"));
  riga_->setContentsMargins(4, 3, 4, 3);
  riga_->setSpacing(2);
}

void BarraACapo::Separa(QAction* prima) {
  auto* linea = new QAction(this);
  linea->setSeparator(true);
  insertAction(prima, linea);
}

void BarraACapo::Aggiungi(QWidget* oggetto) {
  if (auto* bottone = qobject_cast<QToolButton*>(oggetto)) bottone->setIconSize(QSize(LatoIcona, LatoIcona));
  riga_->Inserisci(riga_->count(), oggetto);
}

void BarraACapo::Allarga() {
  auto* vuoto = new QWidget(this);
  vuoto->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  Aggiungi(vuoto);
}

int BarraACapo::PostoDi(const QAction* azione) const {
  for (int i = 0; azione != nullptr && i < riga_->count(); ++i)
    if (riga_->itemAt(i)->widget()->property(Azione).value<QAction*>() == azione) return i;
  return riga_->count();
}

QWidget* BarraACapo::CreaPer(QAction* azione) {
  if (azione->isSeparator()) {
    auto* linea = new QFrame(this);
    linea->setFrameShape(QFrame::VLine);
    linea->setFrameShadow(QFrame::Sunken);
    linea->setFixedHeight(LatoIcona);
    return linea;
  }
  auto* bottone = new QToolButton(this);
  bottone->setAutoRaise(true);
  bottone->setIconSize(QSize(LatoIcona, LatoIcona));
  bottone->setToolButtonStyle(stile_);
  bottone->setFocusPolicy(Qt::TabFocus);
  bottone->setDefaultAction(azione);
  if (stile_ != Qt::ToolButtonIconOnly && !azione->icon().isNull()) conDidascalia_.append(bottone);
  return bottone;
}

void BarraACapo::actionEvent(QActionEvent* evento) {
  QAction* azione = evento->action();
  const int posto = PostoDi(azione);
  if (evento->type() == QEvent::ActionAdded) {
    QWidget* oggetto = CreaPer(azione);
    oggetto->setProperty(Azione, QVariant::fromValue(azione));
    oggetto->setVisible(azione->isVisible());
    riga_->Inserisci(PostoDi(evento->before()), oggetto);
  } else if (posto < riga_->count() && evento->type() == QEvent::ActionChanged) {
    riga_->itemAt(posto)->widget()->setVisible(azione->isVisible());
  } else if (posto < riga_->count() && evento->type() == QEvent::ActionRemoved) {
    const QLayoutItem* voce = riga_->takeAt(posto);
    conDidascalia_.removeAll(qobject_cast<QToolButton*>(voce->widget()));
    voce->widget()->deleteLater();
    delete voce;
  }
  updateGeometry();
}

void BarraACapo::Didascalie(bool si) {
  for (QToolButton* bottone : std::as_const(conDidascalia_))
    bottone->setToolButtonStyle(si ? Qt::ToolButtonTextBesideIcon : Qt::ToolButtonIconOnly);
}

void BarraACapo::resizeEvent(QResizeEvent* evento) {
  constexpr int righe = 2;
  QWidget::resizeEvent(evento);
  if (evento->oldSize().width() == width()) return;
  Didascalie(true);
  if (riga_->heightForWidth(width()) > righe * riga_->sizeHint().height()) Didascalie(false);
}

// The style sheet's ground.
void BarraACapo::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pittore(this);
  QStyleOption opzione;
  opzione.initFrom(this);
  style()->drawPrimitive(QStyle::PE_Widget, &opzione, &pittore, this);
}

} // namespace lirmeto::ui
