// The commands of the extract manager.
#include <estratti/estratti_di_mappa.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/apri_form.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/nomi_forme.h>
#include <core/riga.h>
#include <core/tabelle.h>
#include <estratti/archivi_estratto.h>
#include <estratti/autoallestito.h>
#include <estratti/completa_autoallestito.h>
#include <estratti/copia_estratto.h>
#include <estratti/da_cxf.h>
#include <estratti/file_estratto.h>
#include <estratti/kr_estratto.h>
#include <estratti/modifiche_estratto.h>
#include <estratti/somma_estratti.h>
#include <supporto/stampa_generale.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto {

// How the commands work, where it could be done in more than one way:
//
//   nothing selected                    "Selezionare un Estratto!", where a command has no words of its own for it
//   a raster, for a command on rows     nothing happens: the window does not offer it
//   quick copy over an extract          asks as the duplicate does
//   a new name that ends in ".EMP"      is taken without it
//   a duplicate onto its own name       nothing happens
//   an extract without a raster         is duplicated and renamed alone
//   the export                          gets ".EMP" behind a name that has it not
//   a last row that is the first        is written once

namespace {

using Manager = KR_EstrattiDiMappa1;
constexpr std::string_view SelezionareEstratto = "Selezionare un Estratto!";
constexpr std::string_view OperazioneImpossibile = "Operazione Impossibile!";
constexpr std::array<std::string_view, 2> EmpEPng = {".EMP", ".PNG"};
constexpr std::string_view FiltroImporta =
    "Importa EdM *.EMP (*.EMP *.emp);;*.PNG (*.PNG *.png);;Estratto ZIP *.ZIP (*.ZIP *.zip)";
constexpr std::string_view FiltroEsporta = "Esporta EdM *.EMP (*.EMP *.emp)";

std::string ConEmp(std::string_view nome) {
  return std::string(nome) + (FinisceConSenzaCaso(nome, ".EMP") ? "" : ".EMP");
}

std::string UltimiCaratteri(std::string_view testo, std::size_t quanti) {
  return std::string(Taglia(testo.substr(testo.size() - std::min(quanti, testo.size()))));
}

} // namespace

std::string VuotaEstratto(std::string_view testo) {
  const std::string file = ConFineRiga(testo);
  const auto righe = RigheDi(file);
  std::string uscita;
  if (!righe.empty()) uscita.append(righe.front()).append(FineRiga);
  if (righe.size() > 1) uscita.append(righe.back()).append(FineRiga);
  return uscita;
}

std::span<const Manager::Pulsante> KR_EstrattiDiMappa1::Pulsanti() {
  static constexpr std::array pulsanti = {
      Pulsante{0, "Chiudi", "Chiude la finestra", false, &Manager::Chiudi},
      Pulsante{2, "Importa", "Importa un estratto .EMP, .PNG o .ZIP nella cartella Estratti", false,
               &Manager::ImportaEstrattoDiMappa},
      Pulsante{27, "Da CXF", "Converte un foglio di mappa .CXF in un estratto", false, &Manager::ConvertiCxf},
      Pulsante{21, "Esporta", "Copia l'estratto in un'altra cartella", true, &Manager::Esporta},
      Pulsante{3, "Somma", "Unisce altri estratti a quello selezionato", true, &Manager::Somma},
      Pulsante{6, "Copia", "Copia l'estratto col nome seguito da 1", true, &Manager::CopiaRapida},
      Pulsante{8, "Elimina", "Elimina tutti i file dell'estratto", false, &Manager::EliminaEstrattoDiMappa},
      Pulsante{9, "Vuota", "Tiene solo la prima e l'ultima riga", true, &Manager::Vuota},
      Pulsante{10, "Autoallestito", "Trasforma l'estratto in autoallestito", true, &Manager::Autoallestisci},
      Pulsante{19, "Isolati", "Elimina i punti che non stanno in alcuna particella", true, &Manager::TogliPuntiIsolati},
      Pulsante{22, "Intestatari", "Archivia gli intestatari e li toglie dall'estratto", true,
               &Manager::ArchiviaIntestatari},
      Pulsante{23, "Provvisorio", "Crea l'estratto provvisorio", false, &Manager::EstrattoProvvisorio},
      Pulsante{16, "Particelle", "Archivio Particelle", false, &Manager::ApriArchivioParticelle},
      Pulsante{18, "Stampa", "Stampa il testo mostrato", true, &Manager::Stampa},
      Pulsante{15, "Associa", "Associa l'estratto al libretto e chiude", true, &Manager::AssociaEstratto},
      Pulsante{11, "Duplica", "Copia l'estratto col nome nuovo", false, &Manager::Duplica},
      Pulsante{12, "Rinomina", "Cambia nome all'estratto", false, &Manager::Rinomina},
      Pulsante{13, "Elimina", "Elimina la particella dall'estratto", true, &Manager::EliminaParticella},
      Pulsante{14, "Rinomina", "Cambia nome alla particella", true, &Manager::RinominaLaParticella},
  };
  return pulsanti;
}

