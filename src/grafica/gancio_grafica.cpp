#include <grafica/gancio_grafica.h>

#include <cmath>
#include <utility>

namespace lirmeto {

void GancioGrafica::Installa(Zoom zoom) {
  if (!Installato()) zoom_ = std::move(zoom);
}

void GancioGrafica::Togli() {
  zoom_ = nullptr;
}

void GancioGrafica::Messaggio(unsigned numero, std::int32_t parametro) {
  if (!Installato()) return;
  constexpr double metaAlta = 65536;
  switch (numero) {
  case messaggio::Rotella:
    zoom_(std::nearbyint(parametro / metaAlta) > 0);
    break;
  case messaggio::CentraleGiu:
    pan_ = -1;
    break;
  case messaggio::Movimento:
    if (pan_ == -1) pan_ = 0;
    break;
  case messaggio::Fine:
    Togli();
    break;
  default:
    break;
  }
}

} // namespace lirmeto
