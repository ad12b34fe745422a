#pragma once
// Letters of derived parcels and temporary names of new ones.

#include <cstddef>
#include <string>
#include <string_view>

namespace lirmeto {

// Temporary names that there are, from "AAA" to "ZZZ": 26 to the third.
inline constexpr std::size_t MassimiTemporanei = 17576;

// The letter of a derived parcel by its number from 1: "a" to "z", then "aa" and so on; empty for 0.
[[nodiscard]] std::string LetteraDerivata(std::size_t numero);

// "AAA" for 1, "AAB" for 2, "ABA" for 27; empty for 0 and beyond the last.
[[nodiscard]] std::string NomeTemporaneo(std::size_t numero);

// The number of a name already used: its third character decides, "AAC" gives 3 and a number ("101") 0. Of a name that
// begins with "A" the second letter counts too, so that a long act goes on behind "AAZ".
[[nodiscard]] std::size_t NumeroTemporaneo(std::string_view nome);

} // namespace lirmeto
