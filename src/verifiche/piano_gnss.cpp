#include <verifiche/piano_gnss.h>

#include <cmath>

namespace lirmeto {

namespace {

// The square of the ellipsoid's eccentricity (WGS84).
constexpr double Eccentricita2 = 6.69437999014e-3;

} // namespace

double Geocentrica::Lunghezza() const {
  return std::hypot(x, y, z);
}

// The latitude of the vertical through a point near the ground, by the usual closed form with the height left out: at a
// few hundred metres above the ellipsoid it is off by a millionth of a grad.
PianoGnss::PianoGnss(const Geocentrica& origine) : origine_(origine) {
  const double longitudine = std::atan2(origine.y, origine.x);
  const double latitudine = std::atan2(origine.z, std::hypot(origine.x, origine.y) * (1 - Eccentricita2));
  senoLat_ = std::sin(latitudine);
  cosenoLat_ = std::cos(latitudine);
  senoLon_ = std::sin(longitudine);
  cosenoLon_ = std::cos(longitudine);
}

PuntoPiano PianoGnss::Su(const Geocentrica& punto) const {
  const double dx = punto.x - origine_.x;
  const double dy = punto.y - origine_.y;
  const double dz = punto.z - origine_.z;
  return {cosenoLon_ * dy - senoLon_ * dx, cosenoLat_ * dz - senoLat_ * (cosenoLon_ * dx + senoLon_ * dy)};
}

} // namespace lirmeto
