#include <generazione/angoli.h>

#include <core/servizi.h>

#include <cmath>
#include <numbers>

namespace lirmeto {

namespace {

constexpr double GiroGradi = 400;
constexpr double RadiantiAGradi = 200 / std::numbers::pi;

} // namespace

double Distanza2D(double x1, double y1, double x2, double y2) {
  return DistanzaPiana(x1, y1, x2, y2);
}

Direzione AzimutDistanza(double ax, double ay, double bx, double by) {
  const double dx = ax - bx;
  const double dy = ay - by;
  const double d = std::sqrt(dx * dx + dy * dy);
  if (d + dy == 0) return {std::numbers::pi, d};
  const double angolo = 2 * std::atan(dx / (d + dy));
  return {angolo < 0 ? angolo + 2 * std::numbers::pi : angolo, d};
}

Lettura AngoloDaOrientamento(double sx, double sy, double rx, double ry, double px, double py, double orientamento) {
  const Direzione riferimento = AzimutDistanza(sx, sy, rx, ry);
  const Direzione punto = AzimutDistanza(sx, sy, px, py);
  double angolo = orientamento + (punto.angolo * RadiantiAGradi - riferimento.angolo * RadiantiAGradi);
  if (angolo < 0) angolo += GiroGradi;
  if (angolo >= GiroGradi) angolo -= GiroGradi;
  return {angolo, punto.distanza};
}

double ArrotondaAngolo(double angolo, double passo) {
  return std::floor((angolo + passo / 2) / passo) * passo;
}

} // namespace lirmeto
