#include <core/lettura.h>

#include <base/testo.h>

namespace lirmeto {

std::string CaricaFileIntero(Ambiente& ambiente, std::string_view percorso) {
  ambiente.sessione.PuntoErrore = "cARICA fILE iNTERO";
  return ambiente.disco.Esiste(percorso) ? ConFineRiga(ambiente.disco.Leggi(percorso)) : std::string{};
}

std::string CaricaFileBinario(Ambiente& ambiente, std::string_view percorso) {
  return ambiente.disco.Leggi(percorso);
}

} // namespace lirmeto
