#include <ui/disegno/grafica_glifi.h>

#include <ui/comune/testo_qt.h>

#include <QImage>
#include <QPainter>

#include <cmath>
#include <string>

namespace lirmeto::ui {

namespace {

// `coperto` 255ths of the colour over what is there; the two halves of a pixel are worked on together.
QRgb Mescola(QRgb sopra, QRgb sotto, uint coperto) {
  const uint resta = 255 - coperto;
  const auto diviso = [](uint doppio) {
    return ((doppio + ((doppio >> 8U) & 0xFF00FFU) + 0x800080U) >> 8U) & 0xFF00FFU;
  };
  const uint rossoBlu = diviso((sopra & 0xFF00FFU) * coperto + (sotto & 0xFF00FFU) * resta);
  const uint verde = diviso(((sopra >> 8U) & 0xFFU) * coperto + ((sotto >> 8U) & 0xFFU) * resta);
  return 0xFF000000U | rossoBlu | (verde << 8U);
}

// The least rectangle outside of which all is transparent.
QRect ParteDipinta(const QImage& immagine) {
  QRect parte;
  for (int y = 0; y < immagine.height(); ++y)
    for (int x = 0; x < immagine.width(); ++x)
      if (qAlpha(immagine.pixel(x, y)) != 0) parte |= QRect(x, y, 1, 1);
  return parte;
}

} // namespace

Raster::Raster(QImage& immagine, const QRect& visibile)
    : pixel(reinterpret_cast<QRgb*>(immagine.bits())),
      passo(immagine.bytesPerLine() / static_cast<qsizetype>(sizeof(QRgb))), dentro(immagine.rect() & visibile) {}

Glifi::Glifi(const QFont& font, double pixel) : font_(QRawFont::fromFont(font)) {
  font_.setPixelSize(pixel);
  std::string byte(1, '\0');
  for (std::size_t i = 0; i < glifo_.size(); ++i) {
    byte[0] = static_cast<char>(i);
    const auto indici = font_.glyphIndexesForString(PerDisegno(byte));
    glifo_[i] = indici.isEmpty() ? 0 : indici[0];
    const auto larghe = font_.advancesForGlyphIndexes({glifo_[i]});
    larga_[i] = larghe.isEmpty() ? 0 : larghe[0].x();
  }
}

double Glifi::Larghezza(std::string_view testo) const {
  double larga = 0;
  for (const char c : testo) larga += larga_[static_cast<unsigned char>(c)];
  return larga;
}

QGlyphRun Glifi::Corsa(std::string_view testo) const {
  QList<quint32> indici;
  QList<QPointF> posti;
  double x = 0;
  for (const char c : testo) {
    const auto byte = static_cast<unsigned char>(c);
    indici.push_back(glifo_[byte]);
    posti.push_back({x, 0});
    x += larga_[byte];
  }
  QGlyphRun corsa;
  corsa.setRawFont(font_);
  corsa.setGlyphIndexes(indici);
  corsa.setPositions(posti);
  return corsa;
}

Glifi::Maschera Glifi::Disegna(unsigned char byte, int fase) const {
  const QRect posto = font_.boundingRect(glifo_[byte]).toAlignedRect().adjusted(-1, -1, 2, 1);
  QImage immagine(posto.size(), QImage::Format_ARGB32_Premultiplied);
  immagine.fill(Qt::transparent);
  {
    QPainter pittore(&immagine);
    pittore.setPen(Qt::black);
    const char c = static_cast<char>(byte);
    pittore.drawGlyphRun(QPointF(-posto.topLeft()) + QPointF(static_cast<double>(fase) / Fasi, 0), Corsa({&c, 1}));
  }
  const QRect pieno = ParteDipinta(immagine);
  Maschera maschera{pieno.translated(posto.topLeft()), {}};
  maschera.coperto.reserve(static_cast<std::size_t>(pieno.width()) * static_cast<std::size_t>(pieno.height()));
  for (int y = pieno.top(); y <= pieno.bottom(); ++y) {
    const auto* riga = reinterpret_cast<const QRgb*>(immagine.constScanLine(y));
    for (int x = pieno.left(); x <= pieno.right(); ++x) maschera.coperto.push_back(static_cast<uchar>(qAlpha(riga[x])));
  }
  return maschera;
}

const Glifi::Maschera& Glifi::MascheraDi(unsigned char byte, int fase) {
  auto& maschera = maschere_[std::size_t{byte} * Fasi + static_cast<std::size_t>(fase)];
  if (!maschera) maschera = Disegna(byte, fase);
  return *maschera;
}

void Glifi::Scrivi(const Raster& raster, std::string_view testo, const QPoint& base, const QColor& colore) {
  const QRgb sopra = colore.rgb();
  double x = 0;
  for (const char c : testo) {
    const auto byte = static_cast<unsigned char>(c);
    const int quarti = static_cast<int>(std::lround(x * Fasi));
    x += larga_[byte];
    const Maschera& maschera = MascheraDi(byte, quarti % Fasi);
    const QRect posto = maschera.posto.translated(base + QPoint(quarti / Fasi, 0));
    const QRect visto = posto & raster.dentro;
    for (int y = visto.top(); y <= visto.bottom(); ++y) {
      const uchar* coperto =
          maschera.coperto.data() + static_cast<qsizetype>(y - posto.top()) * posto.width() - posto.left();
      QRgb* riga = raster.pixel + y * raster.passo;
      for (int i = visto.left(); i <= visto.right(); ++i)
        if (coperto[i] != 0) riga[i] = Mescola(sopra, riga[i], coperto[i]);
    }
  }
}

} // namespace lirmeto::ui
