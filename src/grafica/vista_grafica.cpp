#include <grafica/vista_grafica.h>

#include <base/numeri.h>
#include <grafica/archivio_grafica.h>

#include <algorithm>
#include <array>
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

constexpr std::array<FlagSalvato, 5> Flag = {{{"PROPOSTASINO", &VistaGrafica::Check1},
                                              {"NOMISINO", &VistaGrafica::Check2},
                                              {"TOPONIMISINO", &VistaGrafica::Check3},
                                              {"PFSINO", &VistaGrafica::Check4},
                                              {"NOMISOVRAPPOSTI", &VistaGrafica::NomiSovrapposti}}};

constexpr double Margine = 3;          // metres on each side of the extent
constexpr double MisuraIniziale = 640; // metres, of a view that has no height, or no width

} // namespace

void VistaGrafica::MettiCentro(const PuntoPiano& centro) {
  Xc = centro.est;
  Yc = centro.nord;
}

bool VistaGrafica::Mostra(const PuntoPiano& posto) const {
  return std::abs(posto.est - Xc) <= Larghezza() / 2 && std::abs(posto.nord - Yc) <= Zoom / 2;
}

void VistaGrafica::Inquadra(const ArchivioGrafica& archivio) {
  const auto& punti = archivio.Punti();
  const PuntoPiano primo = punti.empty() ? PuntoPiano{} : punti.front().Posto();
  Xmin = Xmax = primo.est;
  Ymin = Ymax = primo.nord;
  for (const PuntoGrafica& punto : punti) {
    if (Check3 && Valore(punto.Nome) == 0) continue;
    Xmin = std::min(Xmin, punto.X);
    Xmax = std::max(Xmax, punto.X);
    Ymin = std::min(Ymin, punto.Y);
    Ymax = std::max(Ymax, punto.Y);
  }
  Xmin -= Margine;
  Xmax += Margine;
  Ymin -= Margine;
  Ymax += Margine;
  // Coordinates near the greatest number: the size stays one.
  constexpr double massimo = std::numeric_limits<double>::max();
  dX = std::min(Xmax - Xmin, massimo);
  dY = std::min(Ymax - Ymin, massimo);
  MettiCentro({std::midpoint(Xmin, Xmax), std::midpoint(Ymin, Ymax)});
  Zoom = std::max(dX, dY);
}

void VistaGrafica::Sposta(const PuntoPiano& quota) {
  Xc += Zoom * quota.est;
  Yc += Zoom * quota.nord;
}

void VistaGrafica::MettiRapporto(double rapporto) {
  if (PerLarghezza) Zoom *= Rapporto / rapporto;
  Rapporto = rapporto;
}

void VistaGrafica::MettiAltezza() {
  if (!(Zoom > 0) || std::isinf(Zoom)) Zoom = MisuraIniziale / (PerLarghezza ? Rapporto : 1);
}

void LeggiFlag(const Impostazioni& impostazioni, VistaGrafica& vista) {
  for (const auto& [chiave, flag] : Flag) vista.*flag = Valore(impostazioni.Leggi(Sezione, chiave, "0")) != 0;
}

void TieniFlag(const VistaGrafica& vista, Impostazioni& impostazioni) {
  for (const auto& [chiave, flag] : Flag) impostazioni.Scrivi(Sezione, chiave, vista.*flag ? "1" : "0");
}

} // namespace lirmeto
