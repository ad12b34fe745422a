#include <core/programmi.h>

#include <base/errore.h>
#include <base/percorsi.h>
#include <base/testo.h>

#include <algorithm>

namespace lirmeto {

int AttendiProgramma(Ambiente& ambiente, const std::string& programma, const std::vector<std::string>& argomenti) {
  ambiente.sessione.PuntoErrore = "3105";
  const std::string cosa = "Attendo la fine di " + std::string(NomeDaPercorso(programma));
  struct Fine { // of what the user is shown, however the wait ends
    ~Fine() { dialoghi.Avanzamento({}, 1, 1); }
    Dialoghi& dialoghi;
  };
  const Fine fine{ambiente.dialoghi};
  return ambiente.processi.AvviaEAttendi(programma, argomenti, [&] { return ambiente.dialoghi.Attesa(cosa); });
}

void ApriDocumentoODillo(Ambiente& ambiente, const std::string& percorso) {
  try {
    ambiente.processi.ApriDocumento(percorso);
  } catch (const Errore& guasto) {
    if (guasto.Numero() != errore::AccessoAlFile) throw;
    ambiente.dialoghi.Messaggio("Nessun programma installato apre il file" + std::string(FineRiga) + percorso);
  }
}

void TerminaProcesso(Ambiente& ambiente, std::string_view immagine) {
  std::vector<long> processi = ambiente.processi.Elenca(immagine);
  // This process goes last, so that the others are gone by then.
  std::stable_partition(processi.begin(), processi.end(),
                        [&](long processo) { return processo != ambiente.processi.QuestoProcesso(); });
  int ultimo = 0;
  for (const long processo : processi) ultimo = ambiente.processi.Termina(processo);
  // The message says that the program was ended and is shown when the last end
  // failed: the program has then gone by itself, or soon will.
  if (ultimo != 0)
    ambiente.dialoghi.Messaggio("Il programma " + std::string(immagine) + std::string(" è stato terminato!"_w));
}

void TerminaPregeo(Ambiente& ambiente) {
  for (const std::string_view immagine : {"pregeo.exe", "fire.exe", "elab.exe", "moduli.exe"})
    TerminaProcesso(ambiente, immagine);
}

} // namespace lirmeto
