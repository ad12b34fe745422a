#pragma once
// The exchange file of the sibling drawing program.

#include <grafica/archivio_grafica.h>
#include <grafica/esportazioni.h>

#include <string>

namespace lirmeto {

// Comma separated records, texts quoted, a quote in a text doubled:
//   "P",name,X,Y,Z,"PUNTI",-1.5,text
//   "L",X1,Y1,Z1,X2,Y2,Z2,colour,style + 1,layer
class ScrittoreScambio {
public:
  void Punto(const PuntoGrafica& punto, std::string_view strato = "PUNTI");
  void Linea(const LineaGrafica& linea);
  void Linea(const LineaGrafica& linea, std::string_view strato);
  [[nodiscard]] const std::string& Testo() const { return testo_; }

private:
  std::string testo_;
  StratoLinee strato_{""};
};

// All points, then all lines.
[[nodiscard]] std::string TestoScambio(const ArchivioGrafica& archivio);

} // namespace lirmeto
