#include <fiduciali/taf.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/riga.h>

#include <algorithm>
#include <map>

namespace lirmeto {

namespace {

constexpr std::size_t FineLinea = 1000; // beyond every record

// The last characters of zeros and the text: "7" in three columns is "007".
std::string ConZeri(std::string_view testo, std::size_t colonne) {
  std::string pieno(colonne, '0');
  pieno += testo;
  return pieno.substr(pieno.size() - colonne);
}

// The apostrophes of the archive, which are of more than one kind, as the one of the libretti.
std::string ConApostrofo(std::string_view testo) {
  std::string mutato(testo);
  std::replace_if(
      mutato.begin(), mutato.end(), [](char c) { return c == '\x91' || c == '\x92' || c == '`'; }, '\'');
  return mutato;
}

std::string NomeStretto(std::string_view riga) {
  std::string allegato(Colonne(riga, 11, 13));
  if (allegato.empty()) allegato = "0";
  std::string nome = "PF";
  const auto crude = [&](std::size_t primo, std::size_t lungo) {
    nome += primo > riga.size() ? std::string_view{} : riga.substr(primo - 1, lungo);
  };
  crude(16, 2);
  nome += "/";
  crude(8, 3);
  nome += allegato + "/";
  nome += Colonne(riga, 1, 5);
  std::replace(nome.begin(), nome.end(), ' ', '0');
  return nome;
}

// Names that are looked for, and their places in the answer.
using Cercati = std::unordered_map<std::string_view, std::vector<std::size_t>>;

// The first line of each name answers for it.
void CercaNelComune(std::string_view testo, Cercati cercati, std::vector<std::optional<CoordinatePF>>& trovati) {
  for (const auto riga : RigheDi(testo)) {
    if (cercati.empty()) return;
    const auto cercato = cercati.find(NomeStretto(riga));
    if (cercato == cercati.end()) continue;
    for (const std::size_t indice : cercato->second)
      trovati[indice] = {std::string(Colonne(riga, 116, 126)), std::string(Colonne(riga, 103, 113))};
    cercati.erase(cercato);
  }
}

} // namespace

std::string_view Colonne(std::string_view riga, std::size_t primo, std::size_t ultimo) {
  if (riga.size() < primo) return {};
  return Taglia(riga.substr(primo - 1, ultimo - primo + 1));
}

RecordTaf DecodificaRigaTAF(std::string_view riga) {
  RecordTaf taf;
  taf.comune = Colonne(riga, 1, 5);
  taf.foglio = ConZeri(Colonne(riga, 6, 10), 3);
  taf.allegato = ConZeri(Colonne(riga, 11, 12), 1);
  if (Colonne(riga, 11, 12).empty()) taf.allegato = "0";
  taf.numero = "PF" + ConZeri(Colonne(riga, 14, 17), 2);
  taf.mappale = Colonne(riga, 18, 26);
  taf.riferimentoPlanimetrico = ConApostrofo(Colonne(riga, 30, 94));
  taf.nord = Colonne(riga, 102, 113);
  taf.est = Colonne(riga, 115, 126);
  taf.attendibilitaPlanimetrica = Colonne(riga, 128, 129);
  taf.timbro = std::string(Colonne(riga, 130, 133)) + std::string(Colonne(riga, 139, 141));
  taf.aggiornamento = Colonne(riga, 143, 164);
  taf.riferimentoAltimetrico = Colonne(riga, 165, 224);
  taf.attendibilitaAltimetrica = Colonne(riga, 237, 238);
  taf.quota = Colonne(riga, 240, FineLinea);
  taf.nome = taf.numero + "/" + taf.foglio + taf.allegato + "/" + taf.comune;
  taf.x = Valore(taf.est);
  taf.y = Valore(taf.nord);
  taf.z = Valore(taf.quota);
  return taf;
}

std::string_view ComuneDelPunto(std::string_view nome) {
  return Colonne(nome, 11, 14);
}

std::string CartellaArchivi(const Sessione& sessione) {
  return sessione.RadiceDati + "\\fiducial\\DATI\\";
}

std::string PercorsoTaf(const Sessione& sessione, std::string_view comune) {
  if (comune.empty() || comune.find_first_of("\\/:.") != std::string_view::npos) return {};
  return CartellaArchivi(sessione) + std::string(comune) + ".taf";
}

const ArchivioTaf::Comune& ArchivioTaf::Leggi(std::string_view comune) {
  const auto [posto, nuovo] = comuni_.try_emplace(std::string(comune));
  const std::string percorso = PercorsoTaf(ambiente_.sessione, comune);
  if (!nuovo || percorso.empty() || !ambiente_.disco.Esiste(percorso)) return posto->second;
  posto->second.testo = CaricaFileIntero(ambiente_, percorso);
  for (const auto riga : RigheDi(posto->second.testo))
    posto->second.righe.try_emplace(DecodificaRigaTAF(riga).nome, riga);
  return posto->second;
}

std::string_view ArchivioTaf::Riga(std::string_view nome) {
  const Comune& comune = Leggi(ComuneDelPunto(nome));
  const auto trovata = comune.righe.find(std::string(nome));
  return trovata == comune.righe.end() ? std::string_view{} : trovata->second;
}

std::optional<CoordinatePF> CercaPFinTAF(Ambiente& ambiente, std::string_view nome) {
  const std::string uno(nome);
  return CercaPFinTAF(ambiente, std::span(&uno, 1)).front();
}

std::vector<std::optional<CoordinatePF>> CercaPFinTAF(Ambiente& ambiente, std::span<const std::string> nomi) {
  std::vector<std::optional<CoordinatePF>> trovati(nomi.size());
  std::map<std::string_view, Cercati> comuni;
  for (std::size_t i = 0; i < nomi.size(); ++i) {
    const std::string_view nome = Taglia(nomi[i]);
    comuni[ComuneDelPunto(nome)][nome].push_back(i);
  }
  for (auto& [comune, cercati] : comuni) {
    const std::string percorso = PercorsoTaf(ambiente.sessione, comune);
    if (!percorso.empty() && ambiente.disco.Esiste(percorso))
      CercaNelComune(CaricaFileIntero(ambiente, percorso), std::move(cercati), trovati);
  }
  return trovati;
}

} // namespace lirmeto
