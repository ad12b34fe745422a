#include <ui/comune/disposizione_a_capo.h>

#include <QFrame>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace lirmeto::ui {

namespace {

// A line between two groups parts nothing where the row ends.
bool ELinea(const QWidget* oggetto) {
  const auto* riquadro = qobject_cast<const QFrame*>(oggetto);
  return riquadro != nullptr && riquadro->frameShape() == QFrame::VLine;
}

} // namespace

DisposizioneACapo::~DisposizioneACapo() {
  qDeleteAll(voci_);
}

void DisposizioneACapo::Inserisci(int posto, QWidget* oggetto) {
  addChildWidget(oggetto);
  voci_.insert(std::clamp<qsizetype>(posto, 0, voci_.size()), new QWidgetItem(oggetto));
  invalidate();
}

QLayoutItem* DisposizioneACapo::takeAt(int indice) {
  return indice >= 0 && indice < voci_.size() ? voci_.takeAt(indice) : nullptr;
}

QSize DisposizioneACapo::Bordi() const {
  const QMargins bordi = contentsMargins();
  return {bordi.left() + bordi.right(), bordi.top() + bordi.bottom()};
}

int DisposizioneACapo::heightForWidth(int larghezza) const {
  return Disponi(QRect(0, 0, larghezza, 0), false);
}

QSize DisposizioneACapo::sizeHint() const {
  QSize misura(0, 0);
  for (const QLayoutItem* voce : voci_) {
    if (voce->isEmpty()) continue;
    misura.rwidth() += voce->sizeHint().width() + (misura.width() > 0 ? spacing() : 0);
    misura.rheight() = std::max(misura.height(), voce->sizeHint().height());
  }
  return misura + Bordi();
}

QSize DisposizioneACapo::minimumSize() const {
  QSize misura;
  for (const QLayoutItem* voce : voci_)
    if (!voce->isEmpty()) misura = misura.expandedTo(voce->sizeHint());
  return misura + Bordi();
}

void DisposizioneACapo::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  (void)Disponi(area, true);
}

// One line: items stand on its middle; the room left over goes to what stretches.
void DisposizioneACapo::DisponiRiga(const QRect& riga, qsizetype primo, qsizetype fine, int avanzo) const {
  int sinistra = riga.left();
  for (; primo < fine; ++primo) {
    QLayoutItem* voce = voci_[primo];
    if (voce->isEmpty()) continue;
    QSize misura = voce->sizeHint();
    if (primo + 1 == fine && ELinea(voce->widget())) misura.setWidth(0);
    if (voce->expandingDirections() & Qt::Horizontal) misura.rwidth() += std::exchange(avanzo, 0);
    voce->setGeometry(QRect(QPoint(sinistra, riga.top() + (riga.height() - misura.height()) / 2), misura));
    sinistra += misura.width() + spacing();
  }
}

// The height that the lines take, borders and all.
int DisposizioneACapo::Disponi(const QRect& area, bool sposta) const {
  const QRect dentro = area.marginsRemoved(contentsMargins());
  int alto = dentro.top();
  for (qsizetype primo = 0; primo < voci_.size();) {
    int largo = 0;
    int riga = 0;
    qsizetype fine = primo;
    for (; fine < voci_.size(); ++fine) {
      const QSize misura = voci_[fine]->isEmpty() ? QSize(0, 0) : voci_[fine]->sizeHint();
      const int con = largo + misura.width() + (largo > 0 && misura.width() > 0 ? spacing() : 0);
      if (largo > 0 && con > dentro.width()) break;
      largo = con;
      riga = std::max(riga, misura.height());
    }
    if (sposta) DisponiRiga(QRect(dentro.left(), alto, dentro.width(), riga), primo, fine, dentro.width() - largo);
    primo = fine;
    alto += riga + (fine < voci_.size() ? spacing() : 0);
  }
  return alto - area.top() + contentsMargins().bottom();
}

} // namespace lirmeto::ui
