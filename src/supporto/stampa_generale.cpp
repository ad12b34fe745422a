#include <supporto/stampa_generale.h>

#include <base/errore.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/carattere.h>
#include <core/mostra_errore.h>
#include <core/programmi.h>
#include <core/zero_nove.h>
#include <supporto/editor_gen.h>
#include <supporto/modello_stampa.h>

#include <algorithm>
#include <array>
#include <memory>
#include <utility>

namespace lirmeto {

namespace {

// The setting that the program for .CSV files reads too.
constexpr std::string_view SezioneVisualizzatore = "VisualizzatoreXLS";
constexpr std::string_view ChiaveVisualizzatore = "Visualizzatore";
constexpr std::string_view SenzaVisualizzatore = "Default";
constexpr std::string_view TitoloVisualizzatore = "Seleziona Editor";

std::string FileCarattere(const Sessione& sessione) {
  return sessione.CartellaProgramma + "\\CarattereStampa.ini";
}

// Files that a word processor leaves beside a document while it is open.
bool FileDiServizio(std::string_view nome) {
  return nome.starts_with('.') || nome.starts_with("~$");
}

// The path of a model filled for the open libretto. Without a libretto's file there is no place for it.
std::string PercorsoCompilato(const Sessione& sessione, const std::string& nomeModello) {
  if (sessione.NomeFileLibretto.empty())
    throw Errore(errore::NomeFileNonValido,
                 "Il Libretto non ha ancora un file: va salvato prima di compilare un modello");
  return sessione.NomeFileLibretto + "_" + nomeModello;
}

} // namespace

void KR_StampaGenerale::AlCaricamento() {
  Prova({}, &KR_StampaGenerale::ElencaModelli);
  MostraVisualizzatore();
  AllAttivazione();
}

void KR_StampaGenerale::AllAttivazione() {
  // The message of an error makes the window active once more when it closes: without this it would never end.
  if (!carattereLeggibile_) return;
  carattereLeggibile_ = Intrappola(ambiente_, [&] {
    if (const auto letto = LeggiCarattere(ambiente_, FileCarattere(ambiente_.sessione))) CarattereLista = *letto;
  });
}

void KR_StampaGenerale::Prova(std::string_view posto, void (KR_StampaGenerale::*comando)()) {
  ambiente_.sessione.PuntoErrore = Titolo + std::string(posto);
  (void)Intrappola(ambiente_, [&] { (this->*comando)(); });
}

void KR_StampaGenerale::Esegui(int indice) {
  ambiente_.sessione.PuntoErrore = Titolo + " Buttonplus1_Click";
  (void)Intrappola(ambiente_, [&] { EseguiComando(indice); });
}

void KR_StampaGenerale::EseguiComando(int indice) {
  using F = KR_StampaGenerale;
  static constexpr auto azioni = std::to_array<std::pair<int, void (F::*)()>>({
      {ChiudiForm, &F::Chiudi},
      {StampaLista, &F::Stampa},
      {CopiaLista, &F::CopiaNegliAppunti},
      {ScegliCarattere, &F::CambiaCarattere},
      {ScegliStampante, &F::CambiaStampante},
      {ModificaLista, &F::Modifica},
      {TogliCarattere, &F::TogliPrimoCarattere},
      {AggiungiBianco, &F::MettiBiancoDavanti},
      {TogliPrimaRiga, &F::TogliLaPrima},
      {AggiungiRiga, &F::MettiRigaDavanti},
      {CompilaIlModello, &F::Compila},
      {AggiornaModelli, &F::ElencaModelli},
      {ScegliVisualizzatore, &F::CambiaVisualizzatore},
      {DimenticaVisualizzatore, &F::LasciaVisualizzatore},
      {ApriCsv, &F::ApriReportCsv},
  });
  const auto azione = std::ranges::find(azioni, indice, &std::pair<int, void (F::*)()>::first);
  if (azione == azioni.end()) throw Errore(errore::IndiceFuoriIntervallo);
  (this->*azione->second)();
}

void KR_StampaGenerale::CambiaStampante() {
  ambiente_.sessione.PuntoErrore = Titolo + " BotNew1 4";
  ambiente_.dialoghi.ScegliStampante();
}

void KR_StampaGenerale::Modifica() {
  subModificaStampa(ambiente_, List1);
}

void KR_StampaGenerale::TogliLaPrima() {
  if (!List1.empty()) List1.Togli(0);
}

void KR_StampaGenerale::MettiRigaDavanti() {
  List1.Inserisci(0, " ");
}

void KR_StampaGenerale::LasciaVisualizzatore() {
  ambiente_.impostazioni.Scrivi(SezioneVisualizzatore, ChiaveVisualizzatore, "");
  MostraVisualizzatore();
}

void KR_StampaGenerale::Chiudi() {
  ambiente_.sessione.NomeBaseStampa.clear();
  Chiusa = true;
}

void KR_StampaGenerale::Stampa() {
  const std::string& base = ambiente_.sessione.NomeBaseStampa;
  Stampato stampato{{List1.begin(), List1.end()}, CarattereLista, Option1, Titolo, NumeriDiPagina};
  if (!base.empty()) stampato.titolo = NomeDaPercorso(base);
  ambiente_.dialoghi.Stampa(stampato);
  Chiudi();
}

void KR_StampaGenerale::CopiaNegliAppunti() {
  ambiente_.appunti.MettiTesto(RigheUnite(List1));
}

void KR_StampaGenerale::CambiaCarattere() {
  ambiente_.sessione.PuntoErrore = Titolo + " Buttonplus1 3";
  const Carattere scelto = ambiente_.dialoghi.ScegliCarattere(CarattereLista);
  CarattereLista = scelto;
  ScriviCarattere(ambiente_, FileCarattere(ambiente_.sessione), scelto);
}

void KR_StampaGenerale::TogliPrimoCarattere() {
  for (std::size_t i = 0; i < List1.size(); ++i)
    if (!List1[i].empty()) List1.CambiaVista(i, List1[i].substr(1));
}

void KR_StampaGenerale::MettiBiancoDavanti() {
  auto testo = std::make_shared<std::string>();
  std::vector<std::size_t> fini;
  fini.reserve(List1.size());
  for (const auto riga : List1) fini.push_back((*testo += ' ').append(riga).size());
  ListaRighe nuova;
  nuova.Tieni(testo);
  nuova.Riserva(fini.size());
  std::size_t inizio = 0;
  for (const std::size_t fine : fini) {
    nuova.AggiungiVista(std::string_view(*testo).substr(inizio, fine - inizio));
    inizio = fine;
  }
  List1 = std::move(nuova);
}

std::string KR_StampaGenerale::CartellaModelli() const {
  return ambiente_.sessione.CartellaProgramma + "\\MODELLI_STAMPA";
}

// The chosen model stays chosen when it is still there.
void KR_StampaGenerale::ElencaModelli() {
  const std::string scelto = ModelloScelto < 0 ? std::string() : File1.at(static_cast<std::size_t>(ModelloScelto));
  File1 = ambiente_.disco.Elenca(CartellaModelli(), "");
  std::erase_if(File1, FileDiServizio);
  ModelloScelto = -1;
  for (std::size_t i = 0; i < File1.size(); ++i)
    if (File1[i] == scelto) ModelloScelto = static_cast<long>(i);
}

void KR_StampaGenerale::Compila() {
  if (ModelloScelto < 0) return;
  const std::string& nome = File1.at(static_cast<std::size_t>(ModelloScelto));
  DecoZeroNove(ambiente_);
  const std::string percorso = PercorsoCompilato(ambiente_.sessione, nome);
  const std::string modello = LeggiModello(ambiente_, CartellaModelli() + "\\" + nome);
  ambiente_.disco.Scrivi(percorso, CompilaModello(modello, ambiente_.sessione, List1));
  ambiente_.processi.ApriDocumento(percorso);
}

void KR_StampaGenerale::DoppioClickModello() {
  Prova(" File1_DblClick", &KR_StampaGenerale::ApriModello);
}

void KR_StampaGenerale::ApriModello() {
  if (ModelloScelto < 0) return;
  ambiente_.processi.ApriDocumento(CartellaModelli() + "\\" + File1.at(static_cast<std::size_t>(ModelloScelto)));
}

void KR_StampaGenerale::ApriTesto() {
  Prova(" mnuEditor_Click", &KR_StampaGenerale::ApriReportTesto);
}

void KR_StampaGenerale::ApriReportTesto() {
  const std::string& base = ambiente_.sessione.NomeBaseStampa;
  if (!base.empty()) ambiente_.processi.ApriDocumento(base + ".TXT");
}

std::string KR_StampaGenerale::Visualizzatore() const {
  return ambiente_.impostazioni.Leggi(SezioneVisualizzatore, ChiaveVisualizzatore, "");
}

void KR_StampaGenerale::MostraVisualizzatore() {
  const std::string scelto = Visualizzatore();
  Label3 = scelto.empty() ? SenzaVisualizzatore : NomeDaPercorso(scelto);
}

// The filter of all files is for hosts whose programs have no extension.
void KR_StampaGenerale::CambiaVisualizzatore() {
  std::string scelto;
  try {
    scelto = Maiuscolo(ambiente_.dialoghi.ScegliFileDaAprire(
        {std::string(TitoloVisualizzatore), {}, {}, "Editor (*.EXE);;Tutti i file (*)"}));
  } catch (const Errore& errore) {
    if (errore.Numero() != errore::DialogoAnnullato) throw;
  }
  if (scelto.empty()) return ambiente_.dialoghi.Messaggio("Nessuna Editor selezionato!", TitoloVisualizzatore);
  ambiente_.impostazioni.Scrivi(SezioneVisualizzatore, ChiaveVisualizzatore, scelto);
  MostraVisualizzatore();
}

// A viewer that cannot be started leaves the form open, so that another one can be chosen.
void KR_StampaGenerale::ApriReportCsv() {
  const std::string& base = ambiente_.sessione.NomeBaseStampa;
  if (base.empty()) return;
  const std::string file = base + ".CSV";
  const std::string scelto = Visualizzatore();
  if (Option3 == AperturaCsv::Pernico)
    ApriConPernico(file);
  else if (scelto.empty())
    ambiente_.processi.ApriDocumento(file);
  else
    ambiente_.processi.ApriDocumentoCon(scelto, file);
  Chiudi();
}

// The sibling program stands where the others of the suite do, which is the folder the suite is started in. Where it is
// not installed the form just closes; how it ends is its own matter.
void KR_StampaGenerale::ApriConPernico(const std::string& file) {
  try {
    AttendiProgramma(ambiente_, ambiente_.sessione.CartellaProgrammi + "\\Gondella\\Pernico.exe", {file});
  } catch (const Errore& errore) {
    if (errore.Numero() != errore::FileNonTrovato) throw;
  }
}

void MostraStampaGenerale(Ambiente& ambiente, ListaRighe righe, const std::string& nomeBase) {
  ambiente.sessione.NomeBaseStampa = nomeBase;
  KR_StampaGenerale form(ambiente);
  form.List1 = std::move(righe);
  form.AlCaricamento();
  ambiente.finestre.MostraModale(form);
  ambiente.sessione.NomeBaseStampa.clear();
}

void StampaConFile(Ambiente& ambiente, ListaRighe righe, std::string_view csv, const std::string& nomeBase) {
  std::string testo;
  for (const auto riga : righe) testo.append(riga).append(FineRiga);
  ambiente.disco.Scrivi(nomeBase + ".CSV", csv);
  ambiente.disco.Scrivi(nomeBase + ".TXT", testo);
  MostraStampaGenerale(ambiente, std::move(righe), nomeBase);
}

} // namespace lirmeto
