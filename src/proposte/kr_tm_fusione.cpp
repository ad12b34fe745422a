#include <proposte/kr_tm_fusione.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>
#include <core/zero_nove.h>
#include <proposte/file_particella.h>
#include <proposte/memo.h>

#include <algorithm>
#include <array>

namespace lirmeto {

// How parcels are fused, where it could be done in more than one way:
//
//   a letter behind "Z" or that is no letter   error 5: the names of this act are used up
//   an emptied memo                            its file is emptied too
//   a memo of a file that is not a section     taken as it is, row by row

namespace {

constexpr std::string_view NomeMemo = "FUSIONE.CEN";

constexpr std::array ElencoPulsanti = {
    PulsanteForm{pulsante::Aggiungi, "importa", "Aggiungi al Libretto",
                 "Il memo va dietro le righe censuarie che ci sono"},
    PulsanteForm{9, "salva", "Sostituisci nel Libretto", "Il memo prende il posto delle righe censuarie del libretto"},
    PulsanteForm{2, "giu", "Metti nel Memo", "Le righe della fusione vanno nel memo"},
    PulsanteForm{5, "inverti", "Togli Particelle", "Nessuna particella scelta"},
    PulsanteForm{3, "nuovo", "Azzera Memo", "Toglie tutte le righe del memo"},
    PulsanteForm{pulsante::Copia, "copia", "Copia", "Il memo negli appunti"},
    PulsanteForm{pulsante::Stampa, "stampa", "Stampa", "Stampa il memo"},
    PulsanteForm{pulsante::Chiudi, "chiudi", "Chiudi", "Chiude senza toccare il libretto"},
};

std::string RigaConNome(char operazione, std::string_view nome) {
  std::string riga(censuario::ModelloVuoto);
  SovrascriviCampo(riga, censuario::Operazione, std::string(1, operazione));
  ScriviCampo(riga, censuario::Particella, nome);
  return riga;
}

void ScriviDestinazione(std::string& riga, std::string_view lettera, std::string_view temporaneo) {
  ScriviCampo(riga, censuario::LetteraDestinazione, lettera);
  ScriviCampo(riga, censuario::TemporaneoDestinazione, temporaneo);
}

} // namespace

std::span<const PulsanteForm> KR_TMFusione::Pulsanti() const {
  return ElencoPulsanti;
}

void KR_TMFusione::Form_Load() {
  fileMemo_ = NomeMemo;
  AllAttivazione();
  LaSessione().PuntoErrore = NomeForm();
  (void)Intrappola(LAmbiente(), [this] {
    const std::string percorso = PercorsoCen(LaSessione(), fileMemo_);
    if (!LAmbiente().disco.Esiste(percorso)) LAmbiente().disco.Scrivi(percorso, {});
    Apri(LeggiCen(LAmbiente(), fileMemo_));
  });
}

void KR_TMFusione::Apri(std::string_view memo) {
  ListaRighe righe;
  for (const auto riga : RigheDi(memo)) righe.Aggiungi(riga);
  List4.Riempi(std::move(righe));
}

void KR_TMFusione::AllAttivazione() {
  (void)Intrappola(LAmbiente(), [this] { File1 = ElencaParticelle(LAmbiente(), InizioFoglio(LaSessione())); });
}

void KR_TMFusione::Aggiungi(std::size_t file) {
  if (file < File1.size()) AggiungiFile(File1[file]);
}

void KR_TMFusione::AggiungiFile(std::string nome) {
  List2.push_back(std::move(nome));
  AnteprimaTMFusione();
}

void KR_TMFusione::Togli(std::size_t scelta) {
  if (scelta >= List2.size()) return;
  List2.erase(List2.begin() + static_cast<std::ptrdiff_t>(scelta));
  AnteprimaTMFusione();
}

void KR_TMFusione::CambiaCheck1(bool si) {
  Check1 = si;
  AnteprimaTMFusione();
}

void KR_TMFusione::CambiaOption1(int opzione) {
  Option1 = opzione;
  AnteprimaTMFusione();
}

void KR_TMFusione::AnteprimaTMFusione() {
  LaSessione().PuntoErrore = "AnteprimaTMFusione";
  (void)Intrappola(LAmbiente(), [this] { Componi(); });
}

// The letter behind the last one that the memo's suppressed parcels bear.
std::string KR_TMFusione::Lettera() const {
  std::string_view ultima = "@";
  for (const auto riga : List4.Righe()) {
    if (!riga.starts_with("6|S|")) continue;
    ultima = std::max(ultima, Taglia(LeggiCampo(riga, censuario::LetteraDestinazione)));
  }
  const char lettera = static_cast<char>(ultima.front() + 1);
  if (Maiuscolo(lettera) < 'A' || Maiuscolo(lettera) > 'Z')
    throw Errore(errore::ArgomentoNonValido, "Le lettere per le fusioni di questo atto sono finite");
  return std::string(1, lettera);
}

DatiParticella KR_TMFusione::Leggi(const std::string& nome) const {
  return LeggiRigaParticella(LeggiFileParticella(LAmbiente(), nome));
}

// The class is one character; a quality that the table has not stays as it stands, cut by its columns.
std::string KR_TMFusione::RigaOriginale(const DatiParticella& dati) const {
  std::string riga = RigaConNome('O', dati.nome);
  ScriviArea(riga, dati.superficie);
  ScriviCampo(riga, censuario::SrSn, "SN");
  ScriviCampo(riga, censuario::Qualita, censuario::EnteUrbano);
  if (dati.classe != "00" && !dati.classe.empty())
    SovrascriviCampo(riga, censuario::Classe, std::string_view(dati.classe).substr(dati.classe.size() - 1));
  SovrascriviCampo(riga, censuario::Qualita, QualitaDaNome(LaSessione().TabellaQualita, dati.qualita));
  return riga;
}

void KR_TMFusione::Componi() {
  List1.clear();
  const std::string lettera = Lettera();
  const std::string temporaneo = Check1 && !List2.empty() ? Leggi(List2.back()).nome : std::string(3, lettera[0]);
  List1.Aggiungi(censuario::Intestazione);
  List1.Aggiungi(
      RigaConteggio(Option1 == 0 ? censuario::Stralcio : censuario::Fusione, 2 * List2.size() + (Check1 ? 0 : 1)));
  for (std::size_t i = 0; i + 1 < List2.size(); ++i) {
    const DatiParticella dati = Leggi(List2[i]);
    List1.Aggiungi(RigaOriginale(dati));
    std::string soppressa = RigaConNome('S', dati.nome);
    ScriviDestinazione(soppressa, lettera, temporaneo);
    List1.Aggiungi(soppressa);
  }
  if (!List2.empty()) AggiungiUltima(lettera, temporaneo);
  if (LaSessione().SiglaProvincia == "GO") AllargaPerGorizia();
}

// The last parcel chosen and the one that comes of the fusion. It bears the last one's area and not the sum: meant so;
// the findings tell.
void KR_TMFusione::AggiungiUltima(const std::string& lettera, const std::string& temporaneo) {
  const DatiParticella dati = Leggi(List2.back());
  List1.Aggiungi(RigaOriginale(dati));
  if (!Check1) List1.Aggiungi(RigaConNome('S', dati.nome));
  std::string nuova = RigaConNome(Check1 ? 'V' : 'C', Check1 ? std::string_view(dati.nome) : std::string_view{});
  if (!Check1) {
    ScriviCampo(nuova, censuario::Lettera, "a");
    ScriviCampo(nuova, censuario::Temporaneo, temporaneo);
  }
  ScriviArea(nuova, dati.superficie);
  ScriviCampo(nuova, censuario::SrSn, "SN");
  ScriviCampo(nuova, censuario::Qualita, censuario::EnteUrbano);
  ScriviDestinazione(nuova, lettera, temporaneo);
  List1.Aggiungi(nuova);
}

void KR_TMFusione::AllargaPerGorizia() {
  for (std::size_t i = RigheDiTesta; i < List1.size(); ++i) List1.Cambia(i, RigaCensuariaGo(List1[i]));
}

void KR_TMFusione::AggiungiAlMemo() {
  if (List4.Vuoto()) {
    List4.Riempi(List1);
  } else {
    AggiungiDati(List4, List1);
    RinnovaConteggio(List4);
    List4.Seleziona(List4.Quante() - 1, true);
    List4.Indice(static_cast<long>(List4.Quante()) - 1);
  }
  List1.clear();
  ScriviCen(LAmbiente(), fileMemo_, List4);
}

void KR_TMFusione::SalvaConEsistenti() {
  DecoZeroNove(LAmbiente());
  ListaRighe righe;
  for (const ListaRighe& parte : {RigheCensuarie(LaSessione().Libretto), List4.Righe()})
    for (const auto riga : parte)
      if (righe.empty() || riga != censuario::Intestazione) righe.Aggiungi(riga);
  List4.Riempi(std::move(righe));
  Sostituisci();
}

void KR_TMFusione::Sostituisci() {
  DecoZeroNove(LAmbiente());
  TogliCensuarie(LaSessione());
  AccodaAlLibretto(LaSessione(), List4.Righe());
  Chiusa = true;
}

void KR_TMFusione::AzzeraMemo() {
  if (LAmbiente().dialoghi.Chiedi("Azzerare Memo?", "Azzerare Memo", Bottoni::SiNo) != Risposta::Si) return;
  List4.Svuota();
  ScriviCen(LAmbiente(), fileMemo_, List4);
}

void KR_TMFusione::Svuota() {
  List2.clear();
  AnteprimaTMFusione();
}

void KR_TMFusione::Esegui(int indice) {
  switch (indice) {
  case pulsante::Aggiungi:
    return SalvaConEsistenti();
  case 2:
    return AggiungiAlMemo();
  case 3:
    return AzzeraMemo();
  case 5:
    return Svuota();
  case 9:
    return Sostituisci();
  default:
    FormCensuario::Esegui(indice);
  }
}

} // namespace lirmeto
