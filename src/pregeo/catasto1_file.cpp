#include <pregeo/catasto1_file.h>

#include <base/testo.h>
#include <core/riga.h>
#include <pregeo/pregeo_ini_scrittura.h>

#include <algorithm>
#include <vector>

namespace lirmeto {

namespace {

constexpr std::size_t Righe = 3;

template <std::size_t N>
void LeggiCampi(std::string_view riga, std::array<std::string, N>& campi) {
  for (std::size_t i = 0; i < N; ++i) campi[i] = Parte(riga, '|', i + 1);
}

template <std::size_t N>
std::string ScriviCampi(std::string_view genere, const std::array<std::string, N>& campi) {
  std::string riga(genere);
  for (const auto& campo : campi) riga += "|" + campo;
  return riga + "|";
}

} // namespace

Catasto1 LeggiCatasto1(std::string_view testo) {
  auto righe = RigheIni(testo);
  righe.resize(std::max(righe.size(), Righe));
  Catasto1 dati;
  LeggiCampi(righe[0], dati.zero);
  LeggiCampi(righe[1], dati.nove);
  constexpr std::size_t genere = 2; // "6|", and a bar behind the text
  if (GenereDi(righe[2]) == Genere::Libera && righe[2].size() > genere + 1)
    dati.commento = righe[2].substr(genere, righe[2].size() - genere - 1);
  return dati;
}

std::string TestoCatasto1(const Catasto1& dati, std::string_view originale) {
  auto righe = RigheIni(originale);
  // Below the last line stands the empty entry that its end leaves.
  if (righe.size() <= Righe) righe.resize(Righe + 1);
  righe[0] = ScriviCampi("0", dati.zero);
  righe[1] = ScriviCampi("9", dati.nove);
  righe[2] = "6|" + dati.commento + "|";
  return TestoIni(righe, originale);
}

} // namespace lirmeto
