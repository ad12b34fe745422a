#pragma once
// The derivation list of a proposal, a line a derived parcel: origin and derived parcel with their areas, m2.
//
//   35 = 29390_101 = 29090      101 comes from 35
//   35 = 29390_35 = 29390       35 goes on as it is: no derivation

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// The lines of a "Modello Censuario.TXT" whose two parts at "_" differ.
[[nodiscard]] std::vector<std::string> DerivazioniVere(std::string_view modello);

// Those of them whose first word is the parcel.
[[nodiscard]] std::vector<std::string> DerivazioniDi(const std::vector<std::string>& linee,
                                                     std::string_view particella);

// The derived half of a line: what stands behind its first "_", up to the next.
[[nodiscard]] std::string_view ParteDerivata(std::string_view linea);

// Name of the derived parcel, trimmed: what stands before the "=" of its half.
[[nodiscard]] std::string_view NomeDerivata(std::string_view linea);

// What stands behind the first or the last "=" of a line, trimmed; empty without one.
[[nodiscard]] std::string_view DopoUguale(std::string_view linea);
[[nodiscard]] std::string_view DopoUltimoUguale(std::string_view linea);

} // namespace lirmeto
