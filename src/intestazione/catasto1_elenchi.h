#pragma once
// The lists of the header form: what they hold at first and how they are kept in their files.

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

enum class Elenco { Qualifica, Provincia, Tipologia, Strumentazione, Commento };
inline constexpr std::size_t NumeroElenchi = 5;

struct VociElenco {
  std::string_view nome; // "Qualifica", as messages call it
  std::size_t casella;   // the box that an entry goes to
  std::string_view file; // in the program's folder; empty for a list that no file keeps
};

[[nodiscard]] const VociElenco& DatiElenco(Elenco elenco);

// The entries that a list has when nothing was kept. The provinces come from the table of the colleges.
[[nodiscard]] std::vector<std::string> VociIniziali(Elenco elenco);

// Entries of a file, one a line; blank lines are none.
[[nodiscard]] std::vector<std::string> LeggiVoci(std::string_view testo);

// Place of an entry, in any case; npos when it is not there.
[[nodiscard]] std::size_t TrovaVoce(const std::vector<std::string>& voci, std::string_view voce);

} // namespace lirmeto
