#include <fiduciali/elco_pf.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/zero_nove.h>
#include <fiduciali/elco_pf_griglia.h>

#include <algorithm>
#include <set>

namespace lirmeto {

// What could be done in more than one way:
//
//   a TAF of a comune that no table knows   is listed by its code, and has no province
//   a comune without a TAF                  shows an empty table, from which archives can be fetched

namespace {

constexpr std::size_t LungoCodice = 4;
constexpr std::size_t CampoNome = 4;

std::string Riga(const Comune& comune) {
  const std::string_view codice = comune.codice;
  return comune.provincia + "|" + std::string(codice.substr(0, LungoCodice)) + "|" +
         std::string(codice.size() > LungoCodice ? codice.substr(LungoCodice) : std::string_view{}) + "|" +
         comune.campo + "|" + comune.nome;
}

std::string CodiceDi(std::string_view riga) {
  return std::string(Parte(riga, '|', 1)) + std::string(Parte(riga, '|', 2));
}

// Codes of the comuni whose TAF is there.
std::set<std::string, std::less<>> Installati(const Ambiente& ambiente) {
  std::set<std::string, std::less<>> codici;
  for (const std::string& nome : ambiente.disco.Elenca(CartellaArchivi(ambiente.sessione), ".taf"))
    codici.insert(Maiuscolo(nome.substr(0, nome.size() - LungoCodice)));
  return codici;
}

} // namespace

void KR_ElcoPf::AlCaricamento() {
  CaricaProvinceComuni(ambiente_);
  Riempi();
}

void KR_ElcoPf::CambiaText1(std::string_view testo) {
  Text1 = Maiuscolo(testo);
  Riempi();
}

void KR_ElcoPf::CambiaCheck1(bool si) {
  Check1 = si;
  Riempi();
}

void KR_ElcoPf::Riempi() {
  List1.clear();
  Indice = -1;
  auto installati = Installati(ambiente_);
  auto sconosciuti = installati;
  for (const Comune& comune : ambiente_.sessione.Comuni) {
    const std::string_view codice = std::string_view(comune.codice).substr(0, LungoCodice);
    if (const auto noto = sconosciuti.find(codice); noto != sconosciuti.end()) sconosciuti.erase(noto);
    if (!Check1 || installati.contains(codice)) Aggiungi(Riga(comune));
  }
  for (const std::string& codice : sconosciuti) Aggiungi(std::string("|").append(codice).append("|||").append(codice));
}

void KR_ElcoPf::Aggiungi(const std::string& riga) {
  if (!Parte(riga, '|', CampoNome).starts_with(Text1) && !CodiceDi(riga).starts_with(Text1)) return;
  if (CodiceDi(riga) == ambiente_.sessione.CodiceComune || Indice < 0) Indice = static_cast<long>(List1.size());
  List1.push_back(riga);
}

void KR_ElcoPf::Scegli(std::size_t indice) {
  if (indice >= List1.size()) throw Errore(errore::IndiceFuoriIntervallo);
  Indice = static_cast<long>(indice);
}

void KR_ElcoPf::SelezionaComune() {
  if (Indice < 0) return;
  const std::string& riga = List1.at(static_cast<std::size_t>(Indice));
  Sessione& sessione = ambiente_.sessione;
  sessione.CodiceComune = CodiceDi(riga);
  sessione.NomeComune = Taglia(Parte(riga, '|', CampoNome));
  sessione.SiglaProvincia = Parte(riga, '|', 0);
  KR_ElcoPfGriglia griglia(ambiente_, {sessione.CodiceComune, sessione.NomeComune, sessione.SiglaProvincia, {}});
  griglia.Carica();
  ambiente_.finestre.MostraModale(griglia);
  Chiusa = griglia.TuttoChiuso;
}

} // namespace lirmeto
