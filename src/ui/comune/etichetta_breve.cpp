#include <ui/comune/etichetta_breve.h>

#include <QPainter>
#include <QStyle>

namespace lirmeto::ui {

EtichettaBreve::EtichettaBreve(Qt::TextElideMode dove, QWidget* padre) : QLabel(padre), dove_(dove) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
}

void EtichettaBreve::Mostra(const QString& testo) {
  setText(testo);
  setToolTip(testo);
}

void EtichettaBreve::paintEvent(QPaintEvent* /*evento*/) {
  QPainter pittore(this);
  const QRect dove = contentsRect();
  style()->drawItemText(&pittore, dove, Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine, palette(), isEnabled(),
                        fontMetrics().elidedText(text(), dove_, dove.width()), foregroundRole());
}

} // namespace lirmeto::ui
