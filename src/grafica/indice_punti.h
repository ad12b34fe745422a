#pragma once
// Nearest and neighbouring points of the plane without a walk over all of them.

#include <base/piano.h>

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace lirmeto {

class ArchivioGrafica;
struct PuntoGrafica;

// A tree of the points' positions, split at the middle one by x and y in turns; points at the very same place share one
// place in the tree. Answers are those of a walk over the points in their order. Points appended after the tree was
// made are walked until they are many enough to be worth a new tree.
class IndicePunti {
public:
  // The store's points as they are now. Those that were appended since the last time cost no new tree.
  void Segui(const ArchivioGrafica& archivio);

  // The point nearest to a position among those less than `entro` metres away, the first of equal ones; 0 when there is
  // none.
  [[nodiscard]] std::size_t PiuVicino(std::span<const PuntoGrafica> punti, const PuntoPiano& posto, double entro) const;

  // The points less than `entro` metres away, in order.
  [[nodiscard]] std::vector<std::size_t> Vicini(std::span<const PuntoGrafica> punti, const PuntoPiano& posto,
                                                double entro) const;

private:
  // A place: its points are ordine_[primo] and the `quanti` from there, the lowest first.
  struct Posto {
    PuntoPiano dove;
    std::uint32_t primo = 0;
    std::uint32_t quanti = 0;
  };

  void Costruisci(std::span<const PuntoGrafica> punti);
  void Dimezza(std::size_t da, std::size_t a, bool perX);
  template <typename Visita>
  void Scendi(std::size_t da, std::size_t a, bool perX, Visita& visita) const;

  std::vector<Posto> posti_;
  std::vector<std::uint32_t> ordine_;
  std::uint64_t generazione_ = 0; // of the store, when the tree was made
};

} // namespace lirmeto
