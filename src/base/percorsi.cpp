#include <base/percorsi.h>

#include <base/errore.h>
#include <base/testo.h>

namespace lirmeto {

std::string_view SenzaEstensione(std::string_view percorso) {
  const std::size_t segno = percorso.find_last_of("\\/.");
  return segno == std::string_view::npos || percorso[segno] != '.' ? percorso : percorso.substr(0, segno);
}

std::string ConEstensione(std::string_view percorso, std::string_view estensione) {
  return std::string(SenzaEstensione(percorso)).append(estensione);
}

std::string ComponenteFile(std::string_view nome) {
  if (nome == ".." || nome.find_first_of("\\/:") != std::string_view::npos)
    throw Errore(errore::NomeFileNonValido, "Nome di file non valido: \"" + std::string(nome) + "\"");
  return std::string(nome);
}

std::string PercorsoInCapitali(const Disco& disco, std::string_view percorso) {
  std::string alto = Maiuscolo(percorso);
  return disco.StessoPosto(alto, percorso) ? alto : std::string(percorso);
}

std::string_view NomeDaPercorso(std::string_view percorso) {
  const std::size_t barra = percorso.find_last_of("\\/");
  return barra == std::string_view::npos ? percorso : percorso.substr(barra + 1);
}

} // namespace lirmeto
