// Any bytes as a program whose version is asked.

#include "pretendi.h"

#include <base/testo.h>
#include <piattaforma/versione_eseguibile.h>

#include <algorithm>
#include <cstdint>

using namespace lirmeto;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string versione = VersioneDaEseguibile({reinterpret_cast<const char*>(dati), quanti});
  Pretendi(versione.empty() || QuanteParti(versione, '.') == 4, "a version has four numbers");
  Pretendi(versione.size() <= 4 * 5 + 3, "each of them a word of 16 bits");
  Pretendi(std::all_of(versione.begin(), versione.end(), [](char c) { return c == '.' || (c >= '0' && c <= '9'); }),
           "digits and points");
  return 0;
}
