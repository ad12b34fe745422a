#pragma once
// The form that sets the fiducial points of the libretto against the TAF, or against the associated extract, and takes
// their rows 8 from there.

#include <base/dialoghi.h>
#include <core/ambiente.h>

#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace lirmeto {

enum class FonteFiduciali { Taf, Estratto };

class FormImportaFiduciali : public Modello {
public:
  explicit FormImportaFiduciali(Ambiente& ambiente, FonteFiduciali fonte = FonteFiduciali::Taf)
      : ambiente_(ambiente), fonte_(fonte) {}

  std::vector<std::string> List1;  // "Pieffe Trovati nel Libretto": names, sorted, each once
  std::vector<std::string> List2;  // "Pieffe Trovati in Taf", or in the extract: their rows 8
  std::size_t PuntiInTaf = 0;      // names of List1 that have rows in List2
  bool AggiungiRigheQuota = false; // a second row for each point, with its height
  bool Chiusa = false;

  void AlCaricamento();
  void CambiaRigheQuota(bool si);

  // Fills the two lists. A point whose archive is missing, or does not have it, is left without rows.
  //   8|PF01/1230/G224|-5258.800|-4128.700|05|SPIGOLO NORD-EST CASA CANTONIERA|
  //   8|PF01/1230/G224|12.340|04|PIANO STRADALE|
  // The extract gives all its points, those too that the libretto has not yet; it tells no heights, and what it does not
  // say of a point stays as the libretto has it.
  void CaricaPieffe8();

  // The first button: List2 takes the place of the rows 8 of its points, and the form closes. They go where the first
  // row 8 stood. The other rows 8 stay, and those of the TAF's form are named.
  void SostituisciRighe8();
  // Fetches archives, then fills the lists again.
  void Importa();

  [[nodiscard]] bool DaEstratto() const { return fonte_ == FonteFiduciali::Estratto; }

private:
  using Nomi = std::unordered_set<std::string>;

  void TrovaNelLibretto();
  void TrovaInTaf();
  void TrovaNellEstratto();
  [[nodiscard]] std::unordered_map<std::string, std::string> CodeNelLibretto() const;
  [[nodiscard]] bool DaSostituire(std::string_view riga, const Nomi& nuovi) const;
  void NominaMantenute(const ListaRighe& righe, const Nomi& nuovi) const;

  Ambiente& ambiente_;
  FonteFiduciali fonte_;
};

} // namespace lirmeto
