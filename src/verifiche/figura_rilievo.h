#pragma once
// The picture of the survey beside the rows, as a model: the drawing made from the coordinates computed back, and which
// row and which point belong together.

#include <grafica/grafica.h>
#include <verifiche/verificatore.h>

#include <cstddef>
#include <optional>
#include <string>

namespace lirmeto {

class FiguraRilievo {
public:
  // The checks whose coordinates are drawn must outlive the picture.
  FiguraRilievo(Ambiente& ambiente, const Verificatore& esito) : Grafica1(ambiente, disegno_), esito_(esito) {}

  // Makes the drawing anew when the checks have: the view stays, but for the first picture and one of another survey.
  void Aggiorna();
  // Lights the point of a row, or the sight to it, and moves the view so that it stands in its middle. A row without a
  // point puts the light out.
  void ScegliRiga(std::size_t riga, bool centra);
  // The row of the point nearest to a place of the map, if one lies within so many metres: the sight that gave it its
  // place, or its station.
  [[nodiscard]] std::optional<std::size_t> RigaVicina(const PuntoPiano& posto, double entro) const;
  // What stands under the picture.
  [[nodiscard]] std::string Avviso() const;

private:
  DisegnoCondiviso disegno_;

public:
  Grafica Grafica1;

private:
  [[nodiscard]] std::optional<LineaGrafica> LuceDi(std::size_t riga) const;

  const Verificatore& esito_;
  unsigned long versione_ = 0;
  std::string zero_; // row 0 of the survey that is shown
  std::size_t punti_ = 0;
};

} // namespace lirmeto
