#include <cli/comandi.h>

#include <base/testo.h>
#include <core/apertura.h>
#include <core/lettura.h>
#include <core/zero_nove.h>
#include <piattaforma/disco_dischi.h>
#include <piattaforma/percorsi_ospite.h>
#include <supporto/modello_stampa.h>

#include <array>

namespace lirmeto {

namespace {

constexpr ArgomentoCli ArgomentiModello[] = {
    {"RTF", GenereArgomento::File, "modello da compilare"},
    {"FILE", GenereArgomento::File, "libretto che dà i valori"},
    {"STAMPA", GenereArgomento::TestoFacoltativo, "file di testo con le righe della stampa; senza: nessuna"},
};

// Lines of a text file of the host; none for an empty name.
ListaRighe RigheDellaStampa(Ambiente& ambiente, const std::string& file) {
  ListaRighe righe;
  if (file.empty()) return righe;
  const std::string testo = ConFineRiga(CaricaFileBinario(ambiente, PercorsoDaOspite(OspiteDaUtf8(AUtf8(file)))));
  auto linee = Dividi(testo, FineRiga);
  if (!linee.empty()) linee.pop_back(); // behind the last line end
  for (const auto linea : linee) righe.Aggiungi(linea);
  return righe;
}

std::string ComandoModello(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  ApriLibretto(ambiente, argomenti[1]);
  CaricaLibrettoInList1(ambiente);
  DecoZeroNove(ambiente);
  const ListaRighe stampa = RigheDellaStampa(ambiente, argomenti.size() > 2 ? argomenti[2] : std::string());
  const std::string modello = LeggiModello(ambiente, argomenti[0]);
  return CompilaModello(modello, ambiente.sessione, stampa);
}

constexpr std::array Comandi = {
    ComandoCli{"modello", "compila un modello di stampa coi valori di un libretto", ArgomentiModello, ComandoModello},
};

} // namespace

FamigliaCli ComandiModello() {
  return {"", "", Comandi};
}

} // namespace lirmeto
