#include <ui/disegno/grafica_pittura.h>

#include <ui/comune/tema.h>
#include <ui/comune/testo_qt.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPen>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <utility>

namespace lirmeto::ui {

namespace {

constexpr double Bordo = 64; // pixels beyond the surface at which a line is cut: more than any width
constexpr int Fasi = 4;      // places between two pixels, each way, where a mark can stand

// A rectangle of Qt's in the painters' common terms.
pittura::Rettangolo Rettangolo(const QRectF& r) {
  return {r.left(), r.top(), r.right(), r.bottom()};
}

bool Rosso(std::int16_t colore) {
  constexpr std::int16_t scuro = 4;
  return colore == scuro || colore == colore::RossoChiaro;
}

QPen Penna(const OpLinea& linea, double unita, const Inchiostri& inchiostri) {
  const double larga = pittura::Larghezza(linea) + (Rosso(linea.colore) ? inchiostri.rossoInPiu : 0);
  QPen penna(inchiostri.Segno(linea.colore), larga * unita);
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
  Linee(QPainter& pittore, const Inchiostri& inchiostri, const Inquadratura& dove, double unita, const QRectF& visibile)
      : pittore_(pittore), inchiostri_(inchiostri), dove_(dove), unita_(unita),
        dentro_(Rettangolo(visibile).Allargato(Bordo * unita)) {}
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
    penna_ = Penna(linea, unita_, inchiostri_);
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
  const Inchiostri& inchiostri_;
  const Inquadratura& dove_;
  double unita_;
  pittura::Rettangolo dentro_;
  OpLinea ultima_;
  bool pronta_ = false;
  QPen penna_;
  std::vector<QLineF> linee_;
};

void DipingiLinee(QPainter& pittore, const Operazioni& lista, const Inchiostri& inchiostri, const Inquadratura& dove,
                  double unita, const QRectF& visibile) {
  Linee linee(pittore, inchiostri, dove, unita, visibile);
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

Inchiostri InchiostriCarta() {
  Inchiostri carta{QColor(pittura::Fondo.rosso, pittura::Fondo.verde, pittura::Fondo.blu), {}, {}};
  for (std::size_t i = 0; i < TinteClassiche.size(); ++i) {
    const TintaClassica& tinta = TinteClassiche.at(i);
    carta.segni.at(i) = carta.testi.at(i) = QColor(tinta.rosso, tinta.verde, tinta.blu);
  }
  return carta;
}

// On the light ground the lines keep their classic colours; on a dark one black would not be seen.
Inchiostri InchiostriSchermo() {
  Inchiostri schermo = InchiostriCarta();
  schermo.fondo = ColoreTema(Tono::Carta);
  schermo.rossoInPiu = 1;
  constexpr double forte = 7; // thin lines on a dark ground
  const bool scuro = TemaScuro();
  for (std::size_t i = 0; i < TinteClassiche.size(); ++i) {
    schermo.testi.at(i) = Leggibile(schermo.testi.at(i), schermo.fondo, scuro ? forte : ContrastoTesto);
    if (scuro) schermo.segni.at(i) = Leggibile(schermo.segni.at(i), schermo.fondo, forte);
  }
  return schermo;
}

void DipingiPagina(QPainter& pittore, const Operazioni& lista, const QRectF& area, double unita) {
  const Inquadratura dove(lista.scala, area);
  const Inchiostri carta = InchiostriCarta();
  pittore.save();
  pittore.setRenderHint(QPainter::Antialiasing);
  pittore.setClipRect(area);
  DipingiLinee(pittore, lista, carta, dove, unita, area);
  pittore.setBrush(Qt::NoBrush);
  for (const OpCerchio& cerchio : lista.cerchi) {
    const QPointF centro = dove.Pixel(cerchio.x, cerchio.y);
    if (!Rettangolo(area).Contiene(centro.x(), centro.y())) continue;
    pittore.setPen(QPen(carta.Segno(cerchio.colore), unita));
    pittore.drawEllipse(centro, cerchio.raggio * dove.pixelMetro, cerchio.raggio * dove.pixelMetro);
  }
  for (const OpTesto& testo : lista.testi) {
    const QPointF angolo = dove.Pixel(testo.x, testo.y);
    const double pixel = pittura::PixelTesto(testo.dimensione, unita);
    if (!pittura::SiVede(testo, angolo.x(), angolo.y(), pixel, Rettangolo(area))) continue;
    QFont font = FontGrafica(testo.font);
    font.setPointSizeF(pittura::PixelTesto(testo.dimensione, 1) * pittura::PuntiPerPollice / pittura::PixelPerPollice);
    pittore.setFont(font);
    pittore.setPen(carta.Testo(testo.colore));
    const QPointF base(0, QFontMetricsF(font, pittore.device()).ascent());
    Ruotato(pittore, angolo, testo.decimi, [&] { pittore.drawText(base, PerDisegno(testo.testo)); });
  }
  pittore.restore();
}

PittoreSchermo::PittoreSchermo(Inchiostri inchiostri) : inchiostri_(inchiostri) {}
PittoreSchermo::~PittoreSchermo() = default;

void PittoreSchermo::Cambia(Inchiostri inchiostri) {
  inchiostri_ = inchiostri;
  timbri_.clear();
}

// The numbers of parcels, which begin with a blank, choose before the many names of vertices.
void PittoreSchermo::DisponiNomi(const Operazioni& lista, double pixelMetro, double unita) {
  std::vector<std::size_t> ordine(lista.testi.size());
  std::iota(ordine.begin(), ordine.end(), std::size_t{0});
  std::stable_partition(ordine.begin(), ordine.end(),
                        [&](std::size_t i) { return lista.testi[i].testo.starts_with(' '); });
  std::vector<Scritta> scritte;
  scritte.reserve(ordine.size());
  for (const std::size_t i : ordine) {
    const OpTesto& testo = lista.testi[i];
    Glifi& glifi = GlifiDi(testo, unita);
    scritte.push_back({testo.x * pixelMetro, -testo.y * pixelMetro, glifi.Larghezza(testo.testo), glifi.Altezza(),
                       testo.decimi, testo.testo});
  }
  const auto posti = DisponiScritte(scritte);
  posti_.resize(posti.size());
  for (std::size_t i = 0; i < ordine.size(); ++i) posti_[ordine[i]] = posti[i];
}

void PittoreSchermo::Dipingi(QImage& tela, const Operazioni& lista, double unita, const QRect& visibile) {
  const Raster raster(tela, visibile);
  const Inquadratura dove(lista.scala, QRectF(QPointF(), QSizeF(tela.size())));
  QPainter pittore(&tela);
  pittore.setClipRect(visibile);
  pittore.fillRect(visibile, inchiostri_.fondo);
  pittore.setRenderHint(QPainter::Antialiasing);
  DipingiLinee(pittore, lista, inchiostri_, dove, unita, visibile);
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
  pittore.setPen(QPen(inchiostri_.Segno(colore), penna));
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

// Texts that follow each other mostly share face and size.
Glifi& PittoreSchermo::GlifiDi(const OpTesto& testo, double unita) {
  if (ultimi_ != nullptr && testo.font == fontUltimi_ && testo.dimensione == puntiUltimi_ && unita == unitaUltimi_)
    return *ultimi_;
  const double pixel = pittura::PixelTesto(testo.dimensione, unita);
  auto& glifi = glifi_[std::string(testo.font) + "/" + TestoPieno(pixel)];
  if (!glifi) {
    QFont font = FontGrafica(testo.font);
    font.setHintingPreference(QFont::PreferVerticalHinting);
    glifi = std::make_unique<Glifi>(font, pixel);
  }
  ultimi_ = glifi.get();
  fontUltimi_ = testo.font;
  puntiUltimi_ = testo.dimensione;
  unitaUltimi_ = unita;
  return *glifi;
}

void PittoreSchermo::Testi(QPainter& pittore, const Raster& raster, const Operazioni& lista, const Inquadratura& dove,
                           double unita) {
  const pittura::Rettangolo dentro = Rettangolo(raster.dentro);
  const bool disposti = posti_.size() == lista.testi.size();
  for (std::size_t i = 0; i < lista.testi.size(); ++i) {
    const OpTesto& testo = lista.testi[i];
    if (disposti && !posti_[i]) continue;
    const Scarto scarto = disposti ? *posti_[i] : Scarto{};
    const QPointF angolo = dove.Pixel(testo.x, testo.y) + QPointF(scarto.x, scarto.y);
    if (!pittura::SiVede(testo, angolo.x(), angolo.y(), pittura::PixelTesto(testo.dimensione, unita), dentro)) continue;
    Scrivi(pittore, raster, testo, angolo, GlifiDi(testo, unita));
  }
}

void PittoreSchermo::Scrivi(QPainter& pittore, const Raster& raster, const OpTesto& testo, const QPointF& angolo,
                            Glifi& glifi) {
  const QColor& colore = inchiostri_.Testo(testo.colore);
  const QPointF base(0, glifi.Ascesa());
  if (testo.decimi == 0) return glifi.Scrivi(raster, testo.testo, (angolo + base).toPoint(), colore);
  pittore.setPen(colore);
  Ruotato(pittore, angolo, testo.decimi, [&] { pittore.drawGlyphRun(base, glifi.Corsa(testo.testo)); });
}

} // namespace lirmeto::ui
