#include <pregeo/trasvea.h>

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/lettura.h>
#include <pregeo/gondella.h>

namespace lirmeto {

namespace {

// The files of the last answer are still there: a program that failed must not pass for one that answered.
void Interroga(Ambiente& ambiente, const std::string& nome, const std::vector<std::string>& argomenti) {
  const std::string programma = ambiente.sessione.CartellaProgramma + "\\" + nome;
  const int codice = AttendiInstallato(ambiente, programma, argomenti);
  if (codice != 0)
    throw Errore(errore::ErroreInterno,
                 "Il programma " + programma + std::string(" è terminato con l'errore "_w) + TestoIntero(codice));
}

} // namespace

std::string FileDiScambio(const Sessione& sessione, std::string_view nome) {
  return sessione.CartellaProgramma + "\\TEMP\\" + std::string(nome);
}

void EsportaTutto(Ambiente& ambiente, const std::string& chiave) {
  Interroga(ambiente, "Trasvea.exe", {"ESPORTA_TUTTO", chiave});
}

// The list is the one answer that does not lie in the program's folder.
std::string ElencoLibretti(Ambiente& ambiente) {
  AvviaGondella(ambiente, "Trasvea2.exe");
  Interroga(ambiente, "Trasvea.exe2", {"ELENCO_LIBRETTI"});
  return CaricaFileIntero(ambiente, ambiente.sessione.CartellaDocumenti + "\\TEMP\\ELENCO_LIBRETTI.txt");
}

} // namespace lirmeto
