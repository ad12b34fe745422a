#pragma once
// The raster image of a sheet: panned with the mouse, zoomed with the wheel.

#include <QGraphicsView>
#include <QString>

#include <string>

class QGraphicsPixmapItem;
class QLabel;

namespace lirmeto::ui {

class AnteprimaRaster : public QGraphicsView {
  Q_OBJECT
public:
  explicit AnteprimaRaster(QWidget* padre = nullptr);

  // Shows the bytes of a PNG, TIF or JPG file; what is no picture, or one that is too large, is told in its place. A
  // picture of many pixels is shown smaller.
  void MostraByte(const std::string& byte);
  // Tells something in place of a picture.
  void Avvisa(const QString& testo);

  [[nodiscard]] QString Avviso() const;

protected:
  void wheelEvent(QWheelEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void drawBackground(QPainter* pittore, const QRectF& zona) override;

private:
  void Adatta();

  QGraphicsPixmapItem* immagine_;
  QLabel* avviso_;
  bool adattata_ = true; // the whole picture is in view, and stays so when the size changes
};

} // namespace lirmeto::ui
