#include <core/proposta_libretto.h>

#include <base/testo.h>
#include <core/libretto_in_classi.h>
#include <core/riga.h>

namespace lirmeto {

namespace {

// Where the proposal begins, its end when there is none.
std::size_t InizioProposta(std::string_view libretto) {
  std::size_t qui = 0;
  for (const auto riga : RigheDi(libretto)) {
    if (riga == RigaProposta) return qui;
    qui += riga.size() + FineRiga.size();
  }
  return libretto.size();
}

} // namespace

void AggiungiRigheLibretto(Sessione& sessione, std::string_view righe) {
  sessione.Libretto.insert(InizioProposta(sessione.Libretto), righe);
}

void MettiPropostaInLibretto(Sessione& sessione, std::string_view proposta) {
  sessione.Libretto.erase(InizioProposta(sessione.Libretto));
  sessione.Libretto += proposta;
  CatturaPropostaInLibretto(sessione);
}

} // namespace lirmeto
