#include <piattaforma/orologi.h>

namespace lirmeto {

Istante IstanteLocale(std::time_t momento) {
  std::tm tempo{};
  ::localtime_s(&tempo, &momento);
  return {{tempo.tm_year + 1900, tempo.tm_mon + 1, tempo.tm_mday}, {tempo.tm_hour, tempo.tm_min, tempo.tm_sec}};
}

} // namespace lirmeto
