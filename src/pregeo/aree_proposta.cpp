#include <pregeo/aree_proposta.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <pregeo/trasvea.h>

#include <unordered_map>
#include <vector>

namespace lirmeto {

// What could be done in more than one way:
//
//   the fields of a row        counted from its last vertex, whatever the number of vertices
//   "+" and "-"                looked for in the whole line, names and areas alike
//   an origin without an area  takes the area that the line before had: the office adds up the lines as
//                              they stand, and a line without an area would be none to it
//   no exported proposal       the files of the last time stay as they are

namespace {

constexpr std::string_view Uguale = " =";

struct Particella {
  std::string_view nome;
  std::string_view origine;
  std::string_view area;
};

// Behind the last vertex.
enum class Dopo { Nome = 2, Origine = 3, Area = 4 };

std::string_view Campo(const RigaDivisa& divisa, Dopo dopo) {
  const auto indice = static_cast<std::size_t>(divisa.UltimoVertice) + static_cast<std::size_t>(dopo);
  return indice < MassimoCampi ? divisa.CampiRiga[indice] : std::string_view{};
}

Particella LeggiParticella(std::string_view riga) {
  const RigaDivisa divisa = SplitRiga(riga);
  return {Campo(divisa, Dopo::Nome), Campo(divisa, Dopo::Origine), Campo(divisa, Dopo::Area)};
}

// The part before the last bar.
std::string_view PenultimoCampo(std::string_view riga) {
  const std::size_t fine = riga.rfind('|');
  if (fine == std::string_view::npos) return {};
  const std::string_view davanti = riga.substr(0, fine);
  return davanti.substr(davanti.rfind('|') + 1);
}

// Whether a row is the head of a ring that has an area.
bool RigaConArea(std::string_view riga) {
  return GenereDi(riga) == Genere::Contorno && Valore(Parte(riga, '|', 1)) > 0 && Valore(PenultimoCampo(riga)) != 0;
}

bool HaSegno(std::string_view riga) {
  return riga.find_first_of("+-") != std::string_view::npos;
}

std::string NomeEArea(std::string_view nome, std::string_view area) {
  return std::string(nome).append(" = ").append(area);
}

// Headings, and "name = area" for each parcel: the old table, then the new one.
std::vector<std::string> TabellaAree(const std::vector<std::string_view>& righe) {
  std::vector<std::string> tabella;
  for (const auto riga : righe) {
    if (Contiene(riga, "ESTRA")) tabella.emplace_back(riga);
    if (!RigaConArea(riga)) continue;
    const Particella particella = LeggiParticella(riga);
    tabella.push_back(NomeEArea(particella.nome, particella.area));
  }
  return tabella;
}

// The first entry of each name: what stands before its first " =".
class IndiceAree {
public:
  explicit IndiceAree(const std::vector<std::string>& tabella) : tabella_(tabella) {
    for (const std::string& voce : tabella)
      if (const std::size_t fine = voce.find(Uguale); fine != std::string::npos)
        prime_.try_emplace(std::string_view(voce).substr(0, fine), &voce);
  }

  // The first entry that begins with the name and " ="; null when there is none.
  [[nodiscard]] const std::string* Cerca(std::string_view nome) const {
    if (Contiene(nome, Uguale)) return CercaOvunque(nome);
    const auto trovata = prime_.find(nome);
    return trovata == prime_.end() ? nullptr : trovata->second;
  }

private:
  [[nodiscard]] const std::string* CercaOvunque(std::string_view nome) const {
    const std::string inizio = std::string(nome).append(Uguale);
    for (const std::string& voce : tabella_)
      if (voce.starts_with(inizio)) return &voce;
    return nullptr;
  }

  const std::vector<std::string>& tabella_;
  std::unordered_map<std::string_view, const std::string*> prime_;
};

std::string ComponiAree(const std::vector<std::string>& tabella) {
  std::string testo;
  bool scrive = false;
  for (const std::string& voce : tabella) {
    scrive = scrive || Contiene(voce, " AGGIORNATO|");
    if (scrive && !HaSegno(voce)) testo.append(voce).append(FineRiga);
  }
  return testo;
}

std::string ComponiModello(const std::vector<std::string_view>& righe, const std::vector<std::string>& tabella) {
  const IndiceAree indice(tabella);
  std::string testo;
  std::string_view vecchia; // stays for an origin that is not found
  bool aggiornato = false;
  for (const auto riga : righe) {
    aggiornato = aggiornato || Contiene(riga, "AGGIOR");
    if (!aggiornato || !RigaConArea(riga)) continue;
    const Particella particella = LeggiParticella(riga);
    if (const std::string* voce = indice.Cerca(particella.origine))
      vecchia = Taglia(std::string_view(*voce).substr(voce->find('=') + 1));
    const std::string linea =
        NomeEArea(particella.origine, vecchia).append("_").append(NomeEArea(particella.nome, particella.area));
    if (!HaSegno(linea)) testo.append(linea).append(FineRiga);
  }
  return testo;
}

} // namespace

AreeProposta LeggiAreeProposta(std::string_view proposta) {
  const auto righe = RigheDi(proposta);
  const std::vector<std::string> tabella = TabellaAree(righe);
  return {ComponiAree(tabella), ComponiModello(righe, tabella)};
}

bool EsplodiAreeProposta(Ambiente& ambiente) {
  const Sessione& sessione = ambiente.sessione;
  bool scritte = false;
  (void)Intrappola(ambiente, [&] {
    EsportaTutto(ambiente, sessione.ProtocolloPregeo);
    ambiente.sessione.PuntoErrore = "EsplodiAreeProposta";
    const std::string esportata = FileDiScambio(sessione, "ESPORTA_PROPOSTA.txt");
    if (!ambiente.disco.Esiste(esportata)) return;
    const std::string byte = CaricaFileBinario(ambiente, esportata);
    ambiente.disco.Scrivi(FileDiScambio(sessione, "TempProposta"), byte);
    const AreeProposta aree = LeggiAreeProposta(ConFineRiga(byte));
    ambiente.disco.Scrivi(FileDiScambio(sessione, "Aree Per Censuario.txt"), aree.aree);
    ambiente.disco.Scrivi(FileDiScambio(sessione, "Modello Censuario.TXT"), aree.modello);
    scritte = true;
  });
  return scritte;
}

} // namespace lirmeto
