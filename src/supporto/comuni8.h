#pragma once
// The choice of a comune by its province.

#include <supporto/cod_fis.h>

#include <core/tabelle.h>

#include <string>
#include <vector>

namespace lirmeto {

// The provinces that have comuni, in the order of their table and behind it those it does not name; List1 holds the
// comuni of the one chosen.
class KR_Comuni8 final : public SceltaComune {
public:
  explicit KR_Comuni8(Ambiente& ambiente) : SceltaComune(ambiente) {}

  std::vector<CodiceENome> Province;
  long IndiceProvincia = -1;

  // The session's province is chosen when it is there, else the first.
  void AlCaricamento();

  // Error 9 for an index that is not there.
  void ScegliProvincia(std::size_t indice);
};

} // namespace lirmeto
