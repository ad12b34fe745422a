#pragma once
// The drives of the logic as folders of the host.

#include <piattaforma/percorsi_ospite.h>

#include <base/macchina.h>

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// A Disco over a folder that has one subfolder per drive letter: "c", "C", or "c:" as a Wine prefix names them. "Z:" is
// always the host's own, on Linux its root. A name that Windows-1252 cannot say, or that holds "\" or ":", does not exist
// here. Nothing is remembered between two calls, unless it is asked for: other programs work on the same folders.
//   legal:   "C:\pregeo\x.dat", "c:/pregeo//x.dat", "Z:\home\ada\x.dat", "C:" (the drive's root)
//   illegal: "pregeo\x.dat", "\pregeo", "C:x.dat", "C:\a\..\b", "C:\a:b" (error 52)
//
// On Windows no folder at all means the drives as they are. There a share is legal too, "\\server\share\x.dat", and beside a
// folder of drives the host's own ones are "\\?\D:\x.dat"; illegal are the names that Windows keeps for devices ("NUL",
// "com1.txt") and the characters < > " | ? *. Blanks and points that end a name count for nothing.
class DiscoDischi final : public Disco {
public:
  explicit DiscoDischi(std::filesystem::path dischi) : dischi_(std::move(dischi)) {}

  [[nodiscard]] bool Esiste(std::string_view percorso) const override;
  [[nodiscard]] bool EsisteCartella(std::string_view percorso) const override;
  [[nodiscard]] bool StessoPosto(std::string_view percorso, std::string_view altro) const override;
  [[nodiscard]] std::string Leggi(std::string_view percorso) const override;
  [[nodiscard]] std::string LeggiInizio(std::string_view percorso, std::size_t byte) const override;
  void Scrivi(std::string_view percorso, std::string_view contenuto) override;
  [[nodiscard]] Istante Modificato(std::string_view percorso) const override;
  void CreaCartella(std::string_view percorso) override;
  void Copia(std::string_view da, std::string_view a) override;
  void Elimina(std::string_view percorso) override;
  [[nodiscard]] std::vector<std::string> Elenca(std::string_view cartella, std::string_view estensione) const override;

  // Where a path lies on the host, whether something stands there or not. Throws Errore 52 for a path that cannot be.
  [[nodiscard]] std::filesystem::path PercorsoOspite(std::string_view percorso) const;

  // A path of the host as the logic says it: "C:\..." where it lies in the folder of that drive, else as
  // PercorsoDaOspite says it, whose errors it has.
  [[nodiscard]] std::string DaOspite(const std::filesystem::path& ospite) const;

  [[nodiscard]] const std::filesystem::path& Dischi() const { return dischi_; }

  void RicordaCartelle(bool si) override;

private:
  void Annota(const std::filesystem::path& voce);

  std::filesystem::path dischi_;
  mutable std::optional<CartelleRicordate> ricordate_; // none: nothing is remembered
};

// A path of the host, made absolute, as the logic says it: "Z:\..." on Linux, as it is on Windows, or "\\?\D:\..." beside a
// folder of drives. Throws Errore 52 when a component cannot be said: not in Windows-1252, or with "\" or ":" inside.
[[nodiscard]] std::string PercorsoDaOspite(const std::filesystem::path& ospite);

} // namespace lirmeto
