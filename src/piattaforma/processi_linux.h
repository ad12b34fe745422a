#pragma once
// Processes and special folders on a Linux host.

#include <piattaforma/disco_dischi.h>

#include <base/macchina.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class ProcessiLinux final : public Processi {
public:
  explicit ProcessiLinux(DiscoDischi& disco) : disco_(disco) {}

  // Folders of the user under C:, whether they are there or not: C:\users\NAME\Documents, C:\users\NAME\Temp,
  // C:\WINDOWS, C:\Program Files (x86).
  [[nodiscard]] CartelleDiSistema Cartelle() override;

  // Creates those of them that are missing. Errors as Disco::CreaCartella.
  void CreaCartelleDiSistema();

  // The program finds the same drives through LIRMETO_DISCHI.
  void AvviaEAttendi(const std::string& programma, const std::vector<std::string>& argomenti) override;

  // Looked for in /proc by the name of the executable and by the name the process was called with; "NAME.exe" also fits
  // a process "NAME".
  [[nodiscard]] std::vector<long> Elenca(std::string_view immagine) override;
  [[nodiscard]] long QuestoProcesso() const override;
  [[nodiscard]] int Termina(long processo) override;

  // Through the window manager's own control program; nothing where that is not installed.
  void MostraDesktop() override;

private:
  DiscoDischi& disco_;
};

// A text made fit to be one component of a path: what cannot be becomes "_"; empty or dots only becomes "utente".
[[nodiscard]] std::string ComponenteSicuro(std::string_view utf8);

} // namespace lirmeto
