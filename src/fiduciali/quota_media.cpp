#include <fiduciali/quota_media.h>

#include <base/testo.h>
#include <core/riga.h>

namespace lirmeto {

std::string PercorsoQuotaMedia(const Sessione& sessione) {
  return sessione.CartellaProgramma + "\\QUOTAMEDIA.TXT";
}

std::optional<std::string> QuotaMediaCon(std::string_view testo, std::string_view chiave) {
  std::optional<std::string> quota;
  if (chiave.empty()) return quota;
  for (const auto riga : RigheDi(testo))
    if (Contiene(riga, chiave)) quota = Parte(riga, '|', 2);
  return quota;
}

} // namespace lirmeto
