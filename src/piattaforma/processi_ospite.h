#pragma once
// Processes and special folders of the host: what its systems share.

#include <piattaforma/disco_dischi.h>

#include <base/macchina.h>

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class ProcessiOspite : public Processi {
public:
  // Creates those of the folders of the system that are missing. Errors as Disco::CreaCartella.
  virtual void CreaCartelleDiSistema() = 0;

  [[nodiscard]] std::unique_ptr<ArchivioAperto> ApriArchivio(std::string byte) final;
  [[nodiscard]] std::string VersioneFile(std::string_view percorso) final;
  void Pausa(int millisecondi) final;

protected:
  explicit ProcessiOspite(DiscoDischi& disco) : disco_(disco) {}

  DiscoDischi& disco_;
};

// Those of this system. The disk must outlive them.
[[nodiscard]] std::unique_ptr<ProcessiOspite> ProcessiDellaMacchina(DiscoDischi& disco);

// The executable of a program, "NAME" standing in for a "NAME.exe" that is not there. Error 53.
[[nodiscard]] std::filesystem::path TrovaProgramma(const DiscoDischi& disco, std::string_view programma);

// Arguments in UTF-8. Error 5 for a zero byte.
[[nodiscard]] std::vector<std::string> ParoleDelProgramma(const std::vector<std::string>& argomenti);

// Special folders on drives of our own: C:\users\NAME\Documents, C:\WINDOWS, C:\users\NAME\Temp, C:\Program Files (x86).
[[nodiscard]] CartelleDiSistema CartelleSottoC(std::string_view utente);
void CreaCartelleMancanti(Disco& disco, const CartelleDiSistema& cartelle);

// A text made fit to be one component of a path: what cannot be becomes "_"; empty or dots only becomes "utente".
[[nodiscard]] std::string ComponenteSicuro(std::string_view utf8);

inline constexpr std::string_view EstensioneProgramma = ".exe";

} // namespace lirmeto
