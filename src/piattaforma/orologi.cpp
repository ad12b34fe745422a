#include <piattaforma/orologi.h>

namespace lirmeto {

Data OrologioDiSistema::Oggi() const {
  return IstanteLocale(std::time(nullptr)).data;
}

Ora OrologioDiSistema::Adesso() const {
  return IstanteLocale(std::time(nullptr)).ora;
}

} // namespace lirmeto
