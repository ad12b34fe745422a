#include <supporto/comuni8.h>

#include <base/errore.h>

#include <algorithm>
#include <unordered_set>

namespace lirmeto {

void KR_Comuni8::AlCaricamento() {
  Prepara();
  const Sessione& sessione = LAmbiente().sessione;
  std::unordered_set<std::string> conComuni;
  for (const Comune& comune : sessione.Comuni) conComuni.insert(comune.provincia);
  for (const CodiceENome& provincia : sessione.Province)
    if (conComuni.erase(provincia.codice) > 0) Province.push_back(provincia);
  std::vector<std::string> senzaNome(conComuni.begin(), conComuni.end());
  std::sort(senzaNome.begin(), senzaNome.end());
  for (const std::string& codice : senzaNome) Province.push_back({codice, ""});
  const CodiceENome* attuale = TrovaPerCodice(Province, sessione.SiglaProvincia);
  if (!Province.empty()) ScegliProvincia(attuale == nullptr ? 0 : static_cast<std::size_t>(attuale - Province.data()));
}

void KR_Comuni8::ScegliProvincia(std::size_t indice) {
  if (indice >= Province.size()) throw Errore(errore::IndiceFuoriIntervallo);
  IndiceProvincia = static_cast<long>(indice);
  List1.clear();
  for (const Comune& comune : LAmbiente().sessione.Comuni)
    if (comune.provincia == Province[indice].codice) List1.push_back(Riga(comune));
  Text1.clear();
  Text2.clear();
  Seleziona(-1);
}

} // namespace lirmeto
