// The commands on polylines of CAD programs and on the rows of an update proposal. None asks a question.
#include <cli/comandi.h>

#include <base/testo.h>
#include <core/lettura.h>
#include <core/riga.h>
#include <generazione/polilinee_dxf.h>
#include <generazione/proposta.h>
#include <generazione/tipol10.h>
#include <pregeo/aree_proposta.h>

#include <array>

namespace lirmeto {

namespace {

// The rows of the form after a listing was read, without an extract of the act.
std::string RigheDaElenco(Ambiente& ambiente, std::string_view elenco) {
  ambiente.sessione.TipologiaCorrente = TipologiaSenzaEstratto;
  ambiente.appunti.MettiTesto(elenco);
  DisegnoCondiviso disegno;
  Tipol10 form(ambiente, disegno);
  form.GeneraLibrettoDaList();
  return RigheUnite(form.List1);
}

std::string ComandoElenco(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return RigheDaElenco(ambiente, CaricaFileIntero(ambiente, argomenti[0]));
}

std::string ComandoPolilinee(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return RigheDaElenco(ambiente, ElencoDaDxf(ambiente.dialoghi, CaricaFileBinario(ambiente, argomenti[0])));
}

std::string ComandoEsplodi(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return Esplodi_Proposta(CaricaFileIntero(ambiente, argomenti[0]));
}

// Each row of a file by the rows that take its place.
std::string RigaPerRiga(Ambiente& ambiente, const std::string& file,
                        std::vector<std::string> (*piega)(std::string_view)) {
  const std::string testo = CaricaFileIntero(ambiente, file);
  std::string uscita;
  for (const auto riga : RigheDi(testo)) uscita += RigheUnite(piega(riga));
  return uscita;
}

std::string ComandoImplodi(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return RigaPerRiga(ambiente, argomenti[0], Implodi_Proposta);
}

std::string ComandoSpezza(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  return RigaPerRiga(ambiente, argomenti[0], SpezzaRiga7);
}

// The two lists for the census, an empty row between them.
std::string ComandoAree(Ambiente& ambiente, const std::vector<std::string>& argomenti) {
  const AreeProposta aree = LeggiAreeProposta(CaricaFileIntero(ambiente, argomenti[0]));
  return aree.aree + std::string(FineRiga) + aree.modello;
}

constexpr ArgomentoCli UnDxf[] = {{"FILE", GenereArgomento::File, "disegno .DXF di testo"}};
constexpr ArgomentoCli UnElenco[] = {{"FILE", GenereArgomento::File, "elenco di polilinee di un programma CAD"}};
constexpr ArgomentoCli UnaProposta[] = {{"FILE", GenereArgomento::File, "righe di una proposta di aggiornamento"}};

constexpr std::array<ComandoCli, 2> Polilinee = {{
    {"polilinee", "le righe 8 e 7 dalle polilinee di un DXF", UnDxf, ComandoPolilinee},
    {"elenco", "le righe 8 e 7 da un elenco di polilinee", UnElenco, ComandoElenco},
}};

constexpr std::array<ComandoCli, 4> Proposta = {{
    {"esplodi", "un contorno per riga", UnaProposta, ComandoEsplodi},
    {"implodi", "i contorni esplosi in righe di dieci nomi", UnaProposta, ComandoImplodi},
    {"spezza", "le righe 7 lunghe in righe di dieci nomi", UnaProposta, ComandoSpezza},
    {"aree", "le aree per il modello censuario", UnaProposta, ComandoAree},
}};

} // namespace

FamigliaCli ComandiPolilinee() {
  return {"", "", Polilinee};
}

FamigliaCli ComandiProposta() {
  return {"proposta", "righe della proposta di aggiornamento", Proposta};
}

} // namespace lirmeto
