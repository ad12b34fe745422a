#pragma once
// The check of an Italian fiscal code.

#include <string_view>

namespace lirmeto {

inline constexpr std::string_view CodiceCorretto = "CORRETTO";
inline constexpr std::string_view CodiceErrato = "ERRATO";

// "CORRETTO" for a person's code of sixteen characters, in any case, whose last one is the control letter of the
// others; otherwise "ERRATO". Source of the rule: decree of the Ministry of Finance of 23 December 1976, n. 13813.
// Codes whose digits were replaced by letters to tell namesakes apart follow the same rule.
//   correct: "RSSMRA85T10A562S"; wrong: "RSSMRA85T10A562T", "RSSMRA85T10A562", ""
[[nodiscard]] std::string_view ControllaCodiceFiscale(std::string_view codice);

} // namespace lirmeto
