#pragma once
// Angles and distances between points in plan. Coordinates and distances in metres; azimuths clockwise from +Y.

#include <string>
#include <string_view>

namespace lirmeto {

[[nodiscard]] double Distanza2D(double x1, double y1, double x2, double y2);

struct Direzione {
  double angolo = 0;   // radians, 0 to 2 pi
  double distanza = 0; // metres
};

// Of the vector from B to A. By the half angle, 2 atan(dx / (d + dy)), which needs no test on dy: where d + dy is zero
// the angle is pi. Angles that are compared are taken the same way round, so that the sense of the vector falls out.
[[nodiscard]] Direzione AzimutDistanza(double ax, double ay, double bx, double by);

struct Lettura {
  double angolo = 0;   // grads, 0 to below 400
  double distanza = 0; // of S and P, metres
};

// Reading to P on a station S that reads `orientamento` (grads) to R.
[[nodiscard]] Lettura AngoloDaOrientamento(double sx, double sy, double rx, double ry, double px, double py,
                                           double orientamento);

// An angle, grads, rounded to a step: half a step is added and the rest cut off.
[[nodiscard]] double ArrotondaAngolo(double angolo, double passo);

// The formats of a row 1 and 2, with a point as decimal sign: grads with three decimals or four, metres with three or
// (heights) two or three.
inline constexpr std::string_view FormatoAngolo = "########0.##0#";
inline constexpr std::string_view FormatoDistanza = "#########0.##0";
inline constexpr std::string_view FormatoAltezza = "##0.#0#";

} // namespace lirmeto
