#include <applicazione/libretti_recenti.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::string_view Sezione = "LIBRETTI_RECENTI";

std::string Chiave(std::size_t indice) {
  return TestoIntero(static_cast<long long>(indice) + 1);
}

std::vector<std::string> SenzaPercorso(std::vector<std::string> recenti, std::string_view percorso) {
  std::erase_if(recenti, [percorso](const std::string& uno) { return UgualiSenzaCaso(uno, percorso); });
  return recenti;
}

void Scrivi(Impostazioni& impostazioni, const std::vector<std::string>& recenti) {
  for (std::size_t i = 0; i < MassimiRecenti; ++i)
    impostazioni.Scrivi(Sezione, Chiave(i), i < recenti.size() ? recenti[i] : std::string{});
}

} // namespace

std::vector<std::string> LeggiRecenti(const Impostazioni& impostazioni) {
  std::vector<std::string> recenti;
  for (std::size_t i = 0; i < MassimiRecenti; ++i)
    if (std::string percorso = impostazioni.Leggi(Sezione, Chiave(i), ""); !percorso.empty())
      recenti.push_back(std::move(percorso));
  return recenti;
}

void AggiungiRecente(Impostazioni& impostazioni, std::string_view percorso) {
  std::vector<std::string> recenti = SenzaPercorso(LeggiRecenti(impostazioni), percorso);
  recenti.emplace(recenti.begin(), percorso);
  Scrivi(impostazioni, recenti);
}

void TogliRecente(Impostazioni& impostazioni, std::string_view percorso) {
  Scrivi(impostazioni, SenzaPercorso(LeggiRecenti(impostazioni), percorso));
}

} // namespace lirmeto
