#pragma once
// The form that sets the fiducial points of the libretto against the TAF and takes their rows 8 from it.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>
#include <vector>

namespace lirmeto {

class FormImportaFiduciali : public Modello {
public:
  explicit FormImportaFiduciali(Ambiente& ambiente) : ambiente_(ambiente) {}

  std::vector<std::string> List1;  // "Pieffe Trovati nel Libretto": names, sorted, each once
  std::vector<std::string> List2;  // "Pieffe Trovati in Taf": their rows 8
  std::size_t PuntiInTaf = 0;      // names of List1 that have rows in List2
  bool AggiungiRigheQuota = false; // a second row for each point, with its height
  bool Chiusa = false;

  void AlCaricamento();
  void CambiaRigheQuota(bool si);

  // Fills the two lists. A point whose archive is missing, or does not have it, is left without rows.
  //   8|PF01/1230/G224|-5258.800|-4128.700|05|SPIGOLO NORD-EST CASA CANTONIERA|
  //   8|PF01/1230/G224|12.340|04|PIANO STRADALE|
  void CaricaPieffe8();

  // The first button: List2 takes the place of all rows 8 of the main list, those of other points too, and the form
  // closes. They go where the first of the old ones stood.
  void SostituisciRighe8();
  // Fetches archives, then fills the lists again.
  void Importa();

private:
  void TrovaNelLibretto();
  void TrovaInTaf();

  Ambiente& ambiente_;
};

} // namespace lirmeto
