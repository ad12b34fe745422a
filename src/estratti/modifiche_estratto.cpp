#include <estratti/modifiche_estratto.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <estratti/campi.h>
#include <estratti/rinumerazione.h>

namespace lirmeto {

void EliminaParticellaEstratto(KR_Estratto& estratto, std::string_view nome) {
  constexpr std::size_t primoNome = 3; // places before the last
  estratto.SETTE.TogliSe([nome](std::string_view riga) { return CampoDaUltimo(riga, primoNome) == nome; });
  EliminaPuntiIsolati(estratto);
}

void EliminaPuntiIsolati(KR_Estratto& estratto) {
  ListaRighe& punti = estratto.Punti;
  IndiceIdentificativi indice(punti.size(), '%');
  for (std::size_t i = 0; i < punti.size(); ++i)
    indice.Aggiungi(SpezzaPunto(punti[i]).identificativo, static_cast<std::uint32_t>(i));
  std::vector<bool> usato(punti.size());
  Campi campi;
  // Whatever stands between two bars counts, the name of a parcel too.
  for (const auto riga : estratto.SETTE) {
    campi.Dividi(riga);
    for (std::size_t i = 1; i + 1 < campi.Quanti(); ++i)
      if (const auto posto = indice.Cerca(campi[i]); posto != IndiceIdentificativi::Nessuno) usato[posto] = true;
  }
  punti.TogliSe([&](std::string_view riga) { return !usato[indice.Cerca(SpezzaPunto(riga).identificativo)]; });
}

bool PulisciEstratto(Ambiente& ambiente, std::string_view nome) {
  KR_Estratto estratto;
  if (!EsplodiEstratto(ambiente, estratto, nome)) return false;
  return Intrappola(ambiente, [&] { EliminaPuntiIsolati(estratto); }) && SalvaEstratto(ambiente, estratto);
}

std::string RinominaParticella(std::string_view testo, std::string_view vecchio, std::string_view nuovo) {
  if (Contiene(nuovo, "|"))
    throw Errore(errore::ArgomentoNonValido, "Il nome di una particella non ha barre: \"" + std::string(nuovo) + "\"");
  const auto chiusura = [](std::string_view nome) {
    return "|NC|" + std::string(nome) + "|" + std::string(nome) + "|";
  };
  return Sostituisci(testo, chiusura(vecchio), chiusura(nuovo));
}

} // namespace lirmeto
