#pragma once
// A drawing of many points, a station for each hundred, for tests and measures.

#include <base/numeri.h>

#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace lirmeto::prova {

// Stations "AA00", "AB00", ... on a traverse, each with the ninety-nine points of its hundred, "AA01" to "AA99", and a line
// to each of them; flat. Up to 130,000 points.
inline std::string DisegnoCasuale(std::size_t punti) {
  constexpr std::string_view lettere = "ABCDEFGHIJKLMNOPQRSTUVWXYZ123456789";
  std::mt19937 caso(1);
  std::uniform_real_distribution<double> piano(0, 1e4);
  std::string testo;
  std::string prima;
  for (std::size_t i = 0; i < punti; ++i) {
    const std::size_t centinaio = i / 100;
    std::string nome{lettere.at(centinaio / lettere.size()), lettere[centinaio % lettere.size()]};
    nome += Formatta(static_cast<double>(i % 100), "00");
    const std::string posto = Formatta(piano(caso), "0.000") + "," + Formatta(piano(caso), "0.000");
    testo += "P," + nome + "," + posto + ",10,SPIGOLO,0\r\n";
    if (!prima.empty()) testo += "L," + prima + ",0," + posto + ",0\r\n";
    if (i % 100 == 0) prima = posto;
  }
  return testo;
}

} // namespace lirmeto::prova
