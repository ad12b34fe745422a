#pragma once
// The ruler: distances, directions and area between points that are picked one after the other.

#include <base/gon.h>
#include <base/piano.h>

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lirmeto {

struct Misurato {
  double tratto = 0; // of the last side, metres
  Gon direzione;     // of the last side, clockwise from the north
  double totale = 0; // of all sides, metres
  double area = 0;   // of the vertices joined in a ring, square metres; 0 with fewer than three
  std::size_t lati = 0;
};

class Righello {
public:
  [[nodiscard]] bool Acceso() const { return acceso_; }
  [[nodiscard]] const std::vector<PuntoPiano>& Vertici() const { return vertici_; }
  // Where the mouse would pick next, if it is over the drawing.
  [[nodiscard]] const std::optional<PuntoPiano>& Sotto() const { return sotto_; }

  // Switched off it forgets what it measured.
  void Accendi(bool acceso);
  // A point is picked; the last one again changes nothing.
  void Prendi(const PuntoPiano& posto);
  void TogliUltimo();
  void Svuota() { vertici_.clear(); }
  void PassaSu(const std::optional<PuntoPiano>& posto) { sotto_ = posto; }

  // Of the vertices, and of the place under the mouse behind them.
  [[nodiscard]] Misurato Misura() const;

private:
  std::vector<PuntoPiano> vertici_;
  std::optional<PuntoPiano> sotto_;
  bool acceso_ = false;
};

// What the ruler reads, with its units, a line each; how to begin while there is nothing to measure.
[[nodiscard]] std::vector<std::string> RigheMisura(const Righello& righello);

} // namespace lirmeto
