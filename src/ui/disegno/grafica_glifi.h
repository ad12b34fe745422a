#pragma once
// The letters of a face at one size, ready to be put on a raster: names of points come by the ten thousand, and a
// layout of each would take longer than all the rest of a drawing.

#include <QColor>
#include <QFont>
#include <QGlyphRun>
#include <QRawFont>
#include <QRect>

#include <array>
#include <optional>
#include <string_view>
#include <vector>

class QImage;

namespace lirmeto::ui {

// The pixels of an image of 32 bits without transparency, and the part of them that may be written.
struct Raster {
  Raster(QImage& immagine, const QRect& visibile);
  QRgb* pixel;
  qsizetype passo; // pixels from a row to the next
  QRect dentro;
};

class Glifi {
public:
  // `pixel` is the height of the face, not rounded.
  Glifi(const QFont& font, double pixel);

  // Distance from the top of a text to the line it stands on, pixels.
  [[nodiscard]] double Ascesa() const { return font_.ascent(); }

  [[nodiscard]] double Altezza() const { return font_.ascent() + font_.descent(); }
  [[nodiscard]] double Larghezza(std::string_view testo) const;

  // Writes a text from left to right; it stands on the line of `base`.
  void Scrivi(const Raster& raster, std::string_view testo, const QPoint& base, const QColor& colore);

  // The same text for a painter that is turned.
  [[nodiscard]] QGlyphRun Corsa(std::string_view testo) const;

private:
  // How much of each pixel of a rectangle round a letter is covered, 0 to 255, row by row.
  struct Maschera {
    QRect posto; // from the letter's origin
    std::vector<uchar> coperto;
  };
  static constexpr int Fasi = 4; // places between two pixels where a letter can stand

  [[nodiscard]] const Maschera& MascheraDi(unsigned char byte, int fase);
  [[nodiscard]] Maschera Disegna(unsigned char byte, int fase) const;

  QRawFont font_;
  std::array<quint32, 256> glifo_{};
  std::array<double, 256> larga_{};
  std::array<std::optional<Maschera>, std::size_t{256} * Fasi> maschere_;
};

} // namespace lirmeto::ui
