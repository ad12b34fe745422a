#include <base/data.h>

#include <base/numeri.h>

#include <chrono>

namespace lirmeto {

bool NelCalendario(const Data& data) {
  const std::chrono::year_month_day giorno{std::chrono::year(data.anno),
                                           std::chrono::month(static_cast<unsigned>(data.mese)),
                                           std::chrono::day(static_cast<unsigned>(data.giorno))};
  return giorno.ok();
}

std::string TestoData(const Data& data) {
  return Formatta(data.giorno, "00") + Formatta(data.mese, "00") + Formatta(data.anno, "0000");
}

} // namespace lirmeto
