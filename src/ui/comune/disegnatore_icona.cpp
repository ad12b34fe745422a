#include <ui/comune/disegnatore_icona.h>

#include <ui/comune/tema.h>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QStyle>
#include <QStyleOption>

#include <algorithm>

namespace lirmeto::ui {

namespace {

QPixmap DisegnaSvg(QByteArray svg, int lato, bool scuro) {
  if (scuro) svg = IconaScura(svg);
  QBuffer testo(&svg);
  QImageReader lettore(&testo, "svg");
  lettore.setScaledSize(QSize(lato, lato));
  return QPixmap::fromImage(lettore.read());
}

// Where the toolkit reads no SVG the build has made large pictures of them, one for each light.
QPixmap Disegna(const QString& percorso, const QSize& misura, bool scuro) {
  const int lato = std::min(misura.width(), misura.height());
  QFile file(percorso + QStringLiteral(".svg"));
  if (file.open(QIODevice::ReadOnly)) return DisegnaSvg(file.readAll(), lato, scuro);
  const QImage figura(percorso + (scuro ? QStringLiteral("_scura.png") : QStringLiteral(".png")));
  return QPixmap::fromImage(figura.scaled(lato, lato, Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

} // namespace

QPixmap DisegnatoreIcona::pixmap(const QSize& misura, QIcon::Mode modo, QIcon::State /*stato*/) {
  const bool scuro = TemaScuro();
  const QString chiave =
      QStringLiteral("%1/%2/%3/%4").arg(percorso_).arg(std::min(misura.width(), misura.height())).arg(modo).arg(scuro);
  QPixmap disegno;
  if (QPixmapCache::find(chiave, &disegno)) return disegno;
  disegno = Disegna(percorso_, misura, scuro);
  if (modo == QIcon::Disabled) {
    QStyleOption opzione;
    opzione.palette = QApplication::palette();
    disegno = QApplication::style()->generatedIconPixmap(modo, disegno, &opzione);
  }
  QPixmapCache::insert(chiave, disegno);
  return disegno;
}

void DisegnatoreIcona::paint(QPainter* pittore, const QRect& dove, QIcon::Mode modo, QIcon::State stato) {
  const double scala = pittore->device()->devicePixelRatio();
  QPixmap disegno = pixmap((QSizeF(dove.size()) * scala).toSize(), modo, stato);
  disegno.setDevicePixelRatio(scala);
  const QSizeF misura = disegno.deviceIndependentSize();
  pittore->drawPixmap(QRectF(dove).center() - QPointF(misura.width() / 2, misura.height() / 2), disegno);
}

} // namespace lirmeto::ui
