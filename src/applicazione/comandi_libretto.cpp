#include <applicazione/comandi_libretto.h>

#include <core/salvataggio.h>
#include <supporto/editor_gen.h>
#include <supporto/stampa_generale.h>

namespace lirmeto {

void StampaLibretto(Ambiente& ambiente) {
  MostraStampaGenerale(ambiente, ambiente.sessione.List1.Righe());
}

void ModificaRelazione(Ambiente& ambiente) {
  AggiornaLibrettoMisure(ambiente);
  subModificaRelazione(ambiente);
}

} // namespace lirmeto
