#include <core/apri_form.h>

namespace lirmeto {

bool ApriForm(Ambiente& ambiente, std::string_view nome) {
  const bool disponibile = ambiente.finestre.Disponibile(nome);
  if (disponibile)
    ambiente.finestre.Apri(nome);
  else
    ambiente.dialoghi.Messaggio(NonAncoraDisponibile);
  return disponibile;
}

} // namespace lirmeto
