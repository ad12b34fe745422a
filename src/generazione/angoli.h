#pragma once
// Angles between points in plan. Azimuths clockwise from the north.

#include <base/gon.h>
#include <base/piano.h>

#include <string_view>

namespace lirmeto {

struct Direzione {
  double angolo = 0;   // radians, 0 to 2 pi
  double distanza = 0; // metres
};

// Of the vector from B to A. By the half angle, 2 atan(dx / (d + dy)), which needs no test on dy: where d + dy is zero
// the angle is pi. Angles that are compared are taken the same way round, so that the sense of the vector falls out.
[[nodiscard]] Direzione AzimutDistanza(const PuntoPiano& a, const PuntoPiano& b);

// A station, and what its circle reads to the point that it is oriented on.
struct Orientamento2D {
  PuntoPiano stazione;
  PuntoPiano riferimento;
  Gon lettura;
};

struct Lettura {
  Gon angolo;          // 0 to below 400
  double distanza = 0; // from the station, metres
};

// Reading to a point.
[[nodiscard]] Lettura AngoloDaOrientamento(const Orientamento2D& orientamento, const PuntoPiano& punto);

// An angle rounded to a step: half a step is added and the rest cut off.
[[nodiscard]] Gon ArrotondaAngolo(Gon angolo, Gon passo);

// The formats of a row 1 and 2, with a point as decimal sign: grads with three decimals or four, metres with three or
// (heights) two or three.
inline constexpr std::string_view FormatoAngolo = "########0.##0#";
inline constexpr std::string_view FormatoDistanza = "#########0.##0";
inline constexpr std::string_view FormatoAltezza = "##0.#0#";

} // namespace lirmeto
