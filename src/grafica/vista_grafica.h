#pragma once
// What is seen of the drawing store.

#include <base/macchina.h>
#include <base/piano.h>

namespace lirmeto {

class ArchivioGrafica;

// Metres, but for `Rapporto` and the flags.
struct VistaGrafica {
  double Xmin = 0; // extent of the store, with its margin
  double Ymin = 0;
  double Xmax = 0;
  double Ymax = 0;
  double dX = 0; // size of the extent
  double dY = 0;
  double Xc = 0; // centre of the view
  double Yc = 0;
  double Zoom = 0;     // height of the view
  double Rapporto = 1; // width over height of the surface
  // The width, and not the height, is what stays when the surface changes its shape, and what marks are a share of.
  bool PerLarghezza = false;
  // Display flags, kept per user under "CONFIGURA_GRAFICA1".
  bool Check1 = false; // PROPOSTASINO: the updated extract is painted over the original one
  bool Check2 = false; // NOMISINO: the names of points are not painted
  bool Check3 = false; // TOPONIMISINO: toponyms are left out of loading, extent and painting
  bool Check4 = false; // PFSINO: fiducial points are left out of loading
  // NOMISOVRAPPOSTI: on the screen every name stands at its point, whatever it covers. Other surfaces always have it so.
  bool NomiSovrapposti = false;

  [[nodiscard]] PuntoPiano Centro() const { return {Xc, Yc}; }
  void MettiCentro(const PuntoPiano& centro);
  // Whether the surface shows a place.
  [[nodiscard]] bool Mostra(const PuntoPiano& posto) const;
  // Fits the view to the store. The extent starts from the first point, whatever its class; an empty store counts as
  // one point at the origin. Lines take no part.
  void Inquadra(const ArchivioGrafica& archivio);
  // Moves the centre by such a share of the height.
  void Sposta(const PuntoPiano& quota);
  // The shape of the surface.
  void MettiRapporto(double rapporto);
  [[nodiscard]] double Larghezza() const { return Zoom * Rapporto; }
  // A view that has no height, or no width where that is what it keeps, gets one.
  void MettiAltezza();
};

// The display flags as the user left them, and how he leaves them.
void LeggiFlag(const Impostazioni& impostazioni, VistaGrafica& vista);
void TieniFlag(const VistaGrafica& vista, Impostazioni& impostazioni);

} // namespace lirmeto
