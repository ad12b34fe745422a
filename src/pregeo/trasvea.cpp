#include <pregeo/trasvea.h>

#include <core/lettura.h>
#include <pregeo/gondella.h>

namespace lirmeto {

std::string FileDiScambio(const Sessione& sessione, std::string_view nome) {
  return sessione.CartellaProgramma + "\\TEMP\\" + std::string(nome);
}

void EsportaTutto(Ambiente& ambiente, const std::string& chiave) {
  AttendiInstallato(ambiente, ambiente.sessione.CartellaProgramma + "\\Trasvea.exe", {"ESPORTA_TUTTO", chiave});
}

// The list is the one answer that does not lie in the program's folder.
std::string ElencoLibretti(Ambiente& ambiente) {
  const Sessione& sessione = ambiente.sessione;
  AvviaGondella(ambiente, "Trasvea2.exe");
  AttendiInstallato(ambiente, sessione.CartellaProgramma + "\\Trasvea.exe2", {"ELENCO_LIBRETTI"});
  return CaricaFileIntero(ambiente, sessione.CartellaDocumenti + "\\TEMP\\ELENCO_LIBRETTI.txt");
}

} // namespace lirmeto