bool KR_EstrattiDiMappa1::Abilitato(const Pulsante& pulsante) const {
  if (pulsante.azione == &Manager::ApriArchivioParticelle)
    return ambiente_.finestre.Disponibile(forma::ModelloCensuario);
  if (pulsante.azione == &Manager::EstrattoProvvisorio)
    return ambiente_.finestre.Disponibile(forma::EstrattoProvvisorio);
  return !pulsante.soloEmp || Indice < 0 || FinisceConSenzaCaso(Selezionato(), ".EMP");
}

void KR_EstrattiDiMappa1::Premi(int indice) {
  AnteprimaEstratto3();
  for (const Pulsante& pulsante : Pulsanti())
    if (pulsante.indice == indice) Prova(forma::EstrattiDiMappa, [&] { (this->*pulsante.azione)(); });
}

bool KR_EstrattiDiMappa1::Conferma(const std::string& domanda, std::string_view titolo) {
  return ambiente_.dialoghi.Chiedi(domanda, titolo, Bottoni::SiNo) == Risposta::Si;
}

// Whether an .EMP is selected; with nothing selected the user is told.
bool KR_EstrattiDiMappa1::SceltoEmp(std::string_view avviso, std::string_view titolo) {
  if (Indice < 0) ambiente_.dialoghi.Messaggio(avviso, titolo);
  return Indice >= 0 && FinisceConSenzaCaso(Selezionato(), ".EMP");
}

// --- files

void KR_EstrattiDiMappa1::Importa(const std::string& percorso) {
  ImportaFileInEstratti(ambiente_, percorso);
  Aggiorna();
  SelezionaNome(ambiente_.sessione.EstrattoAssociato);
  AnteprimaEstratto3();
}

void KR_EstrattiDiMappa1::ImportaEstrattoDiMappa() {
  ambiente_.sessione.PuntoErrore = "Importa_Estrattodimappa";
  Importa(ambiente_.dialoghi.ScegliFileDaAprire({"", "", "", std::string(FiltroImporta)}));
}

void KR_EstrattiDiMappa1::Lascia(const std::string& percorso) {
  Prova("Importa_Estrattodimappa", [&] { Importa(percorso); });
  Aggiorna();
}

void KR_EstrattiDiMappa1::ConvertiCxf() {
  DaCXFaEMP(ambiente_);
  Aggiorna();
  AnteprimaEstratto3();
}

void KR_EstrattiDiMappa1::Esporta() {
  if (!SceltoEmp(SelezionareEstratto)) return;
  const std::string dove = ambiente_.dialoghi.ScegliFileDaSalvare(
      {"Esporta Estratto di Mappa", "", Selezionato(), std::string(FiltroEsporta)});
  ambiente_.disco.Copia(Percorso(Selezionato()), ConEmp(dove));
}

void KR_EstrattiDiMappa1::CopiaRapida() {
  if (!SceltoEmp(SelezionareEstratto)) return;
  const std::string gambo(Gambo(Selezionato()));
  if (!ConfermaSostituzione(ambiente_, gambo + "1")) return;
  for (const std::string& nome : FileDelGambo(ambiente_, gambo))
    for (const std::string_view estensione : {".EMP", ".PNG", ".TIF", ".JPG"})
      if (FinisceConSenzaCaso(nome, estensione))
        ambiente_.disco.Copia(Percorso(nome), Percorso(gambo + "1" + std::string(estensione)));
  Aggiorna();
  AnteprimaEstratto3();
}

