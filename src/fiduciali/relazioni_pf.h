#pragma once
// Which lines of an archive of measured distances belong to which pair of fiducial points.

#include <base/dialoghi.h>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

// Distance of a line, metres: the value of its text from column 34 on.
[[nodiscard]] double DistanzaMisurata(std::string_view riga);

// The lines of an archive by the pairs of names that they hold, each name anywhere in the line. The archive is read
// through once for all pairs.
class RelazioniPF {
public:
  // Names that begin "PF", sorted, each once; the text with its line ends must outlive this. Throws Errore 7 when the
  // lines of all pairs together are more than a report can hold.
  RelazioniPF(Dialoghi& dialoghi, std::span<const std::string> nomi, std::string_view testo);

  // Lines that hold the names number `primo` and `secondo`, the lower one first, in the order of the archive.
  [[nodiscard]] const std::vector<std::string_view>& Righe(std::size_t primo, std::size_t secondo) const;

private:
  struct Tratto { // of names, from the first to before the last
    std::size_t primo = 0;
    std::size_t ultimo = 0;
  };

  void DividiPerIniziali();
  void Distribuisci(std::string_view riga);
  void TrovaNomi(std::string_view riga);
  void Prova(std::string_view coda, const Tratto& tratto);

  std::span<const std::string> nomi_;
  std::vector<Tratto> perIniziali_;                                      // by the two bytes behind "PF"
  std::vector<std::size_t> corti_;                                       // names that have no two bytes there
  std::vector<std::size_t> trovati_;                                     // of the line at hand, each once
  std::unordered_map<std::size_t, std::vector<std::string_view>> righe_; // by pair
  std::size_t quante_ = 0;
};

} // namespace lirmeto
