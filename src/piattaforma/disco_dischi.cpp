#include <piattaforma/disco_dischi.h>
#include <piattaforma/errori_ospite.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/orologi.h>

#include <base/errore.h>
#include <base/testo.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <sys/stat.h>
#include <system_error>
#include <utility>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

struct PercorsoDiviso {
  char lettera = 'C'; // of the drive, upper case
  std::vector<std::string_view> componenti;
};

[[noreturn]] void LanciaNome(std::string_view nome) {
  throw Errore(errore::NomeFileNonValido,
               DescrizioneErrore(errore::NomeFileNonValido) + ": \"" + std::string(nome) + "\"");
}

bool Separatore(char lettera) {
  return lettera == '\\' || lettera == '/';
}

bool ComponentePossibile(std::string_view componente) {
  return componente != ".." && componente.find(':') == componente.npos && componente.find('\0') == componente.npos;
}

// Empty components and "." say nothing and go.
std::vector<std::string_view> Componenti(std::string_view percorso) {
  std::vector<std::string_view> componenti;
  while (!percorso.empty()) {
    const std::size_t lungo = std::min(percorso.find_first_of("\\/"), percorso.size());
    const std::string_view componente = percorso.substr(0, lungo);
    if (!componente.empty() && componente != ".") componenti.push_back(componente);
    percorso.remove_prefix(std::min(lungo + 1, percorso.size()));
  }
  return componenti;
}

PercorsoDiviso DividiPercorso(std::string_view percorso) {
  const char lettera = percorso.empty() ? '\0' : Maiuscolo(percorso.front());
  if (percorso.size() < 2 || lettera < 'A' || lettera > 'Z' || percorso[1] != ':') LanciaNome(percorso);
  if (percorso.size() > 2 && !Separatore(percorso[2])) LanciaNome(percorso);
  PercorsoDiviso diviso{lettera, Componenti(percorso.substr(2))};
  if (!std::all_of(diviso.componenti.begin(), diviso.componenti.end(), ComponentePossibile)) LanciaNome(percorso);
  return diviso;
}

bool EsisteVoce(const fs::path& voce) {
  struct stat stato {};
  return ::lstat(voce.c_str(), &stato) == 0;
}

// A host name as the logic says it; none when it cannot.
std::optional<std::string> NomeDaOspite(const std::string& utf8) {
  if (utf8.find_first_of("\\:") != utf8.npos || !RappresentabileDaUtf8(utf8)) return std::nullopt;
  return DaUtf8(utf8);
}

// Whether a host name is this name in some case. Nearly all names are ASCII and need no conversion.
bool StessoNome(const std::string& utf8, std::string_view nome) {
  const bool ascii = std::all_of(utf8.begin(), utf8.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
  if (ascii) return UgualiSenzaCaso(utf8, nome);
  const auto candidata = NomeDaOspite(utf8);
  return candidata && UgualiSenzaCaso(*candidata, nome);
}

// The entry of a folder with this name: its exact spelling, else the first that differs in case alone, else the name as
// given.
fs::path Voce(const fs::path& cartella, std::string_view nome) {
  fs::path esatta = cartella / AUtf8(nome);
  if (EsisteVoce(esatta)) return esatta;
  std::optional<std::string> trovata;
  std::error_code guasto;
  for (fs::directory_iterator i(cartella, guasto), fine; !guasto && i != fine; i.increment(guasto)) {
    const std::string utf8 = i->path().filename().string();
    if (StessoNome(utf8, nome) && (!trovata || utf8 < *trovata)) trovata = utf8;
  }
  return trovata ? cartella / *trovata : esatta;
}

fs::path CartellaDisco(const fs::path& dischi, char lettera) {
  if (lettera == 'Z') return "/";
  const char minuscola = Minuscolo(lettera);
  for (const std::string& nome : {std::string{minuscola}, std::string{lettera}, std::string{minuscola, ':'}})
    if (EsisteVoce(dischi / nome)) return dischi / nome;
  const fs::path maiuscola = dischi / std::string{lettera, ':'};
  return EsisteVoce(maiuscola) ? maiuscola : dischi / std::string{minuscola};
}

// "." and ".." of a host path are followed as the host follows them: ".." behind a link is not the folder before it.
fs::path Assoluto(const fs::path& ospite) {
  std::error_code guasto;
  fs::path assoluto = fs::absolute(ospite, guasto);
  if (guasto) LanciaErrno(guasto.value(), errore::PercorsoNonTrovato);
  if (std::find(assoluto.begin(), assoluto.end(), fs::path("..")) == assoluto.end()) return assoluto.lexically_normal();
  fs::path risolto = fs::weakly_canonical(assoluto, guasto);
  if (guasto) LanciaErrno(guasto.value(), errore::PercorsoNonTrovato);
  return risolto;
}

} // namespace

