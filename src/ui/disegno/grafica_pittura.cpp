#include <ui/disegno/grafica_pittura.h>

#include <ui/comune/testo_qt.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>

namespace lirmeto::ui {

namespace {

constexpr double Bordo = 64; // pixels beyond the surface at which a line is cut: more than any width
constexpr int Fasi = 4;      // places between two pixels, each way, where a mark can stand

// A rectangle of Qt's in the painters' common terms.
pittura::Rettangolo Rettangolo(const QRectF& r) {
  return {r.left(), r.top(), r.right(), r.bottom()};
}

QPen Penna(const OpLinea& linea, double unita) {
  QPen penna(ColoreClassico(linea.colore), pittura::Larghezza(linea) * unita);
  penna.setCapStyle(Qt::SquareCap); // strokes that meet leave no notch
  if (linea.stile != stile::Tratteggiato && linea.stile != stile::Punteggiato) return penna;
  const auto& tratti = linea.stile == stile::Tratteggiato ? pittura::Tratteggio : pittura::Punteggio;
  penna.setCapStyle(Qt::FlatCap);
  penna.setDashPattern({tratti[0], tratti[1]});
  return penna;
}

// Lines of one pen, painted together.
class Linee {
public:
  Linee(QPainter& pittore, const Inquadratura& dove, double unita, const QRectF& visibile)
      : pittore_(pittore), dove_(dove), unita_(unita), dentro_(Rettangolo(visibile).Allargato(Bordo * unita)) {}
  Linee(const Linee&) = delete;
  Linee& operator=(const Linee&) = delete;
  ~Linee() { Scarica(); }

  void Aggiungi(const OpLinea& linea) {
    const QPointF da = dove_.Pixel(linea.x1, linea.y1);
    const QPointF a = dove_.Pixel(linea.x2, linea.y2);
    const auto tratto = pittura::Ritaglia({da.x(), da.y(), a.x(), a.y(), 0}, dentro_);
    if (!tratto) return;
    if (linea.colore != ultima_.colore || linea.spessore != ultima_.spessore || linea.stile != ultima_.stile ||
        !pronta_)
      Prepara(linea);
    if (penna_.style() == Qt::SolidLine || tratto->saltati == 0)
      linee_.emplace_back(tratto->x1, tratto->y1, tratto->x2, tratto->y2);
    else
      Tratteggiata(*tratto);
  }

private:
  void Prepara(const OpLinea& linea) {
    Scarica();
    ultima_ = linea;
    pronta_ = true;
    penna_ = Penna(linea, unita_);
    pittore_.setPen(penna_);
  }

  // The dashes begin where the whole line does, so that they stay when the view moves.
  void Tratteggiata(const pittura::Tratto& tratto) {
    const auto tratti = penna_.dashPattern();
    const double periodo = tratti[0] + tratti[1];
    QPen penna = penna_;
    penna.setDashOffset(std::fmod(tratto.saltati / penna_.widthF(), periodo));
    Scarica();
    pittore_.setPen(penna);
    pittore_.drawLine(QLineF(tratto.x1, tratto.y1, tratto.x2, tratto.y2));
    pittore_.setPen(penna_);
  }

  void Scarica() {
    pittore_.drawLines(linee_.data(), static_cast<int>(linee_.size()));
    linee_.clear();
  }

