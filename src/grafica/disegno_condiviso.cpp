#include <grafica/disegno_condiviso.h>

#include <core/mostra_errore.h>

namespace lirmeto {

DisegnoDellUtente::DisegnoDellUtente(Ambiente& ambiente) : ambiente_(ambiente) {
  LeggiFlag(ambiente.impostazioni, vista);
}

DisegnoDellUtente::~DisegnoDellUtente() {
  (void)Intrappola(ambiente_, [&] { TieniFlag(vista, ambiente_.impostazioni); });
}

} // namespace lirmeto
