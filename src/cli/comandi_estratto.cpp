// The commands on map extracts. None asks a question and none changes the file given: each gives the bytes that the
// save would write.
#include <cli/comandi.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <estratti/autoallestito.h>
#include <estratti/da_cxf.h>
#include <estratti/dati_estratto.h>
#include <estratti/kr_estratto.h>
#include <estratti/modifiche_estratto.h>
#include <estratti/unione_estratti.h>

#include <array>

namespace lirmeto {

namespace {

// Whether the extract was read; an error has been told already when it was not.
bool Carica(Ambiente& ambiente, KR_Estratto& estratto, const std::string& percorso) {
  if (EsplodiEstratto(ambiente, estratto, percorso)) return true;
  if (ambiente.sessione.NumeroErrore == 0) throw Errore(errore::FileNonTrovato);
  return false;
}

constexpr std::array<std::pair<std::string_view, std::string Sessione::*>, 9> ValoriEstratto = {{
    {"EstrattoData", &Sessione::EstrattoData},
    {"EstrattoComune", &Sessione::EstrattoComune},
    {"EstrattoProvincia", &Sessione::EstrattoProvincia},
    {"EstrattoFoglio", &Sessione::EstrattoFoglio},
    {"EstrattoParticelle", &Sessione::EstrattoParticelle},
    {"EstrattoMesi", &Sessione::EstrattoMesi},
    {"EstrattoEstMedio", &Sessione::EstrattoEstMedio},
    {"VersionePregeoEstratto", &Sessione::VersionePregeoEstratto},
    {"TipoEstratto", &Sessione::TipoEstratto},
}};

// What the extract says of itself: Name=value, UTF-8.
std::string ComandoMostra(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  KR_Estratto estratto;
  if (!Carica(ambiente, estratto, argomenti[0])) return {};
  RiconosciEstratto(ambiente.sessione, CaricaFileIntero(ambiente, argomenti[0]));
  std::string uscita;
  for (const auto& [nome, valore] : ValoriEstratto)
    uscita += std::string(nome) + "=" + AUtf8(ambiente.sessione.*valore) + "\n";
  return uscita + "Scadenza=" + AUtf8(ScadenzaEstratto(ambiente.sessione)) + "\n";
}

std::string ComandoSalva(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  KR_Estratto estratto;
  if (!Carica(ambiente, estratto, argomenti[0])) return {};
  return TestoEstratto(ambiente, estratto);
}

std::string ComandoPulisci(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  KR_Estratto estratto;
  if (!Carica(ambiente, estratto, argomenti[0])) return {};
  EliminaPuntiIsolati(estratto);
  return TestoEstratto(ambiente, estratto);
}

std::string ComandoElimina(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  KR_Estratto estratto;
  if (!Carica(ambiente, estratto, argomenti[0])) return {};
  EliminaParticellaEstratto(estratto, argomenti[1]);
  return TestoEstratto(ambiente, estratto);
}

// Without both names there is nothing to rename.
std::string ComandoRinomina(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  if (argomenti[1].empty()) throw Errore(errore::ArgomentoNonValido, "Indicare il nome Attuale della particella!");
  if (argomenti[2].empty()) throw Errore(errore::ArgomentoNonValido, "Indicare il nome Nuovo della particella!");
  return RinominaParticella(CaricaFileIntero(ambiente, argomenti[0]), argomenti[1], argomenti[2]);
}

std::string ComandoAutoallestito(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return TrasformaInAutoallestito(CaricaFileBinario(ambiente, argomenti[0]));
}

// In the order given, each joined to what those before it made.
std::string ComandoSomma(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  std::string somma = CaricaFileBinario(ambiente, argomenti[0]);
  for (std::size_t i = 1; i < argomenti.size(); ++i)
    somma = UnisciEstratti(std::move(somma), CaricaFileBinario(ambiente, argomenti[i]));
  return somma;
}

std::string ComandoCxf(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return EmpDaCxf(ambiente, argomenti[0]);
}

constexpr ArgomentoCli FileEAltri[] = {{"FILE", GenereArgomento::File, "primo estratto"},
                                       {"ALTRI", GenereArgomento::AltriFile, "estratti da aggiungere"}};

constexpr ArgomentoCli FileEParticella[] = {
    {"FILE", GenereArgomento::File, "file da aprire"},
    {"PARTICELLA", GenereArgomento::Testo, "nome della particella, col suo segno"}};

constexpr ArgomentoCli FileEDueNomi[] = {{"FILE", GenereArgomento::File, "file da aprire"},
                                         {"ATTUALE", GenereArgomento::Testo, "nome attuale della particella"},
                                         {"NUOVO", GenereArgomento::Testo, "nome nuovo"}};

constexpr std::array<ComandoCli, 7> Comandi = {{
    {"mostra", "i valori dell'estratto e la sua scadenza", UnFile, ComandoMostra},
    {"salva", "l'estratto come si salva", UnFile, ComandoSalva},
    {"pulisci", "l'estratto senza i punti isolati", UnFile, ComandoPulisci},
    {"elimina", "l'estratto senza una particella", FileEParticella, ComandoElimina},
    {"rinomina", "l'estratto con una particella rinominata", FileEDueNomi, ComandoRinomina},
    {"autoallestito", "l'estratto come autoallestito", UnFile, ComandoAutoallestito},
    {"somma", "la somma di due o più estratti", FileEAltri, ComandoSomma},
}};

constexpr std::array<ComandoCli, 1> ComandiDelFoglio = {{
    {"cxf", "da un foglio CXF, col suo SUP, a un estratto", UnFile, ComandoCxf},
}};

} // namespace

FamigliaCli ComandiEstratto() {
  return {"estratto", "estratti di mappa", Comandi};
}

FamigliaCli ComandiFoglio() {
  return {"", "", ComandiDelFoglio};
}

} // namespace lirmeto
