#include <core/libretto_in_classi.h>

#include <base/testo.h>
#include <core/riga.h>
#include <core/riga_censuaria.h>

namespace lirmeto {

RigheInClassi EsplodiLibretto(Ambiente& ambiente) {
  RigheInClassi righe = DividiInClassi(ambiente.sessione.Libretto, ambiente.dialoghi);
  CatturaPropostaInLibretto(ambiente.sessione);
  if (!CensuarioIntero(righe))
    ambiente.dialoghi.Messaggio("Il numero delle righe INDICATE nel Modello Censuario" + std::string(FineRiga) +
                                "non corrisponde al numero delle righe PRESENTI nel Modello Censuario!");
  return righe;
}

void RicomponiLibretto(Ambiente& ambiente, RigheInClassi righe) {
  if (ambiente.sessione.SiglaProvincia == "GO") AdattaCensuarioGo(righe);
  ambiente.sessione.Libretto = UnisciClassi(righe);
}

void CatturaPropostaInLibretto(Sessione& sessione) {
  sessione.PropostaLibretto.clear();
  bool dentro = false;
  BloccoCensuario censuario; // a block behind the proposal is no part of it
  for (const auto riga : RigheDi(sessione.Libretto)) {
    dentro = dentro || riga == RigaProposta;
    if (!dentro || censuario.Prende(riga)) continue;
    sessione.PropostaLibretto += Taglia(riga);
    sessione.PropostaLibretto += FineRiga;
  }
}

} // namespace lirmeto
