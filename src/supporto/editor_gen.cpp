#include <supporto/editor_gen.h>

#include <base/testo.h>
#include <core/apertura.h>
#include <core/mostra_errore.h>
#include <core/salvataggio.h>
#include <core/zero_nove.h>

#include <utility>

namespace lirmeto {

void KR_EditorGen::AlCaricamento() {
  Sessione& sessione = ambiente_.sessione;
  DecoZeroNove(ambiente_);
  Titolo = "Edit Libretto Misure : [" + sessione.ProtocolloPregeo + "]";
  const std::string residuo = sessione.CartellaProgramma + "\\libretto.lib";
  (void)Intrappola(ambiente_, [&] {
    if (ambiente_.disco.Esiste(residuo)) ambiente_.disco.Elimina(residuo);
  });
  Testo = sessione.Libretto;
}

void KR_EditorGen::Salva() {
  ListaRighe righe;
  const std::string testo = ConFineRiga(Testo);
  for (const auto riga : Dividi(testo, FineRiga))
    if (!Taglia(riga).empty()) righe.Aggiungi(Taglia(riga));
  ambiente_.sessione.List1.Riempi(std::move(righe));
  AggiornaLibrettoMisure(ambiente_);
  Salvato = true;
}

bool KR_EditorGen::Chiudi() {
  const Risposta risposta =
      ambiente_.dialoghi.Chiedi("Salvare Libretto modificato?", "Uscita da Editor", Bottoni::SiNoAnnulla);
  if (risposta == Risposta::Annulla) return false;
  if (risposta == Risposta::Si) Salva();
  ambiente_.sessione.ModoEditor = 0;
  Chiusa = true;
  return true;
}

void subModificaDiretta(Ambiente& ambiente) {
  ambiente.sessione.ModoEditor = ModoEditorLibretto;
  KR_EditorGen editor(ambiente);
  editor.AlCaricamento();
  ambiente.finestre.MostraModale(editor);
  ambiente.sessione.ModoEditor = 0;
  if (editor.Salvato) CaricaLibrettoInList1(ambiente); // rows 0 and 9 may be missing now
}

} // namespace lirmeto