  QPainter& pittore_;
  const Inquadratura& dove_;
  double unita_;
  pittura::Rettangolo dentro_;
  OpLinea ultima_;
  bool pronta_ = false;
  QPen penna_;
  std::vector<QLineF> linee_;
};

void DipingiLinee(QPainter& pittore, const Operazioni& lista, const Inquadratura& dove, double unita,
                  const QRectF& visibile) {
  Linee linee(pittore, dove, unita, visibile);
  for (const OpLinea& linea : lista.linee) linee.Aggiungi(linea);
}

QFont FontGrafica(std::string_view nome) {
  QFont font(AQString(nome.empty() ? FontPredefinito : nome));
  if (nome.empty() || UgualiSenzaCaso(nome, FontPredefinito)) font.setStyleHint(QFont::Monospace);
  return font;
}

// Draws at the origin of a painter turned round the text's upper left corner.
template <typename Disegna>
void Ruotato(QPainter& pittore, const QPointF& dove, int decimi, Disegna&& disegna) {
  constexpr double decimiPerGrado = 10;
  pittore.save();
  pittore.translate(dove);
  pittore.rotate(-decimi / decimiPerGrado);
  disegna();
  pittore.restore();
}

} // namespace

QColor ColoreClassico(std::int16_t colore) {
  const TintaClassica tinta = Tinta(colore);
  return {tinta.rosso, tinta.verde, tinta.blu};
}

QColor ColoreFondo() {
  return {pittura::Fondo.rosso, pittura::Fondo.verde, pittura::Fondo.blu};
}

void DipingiPagina(QPainter& pittore, const Operazioni& lista, const QRectF& area, double unita) {
  const Inquadratura dove(lista.scala, area);
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setClipRect(area);
  DipingiLinee(pittore, lista, dove, unita, area);
  pittore.setBrush(Qt::NoBrush);
  for (const OpCerchio& cerchio : lista.cerchi) {
    const QPointF centro = dove.Pixel(cerchio.x, cerchio.y);
    if (!Rettangolo(area).Contiene(centro.x(), centro.y())) continue;
    pittore.setPen(QPen(ColoreClassico(cerchio.colore), unita));
    pittore.drawEllipse(centro, cerchio.raggio * dove.pixelMetro, cerchio.raggio * dove.pixelMetro);
  }
  for (const OpTesto& testo : lista.testi) {
    const QPointF angolo = dove.Pixel(testo.x, testo.y);
    const double pixel = pittura::PixelTesto(testo.dimensione, unita);
    if (!pittura::SiVede(testo, angolo.x(), angolo.y(), pixel, Rettangolo(area))) continue;
    QFont font = FontGrafica(testo.font);
    font.setPointSizeF(pittura::PixelTesto(testo.dimensione, 1) * pittura::PuntiPerPollice / pittura::PixelPerPollice);
    pittore.setFont(font);
    pittore.setPen(ColoreClassico(testo.colore));
    const QPointF base(0, QFontMetricsF(font, pittore.device()).ascent());
    Ruotato(pittore, angolo, testo.decimi, [&] { pittore.drawText(base, PerDisegno(testo.testo)); });
  }
  pittore.restore();
}

PittoreSchermo::PittoreSchermo() = default;
PittoreSchermo::~PittoreSchermo() = default;

void PittoreSchermo::Dipingi(QImage& tela, const Operazioni& lista, double unita, const QRect& visibile) {
  const Raster raster(tela, visibile);
  const Inquadratura dove(lista.scala, QRectF(QPointF(), QSizeF(tela.size())));
  QPainter pittore(&tela);
  pittore.setClipRect(visibile);
  pittore.fillRect(visibile, ColoreFondo());
  pittore.setRenderHint(QPainter::Antialiasing);
  DipingiLinee(pittore, lista, dove, unita, visibile);
  Segni(pittore, lista, dove, unita, visibile);
  Testi(pittore, raster, lista, dove, unita);
}

// All marks of a painting are of one size: each colour is drawn once for each place between two pixels.
const QImage& PittoreSchermo::Timbro(std::int16_t colore, double raggio, double penna, int fase) {
  if (raggio != raggio_ || penna != penna_) timbri_.clear();
  raggio_ = raggio;
  penna_ = penna;
  QImage& timbro = timbri_[colore * Fasi * Fasi + fase];
  if (!timbro.isNull()) return timbro;
  const int meta = static_cast<int>(std::ceil(raggio + penna)) + 1;
  timbro = QImage(2 * meta, 2 * meta, QImage::Format_ARGB32_Premultiplied);
  timbro.fill(Qt::transparent);
  QPainter pittore(&timbro);
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setPen(QPen(ColoreClassico(colore), penna));
  const double passo = 1.0 / Fasi;
  const int colonna = fase % Fasi;
  const int riga = fase / Fasi;
  pittore.drawEllipse(QPointF(meta + colonna * passo, meta + riga * passo), raggio, raggio);
  return timbro;
}

void PittoreSchermo::Segni(QPainter& pittore, const Operazioni& lista, const Inquadratura& dove, double unita,
                           const QRectF& visibile) {
  const pittura::Rettangolo dentro = Rettangolo(visibile);
  for (const OpCerchio& cerchio : lista.cerchi) {
    const double raggio = cerchio.raggio * dove.pixelMetro;
    const QPointF centro = dove.Pixel(cerchio.x, cerchio.y);
    if (!dentro.Allargato(raggio + 2 * unita).Contiene(centro.x(), centro.y())) continue;
    const int x = static_cast<int>(std::floor(centro.x() * Fasi));
    const int y = static_cast<int>(std::floor(centro.y() * Fasi));
    const auto fase = [](int quarti) { return ((quarti % Fasi) + Fasi) % Fasi; };
    const QImage& timbro = Timbro(cerchio.colore, raggio, unita, fase(y) * Fasi + fase(x));
    const int meta = timbro.width() / 2;
    pittore.drawImage(QPoint((x - fase(x)) / Fasi - meta, (y - fase(y)) / Fasi - meta), timbro);
  }
}

Glifi& PittoreSchermo::GlifiDi(std::string_view nome, double pixel) {
  auto& glifi = glifi_[std::string(nome) + "/" + TestoPieno(pixel)];
  if (!glifi) {
    QFont font = FontGrafica(nome);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    glifi = std::make_unique<Glifi>(font, pixel);
  }
  return *glifi;
}

void PittoreSchermo::Testi(QPainter& pittore, const Raster& raster, const Operazioni& lista, const Inquadratura& dove,
                           double unita) {
  const pittura::Rettangolo dentro = Rettangolo(raster.dentro);
  Glifi* glifi = nullptr;
  const OpTesto* ultimo = nullptr;
  for (const OpTesto& testo : lista.testi) {
    const QPointF angolo = dove.Pixel(testo.x, testo.y);
    const double pixel = pittura::PixelTesto(testo.dimensione, unita);
    if (!pittura::SiVede(testo, angolo.x(), angolo.y(), pixel, dentro)) continue;
    if (ultimo == nullptr || ultimo->font != testo.font || ultimo->dimensione != testo.dimensione)
      glifi = &GlifiDi(testo.font, pixel);
    ultimo = &testo;
    const QPointF base(0, glifi->Ascesa());
    if (testo.decimi == 0) {
      glifi->Scrivi(raster, testo.testo, (angolo + base).toPoint(), ColoreClassico(testo.colore));
      continue;
    }
    pittore.setPen(ColoreClassico(testo.colore));
    Ruotato(pittore, angolo, testo.decimi, [&] { pittore.drawGlyphRun(base, glifi->Corsa(testo.testo)); });
  }
}

} // namespace lirmeto::ui
