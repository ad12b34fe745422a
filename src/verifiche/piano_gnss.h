#pragma once
// Geocentric coordinates on the plane that touches the ellipsoid: near its point they are east and north. Metres.

#include <verifiche/adattamento.h>

namespace lirmeto {

struct Geocentrica {
  double x = 0;
  double y = 0;
  double z = 0;

  [[nodiscard]] double Lunghezza() const;
  [[nodiscard]] Geocentrica operator+(const Geocentrica& altra) const {
    return {x + altra.x, y + altra.y, z + altra.z};
  }
};

class PianoGnss {
public:
  // At this point of the WGS84 ellipsoid, or above it.
  explicit PianoGnss(const Geocentrica& origine);
  [[nodiscard]] PuntoPiano Su(const Geocentrica& punto) const;

private:
  Geocentrica origine_;
  double senoLat_ = 0;
  double cosenoLat_ = 1;
  double senoLon_ = 0;
  double cosenoLon_ = 1;
};

} // namespace lirmeto
