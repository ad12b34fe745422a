#include <supporto/editor_gen.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/mostra_errore.h>
#include <core/salvataggio.h>
#include <core/servizi.h>
#include <core/zero_nove.h>

#include <utility>

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

void MostraEditor(Ambiente& ambiente, KR_EditorGen& editor, int modo) {
  ambiente.sessione.ModoEditor = modo;
  editor.AlCaricamento();
  ambiente.finestre.MostraModale(editor);
  ambiente.sessione.ModoEditor = 0;
}

} // namespace

std::string KR_EditorGen::FileCensuario() const {
  return ambiente_.sessione.CartellaProgramma + "\\temp\\51FTP.CEN";
}

void KR_EditorGen::AlCaricamento() {
  const int chiesto = ambiente_.sessione.ModoEditor;
  modo_ = chiesto == ModoEditorStampa || chiesto == ModoEditorCensuario ? chiesto : ModoEditorLibretto;
  if (modo_ == ModoEditorLibretto) return CaricaLibretto();
  Titolo = modo_ == ModoEditorStampa ? "Edit Stampe" : "Edit Modello Censuario";
  (void)Intrappola(ambiente_, [&] {
    if (modo_ == ModoEditorCensuario)
      Testo = CaricaFileIntero(ambiente_, FileCensuario());
    else if (stampa_ != nullptr)
      Testo = TestoDaRighe(*stampa_);
  });
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
}

bool KR_EditorGen::Salva() {
  ambiente_.sessione.PuntoErrore = Titolo + " Buttonplus1_Click";
  const bool riuscito = Intrappola(ambiente_, [&] {
    switch (modo_) {
    case ModoEditorStampa:
      return SalvaStampa();
    case ModoEditorCensuario:
      return ambiente_.disco.Scrivi(FileCensuario(), ConFineRiga(Testo));
    default:
      return SalvaLibretto();
    }
  });
  Salvato = Salvato || riuscito;
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
  const Risposta risposta = ambiente_.dialoghi.Chiedi(Domanda(), "Uscita da Editor", Bottoni::SiNoAnnulla);
  if (risposta == Risposta::Annulla) return false;
  if (risposta == Risposta::Si && !Salva()) return false; // what could not be written is not thrown away
  ambiente_.sessione.ModoEditor = 0;
  Chiusa = true;
  return true;
}

void subModificaDiretta(Ambiente& ambiente) {
  KR_EditorGen editor(ambiente);
  MostraEditor(ambiente, editor, ModoEditorLibretto);
  if (editor.Salvato) CaricaLibrettoInList1(ambiente); // rows 0 and 9 may be missing now
}

void subModificaStampa(Ambiente& ambiente, ListaRighe& stampa) {
  KR_EditorGen editor(ambiente, &stampa);
  MostraEditor(ambiente, editor, ModoEditorStampa);
}

void subModificaCensuario(Ambiente& ambiente) {
  KR_EditorGen editor(ambiente);
  MostraEditor(ambiente, editor, ModoEditorCensuario);
}

} // namespace lirmeto
