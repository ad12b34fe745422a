#include <core/appunti_righe.h>

#include <base/testo.h>
#include <core/salvataggio.h>

#include <algorithm>
#include <memory>
#include <utility>

namespace lirmeto {

namespace {

constexpr std::size_t RigheFisse = 2; // rows 0 and 9 always stay

// Places of the rows that a command is about.
std::vector<std::size_t> Scelte(const ElencoRighe& elenco, std::size_t primo) {
  std::vector<std::size_t> quali = elenco.Selezionate(primo);
  if (quali.empty() && elenco.Indice() >= static_cast<long>(primo))
    quali.push_back(static_cast<std::size_t>(elenco.Indice()));
  return quali;
}

void MettiNegliAppunti(Ambiente& ambiente, const std::vector<std::size_t>& quali) {
  std::string testo;
  for (const std::size_t quale : quali) testo.append(ambiente.sessione.List1.Riga(quale)).append(FineRiga);
  ambiente.appunti.MettiTesto(testo);
}

void DiciEscluse(Ambiente& ambiente, const std::vector<std::string_view>& escluse, std::size_t ripetute) {
  constexpr std::size_t mostrate = 10;
  std::string detto;
  if (!escluse.empty()) {
    detto = QuanteRighe(escluse.size()) + " non si possono incollare:";
    for (std::size_t i = 0; i < std::min(escluse.size(), mostrate); ++i) detto.append(FineRiga).append(escluse[i]);
    if (escluse.size() > mostrate) detto.append(FineRiga).append("...");
  }
  if (ripetute > 0) {
    if (!detto.empty()) detto.append(FineRiga);
    detto += ripetute == 1 ? "1 riga uguale alla precedente: tolta"
                           : QuanteRighe(ripetute) + " uguali alla precedente: tolte";
  }
  if (!detto.empty()) ambiente.dialoghi.Messaggio(detto, "Incolla Righe");
}

} // namespace

bool RigaDaIncollare(std::string_view linea) {
  constexpr std::size_t piuCorta = 3; // the list takes no shorter row
  return linea.size() >= piuCorta && linea[0] >= '1' && linea[0] <= '8' && linea[1] == '|';
}

void CopiaRighe(Ambiente& ambiente) {
  const auto quali = Scelte(ambiente.sessione.List1, 0);
  if (!quali.empty()) MettiNegliAppunti(ambiente, quali);
}

void TagliaRighe(Ambiente& ambiente) {
  ElencoRighe& elenco = ambiente.sessione.List1;
  const auto quali = Scelte(elenco, RigheFisse);
  if (quali.empty()) return;
  MettiNegliAppunti(ambiente, quali);
  for (const std::size_t quale : quali) elenco.Seleziona(quale, true);
  elenco.TogliSelezionate(RigheFisse);
  AggiornaLibrettoMisure(ambiente);
}

void IncollaRighe(Ambiente& ambiente) {
  const auto testo = std::make_shared<const std::string>(ConFineRiga(ambiente.appunti.Testo()));
  std::vector<std::string_view> righe;
  std::vector<std::string_view> escluse;
  for (const auto linea : Dividi(*testo, FineRiga)) {
    const std::string_view riga = Taglia(linea);
    if (!riga.empty()) (RigaDaIncollare(riga) ? righe : escluse).push_back(riga);
  }
  if (righe.empty())
    return ambiente.dialoghi.Messaggio("Gli Appunti non contengono righe da incollare nel Libretto!", "Incolla Righe");
  ElencoRighe& elenco = ambiente.sessione.List1;
  const auto dopo = static_cast<std::size_t>(std::max(elenco.Indice() + 1, 0L));
  const std::size_t posto =
      elenco.Indice() < 0 ? elenco.Quante() : std::max(dopo, std::min(RigheFisse, elenco.Quante()));
  elenco.InserisciTratto(posto, testo, righe);
  const std::size_t quante = elenco.Quante();
  AggiornaLibrettoMisure(ambiente);
  const std::size_t ripetute = quante - elenco.Quante();
  DiciEscluse(ambiente, escluse, ripetute);
}

} // namespace lirmeto
