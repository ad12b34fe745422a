#include <base/piano.h>

#include <cmath>

namespace lirmeto {

double DistanzaPiana(const PuntoPiano& da, const PuntoPiano& a) {
  return std::hypot(a.est - da.est, a.nord - da.nord);
}

PuntoPiano PuntoMedio(const PuntoPiano& primo, const PuntoPiano& secondo) {
  return {(primo.est + secondo.est) / 2, (primo.nord + secondo.nord) / 2};
}

} // namespace lirmeto
