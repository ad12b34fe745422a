#pragma once
// Processes and special folders on a Linux host.

#include <piattaforma/processi_ospite.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class ProcessiLinux final : public ProcessiOspite {
public:
  explicit ProcessiLinux(DiscoDischi& disco) : ProcessiOspite(disco) {}

  // Folders of the user under C:, whether they are there or not: C:\users\NAME\Documents, C:\users\NAME\Temp,
  // C:\WINDOWS, C:\Program Files (x86).
  [[nodiscard]] CartelleDiSistema Cartelle() override;

  void CreaCartelleDiSistema() override;

  // The program finds the same drives through LIRMETO_DISCHI.
  int AvviaEAttendi(const std::string& programma, const std::vector<std::string>& argomenti,
                    const std::function<bool()>& attende) override;

  // Through the desktop's own opener, xdg-open. One that says within a second that it could not is error 75.
  void ApriDocumento(const std::string& percorso) override;
  void Avvia(const std::string& programma) override;
  void ApriPagina(const std::string& indirizzo) override;
  void ApriDocumentoCon(const std::string& programma, const std::string& percorso) override;

  // Looked for in /proc by the name of the executable and by the name the process was called with; "NAME.exe" also fits
  // a process "NAME".
  [[nodiscard]] std::vector<long> Elenca(std::string_view immagine) override;
  [[nodiscard]] long QuestoProcesso() const override;
  [[nodiscard]] int Termina(long processo) override;

  // Through the window manager's own control program; nothing where that is not installed.
  void MostraDesktop() override;

  // As .desktop files in the user's desktop and applications folders; a quick-launch bar is not there. The program
  // finds the same drives through LIRMETO_DISCHI.
  void CreaCollegamento(const Collegamento& collegamento) override;

private:
  void RaccogliFiniti();
  void ApriDalDesktop(const std::string& cosa, const std::string& nome);

  std::vector<int> lasciati_; // programs started and not waited for: their ends are collected at the next start
};

} // namespace lirmeto
