#pragma once
// Every colour of the windows, light and dark, in one table: palette, style sheet, icons and what is painted by hand take
// theirs from here.

#include <QColor>
#include <QPalette>
#include <QString>

#include <array>
#include <cstdint>

class QApplication;

namespace lirmeto::ui {

enum class Tono : std::uint8_t {
  Finestra, // behind all, and the text on it
  TestoFinestra,
  Base, // behind lists and boxes
  Testo,
  Alterna,
  Pulsante,
  Spento, // text of what cannot be used
  Invito, // text that tells what to do
  Scelta, // what is selected, as the toolkit shows it
  TestoScelta,
  Consiglio, // tooltips and the readout of a drawing
  BordoConsiglio,
  TestoConsiglio,
  Bordo, // lines between parts
  BordoForte,
  Cornice, // of boxes, on dark ground
  Testata,
  Sopra, // under the pointer
  BordoSopra,
  Premuto,
  Acceso, // pressed down to stay
  BordoAcceso,
  Fuoco,  // border of what has the keys
  Titolo, // of a group
  TestoPosto,
  Ricerca,
  BordoRicerca,
  Avviso,
  TestoAvviso,
  BordoAvviso,
  AvvisoSopra,
  RigaScelta, // of a libretto
  Numeri,
  Margine,
  Barre,
  Trovato,
  RigaCorrente, // of an editor
  CellaGialla,
  CellaRossa,
  TestoErrore,
  FondoErrore, // of a box whose text is wrong
  TestoGiusto,
  SegnoErrore, // signs beside a row
  SegnoDubbio,
  SegnoNota,
  Carta, // behind a drawing
  Scala,
  Cerchio, // round the point under the pointer
  Righello,
  Evidenza,   // over a line that is lit
  Particella, // over the sides of a parcel
  Foglio,     // behind a scanned sheet, which is black on white in any light
  Ombra,
  Quanti // how many there are
};

struct ColoriRiga {
  QColor fondo;    // behind the text
  QColor striscia; // the mark beside it
};
// By kind of row, 0 to 9.
[[nodiscard]] const std::array<ColoriRiga, 10>& ColoriRighe(bool scuro);

[[nodiscard]] QColor ColoreTema(Tono tono, bool scuro);
// In the light the application has now.
[[nodiscard]] QColor ColoreTema(Tono tono);
[[nodiscard]] bool TemaScuro();

// The style sheet with its colours in place of their names, and a picture's text with its light colours changed for dark
// ones.
[[nodiscard]] QString ConColori(QString foglio, bool scuro);
[[nodiscard]] QByteArray IconaScura(QByteArray svg);

[[nodiscard]] QPalette PaletteDi(bool scuro);

// How much two colours differ in light, 1 to 21 (WCAG 2.1, relative luminance).
[[nodiscard]] double Contrasto(const QColor& uno, const QColor& altro);
// The colour itself, or one of its hue that stands out so much from a ground.
[[nodiscard]] QColor Leggibile(const QColor& colore, const QColor& fondo, double contrasto);
inline constexpr double ContrastoTesto = 4.5;

} // namespace lirmeto::ui
