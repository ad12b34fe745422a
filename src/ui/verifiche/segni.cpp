#include <ui/verifiche/segni.h>

#include <ui/comune/tema.h>

#include <QPainter>
#include <QPixmap>
#include <QPolygonF>

#include <array>

namespace lirmeto::ui {

namespace {

QColor ColoreDi(Severita severita) {
  constexpr std::array toni = {Tono::SegnoErrore, Tono::SegnoDubbio, Tono::SegnoNota};
  return ColoreTema(toni.at(static_cast<std::size_t>(severita)));
}

} // namespace

void DisegnaSegno(QPainter& pittore, Severita severita, const QRectF& dentro) {
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(Qt::NoPen);
  pittore.setBrush(ColoreDi(severita));
  if (severita == Severita::Errore) pittore.drawRect(dentro.adjusted(0.5, 0.5, -0.5, -0.5));
  if (severita == Severita::Avviso)
    pittore.drawPolygon(
        QPolygonF{QPointF(dentro.center().x(), dentro.top()), dentro.bottomRight(), dentro.bottomLeft()});
  if (severita == Severita::Nota) pittore.drawEllipse(dentro.adjusted(1, 1, -1, -1));
  pittore.restore();
}

QIcon IconaSegno(Severita severita) {
  QIcon icona;
  for (const int lato : {16, 32}) {
    QPixmap disegno(lato, lato);
    disegno.fill(Qt::transparent);
    QPainter pittore(&disegno);
    const double bordo = lato / 5.0;
    DisegnaSegno(pittore, severita, QRectF(0, 0, lato, lato).adjusted(bordo, bordo, -bordo, -bordo));
    icona.addPixmap(disegno);
  }
  return icona;
}

} // namespace lirmeto::ui
