#pragma once
// The drawing as the texts of other programs. None changes it. A number that is not finite is error 6.

#include <grafica/archivio_grafica.h>
#include <grafica/vista_grafica.h>

#include <string>
#include <string_view>

namespace lirmeto {

// Layer of a line: the colour's, then the style's letter. A colour other than black, 9 and 12 keeps the name of the
// line before; before the first line that name is empty. So the lines of a drawing are asked for in their order.
class StratoLinee {
public:
  // With what stands before the colour's letter: "LINEE_".
  explicit StratoLinee(std::string_view prefisso) : prefisso_(prefisso) {}
  [[nodiscard]] std::string Di(const LineaGrafica& linea);

private:
  std::string prefisso_;
  std::string nome_;
};

// An ENTITIES section alone: a point of each layer, so that a viewer shows the layers that stay empty, the points and
// the lines. `nomiSpenti` is Check2: points are written while their names are off the screen, and free names always.
// Who clears the screen of names wants them in the other program. Throws Errore 9 for a drawing without points.
[[nodiscard]] std::string TestoDXF(const ArchivioGrafica& archivio, bool nomiSpenti);

// An HTML page that draws on a canvas of a thousand pixels. Its scale is a whole number of pixels a metre: a view above
// a thousand metres falls together in the middle: a page is for a survey, and a sheet would not fit on it.
[[nodiscard]] std::string TestoPagina(const ArchivioGrafica& archivio, const VistaGrafica& vista);

// Drawing orders for print.exe, metres from the centre of the view:
//   L,x1,y1,x2,y2,colour,width,.01      a line
//   C,x,y,colour,.01                    the mark of a point
//   T,name,x,y,Courier New,size,colour  its name; a comma in it becomes a point
[[nodiscard]] std::string TestoOrdiniStampa(const ArchivioGrafica& archivio, const VistaGrafica& vista);

} // namespace lirmeto
