#include <grafica/pittura.h>

#include <algorithm>
#include <cmath>

namespace lirmeto::pittura {

std::optional<Tratto> Ritaglia(const Tratto& intero, const Rettangolo& dentro) {
  const double dx = intero.x2 - intero.x1;
  const double dy = intero.y2 - intero.y1;
  if (!std::isfinite(dx) || !std::isfinite(dy)) return std::nullopt;
  if (dentro.Contiene(intero.x1, intero.y1) && dentro.Contiene(intero.x2, intero.y2)) return intero;
  double da = 0;
  double fino = 1;
  // Each side of the rectangle as p * t <= q, t running from 0 to 1 along the line.
  const std::array<std::array<double, 2>, 4> lati = {{{-dx, intero.x1 - dentro.sinistra},
                                                      {dx, dentro.destra - intero.x1},
                                                      {-dy, intero.y1 - dentro.alto},
                                                      {dy, dentro.basso - intero.y1}}};
  for (const auto& [p, q] : lati) {
    if (p == 0 && q < 0) return std::nullopt;
    if (p < 0) da = std::max(da, q / p);
    if (p > 0) fino = std::min(fino, q / p);
  }
  if (!(da <= fino)) return std::nullopt;
  return Tratto{intero.x1 + da * dx, intero.y1 + da * dy, intero.x1 + fino * dx, intero.y1 + fino * dy,
                da * std::hypot(dx, dy)};
}

double PixelTesto(double punti, double unita) {
  constexpr double minimi = 1;
  constexpr double massimi = 300;
  return (punti >= minimi ? std::min(punti, massimi) : minimi) * unita * PixelPerPollice / PuntiPerPollice;
}

// It runs from its corner by at most so many pixels, whichever way it is turned.
bool SiVede(const OpTesto& testo, double x, double y, double pixel, const Rettangolo& visibile) {
  constexpr double glifoPiuLargo = 1.3; // of the height
  const double lungo = static_cast<double>(testo.testo.size() + 1) * pixel * glifoPiuLargo;
  const double alto = 2 * pixel;
  if (testo.testo.empty()) return false;
  if (testo.decimi != 0) return visibile.Allargato(lungo + alto).Contiene(x, y);
  return x >= visibile.sinistra - lungo && x <= visibile.destra + pixel && y >= visibile.alto - alto &&
         y <= visibile.basso;
}

double Larghezza(const OpLinea& linea) {
  constexpr int massima = 64;
  return std::clamp<int>(linea.spessore, 1, massima);
}

} // namespace lirmeto::pittura
