#include <cli/comandi.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/riga.h>
#include <core/riordino.h>
#include <core/salvataggio.h>

#include <array>
#include <utility>

namespace lirmeto {

namespace {

void ApriEdElenca(Ambiente& ambiente, const std::string& percorso) {
  ApriLibretto(ambiente, percorso);
  CaricaLibrettoInList1(ambiente);
}

struct ValoreIntestazione {
  std::string_view nome;
  std::string Sessione::*valore;
};

constexpr std::array<ValoreIntestazione, 26> ValoriIntestazione = {{
    {"DataLibretto", &Sessione::DataLibretto},
    {"Protocollo", &Sessione::Protocollo},
    {"ProtocolloPregeo", &Sessione::ProtocolloPregeo},
    {"AnnoLibretto", &Sessione::AnnoLibretto},
    {"CodiceComune", &Sessione::CodiceComune},
    {"NomeComune", &Sessione::NomeComune},
    {"SiglaProvincia", &Sessione::SiglaProvincia},
    {"NomeProvincia", &Sessione::NomeProvincia},
    {"Foglio", &Sessione::Foglio},
    {"Mappali", &Sessione::Mappali},
    {"Tecnico", &Sessione::Tecnico},
    {"Cognome", &Sessione::Cognome},
    {"Nome", &Sessione::Nome},
    {"Qualifica", &Sessione::Qualifica},
    {"Provincia", &Sessione::Provincia},
    {"QuotaMedia", &Sessione::QuotaMedia},
    {"PrecisioneLineare", &Sessione::PrecisioneLineare},
    {"PrecisioneAngolare", &Sessione::PrecisioneAngolare},
    {"EstMedio", &Sessione::EstMedio},
    {"TipologiaRilievo", &Sessione::TipologiaRilievo},
    {"Strumentazione", &Sessione::Strumentazione},
    {"ClasseAtto", &Sessione::ClasseAtto},
    {"NomeFascicolo", &Sessione::NomeFascicolo},
    {"EstrattoAssociato", &Sessione::EstrattoAssociato},
    {"CodiceFiscale", &Sessione::CodiceFiscale},
    {"NumeroIscrizione", &Sessione::NumeroIscrizione},
}};

bool IniziaCon(std::string_view testo, std::string_view inizio) {
  return testo.substr(0, inizio.size()) == inizio;
}

// Rows of the list: index TAB kind TAB row, UTF-8.
std::string ComandoRighe(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  ApriEdElenca(ambiente, argomenti[0]);
  std::string uscita;
  std::size_t indice = 0;
  for (const std::string_view riga : ambiente.sessione.List1.Righe()) {
    uscita += TestoIntero(static_cast<long long>(indice++));
    uscita += '\t';
    uscita += TestoPieno(GenereRiga(riga));
    uscita += '\t';
    uscita += AUtf8(riga);
    uscita += '\n';
  }
  return uscita;
}

// What rows 0 and 9 say: Name=value, UTF-8.
std::string ComandoIntestazione(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  ApriEdElenca(ambiente, argomenti[0]);
  std::string uscita;
  for (const auto& [nome, valore] : ValoriIntestazione)
    uscita += std::string(nome) + "=" + AUtf8(ambiente.sessione.*valore) + "\n";
  return uscita;
}

// The bytes of the libretto saved as it stands.
std::string ComandoSalva(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  ApriEdElenca(ambiente, argomenti[0]);
  AggiornaLibrettoMisure(ambiente);
  RendiScrivibili(ambiente);
  return TestoDaSalvare(std::move(ambiente.sessione.Libretto), ambiente.sessione);
}

// The bytes of the libretto saved in Pregeo's order.
std::string ComandoRiordina(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  ApriEdElenca(ambiente, argomenti[0]);
  AggiornaLibrettoMisure(ambiente);
  subRiordinoRighe(ambiente);
  AggiornaLibrettoMisure(ambiente);
  RendiScrivibili(ambiente);
  return TestoDaSalvare(std::move(ambiente.sessione.Libretto), ambiente.sessione);
}

// Rows of the municipal table whose name begins with the text or whose code it is, without regard to case; all for an
// empty text. Code TAB province TAB name TAB the four characters, UTF-8.
std::string ComandoComuni(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  const std::string cercato = Maiuscolo(argomenti[0]);
  std::string uscita;
  for (const Comune& comune : ambiente.sessione.Comuni)
    if (IniziaCon(Maiuscolo(comune.nome), cercato) || Maiuscolo(comune.codice) == cercato)
      uscita += AUtf8(comune.codice + "\t" + comune.provincia + "\t" + comune.nome + "\t" + comune.campo) + "\n";
  return uscita;
}

constexpr ArgomentoCli Ricerca[] = {
    {"TESTO", GenereArgomento::TestoFacoltativo, "inizio del nome, o codice; senza: tutti"}};

constexpr std::array<ComandoCli, 5> Comandi = {{
    {"righe", "elenca le righe: indice, genere, riga", UnFile, ComandoRighe},
    {"intestazione", "i valori che vengono dalle righe 0 e 9", UnFile, ComandoIntestazione},
    {"salva", "il libretto come si salva", UnFile, ComandoSalva},
    {"riordina", "il libretto con le righe nell'ordine di Pregeo", UnFile, ComandoRiordina},
    {"comuni", "la tabella dei comuni: codice, provincia, nome, campo", Ricerca, ComandoComuni},
}};

} // namespace

FamigliaCli ComandiLibretto() {
  return {"", "", Comandi};
}

} // namespace lirmeto
