#pragma once
// The listing of polylines that a CAD program prints, as numbered points and contours.
//
//   LWPOLYLINE  Layer: "RC"                        a polyline on the layer RC, RT, RP or NC begins
//        al punto  X= 12.345  Y= 67.890  Z= 0.000  a vertex; also "at point" and "Locazione:"
//   Premere INVIO per continuare:                  this and any other row is passed over
//
// The layer's code stands as a word of its own behind "LAYER", in any case.

#include <base/dialoghi.h>

#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// A layer of the listing, which is the line code of its contours too.
struct StratoCad {
  std::string_view codice;
  std::string_view commento;    // row 6 before its contours
  std::string_view descrizione; // of its points
};

struct PolilineaCad {
  const StratoCad* strato = nullptr;
  std::vector<std::size_t> punti; // numbers, from 1
};

// Coordinates in metres with three decimals, as rows 8 have them.
struct PuntoCad {
  std::size_t numero = 0; // the same for all points of these coordinates
  std::string nord;
  std::string est;
  std::string_view descrizione;
};

struct ElencoCad {
  std::vector<PuntoCad> punti; // a vertex each, in order
  std::vector<PolilineaCad> polilinee;
};

// Vertices before any layer are of RC: a contour picked on the drawing. Those under any other layer, and rows without
// both coordinates, are passed over. Throws Errore 6 for a coordinate beyond 10^11 metres.
[[nodiscard]] ElencoCad LeggiElencoCad(Dialoghi& dialoghi, std::string_view testo);

} // namespace lirmeto
