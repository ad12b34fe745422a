#include "banco.h"

#include <base/errore.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/cartelle.h>

#include <algorithm>

namespace lirmeto::prova {

namespace {

// Without a closing backslash, upper case.
std::string Chiave(std::string_view percorso) {
  while (percorso.ends_with('\\')) percorso.remove_suffix(1);
  return Maiuscolo(percorso);
}

std::string Genitore(const std::string& chiave) {
  return chiave.substr(0, chiave.find_last_of('\\'));
}

} // namespace

void DiscoInMemoria::Metti(const std::string& percorso, std::string contenuto) {
  file[Chiave(percorso)] = std::move(contenuto);
}

std::string DiscoInMemoria::Contenuto(const std::string& percorso) const {
  const auto trovato = file.find(Chiave(percorso));
  return trovato == file.end() ? "(manca)" : trovato->second;
}

bool DiscoInMemoria::Esiste(std::string_view percorso) const {
  return file.contains(Chiave(percorso)) || rotti.contains(Chiave(percorso)) || EsisteCartella(percorso);
}

bool DiscoInMemoria::EsisteCartella(std::string_view percorso) const {
  const std::string chiave = Chiave(percorso);
  return chiave.size() == 2 || std::find(cartelle.begin(), cartelle.end(), chiave) != cartelle.end();
}

bool DiscoInMemoria::StessoPosto(std::string_view percorso, std::string_view altro) const {
  return Chiave(percorso) == Chiave(altro);
}

void DiscoInMemoria::ControllaRotto(std::string_view percorso) const {
  if (const auto rotto = rotti.find(Chiave(percorso)); rotto != rotti.end()) throw Errore(rotto->second);
}

std::string DiscoInMemoria::Leggi(std::string_view percorso) const {
  ControllaRotto(percorso);
  if (EsisteCartella(percorso)) throw Errore(errore::AccessoAlFile);
  const auto trovato = file.find(Chiave(percorso));
  if (trovato == file.end()) throw Errore(errore::FileNonTrovato);
  return trovato->second;
}

std::string DiscoInMemoria::LeggiInizio(std::string_view percorso, std::size_t byte) const {
  return Leggi(percorso).substr(0, byte);
}

void DiscoInMemoria::Scrivi(std::string_view percorso, std::string_view contenuto) {
  ControllaRotto(percorso);
  if (!EsisteCartella(Genitore(Chiave(percorso)))) throw Errore(errore::PercorsoNonTrovato);
  const auto corto = corti.find(Chiave(percorso));
  file[Chiave(percorso)] = contenuto.substr(0, corto == corti.end() ? contenuto.npos : corto->second);
  if (corto != corti.end() && contenuto.size() > corto->second) throw Errore(errore::DiscoPieno);
}

Istante DiscoInMemoria::Modificato(std::string_view percorso) const {
  if (!Esiste(percorso)) throw Errore(errore::FileNonTrovato);
  return modificato;
}

void DiscoInMemoria::CreaCartella(std::string_view percorso) {
  if (Esiste(percorso)) throw Errore(errore::AccessoAlFile);
  if (!EsisteCartella(Genitore(Chiave(percorso)))) throw Errore(errore::PercorsoNonTrovato);
  cartelle.push_back(Chiave(percorso));
}

void DiscoInMemoria::Copia(std::string_view da, std::string_view a) {
  const auto trovato = file.find(Chiave(da)); // a broken file can be copied: its last good content is kept so
  if (trovato == file.end()) throw Errore(errore::FileNonTrovato);
  Scrivi(a, trovato->second);
}

void DiscoInMemoria::Elimina(std::string_view percorso) {
  ControllaRotto(percorso);
  if (file.erase(Chiave(percorso)) == 0) throw Errore(errore::FileNonTrovato);
}

std::vector<std::string> DiscoInMemoria::Elenca(std::string_view cartella, std::string_view estensione) const {
  std::vector<std::string> nomi;
  for (const auto& [percorso, contenuto] : file)
    if (Genitore(percorso) == Chiave(cartella) && FinisceConSenzaCaso(percorso, estensione))
      nomi.emplace_back(NomeDaPercorso(percorso));
  return nomi;
}

void DialoghiDiProva::Messaggio(std::string_view testo, std::string_view titolo, Gravita gravita) {
  detti.push_back({std::string(testo), std::string(titolo), gravita});
}

Risposta DialoghiDiProva::Chiedi(std::string_view testo, std::string_view titolo, Bottoni) {
  detti.push_back({std::string(testo), std::string(titolo)});
  if (risposte.empty()) return Risposta::No;
  const Risposta risposta = risposte.front();
  if (risposte.size() > 1) risposte.pop_front();
  return risposta;
}

std::optional<std::size_t> DialoghiDiProva::Scegli(std::string_view testo, std::string_view titolo,
                                                   const std::vector<std::string>& bottoni) {
  std::string detto(testo);
  for (const auto& bottone : bottoni) detto += "|" + bottone;
  detti.push_back({detto, std::string(titolo)});
  if (scelte.empty()) return std::nullopt;
  const std::size_t scelta = scelte.front();
  scelte.pop_front();
  return scelta;
}

std::string DialoghiDiProva::ScegliFileDaAprire(const RichiestaFile& richiesta) {
  return ScegliFileDaSalvare(richiesta);
}

void DialoghiDiProva::Stampa(const Stampato& stampato) {
  std::string testo = stampato.titolo + (stampato.orientamento == Orientamento::Verticale ? "/V" : "/O");
  for (const auto riga : stampato.righe) testo += "|" + std::string(riga);
  stampati.push_back(testo);
}

std::string DialoghiDiProva::ScegliFileDaSalvare(const RichiestaFile& richiesta) {
  detti.push_back({richiesta.cartella + richiesta.nome, richiesta.titolo});
  if (fileScelto == "*") throw Errore(errore::DialogoAnnullato);
  return fileScelto;
}

Carattere DialoghiDiProva::ScegliCarattere(const Carattere&) {
  return carattereScelto;
}

void ProcessiDiProva::CreaCollegamento(const Collegamento& collegamento) {
  if (negati.contains(collegamento.posto)) throw Errore(errore::PercorsoNonTrovato);
  collegamenti.push_back(collegamento);
}

bool FinestreDiProva::Disponibile(std::string_view nome) const {
  return std::find(disponibili.begin(), disponibili.end(), nome) != disponibili.end();
}

std::string ImpostazioniInMemoria::Leggi(std::string_view sezione, std::string_view chiave,
                                         std::string_view predefinito) const {
  const auto trovato = valori.find(std::string(sezione) + "/" + std::string(chiave));
  return trovato == valori.end() ? std::string(predefinito) : trovato->second;
}

void ImpostazioniInMemoria::Scrivi(std::string_view sezione, std::string_view chiave, std::string_view valore) {
  valori[std::string(sezione) + "/" + std::string(chiave)] = valore;
}

Banco::Banco() {
  for (const char* cartella :
       {"C:\\WINDOWS", "C:\\USERS", "C:\\USERS\\PROVA", "C:\\USERS\\PROVA\\DOCUMENTS", "C:\\USERS\\PROVA\\TEMP",
        "C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO", "C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO\\TEMP",
        "C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO\\TECNICI", "C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO\\MODELLI_STAMPA",
        "C:\\PREGEO", "C:\\PREGEO\\ARCH", "C:\\PREGEO\\ARCH\\BACKUPDB", "C:\\PREGEO\\EXE", "C:\\PREGEO\\ESTRATTI"})
    disco.cartelle.emplace_back(cartella);
  MettiInstallazione(disco);
  CartelleSpeciali(ambiente);
}

void Banco::Apri(const std::string& testo, const std::string& nome) {
  disco.Metti(nome, testo);
  ApriLibretto(ambiente, nome);
  CaricaLibrettoInList1(ambiente);
}

std::vector<std::string> Banco::Righe() const {
  return Copia(sessione.List1.Righe());
}

std::vector<std::string> Copia(const ListaRighe& righe) {
  return {righe.begin(), righe.end()};
}

ListaRighe Lista(const std::vector<std::string>& righe) {
  ListaRighe lista;
  for (const auto& riga : righe) lista.Aggiungi(riga);
  return lista;
}

std::string Testo(const std::vector<std::string>& righe) {
  std::string testo;
  for (const auto& riga : righe) testo += riga + "\r\n";
  return testo;
}

void MettiInstallazione(DiscoInMemoria& disco) {
  disco.Metti("C:\\WINDOWS\\PREGEO.INI", "[PREGEO]\r\nDskAPPLexe=C:\r\nDskAPPLada=C:\r\n[DATI "
                                         "TECNICO]\r\nnome=ROSSI MARIO\r\n"
                                         "cognome=ROSSI\r\nnome=MARIO\r\nqualifica=GEOMETRA\r\nprovincia="
                                         "PADOVA\r\n"
                                         "numero=1234\r\ncodc=RSSMRA70A01G224K\r\n[PROV_DI_COMP]"
                                         "\r\nprovincia=PD\r\n"
                                         "FILE_DISTANZETAF=G224.DDD\r\n");
  disco.Metti("C:\\pregeo\\exe\\Pregeo.EXE", "MZ");
  disco.Metti("C:\\pregeo\\exe\\prosigle", "PD,PADOVA\r\nVE,VENEZIA\r\nGO,GORIZIA\r\n");
  const auto comune = [](const std::string& codice, const std::string& provincia, const std::string& nome) {
    return "@B " + RiempiECorta(codice, 25) + provincia + RiempiECorta(nome, 34) + "D3AA";
  };
  disco.Metti("C:\\pregeo\\arch\\comunt.dat", "\x01\x02" + comune("G224", "PD", "PADOVA") +
                                                  comune("L736", "VE", "VENEZIA") + comune("E098", "GO", "GORIZIA"));
}

} // namespace lirmeto::prova
