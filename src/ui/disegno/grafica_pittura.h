#pragma once
// Paints a drawing's list of operations on a QPainter.

#include <ui/disegno/grafica_glifi.h>

#include <grafica/pittura.h>

#include <QColor>
#include <QHash>
#include <QImage>
#include <QRectF>

#include <memory>
#include <string>
#include <unordered_map>

class QPainter;

namespace lirmeto::ui {

[[nodiscard]] QColor ColoreClassico(std::int16_t colore);
[[nodiscard]] QColor ColoreFondo();

// Metres from the centre of the view to a painter's pixels.
struct Inquadratura {
  Inquadratura(const OpScala& scala, const QRectF& dove)
      : area(dove), pixelMetro(dove.height() / (scala.alto - scala.basso)) {}
  [[nodiscard]] QPointF Pixel(double x, double y) const {
    return {area.center().x() + x * pixelMetro, area.center().y() - y * pixelMetro};
  }
  QRectF area;
  double pixelMetro;
};

// Paints on a page: printer, PDF, SVG. `unita` is a screen pixel (1/96 inch) in the painter's own; text is left to the
// page's fonts, so that it stays text.
void DipingiPagina(QPainter& pittore, const Operazioni& lista, const QRectF& area, double unita);

// Paints on a raster, one unit a device pixel, quickly: what lies outside `visibile` is left out, marks are stamped,
// and letters are put down without a layout. Letters and stamps are kept from one painting to the next.
class PittoreSchermo {
public:
  PittoreSchermo();
  ~PittoreSchermo();
  PittoreSchermo(const PittoreSchermo&) = delete;
  PittoreSchermo& operator=(const PittoreSchermo&) = delete;

  // Paints ground and drawing on an image of the format RGB32, and nothing outside `visibile`. `unita` is a screen
  // pixel (1/96 inch) in device pixels: 2 at 200%.
  void Dipingi(QImage& tela, const Operazioni& lista, double unita, const QRect& visibile);

private:
  void Segni(QPainter& pittore, const Operazioni& lista, const Inquadratura& dove, double unita,
             const QRectF& visibile);
  void Testi(QPainter& pittore, const Raster& raster, const Operazioni& lista, const Inquadratura& dove, double unita);
  [[nodiscard]] const QImage& Timbro(std::int16_t colore, double raggio, double penna, int fase);
  [[nodiscard]] Glifi& GlifiDi(std::string_view nome, double pixel);

  std::unordered_map<std::string, std::unique_ptr<Glifi>> glifi_; // by name and size
  QHash<int, QImage> timbri_;                                     // by colour and place between two pixels
  double raggio_ = 0;                                             // of the stamps, pixels
  double penna_ = 0;                                              // its width
};

} // namespace lirmeto::ui