void KR_EstrattiDiMappa1::EliminaEstrattoDiMappa() {
  ambiente_.sessione.PuntoErrore = "EliminaEstrattoDiMappa";
  if (Indice < 0) return ambiente_.dialoghi.Messaggio("Selezionare un estratto!");
  const std::string gambo(Gambo(Selezionato()));
  if (!Conferma("Eliminare Estratto : \r\n\r\n" + gambo + ".* ?? ", "Elimina Estratto")) return;
  Prova("EliminaEstrattoDiMappa", [&] {
    for (const std::string& nome : FileDelGambo(ambiente_, gambo)) ambiente_.disco.Elimina(Percorso(nome));
  });
  Aggiorna();
  Seleziona(File1.empty() ? -1 : 0);
  AnteprimaEstratto3();
}

// Copies first and takes the old ones away last: a failure on the way loses nothing.
void KR_EstrattiDiMappa1::CopiaConNome(bool togliVecchio) {
  if (Indice < 0) return ambiente_.dialoghi.Messaggio(SelezionareEstratto);
  const std::string nuovo = GamboScritto(NuovoNome);
  if (nuovo.empty()) return ambiente_.dialoghi.Messaggio("Nuovo nome Estratto!");
  const std::string vecchio(Gambo(Selezionato()));
  if (UgualiSenzaCaso(nuovo, vecchio) || !ConfermaSostituzione(ambiente_, nuovo)) return;
  if (!Conferma((togliVecchio ? "Rinominare" : "Duplicare") + std::string(" Estratto :  da : ") + vecchio +
                " a : " + nuovo + " ?? "))
    return;
  std::vector<std::string> tolti;
  for (const std::string& nome : FileDelGambo(ambiente_, vecchio))
    for (const std::string_view estensione : EmpEPng) {
      if (!FinisceConSenzaCaso(nome, estensione)) continue;
      ambiente_.disco.Copia(Percorso(nome), Percorso(nuovo + std::string(estensione)));
      tolti.push_back(nome);
    }
  if (togliVecchio)
    for (const std::string& nome : tolti) ambiente_.disco.Elimina(Percorso(nome));
  const std::string estensione = Selezionato().substr(vecchio.size());
  Aggiorna();
  SelezionaNome(nuovo + estensione);
  AnteprimaEstratto3();
}

// --- rows of the extract

void KR_EstrattiDiMappa1::Vuota() {
  if (!SceltoEmp(SelezionareEstratto) || !Conferma("Vuotare Estratto?", "Vuota Estratto")) return;
  const std::string file = Percorso(Selezionato());
  ambiente_.disco.Scrivi(file, VuotaEstratto(ambiente_.disco.Leggi(file)));
  Aggiorna();
  AnteprimaEstratto3();
}

void KR_EstrattiDiMappa1::Autoallestisci() {
  if (!SceltoEmp(SelezionareEstratto) || !Conferma("Trasformare in Autoallestito?", "Autoallestito")) return;
  TrasformaInAutoallestito(ambiente_, Selezionato());
  RileggiSelezionato();
}

void KR_EstrattiDiMappa1::TogliPuntiIsolati() {
  if (!SceltoEmp(SelezionareEstratto) || !Conferma("Eliminare i Punti Isolati?")) return;
  (void)PulisciEstratto(ambiente_, Selezionato());
  RileggiSelezionato();
}

void KR_EstrattiDiMappa1::EliminaParticella() {
  const std::string nome(Taglia(NomeParticella));
  if (nome.empty())
    return ambiente_.dialoghi.Messaggio("Indicare il nome della particella da eliminare!", "Impossibile continuare");
  if (!SceltoEmp("Indicare un Estratto di Mappa!", OperazioneImpossibile)) return;
  if (!Conferma("Eliminare definitivamente la particella " + nome + "  ?", "Elimina Particella")) return;
  KR_Estratto estratto;
  if (!EsplodiEstratto(ambiente_, estratto, Selezionato())) return;
  EliminaParticellaEstratto(estratto, nome);
  (void)SalvaEstratto(ambiente_, estratto);
  RileggiSelezionato();
}

