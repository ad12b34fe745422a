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

constexpr std::array<ComandoCli, 5> Comandi = {{
    {"righe", "elenca le righe: indice, genere, riga", ArgomentoCli::File, ComandoRighe},
    {"intestazione", "i valori che vengono dalle righe 0 e 9", ArgomentoCli::File, ComandoIntestazione},
    {"salva", "il libretto come si salva", ArgomentoCli::File, ComandoSalva},
    {"riordina", "il libretto con le righe nell'ordine di Pregeo", ArgomentoCli::File, ComandoRiordina},
    {"comuni", "la tabella dei comuni: codice, provincia, nome, campo", ArgomentoCli::TestoFacoltativo, ComandoComuni},
}};

bool IniziaCon(std::string_view testo, std::string_view inizio) {
  return testo.substr(0, inizio.size()) == inizio;
}

} // namespace

std::span<const ComandoCli> ComandiCli() {
  return Comandi;
}

std::string ComandoRighe(Ambiente& ambiente, const std::string& percorso) {
  ApriEdElenca(ambiente, percorso);
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

std::string ComandoIntestazione(Ambiente& ambiente, const std::string& percorso) {
  ApriEdElenca(ambiente, percorso);
  std::string uscita;
  for (const auto& [nome, valore] : ValoriIntestazione)
    uscita += std::string(nome) + "=" + AUtf8(ambiente.sessione.*valore) + "\n";
  return uscita;
}

std::string ComandoSalva(Ambiente& ambiente, const std::string& percorso) {
  ApriEdElenca(ambiente, percorso);
  AggiornaLibrettoMisure(ambiente);
  return TestoDaSalvare(std::move(ambiente.sessione.Libretto), ambiente.sessione);
}

std::string ComandoRiordina(Ambiente& ambiente, const std::string& percorso) {
  ApriEdElenca(ambiente, percorso);
  AggiornaLibrettoMisure(ambiente);
  {
    FormRiordinoRighe riordino(ambiente);
    riordino.EsplodiLibretto();
    riordino.RicomponiLibretto();
  }
  CaricaLibrettoInList1(ambiente);
  AggiornaLibrettoMisure(ambiente);
  return TestoDaSalvare(std::move(ambiente.sessione.Libretto), ambiente.sessione);
}

std::string ComandoComuni(Ambiente& ambiente, const std::string& testo) {
  const std::string cercato = Maiuscolo(testo);
  std::string uscita;
  for (const Comune& comune : ambiente.sessione.Comuni)
    if (IniziaCon(Maiuscolo(comune.nome), cercato) || Maiuscolo(comune.codice) == cercato)
      uscita += AUtf8(comune.codice + "\t" + comune.provincia + "\t" + comune.nome + "\t" + comune.campo) + "\n";
  return uscita;
}

} // namespace lirmeto
