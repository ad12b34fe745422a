#pragma once
// The extremes of the numbers that were seen.

#include <algorithm>

namespace lirmeto {

class Estremi {
public:
  void Vedi(double numero) {
    minimo_ = vuoti_ ? numero : std::min(minimo_, numero);
    massimo_ = vuoti_ ? numero : std::max(massimo_, numero);
    vuoti_ = false;
  }

  [[nodiscard]] bool Vuoti() const { return vuoti_; }

  // Mean of the two, 0 when nothing was seen. Half and half: the sum of two coordinates that are no coordinates may be
  // too large.
  [[nodiscard]] double Media() const { return minimo_ / 2 + massimo_ / 2; }

private:
  double minimo_ = 0;
  double massimo_ = 0;
  bool vuoti_ = true;
};

} // namespace lirmeto
