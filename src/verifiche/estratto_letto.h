#pragma once
// A map extract, or the part of a proposal that has the same rows, as the checks want it: points by identifier, rings
// joined from their continuations. The store of the extracts (estratti/kr_estratto.h) tells the format. Reading never
// fails: what cannot be read is left out or 0.

#include <verifiche/adattamento.h>

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace lirmeto {

struct AnelloLetto {
  std::size_t riga = 0;             // of its head
  std::vector<std::string> vertici; // identifiers
  std::string nome;                 // "35", "35+", "AAA"
  std::string superficie;           // as written, square metres
};

struct PuntiEstratto {
  std::unordered_map<std::string, PuntoPiano> posti;
  // The vertices of a ring that have a place.
  [[nodiscard]] std::vector<PuntoPiano> Di(const AnelloLetto& anello) const;
};

struct EstrattoLetto {
  bool intestato = false; // the first row is a header
  std::string data;       // as written: ddmmyyyy or AUTOALLESTITO
  std::string comune;
  std::string foglio;                  // the last four characters
  std::vector<std::string> particelle; // of the header and of the rings, without signs
  PuntiEstratto punti;
  std::vector<AnelloLetto> anelli;
  std::vector<std::vector<PuntoPiano>> linee; // free lines

  [[nodiscard]] bool HaParticella(std::string_view nome) const;
};

// Joins rows 7 into rings as they come: heads and, behind them, continuations.
class LettoreAnelli {
public:
  // Row 8 or 7; any other is passed over.
  void Riga(std::string_view riga, std::size_t indice);

  PuntiEstratto punti;
  std::vector<AnelloLetto> anelli;
  std::vector<std::vector<std::string>> linee; // identifiers
};

[[nodiscard]] EstrattoLetto LeggiEstratto(std::string_view testo);

} // namespace lirmeto
