#pragma once
// Surfaces of rings from the coordinates of their vertices.

#include <estratti/kr_estratto.h>
#include <estratti/rinumerazione.h>

#include <span>
#include <string_view>
#include <vector>

namespace lirmeto {

// Square metres of a ring, from the norths and easts of its vertices, metres, in order, the first one repeated behind
// the last.
[[nodiscard]] double SuperficieAnello(std::span<const double> nord, std::span<const double> est);

// Computes with the points that the extract has when this is made.
class SuperficiAnelli {
public:
  // Throws Errore 9 for a point without coordinates.
  explicit SuperficiAnelli(KR_Estratto& estratto);

  // The surface of one ring of SETTE, left in SuperficieCalcolata; a ring of fewer than three fields to look up leaves
  // there what the ring before it gave. The fields looked up are the identifiers and the "NC" behind them; one that
  // names no point takes the place of a vertex with the coordinates that the place had before. Throws Errore 9 for more
  // than 500 of them.
  void SuperficieRigaSette(std::string_view riga);

private:
  struct Vertice {
    double nord = 0;
    double est = 0;
  };

  void MettiVertice(std::size_t posto, std::string_view identificativo);
  [[nodiscard]] std::size_t MettiVertici(std::string_view riga);

  KR_Estratto& estratto_;
  IndiceIdentificativi indice_;
  std::vector<Vertice> vertici_; // of Punti, in its order
};

} // namespace lirmeto
