#include <pregeo/gondella.h>

#include <base/errore.h>
#include <core/programmi.h>

namespace lirmeto {

int AttendiInstallato(Ambiente& ambiente, const std::string& programma, const std::vector<std::string>& argomenti) {
  try {
    return AttendiProgramma(ambiente, programma, argomenti);
  } catch (const Errore& guasto) {
    if (guasto.Numero() != errore::FileNonTrovato) throw;
    throw Errore(errore::FileNonTrovato, "Programma non installato: " + programma);
  }
}

void AvviaGondella(Ambiente& ambiente, std::string_view programma) {
  AttendiInstallato(ambiente, ambiente.sessione.CartellaProgrammi + "\\Gondella\\" + std::string(programma), {});
}

} // namespace lirmeto
