#include <piattaforma/trova_dischi.h>

#include <piattaforma/cartelle_utente.h>
#include <piattaforma/windows/win32.h>

namespace lirmeto {

std::filesystem::path TrovaDischi(const std::optional<std::filesystem::path>& opzione) {
  if (!opzione) return VariabileAmbiente("LIRMETO_DISCHI").value_or(std::filesystem::path());
  ::SetEnvironmentVariableW(L"LIRMETO_DISCHI", PercorsoPieno(*opzione).c_str());
  return *opzione;
}

} // namespace lirmeto
