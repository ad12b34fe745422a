// Any bytes as an .EMP: read, its data taken, cleaned, a parcel taken away, saved and read again.

#include "pretendi.h"

#include <base/testo.h>
#include <core/riga.h>
#include <estratti/dati_estratto.h>
#include <estratti/kr_estratto.h>
#include <estratti/modifiche_estratto.h>
#include <sostituti/banco.h>

#include <algorithm>
#include <cstdint>

using namespace lirmeto;
using lirmeto::prova::Banco;

namespace {

constexpr std::string_view Nome = "X.EMP";
constexpr std::string_view Percorso = "C:\\pregeo\\estratti\\X.EMP";

// What fails is an index, a number that is none, a name: nothing else.
void ProvaErrore(const Banco& banco) {
  const int numero = banco.sessione.NumeroErrore;
  Pretendi(numero == 0 || numero == errore::IndiceFuoriIntervallo || numero == errore::Overflow,
           "an extract is refused for what it lacks or for a surface that is too large");
}

// Loads, edits, saves in place. Whether both went well; a failure leaves the file.
template <class Modifica>
bool Giro(Banco& banco, Modifica modifica) {
  const std::string prima = banco.disco.Contenuto(std::string(Percorso));
  KR_Estratto estratto;
  bool riuscito = EsplodiEstratto(banco.ambiente, estratto, Nome);
  if (riuscito) {
    modifica(estratto);
    riuscito = SalvaEstratto(banco.ambiente, estratto);
  }
  ProvaErrore(banco);
  if (!riuscito) Pretendi(banco.disco.Contenuto(std::string(Percorso)) == prima, "a failure leaves the file");
  return riuscito;
}

// Points of a saved extract are numbered from 1 in their order. Row 0 may be anything, a row 8 too.
void ProvaNumeri(const std::string& testo) {
  std::size_t numero = 0;
  const auto righe = RigheDi(testo);
  for (std::size_t i = 1; i < righe.size(); ++i) {
    if (GenereRiga(righe[i]) != 8 || !Parte(righe[i], '|', 1).ends_with('%')) continue;
    ++numero;
    Pretendi(Parte(righe[i], '|', 1) == std::to_string(numero) + "%", "points are numbered without gaps");
  }
}

void ProvaLettori(Banco& banco) {
  try {
    const auto dati = CopiaIDatiDellEstratto(banco.ambiente, Nome);
    Pretendi(dati && dati->foglio.size() <= 4, "a sheet has four characters");
  } catch (const Errore& errore) {
    Pretendi(errore.Numero() == errore::IndiceFuoriIntervallo, "data are refused for what they lack");
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* dati, std::size_t quanti) {
  const std::string byte(reinterpret_cast<const char*>(dati), quanti);
  Banco banco;
  banco.disco.Metti(std::string(Percorso), byte);
  ProvaLettori(banco);
  if (!Giro(banco, [](KR_Estratto&) {})) return 0;
  const std::string salvato = banco.disco.Contenuto(std::string(Percorso));
  if (!Contiene(byte, "PF")) ProvaNumeri(salvato); // a fiducial point keeps its name, which may end in "%"
  if (!Giro(banco, [](KR_Estratto& estratto) { EliminaPuntiIsolati(estratto); })) return 0;
  (void)Giro(banco, [](KR_Estratto& estratto) { EliminaParticellaEstratto(estratto, "35"); });
  return 0;
}
