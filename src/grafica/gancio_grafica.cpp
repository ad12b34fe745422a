#include <grafica/gancio_grafica.h>

#include <utility>

namespace lirmeto {

void GancioGrafica::Installa(Zoom zoom) {
  if (!Installato()) zoom_ = std::move(zoom);
}

void GancioGrafica::Rotella(bool avanti) const {
  if (Installato()) zoom_(avanti);
}

} // namespace lirmeto
