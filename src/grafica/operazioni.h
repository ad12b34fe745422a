#pragma once
// The painting of a drawing as a value: screen, printer and picture files all paint the same list.

#include <grafica/archivio_grafica.h>
#include <grafica/vista_grafica.h>

#include <array>
#include <cstdint>
#include <string_view>
#include <vector>

namespace lirmeto {

// The rectangle that the surface shows, metres from the centre of the view, north up.
struct OpScala {
  double sinistra = 0;
  double alto = 0;
  double destra = 0;
  double basso = 0;
};

struct OpLinea {
  double x1 = 0;
  double y1 = 0;
  double x2 = 0;
  double y2 = 0;
  std::int16_t spessore = 1; // pixels
  std::int16_t colore = 0;
  std::int16_t stile = 0;
  bool operator==(const OpLinea&) const = default;
};

// Drawn solid and one pixel wide, not filled.
struct OpCerchio {
  double x = 0;
  double y = 0;
  double raggio = 0; // metres
  std::int16_t colore = 0;
  bool operator==(const OpCerchio&) const = default;
};

// The position is the text's upper left corner; nothing is painted behind it.
struct OpTesto {
  double x = 0;
  double y = 0;
  std::string_view testo; // into the store
  std::string_view font;  // face name, into the store
  double dimensione = 0;  // points, whatever the zoom
  int decimi = 0;         // tenths of a degree, counterclockwise
  std::int16_t colore = 0;
  bool operator==(const OpTesto&) const = default;
};

// In the order of painting: scale, lines, circles, texts, each in the order of its list. The views into the store hold
// until it changes.
struct Operazioni {
  OpScala scala;
  std::vector<OpLinea> linee;
  std::vector<OpCerchio> cerchi;
  std::vector<OpTesto> testi;
};

[[nodiscard]] Operazioni ComponiOperazioni(const ArchivioGrafica& archivio, const VistaGrafica& vista);

// Red, green and blue of the sixteen colours of the classic console.
struct TintaClassica {
  std::uint8_t rosso = 0;
  std::uint8_t verde = 0;
  std::uint8_t blu = 0;
};

inline constexpr std::array<TintaClassica, 16> TinteClassiche = {{
    {0, 0, 0},       // 0 black
    {0, 0, 128},     // 1 blue
    {0, 128, 0},     // 2 green
    {0, 128, 128},   // 3 cyan
    {128, 0, 0},     // 4 red
    {128, 0, 128},   // 5 magenta
    {128, 128, 0},   // 6 yellow
    {192, 192, 192}, // 7 grey
    {128, 128, 128}, // 8 dark grey
    {0, 0, 255},     // 9 bright blue
    {0, 255, 0},     // 10 bright green
    {0, 255, 255},   // 11 bright cyan
    {255, 0, 0},     // 12 bright red
    {255, 0, 255},   // 13 bright magenta
    {255, 255, 0},   // 14 bright yellow
    {255, 255, 255}, // 15 white
}};

// The colour of an index; black for one that is none of the sixteen.
[[nodiscard]] constexpr TintaClassica Tinta(std::int16_t colore) {
  const auto indice = static_cast<std::size_t>(colore < 0 ? 0 : colore);
  return indice < TinteClassiche.size() ? TinteClassiche[indice] : TinteClassiche[0];
}

// The face of a text that names none.
inline constexpr std::string_view FontPredefinito = "Courier New";

} // namespace lirmeto
