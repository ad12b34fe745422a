// Any bytes as a DXF, as a listing of polylines, as a proposal: what comes of them holds together.

#include "pretendi.h"

#include <base/testo.h>
#include <core/riga.h>
#include <generazione/polilinee_dxf.h>
#include <generazione/proposta.h>
#include <generazione/ripara_proposta.h>
#include <generazione/tipol10.h>
#include <pregeo/aree_proposta.h>
#include <sostituti/banco.h>

#include <cstdint>
#include <set>

using namespace lirmeto;
using lirmeto::prova::Banco;

namespace {

// Every name of a row 7 stands in a row 8, and a row has ten names at most.
void ProvaRighe(const ListaRighe& righe) {
  std::set<std::string_view> punti;
  for (const auto riga : righe)
    if (GenereDi(riga) == Genere::Coordinate) punti.insert(Parte(riga, '|', 1));
  for (const auto riga : righe) {
    if (GenereDi(riga) != Genere::Contorno) continue;
    const auto campi = Dividi(riga, "|");
    Pretendi(campi.size() <= 2 + NomiPerRiga7 + 2, "a row 7 holds ten names");
    for (std::size_t i = 2; i + 2 < campi.size(); ++i) Pretendi(punti.contains(campi[i]), "a name is a point's");
  }
}

void ProvaElenco(std::string_view testo) {
  Banco banco;
  banco.sessione.TipologiaCorrente = TipologiaSenzaEstratto;
  banco.appunti.testo = ConFineRiga(testo);
  DisegnoCondiviso disegno;
  Tipol10 form(banco.ambiente, disegno);
  form.GeneraLibrettoDaList();
  Pretendi(banco.sessione.NumeroErrore == 0 || banco.sessione.NumeroErrore == errore::Overflow,
           "a listing is refused for a coordinate out of measure alone");
  Pretendi(!form.List1.empty() || banco.dialoghi.detti.size() == 1, "no rows, and it is said");
  ProvaRighe(form.List1);
}

void ProvaDxf(std::string_view byte) {
  Banco banco;
  try {
    ProvaElenco(ElencoDaDxf(banco.dialoghi, byte));
  } catch (const Errore& errore) {
    Pretendi(errore.Numero() == errore::ArgomentoNonValido || errore.Numero() == errore::OltreLaFine,
             "a DXF is refused for what it is not, or for what it lacks");
  }
}

// A square, some of whose points a proposal may name.
const ContornoMappale Mappale = {"7|5|1%|2%|3%|4%|1%|NC|35|35|10000.5|",
                                 {"8|1%|0.000|0.000|", "8|2%|0.000|100.000|", "8|3%|100.000|100.000|", "8|4%|1|0|"}};

void ProvaProposta(std::string_view byte) {
  const std::string testo = ConFineRiga(byte);
  const std::string esplosa = Esplodi_Proposta(testo);
  // The order turns round each time, so that among any bytes a continuation may find another head: nothing is asked of it.
  static_cast<void>(Esplodi_Proposta(esplosa));
  for (const auto riga : RigheDi(esplosa)) {
    Pretendi(!Implodi_Proposta(riga).empty() && !SpezzaRiga7(riga).empty(), "a row is never lost");
  }
  static_cast<void>(SistemaModestaEntita(SistemaProposta(testo, Mappale, {}), Mappale));
  try {
    static_cast<void>(LeggiAreeProposta(testo));
  } catch (const Errore& errore) {
    Pretendi(errore.Numero() == errore::IndiceFuoriIntervallo, "a row of too many fields");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  if (quanti == 0) return 0;
  const std::string_view byte(reinterpret_cast<const char*>(dati) + 1, quanti - 1);
  switch (dati[0] % 3) {
  case 0:
    ProvaDxf(byte);
    break;
  case 1:
    ProvaElenco(byte);
    break;
  default:
    ProvaProposta(byte);
  }
  return 0;
}
