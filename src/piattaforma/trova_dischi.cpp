#include <piattaforma/disco_dischi.h>
#include <piattaforma/trova_dischi.h>

#include <cstdlib>
#include <pwd.h>
#include <system_error>
#include <unistd.h>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

// An environment variable that is set and not empty.
std::optional<fs::path> Variabile(const char* nome) {
  const char* valore = std::getenv(nome);
  if (valore == nullptr || *valore == '\0') return std::nullopt;
  return fs::path(valore);
}

fs::path CartellaUtente() {
  if (const auto casa = Variabile("HOME")) return *casa;
  const passwd* utente = ::getpwuid(::geteuid());
  return utente != nullptr ? utente->pw_dir : "/";
}

std::optional<fs::path> DischiDiWine() {
  const fs::path dispositivi = Variabile("WINEPREFIX").value_or(CartellaUtente() / ".wine") / "dosdevices";
  if (!DiscoDischi(dispositivi).Esiste("C:\\windows\\PREGEO.INI")) return std::nullopt;
  return dispositivi;
}

// What cannot be made here is missed later, by name, by whoever looks for it.
fs::path DischiUtente() {
  const auto dati = Variabile("XDG_DATA_HOME");
  const fs::path base = dati && dati->is_absolute() ? *dati : CartellaUtente() / ".local" / "share";
  fs::path dischi = base / "lirmeto" / "dischi";
  std::error_code ignorato;
  fs::create_directories(dischi / "c", ignorato);
  return dischi;
}

} // namespace

fs::path TrovaDischi(const std::optional<fs::path>& opzione) {
  if (opzione) return *opzione;
  if (const auto ambiente = Variabile("LIRMETO_DISCHI")) return *ambiente;
  if (const auto wine = DischiDiWine()) return *wine;
  return DischiUtente();
}

} // namespace lirmeto
