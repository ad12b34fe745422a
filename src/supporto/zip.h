#pragma once
// ZIP archives: written by the system itself, unpacked through the machine.

#include <supporto/zip_file.h>

#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace lirmeto {

// A ZIP archive of whole files, kept in memory until it is written: entries in the order they came, keyed by the path
// of their file without regard to case. Names and comments are Windows-1252.
class ZipClass {
public:
  explicit ZipClass(Disco& disco) : disco_(disco) {}

  // Reads a file into a new entry, under the last part of its path or under `nome`, when that is not empty. False, and
  // nothing added, when the file is not there. Errors: 457 its path is an entry already, 6 it is of 4 GB or more; those
  // of Disco::Leggi.
  [[nodiscard]] bool AddFile(std::string_view percorso, std::string_view nome = {}, std::string_view commento = {});

  // Writes the archive. One that exists is replaced whole; it stays as it was when `sovrascrivi` is false, with the
  // answer false, and when an error ends the writing. Errors: 6 for more entries, bytes or letters than the format can
  // tell; those of Disco::Scrivi.
  [[nodiscard]] bool WriteZip(std::string_view percorso, bool sovrascrivi);

private:
  Disco& disco_;
  std::vector<ZipFile> file_;
  std::unordered_set<std::string> chiavi_; // upper-cased paths
};

// Bounds of an unpacking: who sends more than this sends no extract but a trap.
struct LimitiEsplosione {
  std::size_t byte = std::size_t{1} << 30U; // unpacked, all entries together
  std::size_t voci = 4'000;
};

// Unpacks an archive into a folder, which is created when only itself is missing. Subfolders stay; files that exist
// are overwritten, and of two entries of one name the later one stays. An archive that is not there is told and nothing
// else happens. Entries that would leave the folder (absolute path, drive, "..", links), that need a password, are
// damaged or have been written over are named in one message. Answers whether there was nothing to tell.
// Errors: 62 the archive is cut short or is none, 6 it goes beyond the bounds (what came before them stays unpacked);
// those of Disco.
bool Esplodi_ZIP(Ambiente& ambiente, const std::string& archivio, const std::string& cartella,
                 const LimitiEsplosione& limiti = {});

} // namespace lirmeto
