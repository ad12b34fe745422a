#pragma once
// What every painter of a drawing measures alike, whatever it paints with.

#include <grafica/operazioni.h>

#include <array>
#include <optional>

namespace lirmeto::pittura {

inline constexpr double PuntiPerPollice = 72;
inline constexpr double PixelPerPollice = 96; // of a surface at 100%

// Dash and gap of styles 1 and 2, in widths of the line.
inline constexpr std::array<double, 2> Tratteggio = {6, 4};
inline constexpr std::array<double, 2> Punteggio = {1, 3};

// The light ground.
inline constexpr TintaClassica Fondo = {253, 253, 251};

// In a painter's pixels, downward.
struct Rettangolo {
  double sinistra = 0;
  double alto = 0;
  double destra = 0;
  double basso = 0;
  [[nodiscard]] bool Contiene(double x, double y) const {
    return x >= sinistra && x <= destra && y >= alto && y <= basso;
  }
  [[nodiscard]] Rettangolo Allargato(double bordo) const {
    return {sinistra - bordo, alto - bordo, destra + bordo, basso + bordo};
  }
};

// The part of a line inside a rectangle, and how many pixels of its beginning were cut off. None when nothing of it is
// inside, or an end is not finite.
struct Tratto {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  double saltati = 0;
};
[[nodiscard]] std::optional<Tratto> Ritaglia(const Tratto& intero, const Rettangolo& dentro);

// Height of a text in pixels, within what can be painted; `unita` is a screen pixel in the painter's.
[[nodiscard]] double PixelTesto(double punti, double unita);

// Whether any of a text whose upper left corner stands there can be seen.
[[nodiscard]] bool SiVede(const OpTesto& testo, double x, double y, double pixel, const Rettangolo& visibile);

// Pen width of a line in screen pixels.
[[nodiscard]] double Larghezza(const OpLinea& linea);

} // namespace lirmeto::pittura
