#include <verifiche/atto.h>

#include <base/estremi.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/campi_riga.h>
#include <core/riga.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace lirmeto {

namespace {

constexpr std::size_t RigaZero = 0;
constexpr std::size_t RigaNove = 1;
constexpr std::size_t MassimoMappali = 39; // characters, commas counted
constexpr double DifferenzaQuota = 200;    // metres: so far a comune's ground may rise above its mean
constexpr double DifferenzaEst = 1000;     // metres: what changes a distance of 1 km by less than a millimetre
constexpr std::size_t CampoEstMedio = 4;

std::string_view Valore0(const Atto& atto, std::size_t campo) {
  return Taglia(Parte(atto.righe.Testo(RigaZero), '|', campo));
}

std::string_view Valore9(const Atto& atto, std::size_t campo) {
  return Taglia(Parte(atto.righe.Testo(RigaNove), '|', campo));
}

int NumeroDa(std::string_view cifre) {
  return static_cast<int>(Valore(cifre));
}

void VerificaData(const Atto& atto, Raccolta& raccolta) {
  const std::string_view testo = Valore0(atto, 1);
  const auto data = LeggiDataRiga(testo);
  if (!data) return raccolta.Riga(RegolaDi("T001"), RigaZero, 1, {testo});
  if (*data > atto.intorno.oggi) raccolta.Riga(RegolaDi("T002"), RigaZero, 1, {testo});
}

void VerificaComune(const Atto& atto, Raccolta& raccolta) {
  const auto* tabella = atto.intorno.comuni;
  if (tabella == nullptr || tabella->empty()) return;
  const std::string_view codice = Valore0(atto, 3);
  const Comune* comune = TrovaComune(*tabella, codice);
  if (comune == nullptr) return raccolta.Riga(RegolaDi("T003"), RigaZero, 3, {codice});
  const std::string_view albo = Valore0(atto, 8);
  const auto* province = atto.intorno.province;
  const CodiceENome* provincia = province == nullptr ? nullptr : TrovaPerCodice(*province, comune->provincia);
  if (provincia == nullptr || albo.empty()) return;
  if (!UgualiSenzaCaso(provincia->nome, albo) && !UgualiSenzaCaso(provincia->codice, albo))
    raccolta.Riga(RegolaDi("T004"), RigaZero, 3, {codice, provincia->nome, albo});
}

void VerificaFoglio(const Atto& atto, Raccolta& raccolta) {
  const std::string_view foglio = Valore0(atto, 4);
  constexpr std::size_t caratteri = 4;
  const bool buono = foglio.size() == caratteri && TutteCifre(foglio.substr(0, caratteri - 1));
  if (!buono) raccolta.Riga(RegolaDi("T005"), RigaZero, 4, {foglio});
}

void VerificaMappali(const Atto& atto, Raccolta& raccolta) {
  const std::string_view mappali = Valore0(atto, 5);
  if (mappali.empty()) return raccolta.Riga(RegolaDi("T006"), RigaZero, 5);
  if (mappali.size() > MassimoMappali)
    raccolta.Riga(RegolaDi("T008"), RigaZero, 5, {TestoIntero(static_cast<long long>(mappali.size()))});
  std::vector<std::string_view> unici;
  std::string_view ripetuto;
  for (const auto parte : Dividi(mappali, ",")) {
    const std::string_view nome = Taglia(parte);
    if (std::find(unici.begin(), unici.end(), nome) == unici.end()) {
      unici.push_back(nome);
    } else {
      ripetuto = nome;
    }
  }
  if (ripetuto.empty()) return;
  raccolta.Riga(RegolaDi("T007"), RigaZero, 5, {ripetuto}, ConCampo(atto.righe.Testo(RigaZero), 5, Unisci(unici, ",")));
}

void VerificaTecnico(const Atto& atto, Raccolta& raccolta) {
  if (!TutteCifre(Valore0(atto, 2))) raccolta.Riga(RegolaDi("T009"), RigaZero, 2, {Valore0(atto, 2)});
  constexpr std::size_t tecnico = 6;
  constexpr std::size_t provincia = 8;
  if (Valore0(atto, tecnico) == "COGNOME NOME") return raccolta.Riga(RegolaDi("T016"), RigaZero, tecnico);
  for (std::size_t campo = tecnico; campo <= provincia; ++campo)
    if (Valore0(atto, campo).empty()) return raccolta.Riga(RegolaDi("T010"), RigaZero, campo);
}

void VerificaQuota(const Atto& atto, Raccolta& raccolta) {
  const std::string_view quota = Valore9(atto, 1);
  const auto& comune = atto.intorno.quotaComune;
  if (!comune || std::fabs(Misura(quota) - *comune) <= DifferenzaQuota) return;
  raccolta.Riga(RegolaDi("T011"), RigaNove, 1, {quota.empty() ? "0" : quota, Formatta(*comune, "0")});
}

// The mean of the lowest and the highest east of the rows 8, as the form of the header computes it.
void VerificaEst(const Atto& atto, Raccolta& raccolta) {
  Estremi est;
  for (const Stima& c : atto.rete.Coordinate()) est.Vedi(c.locale.est);
  if (est.Vuoti()) return;
  const double medio = est.Media();
  const std::string_view scritto = Valore9(atto, CampoEstMedio);
  if (std::fabs(Misura(scritto) - medio) <= DifferenzaEst) return;
  const std::string giusto = Formatta(medio, "0");
  const std::string_view riga = atto.righe.Testo(RigaNove);
  std::string rimedio; // a row that is too short has no place for it
  if (QuanteParti(riga, '|') > CampoEstMedio) rimedio = ConCampo(riga, CampoEstMedio, giusto);
  raccolta.Riga(RegolaDi("T012"), RigaNove, CampoEstMedio, {scritto.empty() ? "0" : scritto, giusto},
                std::move(rimedio));
}

bool TipologiaNota(std::string_view tipologia) {
  constexpr std::array<std::string_view, 8> sigle = {"FR", "MC", "TM", "CM", "SC", "FM", "PA", "TR"};
  if (tipologia.size() == 2 && TutteCifre(tipologia)) return true;
  return std::find(sigle.begin(), sigle.end(), tipologia) != sigle.end();
}

void VerificaRigaNove(const Atto& atto, Raccolta& raccolta) {
  constexpr std::size_t versione = 5;
  constexpr std::size_t tipologia = 6;
  for (const std::size_t campo : {std::size_t{2}, std::size_t{3}})
    if (!(Valore(Valore9(atto, campo)) > 0)) raccolta.Riga(RegolaDi("T013"), RigaNove, campo);
  if (Valore9(atto, versione).find_first_of("0123456789") == std::string_view::npos)
    raccolta.Riga(RegolaDi("T014"), RigaNove, versione, {Valore9(atto, versione)});
  if (!TipologiaNota(Valore9(atto, tipologia)))
    raccolta.Riga(RegolaDi("T015"), RigaNove, tipologia, {Valore9(atto, tipologia)});
}

void VerificaFuoriPosto(const Atto& atto, Raccolta& raccolta) {
  for (std::size_t i = 0; i < atto.righe.Quante(); ++i) {
    const auto genere = atto.righe[i].genere;
    const bool fuori = (genere == 0 && i != RigaZero) || (genere == 9 && i != RigaNove);
    if (fuori) raccolta.Riga(RegolaDi("L019"), i, 0, {TestoIntero(genere)});
  }
}

// The number of fields, which the rows by themselves cannot tell: the two rows are known by their place.
void VerificaCampi(const Atto& atto, std::size_t riga, std::int8_t genere, std::size_t campi, Raccolta& raccolta) {
  const std::size_t quanti = QuantiCampi(Campi(atto.righe.Testo(riga)));
  if (atto.righe[riga].genere != genere || quanti == campi) return;
  raccolta.Riga(
      RegolaDi("L002"), riga, 0,
      {TestoIntero(genere), TestoIntero(static_cast<long long>(quanti)), TestoIntero(static_cast<long long>(campi))});
}

} // namespace

