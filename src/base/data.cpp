#include <base/data.h>

#include <base/numeri.h>

namespace lirmeto {

std::string TestoData(const Data& data) {
  return Formatta(data.giorno, "00") + Formatta(data.mese, "00") + Formatta(data.anno, "0000");
}

} // namespace lirmeto
