#pragma once
// The new numbers of points: identifiers found at once, and many replacements in a text as if made one after the other.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

// Place of the first point of each identifier. Those made of a number and the class letter ("12%"), as nearly all are,
// lie in a table by their number. The identifiers are views that must outlive the index.
class IndiceIdentificativi {
public:
  static constexpr std::uint32_t Nessuno = UINT32_MAX;

  IndiceIdentificativi(std::size_t attesi, char classe);

  // Notes a place unless the identifier has one already; the answer is the place that it has.
  std::uint32_t Aggiungi(std::string_view identificativo, std::uint32_t posto);
  [[nodiscard]] std::uint32_t Cerca(std::string_view identificativo) const;
  // Of the identifier that a number from 1 and the class letter make.
  [[nodiscard]] std::uint32_t CercaNumero(std::size_t numero) const;

private:
  // The number of an identifier that lies in the table, else 0.
  [[nodiscard]] std::size_t Numero(std::string_view identificativo) const;

  char classe_;
  std::vector<std::uint32_t> numerati_;
  std::unordered_map<std::string_view, std::uint32_t> altri_;
};

// Renumbering replaces, point after point, the old identifier between two bars by the new one, everywhere in a text. A
// new identifier that is the old one of a later point is taken up by that point's replacement again: what two points
// are called by then they stay. The passes over the text are kept as one: what it says comes out the same.
class Rinumerazione {
public:
  // The old identifiers in the order of the points: what they look at must outlive this.
  Rinumerazione(const std::vector<std::string_view>& vecchi, char classe);

  // The next replacement: the identifier of the point number `punto` (from 0) becomes `numero` and the class letter.
  void Sostituisci(std::size_t punto, std::size_t numero);

  // Adds to a text a row as it reads after all replacements. Whole fields between bars are looked at, every one of
  // them, also two equal neighbours.
  void Aggiungi(std::string& testo, std::string_view riga);

private:
  [[nodiscard]] std::uint32_t Radice(std::uint32_t posto);

  char classe_;
  IndiceIdentificativi indice_;
  std::vector<std::uint32_t> primi_;  // by point: the first of its identifier
  std::vector<std::uint32_t> gruppi_; // by the place of an identifier: the fields that read so now
  std::vector<std::uint32_t> padri_;  // of a group: itself, or the one it went into
  std::vector<std::uint32_t> nuovi_;  // of a group: the number that its fields read
};

} // namespace lirmeto
