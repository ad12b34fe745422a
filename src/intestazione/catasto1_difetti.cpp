#include <intestazione/catasto1_difetti.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <supporto/codice_fiscale.h>

#include <algorithm>
#include <array>

namespace lirmeto {

namespace {

bool Cifra(char lettera) {
  return lettera >= '0' && lettera <= '9';
}

// Digits up to four, and the letter or digit of an annex behind them.
bool FoglioBenFatto(std::string_view foglio) {
  constexpr std::size_t cifre = 4;
  const std::string intero = Maiuscolo(FoglioAQuattroCifre(foglio));
  const bool allegato =
      intero.size() == cifre + 1 && (Cifra(intero[cifre]) || (intero[cifre] >= 'A' && intero[cifre] <= 'Z'));
  return (intero.size() == cifre || allegato) && std::all_of(intero.begin(), intero.begin() + cifre, Cifra);
}

bool ComuneNoto(std::string_view codice, const Sessione& sessione) {
  constexpr std::size_t senzaSezione = 4;
  const std::string maiuscolo = Maiuscolo(codice);
  const std::string_view intero = maiuscolo;
  return sessione.Comuni.empty() || TrovaComune(sessione.Comuni, intero) != nullptr ||
         (intero.size() == senzaSezione + 1 && TrovaComune(sessione.Comuni, intero.substr(0, senzaSezione)) != nullptr);
}

} // namespace

std::string DifettoCasella(std::size_t indice, std::string_view testo, const Sessione& sessione) {
  const std::string_view intero = Taglia(testo);
  if (intero.empty()) return {};
  if (indice == casella::Data && !DataDaTesto(DataAOttoCifre(intero))) return "Formato Data Errato!!";
  if (indice == casella::Protocollo && Valore(intero) < 1) return "Protocollo non numerico!";
  if (indice == casella::Comune && !ComuneNoto(intero, sessione)) return "Comune non trovato!";
  if (indice == casella::Foglio && !FoglioBenFatto(intero)) return "Foglio errato: quattro cifre e l'allegato";
  if (indice == casella::CodiceFiscale && ControllaCodiceFiscale(intero) == CodiceErrato)
    return "Probabile Codice Fiscale non Corretto!";
  return {};
}

std::optional<std::size_t> PrimaDaCorreggere(const CaselleCatasto1& caselle, const Sessione& sessione) {
  constexpr std::array daRiga = {casella::Data, casella::Comune, casella::Foglio};
  const auto prima = std::find_if(daRiga.begin(), daRiga.end(), [&](std::size_t indice) {
    return !DifettoCasella(indice, caselle[indice], sessione).empty();
  });
  return prima == daRiga.end() ? std::nullopt : std::optional(*prima);
}

} // namespace lirmeto
