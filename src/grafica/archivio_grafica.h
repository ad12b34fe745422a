#pragma once
// The drawing store: points and lines in map coordinates, and the points by their names.

#include <base/piano.h>
#include <grafica/indice_nomi.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

// The colours that the loaders use, of the sixteen of the classic console.
namespace colore {
inline constexpr std::int16_t Nero = 0;
inline constexpr std::int16_t Blu = 1;
inline constexpr std::int16_t Verde = 2;
inline constexpr std::int16_t Grigio = 7;
inline constexpr std::int16_t BluChiaro = 9;
inline constexpr std::int16_t RossoChiaro = 12;
inline constexpr std::int16_t MagentaChiaro = 13;
} // namespace colore

namespace stile {
inline constexpr std::int16_t Continuo = 0;
inline constexpr std::int16_t Tratteggiato = 1;
inline constexpr std::int16_t Punteggiato = 2;
} // namespace stile

struct PuntoGrafica {
  std::string Nome;             // its last or first character gives the class: "…T" a toponym, " …" a free name
  double X = 0;                 // east, metres
  double Y = 0;                 // north, metres
  double Z = 0;                 // height, metres
  std::int16_t Colore = 0;      // 0 to 15
  std::string Testo;            // of a toponym
  double Angolo = 0;            // degrees, counterclockwise
  std::string Font;             // face name
  double Dimensione = 0;        // text size, points
  std::int16_t ColoreNome = -1; // of the name where it is not the mark's; below 0: the same
  [[nodiscard]] PuntoPiano Posto() const { return {X, Y}; }
  bool operator==(const PuntoGrafica&) const = default;
};

// How a line is drawn.
struct PennaGrafica {
  std::int16_t Colore = 0;   // 0 to 15
  std::int16_t Spessore = 1; // pixels
  std::int16_t Stile = 0;    // 0 solid, 1 dashed, 2 dotted
};

struct LineaGrafica {
  double X1 = 0; // metres, as in a point
  double Y1 = 0;
  double Z1 = 0;
  double X2 = 0;
  double Y2 = 0;
  double Z2 = 0;
  std::int16_t Spessore = 1; // pixels
  std::int16_t Colore = 0;   // 0 to 15
  std::int16_t Stile = 0;    // 0 solid, 1 dashed, 2 dotted
  bool operator==(const LineaGrafica&) const = default;
};

// One store serves every `Grafica`: whoever loads last wins. Who creates the instances creates it and hands it to each.
class ArchivioGrafica {
public:
  [[nodiscard]] const std::vector<PuntoGrafica>& Punti() const { return punti_; }
  [[nodiscard]] const std::vector<LineaGrafica>& Linee() const { return linee_; }

  void Aggiungi(PuntoGrafica punto);
  void Aggiungi(const LineaGrafica& linea);
  // A line between the first points so named; nothing when either is missing.
  void AggiungiTra(std::string_view primo, std::string_view secondo, const PennaGrafica& penna);
  void Svuota();
  void Riserva(std::size_t punti, std::size_t linee);

  // Index of the first point of this very name.
  [[nodiscard]] std::optional<std::size_t> PrimoDiNome(std::string_view nome) const;

  // Grows at each change: what is derived from the store is derived again when it differs.
  [[nodiscard]] std::uint64_t Versione() const { return versione_; }

  // How often the store was emptied: while it is the same, points and lines are only appended.
  [[nodiscard]] std::uint64_t Generazione() const { return generazione_; }

private:
  std::vector<PuntoGrafica> punti_;
  std::vector<LineaGrafica> linee_;
  IndiceNomi primi_;
  std::uint64_t versione_ = 0;
  std::uint64_t generazione_ = 0;
};

} // namespace lirmeto
