#pragma once
// Angles as instruments read them.

#include <compare>
#include <numbers>

namespace lirmeto {

// An angle in gon, four hundred to the turn. Its number is asked for by name, so that it is never taken for radians,
// degrees or metres.
class Gon {
public:
  constexpr Gon() = default;
  constexpr explicit Gon(double valore) : valore_(valore) {}

  [[nodiscard]] constexpr double Valore() const { return valore_; }

  [[nodiscard]] friend constexpr Gon operator+(Gon a, Gon b) { return Gon(a.valore_ + b.valore_); }
  [[nodiscard]] friend constexpr Gon operator-(Gon a, Gon b) { return Gon(a.valore_ - b.valore_); }
  auto operator<=>(const Gon&) const = default;

private:
  double valore_ = 0;
};

[[nodiscard]] constexpr double Radianti(Gon angolo) {
  return angolo.Valore() * (std::numbers::pi / 200);
}

inline constexpr Gon Giro{400};
inline constexpr Gon Retto{100};

} // namespace lirmeto
