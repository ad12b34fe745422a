#include <grafica/grafica.h>

#include <base/numeri.h>
#include <core/mostra_errore.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace lirmeto {

namespace {

constexpr std::string_view Sezione = "CONFIGURA_GRAFICA1";

struct FlagSalvato {
  std::string_view chiave;
  bool VistaGrafica::*flag;
};

constexpr std::array<FlagSalvato, 4> Flag = {{{"PROPOSTASINO", &VistaGrafica::Check1},
                                              {"NOMISINO", &VistaGrafica::Check2},
                                              {"TOPONIMISINO", &VistaGrafica::Check3},
                                              {"PFSINO", &VistaGrafica::Check4}}};

constexpr double Margine = 3;           // metres on each side of the extent
constexpr double AltezzaIniziale = 640; // metres, of a view that has no height
constexpr double Passetto = 0.1;        // of the height, by which the view moves

} // namespace

Grafica::Grafica(Ambiente& ambiente, DisegnoCondiviso& disegno) : ambiente_(ambiente), disegno_(disegno) {
  for (const auto& [chiave, flag] : Flag)
    disegno_.vista.*flag = Valore(ambiente_.impostazioni.Leggi(Sezione, chiave, "0")) != 0;
}

Grafica::~Grafica() {
  (void)Intrappola(ambiente_, [&] {
    for (const auto& [chiave, flag] : Flag)
      ambiente_.impostazioni.Scrivi(Sezione, chiave, disegno_.vista.*flag ? "1" : "0");
  });
}

void Grafica::MostraErrore(std::string_view testo) {
  ambiente_.dialoghi.Messaggio(testo, TitoloProgramma, Gravita::Critico);
}

void Grafica::KR_Clear() {
  disegno_.archivio.Svuota();
  KR_ZoomTutto();
}

void Grafica::KR_AggiungiLineaGraf2Punti(std::string_view primo, std::string_view secondo, std::int16_t colore,
                                         std::int16_t spessore, std::int16_t stile) {
  const auto da = Archivio().PrimoDiNome(primo);
  const auto a = Archivio().PrimoDiNome(secondo);
  if (!da || !a) return;
  const PuntoGrafica& p = Archivio().Punti()[*da];
  const PuntoGrafica& q = Archivio().Punti()[*a];
  KR_AggiungiLineaGraf({p.X, p.Y, p.Z, q.X, q.Y, q.Z, spessore, colore, stile});
}

// The extent starts from the first point, whatever its class; an empty store counts as one point at the origin. Lines
// take no part.
void Grafica::KR_ZoomTutto() {
  VistaGrafica& vista = disegno_.vista;
  const auto& punti = Archivio().Punti();
  const PuntoGrafica primo = punti.empty() ? PuntoGrafica{} : punti.front();
  vista.Xmin = vista.Xmax = primo.X;
  vista.Ymin = vista.Ymax = primo.Y;
  for (const PuntoGrafica& punto : punti) {
    if (vista.Check3 && Valore(punto.Nome) == 0) continue;
    vista.Xmin = std::min(vista.Xmin, punto.X);
    vista.Xmax = std::max(vista.Xmax, punto.X);
    vista.Ymin = std::min(vista.Ymin, punto.Y);
    vista.Ymax = std::max(vista.Ymax, punto.Y);
  }
  vista.Xmin -= Margine;
  vista.Xmax += Margine;
  vista.Ymin -= Margine;
  vista.Ymax += Margine;
  // Coordinates near the greatest number: the size stays one.
  constexpr double massimo = std::numeric_limits<double>::max();
  vista.dX = std::min(vista.Xmax - vista.Xmin, massimo);
  vista.dY = std::min(vista.Ymax - vista.Ymin, massimo);
  vista.Xc = std::midpoint(vista.Xmin, vista.Xmax);
  vista.Yc = std::midpoint(vista.Ymin, vista.Ymax);
  vista.Zoom = std::max(vista.dX, vista.dY);
  KR_RidisegnaGrafica();
}

void Grafica::KR_ZoomPiu() {
  disegno_.vista.Zoom *= 0.9;
  KR_RidisegnaGrafica();
}

void Grafica::KR_ZoomMeno() {
  disegno_.vista.Zoom *= 1.1;
  KR_RidisegnaGrafica();
}

void Grafica::KR_ZoomUP() {
  disegno_.vista.Yc -= disegno_.vista.Zoom * Passetto;
  KR_RidisegnaGrafica();
}

void Grafica::KR_ZoomDown() {
  disegno_.vista.Yc += disegno_.vista.Zoom * Passetto;
  KR_RidisegnaGrafica();
}

void Grafica::KR_ZoomLeft() {
  disegno_.vista.Xc += disegno_.vista.Zoom * Passetto;
  KR_RidisegnaGrafica();
}

void Grafica::KR_ZoomRight() {
  disegno_.vista.Xc -= disegno_.vista.Zoom * Passetto;
  KR_RidisegnaGrafica();
}

// The view stays where it is: only the middle button moves it.
void Grafica::CentraMouse(float /*x*/, float /*y*/) {
  KR_RidisegnaGrafica();
}

void Grafica::KR_RidisegnaGrafica() {
  if (Picture1 != nullptr) Picture1->Ridisegna();
}

Operazioni Grafica::Dipingi(double rapporto) {
  VistaGrafica& vista = disegno_.vista;
  vista.Rapporto = rapporto;
  if (!(vista.Zoom > 0) || std::isinf(vista.Zoom)) vista.Zoom = AltezzaIniziale;
  return ComponiOperazioni(Archivio(), vista);
}

} // namespace lirmeto
