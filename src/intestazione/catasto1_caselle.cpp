#include <intestazione/catasto1_caselle.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <charconv>
#include <chrono>

namespace lirmeto {

namespace {

constexpr std::array<std::string_view, NumeroCaselle> Etichette = {"Data",
                                                                   "Protocollo",
                                                                   "Codice  Comune",
                                                                   "Foglio + Allegato",
                                                                   "Mappali",
                                                                   "Cognome",
                                                                   "Qualifica",
                                                                   "Provincia",
                                                                   "Quota Media",
                                                                   "Precisione Lineare",
                                                                   "Precisione Angolare",
                                                                   "Est Medio",
                                                                   "Ver. Pregeo",
                                                                   "Tipologia Rilievo",
                                                                   "Strumentazione",
                                                                   "Commento",
                                                                   "Num. Iscrizione Albo",
                                                                   "Codice Fiscale",
                                                                   "Recapito",
                                                                   "Nome"};

// Those of the date and of the version come from the session.
constexpr std::array<std::string_view, NumeroCaselle> Predefiniti = {
    "",        "1",        "G693",   "0010", "1",
    "COGNOME", "GEOMETRA", "PADOVA", "0",    "10",
    "20",      "0",        "",       "FR",   "GEODIMETRO INTEGRATO",
    "",        "",         "",       "",     "NOME"};

bool Cifra(char lettera) {
  return lettera >= '0' && lettera <= '9';
}

bool TutteCifre(std::string_view testo) {
  return std::all_of(testo.begin(), testo.end(), Cifra);
}

// Value of a few digits.
int Intero(std::string_view cifre) {
  int valore = 0;
  std::from_chars(cifre.data(), cifre.data() + cifre.size(), valore);
  return valore;
}

} // namespace

const std::array<std::string_view, NumeroCaselle>& EtichetteCaselle() {
  return Etichette;
}

std::string ValorePredefinito(std::size_t indice, const Sessione& sessione, const Data& oggi) {
  if (indice == casella::Data) return TestoData(oggi);
  if (indice == casella::Versione) return sessione.VersionePregeo;
  return std::string(Predefiniti.at(indice));
}

std::string DataAOttoCifre(std::string_view data) {
  constexpr std::size_t breve = 6;
  constexpr int soglia = 88;
  if (data.size() != breve || !TutteCifre(data)) return std::string(data);
  const std::string_view anno = data.substr(4);
  return std::string(data.substr(0, 4)) + (Intero(anno) < soglia ? "20" : "19") + std::string(anno);
}

std::optional<Data> DataDaTesto(std::string_view testo) {
  constexpr std::size_t lunghezza = 8;
  if (testo.size() != lunghezza || !TutteCifre(testo)) return std::nullopt;
  const Data data{Intero(testo.substr(4)), Intero(testo.substr(2, 2)), Intero(testo.substr(0, 2))};
  const std::chrono::year_month_day giorno{std::chrono::year(data.anno),
                                           std::chrono::month(static_cast<unsigned>(data.mese)),
                                           std::chrono::day(static_cast<unsigned>(data.giorno))};
  return giorno.ok() ? std::optional(data) : std::nullopt;
}

std::string FoglioAQuattroCifre(std::string_view foglio) {
  constexpr std::size_t cifreFoglio = 4;
  const auto cifre = static_cast<std::size_t>(std::find_if_not(foglio.begin(), foglio.end(), Cifra) - foglio.begin());
  if (cifre == 0 || cifre >= cifreFoglio) return std::string(foglio);
  return std::string(cifreFoglio - cifre, '0') + std::string(foglio);
}

std::string NumeroInFormato(std::string_view testo, std::string_view formato) {
  return Formatta(Valore(testo), formato);
}

} // namespace lirmeto
