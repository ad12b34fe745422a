// Any bytes as a sheet and as its surfaces: read, made into an extract, which is read, made auto-assembled and summed with
// itself. What is refused is refused for what it lacks.

#include "pretendi.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/autoallestito.h>
#include <estratti/da_cxf.h>
#include <estratti/unione_estratti.h>

#include <cstdint>
#include <set>
#include <string>

using namespace lirmeto;

namespace {

constexpr std::string_view Divisore = "@SUP@"; // the sheet before it, its surfaces behind it

// Every identifier of a ring is a vertex of the extract; those that an island's count was put behind are none.
void ProvaAnelli(const std::string& estratto) {
  std::set<std::string_view> punti;
  const auto righe = RigheDi(estratto);
  for (const auto riga : righe)
    if (riga.starts_with("8|")) punti.insert(Parte(riga, '|', 1));
  for (const auto riga : righe) {
    if (!riga.starts_with("7|")) continue;
    const auto campi = Dividi(riga, "|");
    for (std::size_t i = 2; i < campi.size() && campi[i] != "NC"; ++i)
      Pretendi(punti.contains(campi[i]) || !campi[i].ends_with('%'), "a ring names vertices that are there");
  }
}

void ProvaSomma(const std::string& estratto) {
  try {
    const std::string somma = UnisciEstratti(estratto, estratto);
    Pretendi(UnisciEstratti(somma, "") == somma, "a sum with nothing changes nothing");
  } catch (const Errore& errore) {
    Pretendi(errore.Numero() == errore::IndiceFuoriIntervallo || errore.Numero() == errore::Overflow,
             "a sum is refused for coordinates that lack, or numbers of vertices beyond measure");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string byte(reinterpret_cast<const char*>(dati), quanti);
  const std::size_t posto = std::min(byte.find(Divisore), byte.size());
  const std::string foglio = ConFineRiga(byte.substr(0, posto));
  const std::string sup = ConFineRiga(posto == byte.size() ? std::string() : byte.substr(posto + Divisore.size()));
  ProvaSomma(byte);
  (void)TrasformaInAutoallestito(byte);
  try {
    SuperficiSup superfici(sup);
    const std::string estratto = EmpDaFoglio(LeggiCxf(foglio), superfici);
    ProvaAnelli(estratto);
    ProvaSomma(estratto);
  } catch (const Errore& errore) {
    Pretendi(errore.Numero() == errore::OltreLaFine || errore.Numero() == errore::TipoNonCorrispondente,
             "a sheet is refused for its end, its counts, its codes or its coordinates");
  }
  return 0;
}
