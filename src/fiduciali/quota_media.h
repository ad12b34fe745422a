#pragma once
// QUOTAMEDIA.TXT of the program's folder: the mean height of every comune, a line each.
//
//   "G224|PADOVA|12|"    cadastral code, name, metres

#include <core/sessione.h>

#include <optional>
#include <string>
#include <string_view>

namespace lirmeto {

[[nodiscard]] std::string PercorsoQuotaMedia(const Sessione& sessione);

// Field 2 of the last line that contains the key, a code or a name; none without such a line, or without a key.
[[nodiscard]] std::optional<std::string> QuotaMediaCon(std::string_view testo, std::string_view chiave);

} // namespace lirmeto
