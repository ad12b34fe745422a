#include <intestazione/catasto1_caselle.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>
#include <charconv>

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
  return NelCalendario(data) ? std::optional(data) : std::nullopt;
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

void CaselleCatasto1::Cambia(std::size_t indice, std::string_view testo) {
  testi_.at(indice) = InUnCampo(testo);
}

void CaselleCatasto1::MettiRighe(const Catasto1& dati) {
  for (std::size_t i = 0; i < dati.zero.size(); ++i)
    i == casella::Cognome ? MettiTecnico(dati.zero[i]) : Cambia(i, dati.zero[i]);
  for (std::size_t i = 0; i < dati.nove.size(); ++i) Cambia(casella::QuotaMedia + i, dati.nove[i]);
  Cambia(casella::Commento, dati.commento);
}

void CaselleCatasto1::MettiTecnico(std::string_view tecnico) {
  const std::string intero(Taglia(InUnCampo(tecnico)));
  std::string& cognome = testi_[casella::Cognome];
  std::string& nome = testi_[casella::Nome];
  if (UgualiSenzaCaso(intero, cognome) || UgualiSenzaCaso(intero, cognome + " " + nome)) return;
  const std::size_t blanco = intero.find(' ');
  cognome = intero.substr(0, blanco);
  if (blanco != std::string::npos) nome = Taglia(std::string_view(intero).substr(blanco));
}

Catasto1 CaselleCatasto1::PerCatasto1() const {
  Catasto1 dati;
  std::copy_n(testi_.begin(), dati.zero.size(), dati.zero.begin());
  std::copy_n(testi_.begin() + casella::QuotaMedia, dati.nove.size(), dati.nove.begin());
  dati.commento = testi_[casella::Commento];
  return dati;
}

void CaselleCatasto1::PrendiTecnico(const Sessione& sessione) {
  testi_[casella::Iscrizione] = sessione.NumeroIscrizione;
  testi_[casella::CodiceFiscale] = sessione.CodiceFiscale;
  testi_[casella::Cognome] = sessione.Cognome;
  testi_[casella::Nome] = sessione.Nome;
  testi_[casella::Qualifica] = sessione.Qualifica;
  testi_[casella::Provincia] = sessione.Provincia;
  testi_[casella::Recapito] = sessione.Recapito;
}

void CaselleCatasto1::DaiTecnico(Sessione& sessione) const {
  sessione.Cognome = testi_[casella::Cognome];
  sessione.Nome = testi_[casella::Nome];
  sessione.Tecnico = sessione.Cognome + " " + sessione.Nome;
  sessione.Qualifica = testi_[casella::Qualifica];
  sessione.Provincia = testi_[casella::Provincia];
  sessione.PrecisioneLineare = testi_[casella::PrecisioneLineare];
  sessione.PrecisioneAngolare = testi_[casella::PrecisioneAngolare];
  sessione.Strumentazione = testi_[casella::Strumentazione];
  sessione.NumeroIscrizione = testi_[casella::Iscrizione];
  sessione.CodiceFiscale = testi_[casella::CodiceFiscale];
  sessione.Recapito = testi_[casella::Recapito];
}

void CaselleCatasto1::InCapitali(std::size_t primo, std::size_t ultimo) {
  for (std::size_t i = primo; i <= ultimo; ++i) testi_.at(i) = Maiuscolo(testi_.at(i));
}

void CaselleCatasto1::Pulisci() {
  for (std::size_t i = 0; i < NumeroCaselle; ++i)
    if (i <= casella::Strumentazione || i == casella::Nome) testi_[i] = Taglia(Maiuscolo(InUnCampo(testi_[i])));
}

void CaselleCatasto1::Completa(const Sessione& sessione, const Data& oggi) {
  for (std::size_t i = 0; i < NumeroCaselle; ++i)
    if (Taglia(testi_[i]).empty()) testi_[i] = ValorePredefinito(i, sessione, oggi);
}

std::string CaselleCatasto1::Riga(std::string_view genere, std::size_t primo, std::size_t ultimo) const {
  std::string riga(genere);
  for (std::size_t i = primo; i <= ultimo; ++i)
    riga += "|" + (i == casella::Cognome ? testi_[i] + " " + testi_[casella::Nome] : testi_[i]);
  return riga + "|";
}

} // namespace lirmeto
