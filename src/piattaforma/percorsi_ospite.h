#pragma once
// Between the paths of the logic, which have drives, and those of the host.

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

struct PercorsoDiviso {
  char lettera = 'C'; // of the drive, upper case
  std::vector<std::string_view> componenti;
};

// Folders by their path: the names of their entries in capitals, and as the host spells them.
using CartelleRicordate = std::unordered_map<std::string, std::unordered_map<std::string, std::string>>;

// Error 52 with the name that cannot be.
[[noreturn]] void LanciaNome(std::string_view nome);

// "C:\a\b" in its parts; empty components and "." say nothing and go. Error 52 for a path without a drive, with ".." or
// with ":" or a zero byte inside.
[[nodiscard]] PercorsoDiviso DividiPercorso(std::string_view percorso);

// The parts of a path behind its drive. Error 52 as above.
[[nodiscard]] std::vector<std::string_view> Componenti(std::string_view percorso);

// A host name as the logic says it; none when it cannot.
[[nodiscard]] std::optional<std::string> NomeDaOspite(const std::string& utf8);

// Folder of a drive under the folder of all drives: "c", "C", "c:" or "C:", the first that is there, else the first.
[[nodiscard]] std::filesystem::path CartellaDisco(const std::filesystem::path& dischi, char lettera);

// Each of these belongs to the system.

// A host path and its text in UTF-8.
[[nodiscard]] std::filesystem::path OspiteDaUtf8(std::string_view utf8);
[[nodiscard]] std::string Utf8DaOspite(const std::filesystem::path& ospite);

// Where a path of the logic lies, whether something stands there or not; `dischi` holds the drives. A folder that stands
// in `ricordate` is not looked into again, and one that had to be stands there afterwards; a system that tells no
// spellings apart looks into none. Error 52.
[[nodiscard]] std::filesystem::path PercorsoSuOspite(const std::filesystem::path& dischi, std::string_view percorso,
                                                     CartelleRicordate* ricordate = nullptr);

// Whether two host paths lead to the same place, or would once something stands there.
[[nodiscard]] bool StessoPercorso(const std::filesystem::path& primo, const std::filesystem::path& secondo);

} // namespace lirmeto
