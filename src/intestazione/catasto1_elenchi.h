#pragma once
// The lists of the header form: what they hold at first and how they are kept in their files.

#include <core/ambiente.h>

#include <array>
#include <cstddef>
#include <optional>
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

// The five lists. Those that a file keeps are written at every change; a file that could not be read is not written
// over.
class ElenchiCatasto1 {
public:
  explicit ElenchiCatasto1(Ambiente& ambiente) : ambiente_(ambiente) {}

  [[nodiscard]] const std::vector<std::string>& Voci(Elenco elenco) const { return voci_.at(Posto(elenco)); }
  // Place of the entry that a box shows; npos when no entry says the same. A typology is known by its two letters.
  [[nodiscard]] std::size_t Trova(Elenco elenco, std::string_view testo) const;
  // What an entry puts into the box; none for one that is not there.
  [[nodiscard]] std::optional<std::string> PerCasella(Elenco elenco, std::size_t voce) const;

  // All of them, and the tables that they come from. Errors are reported.
  void Carica();
  // A text becomes an entry, or goes; a message tells why it cannot.
  void Aggiungi(Elenco elenco, std::string_view voce);
  void Elimina(Elenco elenco, std::string_view voce);
  // The first entries that are missing come back behind the others.
  void Ripristina();

private:
  [[nodiscard]] static std::size_t Posto(Elenco elenco) { return static_cast<std::size_t>(elenco); }
  void CaricaDaFile(Elenco elenco);
  void Salva(Elenco elenco);
  void SalvaTutti();

  Ambiente& ambiente_;
  std::array<std::vector<std::string>, NumeroElenchi> voci_;
  std::array<bool, NumeroElenchi> letti_{}; // lists whose entries are those of their file
};

} // namespace lirmeto
