#pragma once
// Processes and special folders on a Windows host.

#include <piattaforma/processi_ospite.h>

namespace lirmeto {

class ProcessiWindows final : public ProcessiOspite {
public:
  explicit ProcessiWindows(DiscoDischi& disco) : ProcessiOspite(disco) {}

  // The shell's own; over a folder of drives those that lie there.
  [[nodiscard]] CartelleDiSistema Cartelle() override;

  // The system's own are there already: only over a folder of drives is there anything to make.
  void CreaCartelleDiSistema() override;

  // The program's folder is shorter than 260 characters, or it does not start: error 75.
  int AvviaEAttendi(const std::string& programma, const std::vector<std::string>& argomenti,
                    const std::function<bool()>& attende) override;

  void ApriDocumento(const std::string& percorso) override;
  void Avvia(const std::string& programma) override;
  void ApriPagina(const std::string& indirizzo) override;
  void ApriDocumentoCon(const std::string& programma, const std::string& percorso) override;

  [[nodiscard]] std::vector<long> Elenca(std::string_view immagine) override;
  [[nodiscard]] long QuestoProcesso() const override;
  [[nodiscard]] int Termina(long processo) override;

  void MostraDesktop() override;

  // As NAME.lnk.
  void CreaCollegamento(const Collegamento& collegamento) override;
};

// The words of a command line as one text, quoted so that the program finds them again as they were: after the published
// rules of CommandLineToArgvW.
[[nodiscard]] std::wstring RigaDiParole(const std::vector<std::wstring>& parole);

} // namespace lirmeto
