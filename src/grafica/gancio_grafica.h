#pragma once
// The wheel on its way to the drawing: the hook on the window of the form that hosts it.

#include <cstdint>
#include <functional>

namespace lirmeto {

// The forms that host a drawing, by the number that stands in the session's HostGrafica.
namespace host {
inline constexpr std::int16_t KR_ElcoPFGrafica = 1;
inline constexpr std::int16_t KR_EDM = 5;
inline constexpr std::int16_t KR_Fraziona = 6;
inline constexpr std::int16_t KR_EstrattiDiMappa1 = 7;
inline constexpr std::int16_t KR_SommaEstratti = 9;
inline constexpr std::int16_t LibrettoDaDisegno = 10;
inline constexpr std::int16_t KR_Dapregeo = 11;
inline constexpr std::int16_t AnteprimaGrafica = 14;
inline constexpr std::int16_t Tipol10 = 15;
inline constexpr std::int16_t RilievoAccanto = 16; // the picture beside the rows of the main window
} // namespace host

// One hook stands at a time. The surface puts it up when the pointer enters and takes it down when it leaves.
class GancioGrafica {
public:
  // Called at each step of the wheel: forward or back.
  using Zoom = std::function<void(bool avanti)>;

  // Does nothing while one stands.
  void Installa(Zoom zoom);
  void Togli() { zoom_ = nullptr; }
  [[nodiscard]] bool Installato() const { return static_cast<bool>(zoom_); }

  // The wheel has turned by a notch.
  void Rotella(bool avanti) const;

private:
  Zoom zoom_;
};

} // namespace lirmeto