std::optional<Data> LeggiDataRiga(std::string_view testo) {
  constexpr std::size_t intera = 8;
  constexpr std::size_t breve = 6;
  if (!TutteCifre(testo) || (testo.size() != intera && testo.size() != breve)) return std::nullopt;
  const int scritto = NumeroDa(testo.substr(4));
  constexpr int primoDelNovecento = 80; // a year of two digits below it is of the two thousands
  int anno = scritto;
  if (testo.size() == breve) anno += scritto < primoDelNovecento ? 2000 : 1900;
  const Data data{anno, NumeroDa(testo.substr(2, 2)), NumeroDa(testo.substr(0, 2))};
  constexpr int primoAnno = 1900; // no act is older
  return data.anno >= primoAnno && NelCalendario(data) ? std::optional(data) : std::nullopt;
}

void VerificaTestata(const Atto& atto, Raccolta& raccolta) {
  VerificaFuoriPosto(atto, raccolta);
  constexpr std::size_t campiZero = 9;
  constexpr std::size_t campiNove = 8;
  if (atto.righe.Quante() < 2) return;
  VerificaCampi(atto, RigaZero, 0, campiZero, raccolta);
  VerificaCampi(atto, RigaNove, 9, campiNove, raccolta);
  VerificaData(atto, raccolta);
  VerificaComune(atto, raccolta);
  VerificaFoglio(atto, raccolta);
  VerificaMappali(atto, raccolta);
  VerificaTecnico(atto, raccolta);
  VerificaQuota(atto, raccolta);
  VerificaEst(atto, raccolta);
  VerificaRigaNove(atto, raccolta);
}

} // namespace lirmeto
