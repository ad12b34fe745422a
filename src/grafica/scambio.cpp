#include <grafica/scambio.h>

#include <base/numeri.h>
#include <base/testo.h>

namespace lirmeto {

namespace {

std::string FraVirgolette(std::string_view testo) {
  return "\"" + Sostituisci(SuUnaRiga(testo), "\"", "\"\"") + "\"";
}

} // namespace

void ScrittoreScambio::Punto(const PuntoGrafica& punto, std::string_view strato) {
  testo_ += "\"P\"," + FraVirgolette(punto.Nome);
  for (const double numero : {punto.X, punto.Y, punto.Z}) (testo_ += ',') += TestoPieno(numero);
  testo_ += "," + FraVirgolette(strato) + ",-1.5," + FraVirgolette(punto.Testo);
  testo_ += FineRiga;
}

void ScrittoreScambio::Linea(const LineaGrafica& linea) {
  Linea(linea, strato_.Di(linea));
}

void ScrittoreScambio::Linea(const LineaGrafica& linea, std::string_view strato) {
  testo_ += "\"L\"";
  for (const double numero : {linea.X1, linea.Y1, linea.Z1, linea.X2, linea.Y2, linea.Z2})
    (testo_ += ',') += TestoPieno(numero);
  testo_ += "," + TestoIntero(linea.Colore) + "," + TestoIntero(linea.Stile + 1) + ",";
  testo_ += FraVirgolette(strato);
  testo_ += FineRiga;
}

std::string TestoScambio(const ArchivioGrafica& archivio) {
  ScrittoreScambio scambio;
  for (const PuntoGrafica& punto : archivio.Punti()) scambio.Punto(punto);
  for (const LineaGrafica& linea : archivio.Linee()) scambio.Linea(linea);
  return scambio.Testo();
}

} // namespace lirmeto
