#include <estratti/archivi_estratto.h>

#include <base/percorsi.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <core/riga.h>
#include <estratti/campi.h>

#include <string>
#include <utility>
#include <vector>

namespace lirmeto {

namespace {

constexpr std::string_view MarcaDitta = "6|DITTA|";

struct VoceArchiviata {
  std::string percorso;
  std::string riga;
};

std::vector<VoceArchiviata> VociDitte(const Sessione& sessione, std::string_view testo) {
  const auto righe = RigheDi(testo);
  const std::string_view zero = righe.empty() ? std::string_view{} : righe.front();
  std::string inizio;
  std::vector<VoceArchiviata> voci;
  for (const auto riga : righe) {
    if (!Contiene(riga, MarcaDitta)) continue;
    if (inizio.empty())
      for (const std::size_t posizione : {6U, 3U, 4U}) inizio.append(Campo(zero, posizione)).append("_");
    const std::string nome = inizio + std::string(Campo(riga, 2)) + "_" + std::string(Campo(riga, 4)) + ".DIT";
    voci.push_back({sessione.RadiceDati + "\\fiducial\\DITTA\\" + ComponenteFile(nome), std::string(riga)});
  }
  return voci;
}

std::string SenzaDitte(std::string_view testo) {
  std::string uscita;
  for (const auto riga : RigheDi(testo))
    if (!Contiene(riga, MarcaDitta)) uscita.append(riga).append(FineRiga);
  return uscita;
}

} // namespace

void ArchiviaDitte(Ambiente& ambiente, std::string_view percorso) {
  ambiente.sessione.PuntoErrore = "ArchiviaDitte";
  for (const auto& [file, riga] : VociDitte(ambiente.sessione, CaricaFileIntero(ambiente, percorso)))
    ambiente.disco.Scrivi(file, riga + std::string(FineRiga));
}

// The extract is written last: until then everything that it held is still there.
void ArchiviaEdEliminaDitte(Ambiente& ambiente, std::string_view percorso) {
  const std::string nome(NomeDaPercorso(percorso));
  const std::string copia = ambiente.sessione.CartellaProgramma + "\\TEMP\\" + nome.substr(0, nome.rfind('.')) + ".BAK";
  ArchiviaDitte(ambiente, percorso);
  ambiente.disco.Copia(percorso, copia);
  ambiente.disco.Scrivi(percorso, SenzaDitte(CaricaFileIntero(ambiente, copia)));
  ambiente.dialoghi.Messaggio("Intestatari archiviati ed eliminati dall'Estratto!");
}

} // namespace lirmeto
