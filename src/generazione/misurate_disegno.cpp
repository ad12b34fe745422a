#include <generazione/misurate_disegno.h>

#include <fiduciali/misurate.h>
#include <fiduciali/misurate_pf.h>
#include <generazione/tabelle_disegno.h>

namespace lirmeto {

std::optional<std::string> MisurateDelDisegno(Ambiente& ambiente) {
  ambiente.sessione.PuntoErrore = "CalcolaMisuratePF1";
  const TabelleDisegno tabelle = CaricaGrafica(ambiente);
  std::vector<PuntoMisurato> punti;
  punti.reserve(tabelle.Punti().size());
  for (const PuntoDisegno& punto : tabelle.Punti()) punti.push_back({punto.Nome, punto.X, punto.Y});
  return MisurateDelDisegno(ambiente, punti);
}

void CalcolaMisuratePF(Ambiente& ambiente) {
  if (const auto relazione = MisurateDelDisegno(ambiente)) ApriListaMisurate(ambiente, *relazione);
}

} // namespace lirmeto
