#include <pregeo/gondella.h>

#include <base/errore.h>
#include <core/servizi.h>

namespace lirmeto {

void AvviaGondella(Ambiente& ambiente, std::string_view programma) {
  const std::string percorso = ambiente.sessione.CartellaProgrammi + "\\Gondella\\" + std::string(programma);
  try {
    AttendiProgramma(ambiente, percorso, {});
  } catch (const Errore& guasto) {
    if (guasto.Numero() != errore::FileNonTrovato) throw;
    throw Errore(errore::FileNonTrovato, "Programma non installato: " + percorso);
  }
}

} // namespace lirmeto
