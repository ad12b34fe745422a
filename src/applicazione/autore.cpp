#include <applicazione/autore.h>

#include <applicazione/versione.h>
#include <core/cartelle.h>

namespace lirmeto {

std::vector<std::string> DatiProgramma() {
  return {std::string(TitoloProgramma) + " - Libretto delle Misure", "Versione " + std::string(VersioneProgramma),
          "Autore: gli Autori di " + std::string(TitoloProgramma),
          "I nomi di prodotti citati sono marchi dei rispettivi titolari"};
}

ListaRighe RigheConfigurazione(const Sessione& sessione) {
  ListaRighe righe;
  for (const auto& riga : DatiProgramma()) righe.Aggiungi(riga);
  righe.Aggiungi("Elenco Cartelle utilizzate da Lirmeto");
  for (const auto& cartella : CartelleDiLavoro(sessione)) righe.Aggiungi(cartella);
  return righe;
}

void MostraAutore(Ambiente& ambiente) {
  autore form;
  ambiente.finestre.MostraModale(form);
}

} // namespace lirmeto
