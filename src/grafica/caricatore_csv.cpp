#include <grafica/caricatori.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <grafica/righe_in_disegno.h>

#include <cmath>
#include <limits>
#include <utility>

namespace lirmeto {

// A drawing as comma separated values, a row a line:
//
//   "P,101,200.5,100.25,12,SPIGOLO,0"   name, X, Y, Z, text, colour
//   "L,0,0,0,10,5,0,12,1,0"             X1, Y1, -, X2, Y2, -, colour, width, style; the heights are not read
//   anything else                       a point without its tag: quotes go, "P," is put in front
//
// Blank lines are passed over, fields that are missing are empty.

namespace {

using Campi = std::vector<std::string_view>;

std::string_view Campo(const Campi& campi, std::size_t indice) {
  return indice < campi.size() ? campi[indice] : std::string_view{};
}

double Numero(const Campi& campi, std::size_t indice) {
  return Valore(Campo(campi, indice));
}

// A number that is too large for its field is a bad one: 0.
std::int16_t Intero(const Campi& campi, std::size_t indice) {
  using Limiti = std::numeric_limits<std::int16_t>;
  const double valore = std::nearbyint(Numero(campi, indice));
  const bool dentro = valore >= Limiti::min() && valore <= Limiti::max();
  return dentro ? static_cast<std::int16_t>(valore) : std::int16_t{0};
}

PuntoGrafica Punto(std::string_view riga) {
  constexpr double dimensione = 8;
  const Campi campi = Dividi(riga, ",");
  PuntoGrafica punto;
  punto.Nome = Campo(campi, 1);
  punto.X = Numero(campi, 2);
  punto.Y = Numero(campi, 3);
  punto.Z = Numero(campi, 4);
  punto.Testo = Campo(campi, 5);
  punto.Colore = Intero(campi, 6);
  punto.Dimensione = dimensione;
  return punto;
}

LineaGrafica Linea(std::string_view riga) {
  const Campi campi = Dividi(riga, ",");
  LineaGrafica linea;
  linea.X1 = Numero(campi, 1);
  linea.Y1 = Numero(campi, 2);
  linea.X2 = Numero(campi, 4);
  linea.Y2 = Numero(campi, 5);
  linea.Colore = Intero(campi, 7);
  linea.Spessore = Intero(campi, 8);
  linea.Stile = Intero(campi, 9);
  return linea;
}

void Smista(std::string_view riga, ListaRighe& punti, ListaRighe& linee) {
  const std::string_view genere = Parte(riga, ',', 0);
  if (genere == "P")
    punti.AggiungiVista(riga);
  else if (genere == "L")
    linee.AggiungiVista(riga);
  else
    punti.Aggiungi("P," + Sostituisci(riga, "\"", ""));
}

} // namespace

ListeGrafica RigheCsv(const TestoCondiviso& testo) {
  ListeGrafica liste;
  for (const auto riga : RigheDi(*testo)) {
    if (Taglia(riga).empty()) continue;
    liste.List2[0].AggiungiVista(riga);
    Smista(riga, liste.List1, liste.List3);
  }
  for (ListaRighe* lista : {liste.List2.data(), &liste.List1, &liste.List3}) lista->Tieni(testo);
  return liste;
}

void DisegnaCsv(const ListaRighe& punti, const ListaRighe& linee, ArchivioGrafica& archivio) {
  archivio.Riserva(punti.size(), linee.size());
  for (const auto riga : punti) archivio.Aggiungi(Punto(riga));
  for (const auto riga : linee) archivio.Aggiungi(Linea(riga));
}

} // namespace lirmeto
