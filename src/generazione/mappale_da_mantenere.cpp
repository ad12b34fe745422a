#include <generazione/mappale_da_mantenere.h>

#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>

namespace lirmeto {

void MappaleDaMantenere::AlCaricamento() {
  Sessione& sessione = ambiente_.sessione;
  sessione.EsitoForm = EsitoAnnullato;
  for (const auto nome : Dividi(sessione.ParticelleScelte, ",")) List1.emplace_back(nome);
  const bool urbano = !sessione.RigheEnteUrbano.empty();
  if (!urbano && sessione.RigheFabbRurale.empty()) Etichetta = "Nessun Ente Urbano selezionabile.";
  const std::string& righe =
      urbano || sessione.TipologiaCorrente != "06" ? sessione.RigheEnteUrbano : sessione.RigheFabbRurale;
  for (const auto riga : RigheDi(righe)) List2.emplace_back(riga);
}

// "A|" is the end of "PARTICELLA|": what stands behind it is the number of that row.
void MappaleDaMantenere::ClickList2(std::size_t indice) {
  if (indice >= List2.size()) return;
  const std::string& riga = List2[indice];
  std::erase_if(List1, [&](const std::string& nome) { return Contiene(riga, "A|" + std::string(Taglia(nome)) + "|"); });
  Indice.reset();
}

void MappaleDaMantenere::ConfermaMappali() {
  if (!Indice || *Indice >= List1.size()) return;
  Sessione& sessione = ambiente_.sessione;
  sessione.ParticellaMantenuta = List1[*Indice];
  List1.erase(List1.begin() + static_cast<std::ptrdiff_t>(*Indice));
  sessione.ParticelleScelte = sessione.ParticellaMantenuta;
  for (const std::string& nome : List1) sessione.ParticelleScelte += "," + nome;
  sessione.EsitoForm = EsitoConfermato;
  Chiusa = true;
}

} // namespace lirmeto
