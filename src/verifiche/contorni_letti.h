#pragma once
// The contours of the rows 7, each with the rows that continue it.

#include <verifiche/righe_lette.h>

#include <string_view>
#include <vector>

namespace lirmeto {

struct VerticeContorno {
  Punto punto = SenzaPunto;
  std::size_t riga = 0;
  std::size_t campo = 0;
};

struct ContornoLetto {
  std::size_t riga = 0; // of its head
  std::int32_t conteggio = 0;
  std::string_view codice; // of its head; empty for none that is known
  std::vector<VerticeContorno> vertici;

  [[nodiscard]] bool Rosso() const { return codice.starts_with('R'); }
  [[nodiscard]] bool Nero() const { return codice.starts_with('N'); }
  // Rows of vertex points: their names are points by themselves, and no line joins them.
  [[nodiscard]] bool Vertici() const { return codice == "PV" || codice == "PD"; }
};

// Of the measures, without those of the proposal. A continuation with nothing before it stands by itself.
[[nodiscard]] std::vector<ContornoLetto> LeggiContorni(const RigheLette& righe);

} // namespace lirmeto
