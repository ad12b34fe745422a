#include <intestazione/catasto1_tecnici.h>

#include <base/percorsi.h>
#include <base/testo.h>
#include <pregeo/tecnico.h>

namespace lirmeto {

namespace {

std::string CartellaTecnici(const Sessione& sessione) {
  return sessione.CartellaProgramma + "\\TECNICI";
}

// Surname and name from the surveyor's text where the surname is one word: a file may lack
// them. A surname of several words is taken as the file gives it.
void DividiTecnico(Sessione& sessione) {
  if (Contiene(Taglia(sessione.Cognome), " ")) return;
  const std::string_view tecnico = Taglia(sessione.Tecnico);
  const std::size_t blanco = tecnico.find(' ');
  if (blanco == std::string_view::npos) return;
  sessione.Cognome = tecnico.substr(0, blanco);
  sessione.Nome = Taglia(tecnico.substr(blanco));
}

} // namespace

void TecniciCatasto1::Elenca() {
  file_ = ambiente_.disco.Elenca(CartellaTecnici(ambiente_.sessione), ".PFS");
  scelto_ = std::string::npos;
}

bool TecniciCatasto1::ESceltoPer(std::string_view titolo) const {
  if (scelto_ < file_.size()) return true;
  ambiente_.dialoghi.Messaggio("Selezionare un Tecnico!", titolo);
  return false;
}

bool TecniciCatasto1::Carica() {
  if (!ESceltoPer("Carica Tecnico")) return false;
  CaricaTecnico(ambiente_, file_[scelto_]);
  DividiTecnico(ambiente_.sessione);
  return true;
}

void TecniciCatasto1::Elimina() {
  constexpr std::string_view titolo = "Elimina Tecnico";
  if (!ESceltoPer(titolo)) return;
  const std::string& nome = file_[scelto_];
  if (ambiente_.dialoghi.Chiedi("Eliminare definitivamente " + nome + " ??", titolo, Bottoni::SiNo) != Risposta::Si)
    return;
  ambiente_.disco.Elimina(CartellaTecnici(ambiente_.sessione) + "\\" + ComponenteFile(nome));
  Elenca();
}

} // namespace lirmeto
