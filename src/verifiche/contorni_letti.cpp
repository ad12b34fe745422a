#include <verifiche/contorni_letti.h>

namespace lirmeto {

std::vector<ContornoLetto> LeggiContorni(const RigheLette& righe) {
  constexpr std::size_t primoVertice = 2;
  std::vector<ContornoLetto> contorni;
  for (std::size_t i = 0; i < righe.InizioProposta(); ++i) {
    const RigaLetta& letta = righe[i];
    if (letta.forma != FormaRiga::Contorno) continue;
    const bool continua = letta.conteggio == 0 && i > 0 && righe[i - 1].forma == FormaRiga::Contorno;
    if (!continua || contorni.empty()) contorni.push_back({i, letta.conteggio, letta.Codice(), {}});
    for (std::size_t k = 0; k < letta.punti.size(); ++k)
      contorni.back().vertici.push_back({letta.punti[k], i, primoVertice + k});
  }
  return contorni;
}

} // namespace lirmeto
