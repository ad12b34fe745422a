#include <cli/disegno_png.h>

#include <cli/tela.h>

#include <base/testo.h>
#include <grafica/pittura.h>

#include <array>
#include <numbers>

namespace lirmeto {

namespace {

class Pittore {
public:
  Pittore(const OpScala& scala, int larga, int alta)
      : tela_(larga, alta, pittura::Fondo), visibile_{0, 0, static_cast<double>(larga), static_cast<double>(alta)},
        pixelMetro_(alta / (scala.alto - scala.basso)) {}

  void Linea(const OpLinea& linea) {
    constexpr double bordo = 64; // more than any width
    const auto tratto =
        pittura::Ritaglia({X(linea.x1), Y(linea.y1), X(linea.x2), Y(linea.y2), 0}, visibile_.Allargato(bordo));
    if (!tratto) return;
    tela_.Linea({tratto->x1, tratto->y1, tratto->x2, tratto->y2}, PennaDi(linea, tratto->saltati));
  }

  void Cerchio(const OpCerchio& cerchio) {
    const double x = X(cerchio.x);
    const double y = Y(cerchio.y);
    const double raggio = cerchio.raggio * pixelMetro_;
    if (visibile_.Allargato(raggio + 1).Contiene(x, y)) tela_.Cerchio(x, y, raggio, {Tinta(cerchio.colore), 1, {}, 0});
  }

  void Testo(const OpTesto& testo) {
    constexpr double decimiPerMezzoGiro = 1800;
    const double pixel = pittura::PixelTesto(testo.dimensione, 1);
    if (!pittura::SiVede(testo, X(testo.x), Y(testo.y), pixel, visibile_)) return;
    tela_.Testo(AUtf8(testo.testo), {X(testo.x), Y(testo.y), -testo.decimi * std::numbers::pi / decimiPerMezzoGiro},
                {AUtf8(testo.font.empty() ? FontPredefinito : testo.font), pixel, Tinta(testo.colore)});
  }

  [[nodiscard]] std::string Png() { return tela_.Png(); }

private:
  [[nodiscard]] double X(double metri) const { return visibile_.destra / 2 + metri * pixelMetro_; }
  [[nodiscard]] double Y(double metri) const { return visibile_.basso / 2 - metri * pixelMetro_; }

  // Dashes begin where the whole line does, though its beginning be out of sight.
  [[nodiscard]] static Penna PennaDi(const OpLinea& linea, double saltati) {
    const double larga = pittura::Larghezza(linea);
    const bool continua = linea.stile != stile::Tratteggiato && linea.stile != stile::Punteggiato;
    if (continua) return {Tinta(linea.colore), larga, {}, 0};
    const auto& parti = linea.stile == stile::Tratteggiato ? pittura::Tratteggio : pittura::Punteggio;
    return {Tinta(linea.colore), larga, {parti[0] * larga, parti[1] * larga}, saltati};
  }

  Tela tela_;
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
