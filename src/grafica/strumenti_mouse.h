#pragma once
// The mouse over the drawing: readout, pan, drawing tools, coincident points.

#include <base/piano.h>
#include <core/ambiente.h>
#include <grafica/disegno_condiviso.h>
#include <grafica/indice_punti.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lirmeto {

enum class TastoMouse { Nessuno, Sinistro, Centrale, Destro };

// The label beside the point under the mouse.
struct EtichettaMouse {
  std::string testo;
  PuntoPiano posto;
  bool visibile = false;
};

// A point under the mouse.
struct PuntoPreso {
  std::string nome;
  PuntoPiano posto;
};

// What a click leads to.
struct EsitoClic {
  std::optional<PuntoPiano> nuovo;    // a point is to be put there
  std::optional<PuntoPiano> contorno; // a vertex of a contour was picked there
};

// A position that the mouse gives is from the centre of the view, all others are of the map. The point meant is the
// nearest one, the first of equal ones, and the first of all when each is 100,000 metres away or more.
class StrumentiMouse {
public:
  explicit StrumentiMouse(DisegnoCondiviso& disegno) : disegno_(disegno) {}

  [[nodiscard]] const EtichettaMouse& Etichetta() const { return etichetta_; }
  // The pointer has the shape of moving in all directions.
  [[nodiscard]] bool Sposta() const { return sposta_; }

  // Reads out what stands there; with the middle button the view follows. Whether it did.
  bool Muovi(const PuntoPiano& daCentro, TastoMouse tasto);
  // A pan begins.
  void Afferra(const PuntoPiano& daCentro);
  // A click with a tool, whose name is in any case.
  [[nodiscard]] EsitoClic Clicca(const PuntoPiano& daCentro, std::string_view strumento);

  // The first pick is forgotten.
  void Lascia() { prima_.reset(); }

  // Index of the point meant, 0 in an empty store.
  [[nodiscard]] std::size_t PiuVicino(const PuntoPiano& posto);
  // The names of points less than 0.01 metres apart, pair by pair, each followed by a blank.
  [[nodiscard]] std::string Coincidenti();

private:
  // A pan: where the mouse took hold, and the centre then.
  struct Presa {
    PuntoPiano mouse;
    PuntoPiano centro;
  };

  [[nodiscard]] PuntoPiano NellaMappa(const PuntoPiano& daCentro) const;
  [[nodiscard]] PuntoPreso Vicino(const PuntoPiano& posto);
  void PrendiContorno(std::int16_t colore);
  [[nodiscard]] std::optional<PuntoPiano> PrendiMedio();

  DisegnoCondiviso& disegno_;
  IndicePunti indice_;
  PuntoPreso ultimo_;
  std::optional<PuntoPreso> prima_;
  EtichettaMouse etichetta_;
  Presa presa_;
  bool sposta_ = false;
};

// Puts a vertex that was picked behind those of the contour file in the program's folder.
void ScriviContorno(Ambiente& ambiente, const PuntoPiano& vertice);

} // namespace lirmeto
