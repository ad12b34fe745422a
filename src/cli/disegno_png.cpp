#include <cli/disegno_png.h>

#include <base/errore.h>
#include <base/testo.h>
#include <grafica/pittura.h>

#include <cairo.h>

#include <algorithm>
#include <memory>
#include <numbers>

namespace lirmeto {

namespace {

struct Distruttore {
  void operator()(cairo_surface_t* superficie) const { cairo_surface_destroy(superficie); }
  void operator()(cairo_t* penna) const { cairo_destroy(penna); }
  void operator()(cairo_font_options_t* opzioni) const { cairo_font_options_destroy(opzioni); }
};
template <typename Tipo>
using Proprio = std::unique_ptr<Tipo, Distruttore>;

class Pittore {
public:
  Pittore(const OpScala& scala, int larga, int alta)
      : tela_(cairo_image_surface_create(CAIRO_FORMAT_RGB24, larga, alta)),
        penna_(cairo_create(tela_.get())), visibile_{0, 0, static_cast<double>(larga), static_cast<double>(alta)},
        pixelMetro_(alta / (scala.alto - scala.basso)) {
    const Proprio<cairo_font_options_t> opzioni(cairo_font_options_create());
    cairo_font_options_set_hint_metrics(opzioni.get(), CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_hint_style(opzioni.get(), CAIRO_HINT_STYLE_SLIGHT);
    cairo_set_font_options(penna_.get(), opzioni.get());
    Colora(pittura::Fondo);
    cairo_paint(penna_.get());
  }

  void Linea(const OpLinea& linea) {
    constexpr double bordo = 64; // more than any width
    const auto tratto =
        pittura::Ritaglia({X(linea.x1), Y(linea.y1), X(linea.x2), Y(linea.y2), 0}, visibile_.Allargato(bordo));
    if (!tratto) return;
    Colora(Tinta(linea.colore));
    Tratteggia(linea, tratto->saltati);
    cairo_move_to(penna_.get(), tratto->x1, tratto->y1);
    cairo_line_to(penna_.get(), tratto->x2, tratto->y2);
    cairo_stroke(penna_.get());
  }

  void Cerchio(const OpCerchio& cerchio) {
    const double x = X(cerchio.x);
    const double y = Y(cerchio.y);
    const double raggio = cerchio.raggio * pixelMetro_;
    if (!visibile_.Allargato(raggio + 1).Contiene(x, y)) return;
    Colora(Tinta(cerchio.colore));
    cairo_set_line_width(penna_.get(), 1);
    cairo_set_dash(penna_.get(), nullptr, 0, 0);
    cairo_new_sub_path(penna_.get());
    cairo_arc(penna_.get(), x, y, raggio, 0, 2 * std::numbers::pi);
    cairo_stroke(penna_.get());
  }

  void Testo(const OpTesto& testo) {
    constexpr double decimiPerMezzoGiro = 1800;
    const double pixel = pittura::PixelTesto(testo.dimensione, 1);
    if (!pittura::SiVede(testo, X(testo.x), Y(testo.y), pixel, visibile_)) return;
    const std::string font = AUtf8(testo.font.empty() ? FontPredefinito : testo.font);
    cairo_select_font_face(penna_.get(), font.c_str(), CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    cairo_set_font_size(penna_.get(), pixel);
    cairo_font_extents_t misure;
    cairo_font_extents(penna_.get(), &misure);
    Colora(Tinta(testo.colore));
    cairo_save(penna_.get());
    cairo_translate(penna_.get(), X(testo.x), Y(testo.y));
    cairo_rotate(penna_.get(), -testo.decimi * std::numbers::pi / decimiPerMezzoGiro);
    cairo_move_to(penna_.get(), 0, misure.ascent);
    cairo_show_text(penna_.get(), AUtf8(testo.testo).c_str());
    cairo_restore(penna_.get());
  }

  [[nodiscard]] std::string Png() {
    std::string byte;
    const auto scrivi = [](void* a, const unsigned char* dati, unsigned quanti) {
      static_cast<std::string*>(a)->append(reinterpret_cast<const char*>(dati), quanti);
      return CAIRO_STATUS_SUCCESS;
    };
    if (cairo_surface_write_to_png_stream(tela_.get(), scrivi, &byte) != CAIRO_STATUS_SUCCESS)
      throw Errore(errore::MemoriaEsaurita);
    return byte;
  }

private:
  [[nodiscard]] double X(double metri) const { return visibile_.destra / 2 + metri * pixelMetro_; }
  [[nodiscard]] double Y(double metri) const { return visibile_.basso / 2 - metri * pixelMetro_; }

  void Colora(const TintaClassica& tinta) {
    constexpr double pieno = 255;
    cairo_set_source_rgb(penna_.get(), tinta.rosso / pieno, tinta.verde / pieno, tinta.blu / pieno);
  }

  // Dashes begin where the whole line does, though its beginning be out of sight.
  void Tratteggia(const OpLinea& linea, double saltati) {
    const double larga = pittura::Larghezza(linea);
    cairo_set_line_width(penna_.get(), larga);
    const bool continua = linea.stile != stile::Tratteggiato && linea.stile != stile::Punteggiato;
    cairo_set_line_cap(penna_.get(), continua ? CAIRO_LINE_CAP_SQUARE : CAIRO_LINE_CAP_BUTT);
    if (continua) return cairo_set_dash(penna_.get(), nullptr, 0, 0);
    const auto& parti = linea.stile == stile::Tratteggiato ? pittura::Tratteggio : pittura::Punteggio;
    const std::array<double, 2> tratti = {parti[0] * larga, parti[1] * larga};
    cairo_set_dash(penna_.get(), tratti.data(), static_cast<int>(tratti.size()), saltati);
  }

  Proprio<cairo_surface_t> tela_;
  Proprio<cairo_t> penna_;
  pittura::Rettangolo visibile_;
  double pixelMetro_;
};

} // namespace

std::string DisegnoPng(const Operazioni& lista, int larga, int alta) {
  Pittore pittore(lista.scala, larga, alta);
  for (const OpLinea& linea : lista.linee) pittore.Linea(linea);
  for (const OpCerchio& cerchio : lista.cerchi) pittore.Cerchio(cerchio);
  for (const OpTesto& testo : lista.testi) pittore.Testo(testo);
  return pittore.Png();
}

} // namespace lirmeto
