#pragma once
// Paints a drawing's list of operations on a QPainter.

#include <ui/disegno/grafica_glifi.h>

#include <grafica/pittura.h>
#include <grafica/posti_nomi.h>

#include <QColor>
#include <QHash>
#include <QImage>
#include <QRectF>

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

class QPainter;

namespace lirmeto::ui {

// What a drawing is painted with.
struct Inchiostri {
  QColor fondo;
  std::array<QColor, TinteClassiche.size()> segni; // of lines and marks, by colour index
  std::array<QColor, TinteClassiche.size()> testi;
  double rossoInPiu = 0; // screen pixels by which red lines are wider: who does not see the hue sees the width

  [[nodiscard]] const QColor& Segno(std::int16_t colore) const { return segni.at(Posto(colore)); }
  [[nodiscard]] const QColor& Testo(std::int16_t colore) const { return testi.at(Posto(colore)); }

private:
  [[nodiscard]] static std::size_t Posto(std::int16_t colore) {
    const auto indice = static_cast<std::size_t>(colore < 0 ? 0 : colore);
    return indice < TinteClassiche.size() ? indice : 0;
  }
};

// The classic colours on the light ground: of files and paper.
[[nodiscard]] Inchiostri InchiostriCarta();
// In the light that the windows are in, every text legible on its ground.
[[nodiscard]] Inchiostri InchiostriSchermo();

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

// Paints on a page: printer, PDF. `unita` is a screen pixel (1/96 inch) in the painter's own; text is left to the
// page's fonts, so that it stays text.
void DipingiPagina(QPainter& pittore, const Operazioni& lista, const QRectF& area, double unita);

// Paints on a raster, one unit a device pixel, quickly: what lies outside `visibile` is left out, marks are stamped,
// and letters are put down without a layout. Letters and stamps are kept from one painting to the next.
class PittoreSchermo {
public:
  explicit PittoreSchermo(Inchiostri inchiostri = InchiostriCarta());
  ~PittoreSchermo();
  PittoreSchermo(const PittoreSchermo&) = delete;
  PittoreSchermo& operator=(const PittoreSchermo&) = delete;

  void Cambia(Inchiostri inchiostri);

  // From now on the texts of this list, and of the same seen from another centre, stand where none covers another, and
  // those without a place are left out; `pixelMetro` is of the image that they will be painted on. Or where the drawing
  // tells, each of them.
  void DisponiNomi(const Operazioni& lista, double pixelMetro, double unita);
  void NomiComeDetto() { posti_.clear(); }

  // Paints ground and drawing on an image of the format RGB32, and nothing outside `visibile`. `unita` is a screen
  // pixel (1/96 inch) in device pixels: 2 at 200%.
  void Dipingi(QImage& tela, const Operazioni& lista, double unita, const QRect& visibile);

private:
  void Segni(QPainter& pittore, const Operazioni& lista, const Inquadratura& dove, double unita,
             const QRectF& visibile);
  void Testi(QPainter& pittore, const Raster& raster, const Operazioni& lista, const Inquadratura& dove, double unita);
  [[nodiscard]] const QImage& Timbro(std::int16_t colore, double raggio, double penna, int fase);
  void Scrivi(QPainter& pittore, const Raster& raster, const OpTesto& testo, const QPointF& angolo, Glifi& glifi);
  [[nodiscard]] Glifi& GlifiDi(const OpTesto& testo, double unita);

  Inchiostri inchiostri_;
  std::vector<std::optional<Scarto>> posti_;                      // of the texts; none: as told
  std::unordered_map<std::string, std::unique_ptr<Glifi>> glifi_; // by name and size
  Glifi* ultimi_ = nullptr;                                       // those asked for last, and by what
  std::string fontUltimi_;
  double puntiUltimi_ = 0;
  double unitaUltimi_ = 0;
  QHash<int, QImage> timbri_; // by colour and place between two pixels
  double raggio_ = 0;         // of the stamps, pixels
  double penna_ = 0;          // its width
};

} // namespace lirmeto::ui
