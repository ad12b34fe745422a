#include <supporto/cod_fis.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/zero_nove.h>

#include <algorithm>

namespace lirmeto {

namespace {

constexpr std::size_t ColonneNome = 40;
constexpr std::size_t ColonneCodice = 5;
constexpr std::size_t CampoCodice = 2; // of a row, from 0

template <typename Condizione>
long Primo(const std::vector<std::string>& righe, Condizione condizione) {
  const auto trovata = std::find_if(righe.begin(), righe.end(), condizione);
  return trovata == righe.end() ? -1 : static_cast<long>(trovata - righe.begin());
}

} // namespace

std::string SceltaComune::Riga(const Comune& comune) {
  return RiempiECorta(comune.nome, ColonneNome) + "|" + RiempiECorta(comune.campo, ColonneCodice) + "|" +
         RiempiECorta(comune.codice, ColonneCodice) + "|" + comune.provincia;
}

void SceltaComune::Prepara() {
  CaricaProvinceComuni(ambiente_);
  ambiente_.sessione.EsitoSelezione = EsitoAnnullato;
}

void SceltaComune::Seleziona(long indice) {
  Indice = indice;
  Etichetta = indice < 0 ? "" : Taglia(Parte(List1[static_cast<std::size_t>(indice)], '|', CampoCodice));
}

void SceltaComune::CambiaText1(std::string_view testo) {
  Text1 = Maiuscolo(testo);
  const auto inizia = [this](const std::string& riga) { return riga.starts_with(Text1); };
  Seleziona(Text1.empty() ? -1 : Primo(List1, inizia));
}

void SceltaComune::CambiaText2(std::string_view testo) {
  Text2 = Maiuscolo(testo);
  const auto contiene = [this](const std::string& riga) { return Contiene(riga, Text2); };
  Seleziona(Text2.empty() ? -1 : Primo(List1, contiene));
}

void SceltaComune::Clic(std::size_t indice) {
  if (indice >= List1.size()) throw Errore(errore::IndiceFuoriIntervallo);
  Seleziona(static_cast<long>(indice));
  Text1 = Taglia(Parte(List1[indice], '|', 0));
}

void SceltaComune::DoppioClic(std::size_t indice) {
  Clic(indice);
  CopiaCodiceFiscale();
}

void SceltaComune::CopiaCodiceFiscale() {
  if (Indice < 0) return ambiente_.dialoghi.Messaggio("Selezionare un comune!");
  const std::string& riga = List1.at(static_cast<std::size_t>(Indice));
  Sessione& sessione = ambiente_.sessione;
  ambiente_.appunti.MettiTesto(Etichetta);
  sessione.CodiceComune = Etichetta;
  sessione.SiglaProvincia = riga.substr(riga.size() - 2);
  const CodiceENome* provincia = TrovaPerCodice(sessione.Province, sessione.SiglaProvincia);
  sessione.NomeProvincia = provincia == nullptr ? "" : provincia->nome;
  sessione.EsitoSelezione = EsitoConfermato;
  Chiudi();
}

void KR_CodFis::AlCaricamento() {
  Prepara();
  const auto& comuni = LAmbiente().sessione.Comuni;
  List1.reserve(comuni.size());
  for (const Comune& comune : comuni) List1.push_back(Riga(comune));
}

} // namespace lirmeto
