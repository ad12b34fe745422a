#include <generazione/angoli.h>

#include <cmath>
#include <numbers>

namespace lirmeto {

namespace {

constexpr double RadiantiAGradi = 200 / std::numbers::pi;

} // namespace

Direzione AzimutDistanza(const PuntoPiano& a, const PuntoPiano& b) {
  const double dx = a.est - b.est;
  const double dy = a.nord - b.nord;
  const double d = std::sqrt(dx * dx + dy * dy);
  if (d + dy == 0) return {std::numbers::pi, d};
  const double angolo = 2 * std::atan(dx / (d + dy));
  return {angolo < 0 ? angolo + 2 * std::numbers::pi : angolo, d};
}

Lettura AngoloDaOrientamento(const Orientamento2D& orientamento, const PuntoPiano& punto) {
  const Direzione riferimento = AzimutDistanza(orientamento.stazione, orientamento.riferimento);
  const Direzione direzione = AzimutDistanza(orientamento.stazione, punto);
  Gon angolo =
      orientamento.lettura + (Gon(direzione.angolo * RadiantiAGradi) - Gon(riferimento.angolo * RadiantiAGradi));
  if (angolo < Gon{}) angolo = angolo + Giro;
  if (angolo >= Giro) angolo = angolo - Giro;
  return {angolo, direzione.distanza};
}

Gon ArrotondaAngolo(Gon angolo, Gon passo) {
  return Gon(std::floor((angolo.Valore() + passo.Valore() / 2) / passo.Valore()) * passo.Valore());
}

} // namespace lirmeto
