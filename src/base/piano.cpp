#include <base/piano.h>

#include <cmath>

namespace lirmeto {

double DistanzaPiana(const PuntoPiano& da, const PuntoPiano& a) {
  return std::hypot(a.est - da.est, a.nord - da.nord);
}

double AreaDi(const std::vector<PuntoPiano>& vertici) {
  double doppia = 0;
  for (std::size_t i = 0; i < vertici.size(); ++i) {
    const PuntoPiano& a = vertici[i];
    const PuntoPiano& b = vertici[(i + 1) % vertici.size()];
    doppia += (b.est - a.est) * (b.nord + a.nord);
  }
  return std::fabs(doppia) / 2;
}

PuntoPiano PuntoMedio(const PuntoPiano& primo, const PuntoPiano& secondo) {
  return {(primo.est + secondo.est) / 2, (primo.nord + secondo.nord) / 2};
}

} // namespace lirmeto