fs::path DiscoDischi::PercorsoOspite(std::string_view percorso) const {
  const PercorsoDiviso diviso = DividiPercorso(percorso);
  fs::path ospite = CartellaDisco(dischi_, diviso.lettera);
  for (const std::string_view componente : diviso.componenti) ospite = Voce(ospite, componente);
  return ospite;
}

bool DiscoDischi::Esiste(std::string_view percorso) const {
  try {
    std::error_code guasto;
    return fs::exists(PercorsoOspite(percorso), guasto);
  } catch (const Errore&) {
    return false;
  }
}

bool DiscoDischi::EsisteCartella(std::string_view percorso) const {
  try {
    std::error_code guasto;
    return fs::is_directory(PercorsoOspite(percorso), guasto);
  } catch (const Errore&) {
    return false;
  }
}

bool DiscoDischi::StessoPosto(std::string_view percorso, std::string_view altro) const {
  try {
    const fs::path primo = PercorsoOspite(percorso);
    const fs::path secondo = PercorsoOspite(altro);
    if (primo == secondo) return true;
    return primo.parent_path() == secondo.parent_path() && !EsisteVoce(primo) && !EsisteVoce(secondo);
  } catch (const Errore&) {
    return false;
  }
}

std::string DiscoDischi::Leggi(std::string_view percorso) const {
  return LeggiFileOspite(PercorsoOspite(percorso));
}

std::string DiscoDischi::LeggiInizio(std::string_view percorso, std::size_t byte) const {
  return LeggiFileOspite(PercorsoOspite(percorso), byte);
}

void DiscoDischi::Scrivi(std::string_view percorso, std::string_view contenuto) {
  const fs::path ospite = PercorsoOspite(percorso);
  std::error_code guasto;
  if (fs::exists(ospite, guasto) && !fs::is_regular_file(ospite, guasto)) throw Errore(errore::AccessoAlFile);
  ScriviFileOspite(ospite, contenuto);
}

Istante DiscoDischi::Modificato(std::string_view percorso) const {
  struct stat stato {};
  if (::stat(PercorsoOspite(percorso).c_str(), &stato) != 0) LanciaErrno(errno, errore::FileNonTrovato);
  return IstanteLocale(stato.st_mtime);
}

void DiscoDischi::CreaCartella(std::string_view percorso) {
  const fs::path ospite = PercorsoOspite(percorso);
  if (EsisteVoce(ospite)) throw Errore(errore::AccessoAlFile);
  if (::mkdir(ospite.c_str(), 0777) != 0) LanciaErrno(errno, errore::PercorsoNonTrovato);
}

void DiscoDischi::Copia(std::string_view da, std::string_view a) {
  Scrivi(a, Leggi(da));
}

void DiscoDischi::Elimina(std::string_view percorso) {
  const fs::path ospite = PercorsoOspite(percorso);
  std::error_code guasto;
  const fs::file_status stato = fs::status(ospite, guasto);
  if (!EsisteVoce(ospite)) throw Errore(errore::FileNonTrovato);
  if (fs::is_directory(stato)) throw Errore(errore::AccessoAlFile);
  constexpr fs::perms scrittura = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if (fs::exists(stato) && (stato.permissions() & scrittura) == fs::perms::none) throw Errore(errore::AccessoAlFile);
  if (!fs::remove(ospite, guasto)) LanciaErrno(guasto.value(), errore::FileNonTrovato);
}

std::vector<std::string> DiscoDischi::Elenca(std::string_view cartella, std::string_view estensione) const {
  std::vector<std::pair<std::string, std::string>> nomi; // upper-cased name, name
  std::error_code guasto;
  fs::directory_iterator voce(PercorsoOspite(cartella), guasto);
  if (guasto == std::errc::permission_denied) throw Errore(errore::AutorizzazioneNegata);
  for (const fs::directory_iterator fine; !guasto && voce != fine; voce.increment(guasto)) {
    std::error_code ignorato; // an entry that goes away meanwhile is no file
    const auto nome = NomeDaOspite(voce->path().filename().string());
    if (nome && FinisceConSenzaCaso(*nome, estensione) && voce->is_regular_file(ignorato))
      nomi.emplace_back(Maiuscolo(*nome), *nome);
  }
  std::sort(nomi.begin(), nomi.end());
  std::vector<std::string> elenco;
  elenco.reserve(nomi.size());
  for (auto& [chiave, nome] : nomi) elenco.push_back(std::move(nome));
  return elenco;
}

std::string PercorsoDaOspite(const fs::path& ospite) {
  std::string percorso = "Z:";
  for (const fs::path& parte : Assoluto(ospite).relative_path()) {
    if (parte.empty()) continue; // behind a closing separator
    const auto nome = NomeDaOspite(parte.string());
    if (!nome) LanciaNome(DaUtf8(ospite.string()));
    percorso += "\\" + *nome;
  }
  return percorso.size() == 2 ? "Z:\\" : percorso;
}

} // namespace lirmeto
