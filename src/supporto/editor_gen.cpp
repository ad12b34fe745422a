#include <supporto/editor_gen.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/salvataggio.h>
#include <core/zero_nove.h>

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

namespace lirmeto {

namespace {

// Lines with line ends between them: the last one has none.
std::string TestoDaRighe(const ListaRighe& righe) {
  return Unisci({righe.begin(), righe.end()}, FineRiga);
}

ListaRighe RigheDaTesto(const std::string& testo) {
  ListaRighe righe;
  if (testo.empty()) return righe;
  const std::string conFine = ConFineRiga(testo + std::string(FineRiga));
  auto linee = Dividi(conFine, FineRiga);
  linee.pop_back(); // behind the last line end
  for (const auto linea : linee) righe.Aggiungi(linea);
  return righe;
}

void MostraEditor(Ambiente& ambiente, KR_EditorGen& editor, int modo, void (KR_EditorGen::*aperto)() = nullptr) {
  ambiente.sessione.ModoEditor = modo;
  editor.AlCaricamento();
  if (aperto != nullptr) (editor.*aperto)();
  ambiente.finestre.MostraModale(editor);
  ambiente.sessione.ModoEditor = 0;
}

void ModificaLibretto(Ambiente& ambiente, void (KR_EditorGen::*aperto)() = nullptr) {
  KR_EditorGen editor(ambiente);
  MostraEditor(ambiente, editor, ModoEditorLibretto, aperto);
  if (editor.Salvato) CaricaLibrettoInList1(ambiente); // rows 0 and 9 may be missing now
}

// Where a Relazione belongs in Pregeo's order: behind the last measure or contour that is none of the proposal.
std::size_t PostoRelazione(const std::vector<std::string_view>& righe) {
  std::size_t posto = std::min<std::size_t>(righe.size(), 2); // rows 0 and 9 stand first
  for (std::size_t i = 0; i < righe.size() && righe[i] != RigaProposta; ++i) {
    const Genere genere = GenereDi(righe[i]);
    if (genere >= Genere::Stazione && genere <= Genere::Contorno && genere != Genere::Libera) posto = i + 1;
  }
  return posto;
}

} // namespace

void KR_EditorGen::AlCaricamento() {
  const int chiesto = ambiente_.sessione.ModoEditor;
  modo_ = chiesto == ModoEditorStampa || chiesto == ModoEditorCensuario ? chiesto : ModoEditorLibretto;
  if (modo_ == ModoEditorLibretto) return CaricaLibretto();
  Titolo = modo_ == ModoEditorStampa ? "Edit Stampe" : "Edit Modello Censuario";
  (void)Intrappola(ambiente_, [&] {
    if (modo_ == ModoEditorCensuario)
      Testo = CaricaFileIntero(ambiente_, memo_);
    else if (stampa_ != nullptr)
      Testo = TestoDaRighe(*stampa_);
  });
  aperto_ = Testo;
}

void KR_EditorGen::CaricaLibretto() {
  Sessione& sessione = ambiente_.sessione;
  DecoZeroNove(ambiente_);
  Titolo = "Edit Libretto Misure : [" + sessione.ProtocolloPregeo + "]";
  const std::string residuo = sessione.CartellaProgramma + "\\libretto.lib";
  (void)Intrappola(ambiente_, [&] {
    if (ambiente_.disco.Esiste(residuo)) ambiente_.disco.Elimina(residuo);
  });
  Testo = sessione.Libretto;
  aperto_ = Testo;
  RigaIniziale = static_cast<std::size_t>(std::max(sessione.List1.Indice(), 0L));
}

void KR_EditorGen::VaiAllaRelazione() {
  const std::string testo = Testo;
  auto righe = RigheDi(testo);
  const auto marca =
      std::find_if(righe.begin(), righe.end(), [](std::string_view riga) { return Contiene(riga, InizioRelazione); });
  RigaIniziale = static_cast<std::size_t>(marca - righe.begin()) + 1;
  if (marca != righe.end()) return;
  const std::size_t posto = PostoRelazione(righe);
  const std::string inizio = "6|" + std::string(InizioRelazione) + "|";
  const std::string fine = "6|" + std::string(lirmeto::FineRelazione) + "|";
  // A row of no text at all would be given a note when the libretto is saved.
  const std::array<std::string_view, 3> blocco = {inizio, "6| |", fine};
  righe.insert(righe.begin() + static_cast<std::ptrdiff_t>(posto), blocco.begin(), blocco.end());
  aperto_ = Testo = Unisci(righe, FineRiga) + std::string(FineRiga);
  RigaIniziale = posto + 1;
}

bool KR_EditorGen::Salva() {
  ambiente_.sessione.PuntoErrore = Titolo + " Buttonplus1_Click";
  const bool riuscito = Intrappola(ambiente_, [&] {
    switch (modo_) {
    case ModoEditorStampa:
      return SalvaStampa();
    case ModoEditorCensuario:
      return ambiente_.disco.Scrivi(memo_, ConFineRiga(Testo));
    default:
      return SalvaLibretto();
    }
  });
  Salvato = Salvato || riuscito;
  if (riuscito) aperto_ = Testo;
  return riuscito;
}

void KR_EditorGen::SalvaLibretto() {
  ListaRighe righe;
  const std::string testo = ConFineRiga(Testo);
  for (const auto riga : Dividi(testo, FineRiga))
    if (!Taglia(riga).empty()) righe.Aggiungi(Taglia(riga));
  ambiente_.sessione.List1.Riempi(std::move(righe));
  AggiornaLibrettoMisure(ambiente_);
}

void KR_EditorGen::SalvaStampa() {
  if (stampa_ != nullptr) *stampa_ = RigheDaTesto(Testo);
}

std::string_view KR_EditorGen::Domanda() const {
  switch (modo_) {
  case ModoEditorStampa:
    return "Salvare Stampa modificata?";
  case ModoEditorCensuario:
    return "Salvare il Modello modificato?";
  default:
    return "Salvare Libretto modificato?";
  }
}

bool KR_EditorGen::Chiudi() {
  const Risposta risposta =
      Testo == aperto_ ? Risposta::No : ambiente_.dialoghi.Chiedi(Domanda(), "Uscita da Editor", Bottoni::SiNoAnnulla);
  if (risposta == Risposta::Annulla) return false;
  if (risposta == Risposta::Si && !Salva()) return false; // what could not be written is not thrown away
  ambiente_.sessione.ModoEditor = 0;
  Chiusa = true;
  return true;
}

void subModificaDiretta(Ambiente& ambiente) {
  ModificaLibretto(ambiente);
}

void subModificaRelazione(Ambiente& ambiente) {
  ModificaLibretto(ambiente, &KR_EditorGen::VaiAllaRelazione);
}

void subModificaStampa(Ambiente& ambiente, ListaRighe& stampa) {
  KR_EditorGen editor(ambiente, &stampa);
  MostraEditor(ambiente, editor, ModoEditorStampa);
}

void subModificaCensuario(Ambiente& ambiente, const std::string& memo) {
  KR_EditorGen editor(ambiente, memo);
  MostraEditor(ambiente, editor, ModoEditorCensuario);
}

} // namespace lirmeto
