#include <ui/estratti/anteprima_raster.h>

#include <ui/comune/tema.h>

#include <QBuffer>
#include <QGraphicsPixmapItem>
#include <QGraphicsScene>
#include <QImageReader>
#include <QLabel>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace lirmeto::ui {

namespace {

constexpr qint64 MassimoPixel = 64'000'000; // a sheet of A0 at 200 dots an inch has fewer
constexpr int LatoMostrato = 4'000;         // pixels: more than any screen shows
constexpr double Passo = 1.2;               // of the wheel

} // namespace

AnteprimaRaster::AnteprimaRaster(QWidget* padre)
    : QGraphicsView(padre), immagine_(new QGraphicsPixmapItem), avviso_(new QLabel(this)) {
  setScene(new QGraphicsScene(this));
  scene()->addItem(immagine_);
  immagine_->setTransformationMode(Qt::SmoothTransformation);
  setDragMode(QGraphicsView::ScrollHandDrag);
  setTransformationAnchor(QGraphicsView::AnchorUnderMouse);
  setFrameShape(QFrame::NoFrame);
  avviso_->setObjectName(QStringLiteral("Invito"));
  avviso_->setAlignment(Qt::AlignCenter);
  avviso_->setWordWrap(true);
  avviso_->hide();
}

void AnteprimaRaster::drawBackground(QPainter* pittore, const QRectF& zona) {
  pittore->fillRect(zona, ColoreTema(Tono::Foglio));
}

void AnteprimaRaster::MostraByte(const std::string& byte) {
  QByteArray dati = QByteArray::fromRawData(byte.data(), static_cast<qsizetype>(byte.size()));
  QBuffer ingresso(&dati);
  ingresso.open(QIODevice::ReadOnly);
  QImageReader lettore(&ingresso);
  lettore.setAutoTransform(true);
  const QSize misura = lettore.size();
  if (!misura.isValid()) return Avvisa(QStringLiteral("Il file non è un'immagine"));
  if (qint64(misura.width()) * misura.height() > MassimoPixel)
    return Avvisa(QStringLiteral("Immagine troppo grande: %L1 × %L2 pixel").arg(misura.width()).arg(misura.height()));
  if (std::max(misura.width(), misura.height()) > LatoMostrato)
    lettore.setScaledSize(misura.scaled(LatoMostrato, LatoMostrato, Qt::KeepAspectRatio));
  const QImage letta = lettore.read();
  if (letta.isNull()) return Avvisa(QStringLiteral("L'immagine non si può leggere"));
  avviso_->hide();
  immagine_->setPixmap(QPixmap::fromImage(letta));
  scene()->setSceneRect(immagine_->boundingRect());
  Adatta();
}

void AnteprimaRaster::Avvisa(const QString& testo) {
  immagine_->setPixmap({});
  avviso_->setText(testo);
  avviso_->setGeometry(rect());
  avviso_->show();
}

QString AnteprimaRaster::Avviso() const {
  return avviso_->isHidden() ? QString() : avviso_->text();
}

void AnteprimaRaster::Adatta() {
  adattata_ = true;
  if (!immagine_->pixmap().isNull()) fitInView(immagine_, Qt::KeepAspectRatio);
}

void AnteprimaRaster::wheelEvent(QWheelEvent* evento) {
  const double fattore = evento->angleDelta().y() > 0 ? Passo : 1 / Passo;
  adattata_ = false;
  scale(fattore, fattore);
}

void AnteprimaRaster::resizeEvent(QResizeEvent* evento) {
  QGraphicsView::resizeEvent(evento);
  avviso_->setGeometry(rect());
  if (adattata_) Adatta();
}

} // namespace lirmeto::ui
