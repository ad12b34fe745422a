#pragma once
// Wheel and middle button on their way to the drawing: the hook on the window of the form that hosts it.

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
} // namespace host

// Messages of a window that the hook acts on, by their numbers.
namespace messaggio {
inline constexpr unsigned Fine = 130;
inline constexpr unsigned Movimento = 512;
inline constexpr unsigned CentraleGiu = 519;
inline constexpr unsigned Rotella = 522;
} // namespace messaggio

// One hook stands at a time. The surface puts it up when the pointer enters and takes it down when it leaves; in
// between it hands it what it gets. Every message goes on to the window as if there were no hook.
class GancioGrafica {
public:
  // Called at each step of the wheel: forward or back.
  using Zoom = std::function<void(bool avanti)>;

  // Does nothing while one stands.
  void Installa(Zoom zoom);
  void Togli();
  [[nodiscard]] bool Installato() const { return static_cast<bool>(zoom_); }

  // The wheel's steps are the upper half of its parameter: 120 for a notch, above 0 forward.
  void Messaggio(unsigned numero, std::int32_t parametro);

  // -1 from the middle button's press to the next move.
  [[nodiscard]] int Pan() const { return pan_; }

private:
  Zoom zoom_;
  int pan_ = 0;
};

} // namespace lirmeto
