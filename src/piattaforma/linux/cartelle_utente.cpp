#include <piattaforma/cartelle_utente.h>
#include <piattaforma/linux/cartelle_xdg.h>

#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

// A folder that the user may have told; a relative path does not count.
fs::path Detta(const char* variabile, const char* altrimenti) {
  const auto detta = VariabileAmbiente(variabile);
  return detta && detta->is_absolute() ? *detta : CartellaCasa() / altrimenti;
}

} // namespace

std::optional<fs::path> VariabileAmbiente(const char* nome) {
  const char* valore = std::getenv(nome);
  if (valore == nullptr || *valore == '\0') return std::nullopt;
  return fs::path(valore);
}

fs::path CartellaCasa() {
  if (const auto casa = VariabileAmbiente("HOME")) return *casa;
  const passwd* utente = ::getpwuid(::geteuid());
  return utente != nullptr ? utente->pw_dir : "/";
}

fs::path CartellaDati() {
  return Detta("XDG_DATA_HOME", ".local/share");
}

fs::path CartellaConfigurazione() {
  return Detta("XDG_CONFIG_HOME", ".config");
}

} // namespace lirmeto
