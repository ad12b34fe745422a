#include <core/campi_riga.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/descrizione_riga.h>
#include <core/riga.h>

#include <algorithm>
#include <vector>

namespace lirmeto {

std::optional<std::size_t> CampoNota(std::string_view riga) {
  const auto campi = DescriviRiga(riga).campi;
  const auto nota = std::find_if(campi.begin(), campi.end(), [](const CampoDescritto& campo) {
    return campo.nome == "Nota" || campo.nome == "Descrizione";
  });
  if (nota == campi.end()) return std::nullopt;
  return static_cast<std::size_t>(nota - campi.begin()) + 1; // the first field told is field 1
}

std::string ConCampo(std::string_view riga, std::size_t campo, std::string_view testo) {
  std::vector<std::string_view> campi = Dividi(riga, "|");
  if (campo >= campi.size())
    throw Errore(errore::IndiceFuoriIntervallo, "La riga non ha questo campo: " + std::string(riga));
  const std::string pulito = InBianchi(testo, "|");
  campi[campo] = pulito;
  return Unisci(campi, "|");
}

} // namespace lirmeto
