#include <piattaforma/cartelle_utente.h>
#include <piattaforma/disco_dischi.h>
#include <piattaforma/linux/cartelle_xdg.h>
#include <piattaforma/trova_dischi.h>

#include <system_error>

namespace lirmeto {

namespace fs = std::filesystem;

namespace {

std::optional<fs::path> DischiDiWine() {
  const fs::path dispositivi = VariabileAmbiente("WINEPREFIX").value_or(CartellaCasa() / ".wine") / "dosdevices";
  if (!DiscoDischi(dispositivi).Esiste("C:\\windows\\PREGEO.INI")) return std::nullopt;
  return dispositivi;
}

} // namespace

fs::path TrovaDischi(const std::optional<fs::path>& opzione) {
  if (opzione) return *opzione;
  if (const auto ambiente = VariabileAmbiente("LIRMETO_DISCHI")) return *ambiente;
  if (const auto wine = DischiDiWine()) return *wine;
  fs::path dischi = CartellaDati() / "lirmeto" / "dischi";
  std::error_code ignorato; // what cannot be made here is missed later, by name, by whoever looks for it
  fs::create_directories(dischi / "c", ignorato);
  return dischi;
}

} // namespace lirmeto
