#include <estratti/file_estratto.h>

#include <base/errore.h>
#include <base/percorsi.h>
#include <base/testo.h>
#include <estratti/kr_estratto.h>

namespace lirmeto {

std::string_view Gambo(std::string_view nome) {
  return nome.substr(0, nome.rfind('.'));
}

bool RigheDiEstratto(std::string_view nome) {
  return FinisceConSenzaCaso(nome, ".EMP") || FinisceConSenzaCaso(nome, ".AGG") || FinisceConSenzaCaso(nome, ".SMP");
}

std::vector<std::string> FileDelGambo(Ambiente& ambiente, std::string_view gambo) {
  std::vector<std::string> nomi = ambiente.disco.Elenca(CartellaEstratti(ambiente.sessione), {});
  std::erase_if(nomi, [gambo](const std::string& nome) { return !UgualiSenzaCaso(Gambo(nome), gambo); });
  return nomi;
}

bool ConfermaSostituzione(Ambiente& ambiente, const std::string& gambo) {
  if (FileDelGambo(ambiente, gambo).empty()) return true;
  return ambiente.dialoghi.Chiedi("Estratto " + gambo + " esistente!\r\nSostituire??",
                                  "Estratto da duplicare esistente", Bottoni::SiNo) == Risposta::Si;
}

std::string GamboScritto(std::string_view nome) {
  nome = Taglia(nome);
  if (FinisceConSenzaCaso(nome, ".EMP")) nome = Gambo(nome);
  // Nothing but points would lead elsewhere too.
  if (!nome.empty() && nome.find_first_not_of('.') == std::string_view::npos) throw Errore(errore::NomeFileNonValido);
  return ComponenteFile(nome);
}

} // namespace lirmeto
