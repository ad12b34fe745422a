#include <cli/tela.h>

#include <base/errore.h>

#include <cairo.h>

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

void Colora(cairo_t* penna, const TintaClassica& tinta) {
  constexpr double pieno = 255;
  cairo_set_source_rgb(penna, tinta.rosso / pieno, tinta.verde / pieno, tinta.blu / pieno);
}

void Prepara(cairo_t* disegno, const Penna& penna) {
  Colora(disegno, penna.tinta);
  cairo_set_line_width(disegno, penna.larga);
  cairo_set_line_cap(disegno, penna.Continua() ? CAIRO_LINE_CAP_SQUARE : CAIRO_LINE_CAP_BUTT);
  cairo_set_dash(disegno, penna.tratti.data(), penna.Continua() ? 0 : static_cast<int>(penna.tratti.size()),
                 penna.saltati);
}

} // namespace

struct Tela::Dentro {
  Proprio<cairo_surface_t> superficie;
  Proprio<cairo_t> penna;
};

Tela::Tela(int larga, int alta, const TintaClassica& fondo) : dentro_(std::make_unique<Dentro>()) {
  dentro_->superficie.reset(cairo_image_surface_create(CAIRO_FORMAT_RGB24, larga, alta));
  dentro_->penna.reset(cairo_create(dentro_->superficie.get()));
  const Proprio<cairo_font_options_t> opzioni(cairo_font_options_create());
  cairo_font_options_set_hint_metrics(opzioni.get(), CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_hint_style(opzioni.get(), CAIRO_HINT_STYLE_SLIGHT);
  cairo_set_font_options(dentro_->penna.get(), opzioni.get());
  Colora(dentro_->penna.get(), fondo);
  cairo_paint(dentro_->penna.get());
}

Tela::~Tela() = default;

void Tela::Linea(const Segmento& segmento, const Penna& penna) {
  cairo_t* disegno = dentro_->penna.get();
  Prepara(disegno, penna);
  cairo_move_to(disegno, segmento.x1, segmento.y1);
  cairo_line_to(disegno, segmento.x2, segmento.y2);
  cairo_stroke(disegno);
}

void Tela::Cerchio(double x, double y, double raggio, const Penna& penna) {
  cairo_t* disegno = dentro_->penna.get();
  Prepara(disegno, penna);
  cairo_new_sub_path(disegno);
  cairo_arc(disegno, x, y, raggio, 0, 2 * std::numbers::pi);
  cairo_stroke(disegno);
}

void Tela::Testo(const std::string& utf8, const PostoTesto& posto, const CarattereTela& carattere) {
  cairo_t* disegno = dentro_->penna.get();
  cairo_select_font_face(disegno, carattere.famiglia.c_str(), CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
  cairo_set_font_size(disegno, carattere.pixel);
  cairo_font_extents_t misure;
  cairo_font_extents(disegno, &misure);
  Colora(disegno, carattere.tinta);
  cairo_save(disegno);
  cairo_translate(disegno, posto.x, posto.y);
  cairo_rotate(disegno, posto.giro);
  cairo_move_to(disegno, 0, misure.ascent);
  cairo_show_text(disegno, utf8.c_str());
  cairo_restore(disegno);
}

std::string Tela::Png() {
  std::string byte;
  const auto scrivi = [](void* a, const unsigned char* dati, unsigned quanti) {
    static_cast<std::string*>(a)->append(reinterpret_cast<const char*>(dati), quanti);
    return CAIRO_STATUS_SUCCESS;
  };
  if (cairo_surface_write_to_png_stream(dentro_->superficie.get(), scrivi, &byte) != CAIRO_STATUS_SUCCESS)
    throw Errore(errore::MemoriaEsaurita);
  return byte;
}

} // namespace lirmeto
