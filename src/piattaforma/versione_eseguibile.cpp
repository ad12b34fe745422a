#include <piattaforma/versione_eseguibile.h>

#include <base/numeri.h>

namespace lirmeto {

namespace {

std::string Utf16(std::string_view ascii) {
  std::string largo;
  for (const char lettera : ascii) largo += {lettera, '\0'};
  return largo;
}

long long Mezza(std::string_view byte, std::size_t da) {
  const auto basso = static_cast<unsigned char>(byte[da]);
  const auto alto = static_cast<unsigned char>(byte[da + 1]);
  return basso | alto << 8;
}

} // namespace

std::string VersioneDaEseguibile(std::string_view byte) {
  constexpr std::string_view firma = "\xBD\x04\xEF\xFE";
  constexpr std::size_t riempimento = 6; // the key's own end, then up to four bytes
  constexpr std::size_t lunghezza = 16;  // up to the end of the file's version
  const std::string chiave = Utf16("VS_VERSION_INFO");
  for (std::size_t posto = byte.find(chiave); posto != byte.npos; posto = byte.find(chiave, posto + 1)) {
    std::string_view resto = byte.substr(posto + chiave.size());
    const std::size_t inizio = resto.substr(0, riempimento + firma.size()).find(firma);
    if (inizio == resto.npos || resto.size() < inizio + lunghezza) continue;
    resto.remove_prefix(inizio);
    return TestoIntero(Mezza(resto, 10)) + "." + TestoIntero(Mezza(resto, 8)) + "." + TestoIntero(Mezza(resto, 14)) +
           "." + TestoIntero(Mezza(resto, 12));
  }
  return {};
}

} // namespace lirmeto