void KR_EstrattiDiMappa1::RinominaLaParticella() {
  constexpr std::string_view titolo = "Rinomina Particella";
  const std::string vecchio(Taglia(NomeParticella));
  const std::string nuovo(Taglia(NuovoNomeParticella));
  if (vecchio.empty()) return ambiente_.dialoghi.Messaggio("Indicare il nome Attuale della particella!", titolo);
  if (nuovo.empty()) return ambiente_.dialoghi.Messaggio("Indicare il nome Nuovo della particella!", titolo);
  if (!SceltoEmp("Indicare un Estratto di Mappa!", OperazioneImpossibile)) return;
  if (!Conferma("Rinominare la Particella " + vecchio + " in " + nuovo + " ?", titolo)) return;
  const std::string file = Percorso(Selezionato());
  const std::string testo = CaricaFileIntero(ambiente_, file);
  const std::string rinominato = RinominaParticella(testo, vecchio, nuovo);
  if (rinominato != testo) ambiente_.disco.Scrivi(file, rinominato);
  RileggiSelezionato();
}

void KR_EstrattiDiMappa1::ArchiviaIntestatari() {
  if (!SceltoEmp(SelezionareEstratto)) return;
  ArchiviaEdEliminaDitte(ambiente_, Percorso(Selezionato()));
  RileggiSelezionato();
}

// --- what goes to other forms

void KR_EstrattiDiMappa1::Somma() {
  if (!SceltoEmp(SelezionareEstratto)) return;
  KR_SommaEstratti somma(ambiente_, Percorso(Selezionato()));
  somma.AlCaricamento();
  ambiente_.finestre.MostraModale(somma);
  if (somma.Creato.empty()) return;
  Aggiorna();
  SelezionaNome(somma.Creato);
  AnteprimaEstratto3();
}

void KR_EstrattiDiMappa1::Completa() {
  if (!SceltoEmp(SelezionareEstratto)) return;
  CompletaAutoallestito form(ambiente_, Selezionato());
  form.AlCaricamento();
  ambiente_.finestre.MostraModale(form);
  RileggiSelezionato();
}

void KR_EstrattiDiMappa1::Stampa() {
  if (Indice < 0) return ambiente_.dialoghi.Messaggio(SelezionareEstratto);
  ListaRighe righe;
  for (const auto riga : RigheDi(TestoFile)) righe.Aggiungi(riga);
  MostraStampaGenerale(ambiente_, std::move(righe));
}

void KR_EstrattiDiMappa1::ApriArchivioParticelle() {
  dopo_ = forma::ModelloCensuario;
  Chiusa = true;
}

void KR_EstrattiDiMappa1::EstrattoProvvisorio() {
  ambiente_.sessione.TipologiaCorrente = "1000";
  (void)ApriForm(ambiente_, forma::EstrattoProvvisorio);
  Aggiorna();
  SelezionaNome("ESTRATTOPROVVISORIO.EMP");
  AnteprimaEstratto3();
}

// The label shows the code before the name, so the codes are taken from where it has them.
void KR_EstrattiDiMappa1::AssociaEstratto() {
  ambiente_.sessione.PuntoErrore = "AssociaEstratto";
  if (!SceltoEmp("Indicare un Estratto di Mappa!", OperazioneImpossibile)) return;
  Sessione& sessione = ambiente_.sessione;
  sessione.EstrattoAssociato = Selezionato();
  sessione.SiglaProvincia = sessione.EstrattoProvincia;
  const CodiceENome* provincia = TrovaPerCodice(sessione.Province, sessione.EstrattoProvincia);
  sessione.NomeProvincia = provincia == nullptr ? "" : provincia->nome;
  sessione.CodiceComune = UltimiCaratteri(sessione.EstrattoComune, 5);
  const Comune* comune = TrovaComune(sessione.Comuni, sessione.EstrattoComune);
  sessione.NomeComune = comune == nullptr ? "" : comune->nome;
  sessione.Foglio = UltimiCaratteri(Etichette.foglio, 4);
  sessione.Mappali = Etichette.particelle;
  sessione.EstMedio = sessione.EstrattoEstMedio;
  Chiusa = true;
}

} // namespace lirmeto
