#include <piattaforma/percorsi_ospite.h>

#include <piattaforma/file_ospite.h>

#include <base/errore.h>
#include <base/testo.h>

#include <algorithm>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

bool Separatore(char lettera) {
  return lettera == '\\' || lettera == '/';
}

bool ComponentePossibile(std::string_view componente) {
  return componente != ".." && componente.find(':') == componente.npos && componente.find('\0') == componente.npos;
}

} // namespace

void LanciaNome(std::string_view nome) {
  throw Errore(errore::NomeFileNonValido,
               DescrizioneErrore(errore::NomeFileNonValido) + ": \"" + std::string(nome) + "\"");
}

std::vector<std::string_view> Componenti(std::string_view percorso) {
  std::vector<std::string_view> componenti;
  for (std::string_view resto = percorso; !resto.empty();) {
    const std::size_t lungo = std::min(resto.find_first_of("\\/"), resto.size());
    const std::string_view componente = resto.substr(0, lungo);
    if (!ComponentePossibile(componente)) LanciaNome(percorso);
    if (!componente.empty() && componente != ".") componenti.push_back(componente);
    resto.remove_prefix(std::min(lungo + 1, resto.size()));
  }
  return componenti;
}

PercorsoDiviso DividiPercorso(std::string_view percorso) {
  const char lettera = percorso.empty() ? '\0' : Maiuscolo(percorso.front());
  if (percorso.size() < 2 || lettera < 'A' || lettera > 'Z' || percorso[1] != ':') LanciaNome(percorso);
  if (percorso.size() > 2 && !Separatore(percorso[2])) LanciaNome(percorso);
  return {lettera, Componenti(percorso.substr(2))};
}

std::optional<std::string> NomeDaOspite(const std::string& utf8) {
  if (utf8.find_first_of("\\:") != utf8.npos || !RappresentabileDaUtf8(utf8)) return std::nullopt;
  return DaUtf8(utf8);
}

fs::path CartellaDisco(const fs::path& dischi, char lettera) {
  const char minuscola = Minuscolo(lettera);
  for (const std::string& nome : {std::string{minuscola}, std::string{lettera}, std::string{minuscola, ':'}})
    if (EsisteVoce(dischi / nome)) return dischi / nome;
  const fs::path maiuscola = dischi / std::string{lettera, ':'};
  return EsisteVoce(maiuscola) ? maiuscola : dischi / std::string{minuscola};
}

} // namespace lirmeto
