#include <grafica/esportazioni.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>

namespace lirmeto {

namespace {

// Orders with bars between their fields.
class ScrittoreOrdini {
public:
  explicit ScrittoreOrdini(const VistaGrafica& vista) : xc_(vista.Xc), yc_(vista.Yc) {}

  void Linea(const LineaGrafica& linea) {
    Posto(testo_ += "L|", linea.X1, linea.Y1);
    Posto(testo_ += '|', linea.X2, linea.Y2);
    testo_ += "|" + TestoIntero(linea.Colore) + "|" + TestoIntero(linea.Spessore) + "|.01";
    testo_ += FineRiga;
  }
  void Segno(const PuntoGrafica& punto) {
    Posto(testo_ += "C|", punto.X, punto.Y);
    testo_ += "|" + TestoIntero(punto.Colore) + "|.01";
    testo_ += FineRiga;
  }
  void Nome(const PuntoGrafica& punto) {
    ((testo_ += "T|") += SuUnaRiga(punto.Nome)) += '|';
    Posto(testo_, punto.X, punto.Y);
    testo_ += "|Courier New|" + TestoPieno(punto.Dimensione) + "|" + TestoIntero(punto.Colore);
    testo_ += FineRiga;
  }

  // With commas between the fields; those that were there are points then.
  [[nodiscard]] std::string Prendi() {
    std::replace(testo_.begin(), testo_.end(), ',', '.');
    std::replace(testo_.begin(), testo_.end(), '|', ',');
    return std::move(testo_);
  }

private:
  void Posto(std::string& testo, double x, double y) const {
    constexpr std::string_view formato = "##########0.000";
    ((testo += Formatta(x - xc_, formato)) += '|') += Formatta(y - yc_, formato);
  }

  double xc_;
  double yc_;
  std::string testo_;
};

} // namespace

std::string TestoOrdiniStampa(const ArchivioGrafica& archivio, const VistaGrafica& vista) {
  ScrittoreOrdini ordini(vista);
  for (const LineaGrafica& linea : archivio.Linee()) ordini.Linea(linea);
  for (const PuntoGrafica& punto : archivio.Punti()) ordini.Segno(punto);
  for (const PuntoGrafica& punto : archivio.Punti()) ordini.Nome(punto);
  return ordini.Prendi();
}

} // namespace lirmeto
