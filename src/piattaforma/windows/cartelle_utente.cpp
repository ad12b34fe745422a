#include <piattaforma/cartelle_utente.h>

#include <piattaforma/windows/cartelle_note.h>
#include <piattaforma/windows/win32.h>

namespace lirmeto {

namespace fs = std::filesystem;

std::optional<fs::path> VariabileAmbiente(const char* nome) {
  const std::wstring largo = Largo(nome);
  std::wstring valore(::GetEnvironmentVariableW(largo.c_str(), nullptr, 0), L'\0');
  if (valore.size() <= 1) return std::nullopt;
  valore.resize(::GetEnvironmentVariableW(largo.c_str(), valore.data(), static_cast<DWORD>(valore.size())));
  return fs::path(valore);
}

fs::path CartellaDati() {
  return CartellaNota(FOLDERID_LocalAppData);
}

} // namespace lirmeto
