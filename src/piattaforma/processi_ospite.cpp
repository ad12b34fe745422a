#include <piattaforma/processi_ospite.h>

#include <piattaforma/estrazione.h>
#include <piattaforma/file_ospite.h>
#include <piattaforma/versione_eseguibile.h>

#include <base/errore.h>
#include <base/testo.h>

#include <chrono>
#include <thread>
#include <utility>

namespace lirmeto {

namespace fs = std::filesystem;

std::unique_ptr<ArchivioAperto> ProcessiOspite::ApriArchivio(std::string byte) {
  return ApriArchivioZip(std::move(byte));
}

std::string ProcessiOspite::VersioneFile(std::string_view percorso) {
  return VersioneDaEseguibile(disco_.Leggi(percorso));
}

void ProcessiOspite::Pausa(int millisecondi) {
  std::this_thread::sleep_for(std::chrono::milliseconds(millisecondi));
}

fs::path TrovaProgramma(const DiscoDischi& disco, std::string_view programma) {
  if (!disco.Esiste(programma) && FinisceConSenzaCaso(programma, EstensioneProgramma))
    programma.remove_suffix(EstensioneProgramma.size());
  fs::path ospite = disco.PercorsoOspite(programma);
  if (GenereOspite(ospite) != GenereFile::Regolare) throw Errore(errore::FileNonTrovato);
  return fs::absolute(ospite);
}

std::vector<std::string> ParoleDelProgramma(const std::vector<std::string>& argomenti) {
  std::vector<std::string> parole;
  parole.reserve(argomenti.size());
  for (const std::string& argomento : argomenti) {
    if (argomento.find('\0') != argomento.npos) throw Errore(errore::ArgomentoNonValido);
    parole.push_back(AUtf8(argomento));
  }
  return parole;
}

CartelleDiSistema CartelleSottoC(std::string_view utente) {
  const std::string casa = "C:\\users\\" + ComponenteSicuro(utente);
  return {casa + "\\Documents", "C:\\WINDOWS", casa + "\\Temp", "C:\\Program Files (x86)"};
}

void CreaCartelleMancanti(Disco& disco, const CartelleDiSistema& cartelle) {
  const std::string casa = cartelle.documenti.substr(0, cartelle.documenti.rfind('\\'));
  for (const std::string& cartella :
       {std::string("C:\\users"), casa, cartelle.documenti, cartelle.temporanea, cartelle.windows, cartelle.programmi})
    if (!disco.EsisteCartella(cartella)) disco.CreaCartella(cartella);
}

std::string ComponenteSicuro(std::string_view utf8) {
  std::string nome = DaUtf8(utf8);
  for (char& lettera : nome)
    if (static_cast<unsigned char>(lettera) < ' ' || std::string_view("\\/:*?\"<>|").find(lettera) != std::string::npos)
      lettera = '_';
  return nome.find_first_not_of('.') == nome.npos ? "utente" : nome;
}

} // namespace lirmeto
