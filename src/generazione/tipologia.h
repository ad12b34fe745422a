#pragma once
// What an act's typology code decides.

#include <string_view>

namespace lirmeto {

// Code of the typology that involves no extract.
inline constexpr std::string_view TipologiaSenzaEstratto = "1000";

// Whether a parcel may be chosen for this code, by its row of the extract, upper case:
//   "6|PARTICELLA|35|  |SEMINATIVO  |3016|    | | |"
// A code that no rule knows takes none.
[[nodiscard]] bool MappaleAmmesso(std::string_view tipologia, std::string_view riga);

} // namespace lirmeto
