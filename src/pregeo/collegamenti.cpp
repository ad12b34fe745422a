#include <pregeo/collegamenti.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/mostra_errore.h>

namespace lirmeto {

namespace {

// What is said of a shortcut that may be refused.
struct Esito {
  std::string_view fatto;
  std::string_view impossibile;
};

bool Creato(Processi& processi, const Collegamento& collegamento) {
  try {
    processi.CreaCollegamento(collegamento);
    return true;
  } catch (const Errore&) {
    return false; // the caller's message says so
  }
}

void Prova(Ambiente& ambiente, const Collegamento& collegamento, const Esito& esito) {
  ambiente.dialoghi.Messaggio(Creato(ambiente.processi, collegamento) ? esito.fatto : esito.impossibile);
}

} // namespace

void CreaCollegamentiPregeo(Ambiente& ambiente) {
  Sessione& sessione = ambiente.sessione;
  const std::string programma = sessione.RadicePregeo + "\\PREGEO\\EXE\\PREGEO.EXE";
  const std::string nome = Sostituisci(sessione.VersionePregeo, ",", " ");
  sessione.PuntoErrore = "CreaCollegamentiPregeo";
  // The desktop has no words for a failure: there the error report tells it.
  (void)Intrappola(ambiente, [&] {
    ambiente.processi.CreaCollegamento({PostoCollegamento::Desktop, "Collegamento a " + nome, programma});
    ambiente.dialoghi.Messaggio("Creato Collegamento sul DeskTop");
  });
  Prova(ambiente, {PostoCollegamento::MenuProgrammi, nome, programma},
        {"Creato Collegamento nel Menu Programmi", "Impossibile creare Collegamento nel Menu Programmi"});
  Prova(ambiente, {PostoCollegamento::AvvioRapido, "PREGEO", programma},
        {"Creato Collegamento sulla ToolBar", "Impossibile Creare Collegamento sulla ToolBar"});
}

} // namespace lirmeto
