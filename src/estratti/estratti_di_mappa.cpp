#include <estratti/estratti_di_mappa.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/apri_form.h>
#include <core/mostra_errore.h>
#include <core/nomi_forme.h>
#include <core/riga.h>
#include <core/tabelle.h>
#include <estratti/dati_estratto.h>
#include <estratti/estratti_esempio.h>
#include <estratti/file_estratto.h>
#include <estratti/kr_estratto.h>

#include <algorithm>
#include <array>

namespace lirmeto {

// What the manager shows, where it could be done in more than one way:
//
//   the title                         names the extract associated, and the file selected where that is another one
//   the file's start                  the whole rows of its first 64 KB; version and kind are looked for in the whole
//   a comune that no table has        its code alone
//   a file that cannot be read        its labels and its drawing are empty
//   a folder that is not there        is made; it is then empty, and gets the samples
//   the raster of a selected stem     .PNG before .TIF before .JPG; a .PNG in the list is its own

namespace {

constexpr std::string_view NomeForm = forma::EstrattiDiMappa;
constexpr std::size_t InizioMostrato = std::size_t{64} << 10U;

constexpr std::array<std::string_view, 4> EstensioniElencate = {".EMP", ".PNG", ".AGG", ".SMP"};

bool Elencato(std::string_view nome, FiltroEstratti filtro) {
  constexpr std::array<std::string_view, 4> estensioni = {"", ".SMP", ".EMP", ".PNG"};
  if (filtro != FiltroEstratti::Tutti)
    return FinisceConSenzaCaso(nome, estensioni.at(static_cast<std::size_t>(filtro)));
  return std::any_of(EstensioniElencate.begin(), EstensioniElencate.end(),
                     [nome](std::string_view estensione) { return FinisceConSenzaCaso(nome, estensione); });
}

// The rows of a file's beginning, a row that it cuts left out.
std::string RigheIntere(std::string&& inizio) {
  if (inizio.size() >= InizioMostrato) inizio.resize(inizio.rfind('\n') + 1);
  return ConFineRiga(std::move(inizio));
}

std::string CodiceConNome(std::string_view codice, std::string_view nome) {
  return std::string(codice) + (nome.empty() ? "" : " - " + std::string(nome));
}

} // namespace

void KR_EstrattiDiMappa1::Prova(std::string_view punto, const std::function<void()>& comando) {
  ambiente_.sessione.PuntoErrore = punto;
  (void)Intrappola(ambiente_, comando);
}

void KR_EstrattiDiMappa1::AlCaricamento() {
  Prova(NomeForm, [&] {
    const std::string cartella = CartellaEstratti(ambiente_.sessione);
    if (ambiente_.disco.Elenca(cartella, {}).empty()) ScriviEstrattiEsempio(ambiente_);
  });
  Aggiorna();
  const std::string& associato = ambiente_.sessione.EstrattoAssociato;
  if (Contiene(associato, ".")) SelezionaNome(std::string(Gambo(associato)) + ".EMP");
}

std::string KR_EstrattiDiMappa1::Selezionato() const {
  return Indice < 0 ? std::string{} : File1.at(static_cast<std::size_t>(Indice));
}

std::string KR_EstrattiDiMappa1::Percorso(std::string_view nome) const {
  return PercorsoEstratto(ambiente_.sessione, nome);
}

void KR_EstrattiDiMappa1::Aggiorna() {
  const std::string scelto = Selezionato();
  File1.clear();
  Indice = -1;
  Prova("Aggiorna", [&] { File1 = ambiente_.disco.Elenca(CartellaEstratti(ambiente_.sessione), {}); });
  std::erase_if(File1, [this](const std::string& nome) { return !Elencato(nome, Filtro); });
  SelezionaNome(scelto);
}

void KR_EstrattiDiMappa1::CambiaFiltro(FiltroEstratti filtro) {
  Filtro = filtro;
  Aggiorna();
}

void KR_EstrattiDiMappa1::SelezionaNome(std::string_view nome) {
  const auto trovato =
      std::find_if(File1.begin(), File1.end(), [nome](const std::string& file) { return UgualiSenzaCaso(file, nome); });
  Seleziona(trovato == File1.end() ? -1 : static_cast<long>(trovato - File1.begin()));
}

// All that the last selection showed.
void KR_EstrattiDiMappa1::Pulisci() {
  Etichette = {};
  for (std::string* testo : {&TestoFile, &TestoParticelle, &TestoDitte, &RasterScelto}) testo->clear();
  Anteprima = AnteprimaEstratto::Nessuna;
}

void KR_EstrattiDiMappa1::Seleziona(long indice) {
  if (indice >= static_cast<long>(File1.size())) throw Errore(errore::IndiceFuoriIntervallo);
  Indice = indice;
  Pulisci();
  const std::string& associato = ambiente_.sessione.EstrattoAssociato;
  const std::string nome = Selezionato();
  Titolo = "Gestione Estratti di Mappa - Estratto Associato = " + associato;
  if (!nome.empty() && !UgualiSenzaCaso(nome, associato)) Titolo += " - " + nome;
  daCaricare_ = !nome.empty();
  if (!RigheDiEstratto(nome)) return;
  Prova("AnteprimaEstratto3",
        [&] { TestoFile = RigheIntere(ambiente_.disco.LeggiInizio(Percorso(nome), InizioMostrato)); });
}

void KR_EstrattiDiMappa1::AnteprimaEstratto3() {
  if (!daCaricare_) return;
  daCaricare_ = false;
  const std::string nome = Selezionato();
  const std::string gambo = Percorso(Gambo(nome));
  for (const std::string_view estensione : {".JPG", ".TIF", ".PNG"})
    if (const std::string file = gambo + std::string(estensione); ambiente_.disco.Esiste(file)) RasterScelto = file;
  if (!RigheDiEstratto(nome)) {
    RasterScelto = Percorso(nome);
    Anteprima = AnteprimaEstratto::Raster;
    return;
  }
  Prova("AnteprimaEstratto3", [&] { CaricaEstratto(Percorso(nome)); });
}

void KR_EstrattiDiMappa1::CaricaEstratto(const std::string& percorso) {
  grafica_.KR_Clear(); // of a file that cannot be read nothing is shown, and not the one before
  Anteprima = AnteprimaEstratto::Disegno;
  RiconosciEstratto(ambiente_.sessione, ambiente_.disco.Leggi(percorso));
  grafica_.KR_CaricaEstratto_EMP(percorso);
  KR_Estratto estratto;
  if (EsplodiEstratto(ambiente_, estratto, percorso)) MostraEtichette();
}

void KR_EstrattiDiMappa1::MostraEtichette() {
  const Sessione& sessione = ambiente_.sessione;
  const Comune* comune = TrovaComune(sessione.Comuni, sessione.EstrattoComune);
  const CodiceENome* provincia = TrovaPerCodice(sessione.Province, sessione.EstrattoProvincia);
  Etichette.comune = CodiceConNome(sessione.EstrattoComune, comune == nullptr ? "" : comune->nome);
  Etichette.provincia = CodiceConNome(sessione.EstrattoProvincia, provincia == nullptr ? "" : provincia->nome);
  Etichette.foglio = sessione.EstrattoFoglio;
  Etichette.particelle = sessione.EstrattoParticelle;
  Etichette.rilascio = RilascioEstratto(sessione);
  Etichette.scadenza = ScadenzaEstratto(sessione);
  Etichette.estMedio = "Est Med. " + sessione.EstrattoEstMedio;
  Etichette.versione = "Pregeo " + sessione.VersionePregeoEstratto;
  Etichette.tipo = sessione.TipoEstratto;
  TestoParticelle = Sostituisci(sessione.EstrattoTestoParticelle, "|", " ");
  TestoDitte = Sostituisci(sessione.EstrattoDitte, "|", " ");
}

void KR_EstrattiDiMappa1::Ricarica() {
  daCaricare_ = Indice >= 0;
  AnteprimaEstratto3();
}

// After a command that has rewritten the file.
void KR_EstrattiDiMappa1::RileggiSelezionato() {
  Seleziona(Indice);
  AnteprimaEstratto3();
}

void ApriEstrattiDiMappa(Ambiente& ambiente) {
  std::string dopo;
  {
    KR_EstrattiDiMappa1 form(ambiente);
    form.AlCaricamento();
    ambiente.finestre.MostraModale(form);
    dopo = form.DopoLaChiusura();
  }
  if (!dopo.empty()) (void)ApriForm(ambiente, dopo);
}

} // namespace lirmeto
