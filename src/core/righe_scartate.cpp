#include <core/righe_scartate.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/mostra_errore.h>

namespace lirmeto {

std::string AvvisoRigheScartate(const Sessione& sessione) {
  const std::size_t quante = sessione.RigheScartate.size();
  if (quante == 0) return {};
  if (quante == 1) return "Scartata 1 riga senza classe";
  return "Scartate " + TestoIntero(static_cast<long long>(quante)) + " righe senza classe";
}

void FormRigheScartate::Copia() {
  (void)Intrappola(ambiente_, [&] { ambiente_.appunti.MettiTesto(RigheUnite(Righe())); });
}

} // namespace lirmeto
