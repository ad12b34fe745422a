#include <piattaforma/orologi.h>

#include <ctime>

namespace lirmeto {

namespace {

std::tm TempoLocale() {
  const std::time_t adesso = std::time(nullptr);
  std::tm tempo{};
  ::localtime_r(&adesso, &tempo);
  return tempo;
}

} // namespace

Data OrologioDiSistema::Oggi() const {
  const std::tm tempo = TempoLocale();
  return {tempo.tm_year + 1900, tempo.tm_mon + 1, tempo.tm_mday};
}

Ora OrologioDiSistema::Adesso() const {
  const std::tm tempo = TempoLocale();
  return {tempo.tm_hour, tempo.tm_min, tempo.tm_sec};
}

} // namespace lirmeto
