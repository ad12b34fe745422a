// The surveyors of the header form: their .PFS files.

#include <intestazione/catasto1_form.h>

#include <base/percorsi.h>
#include <base/testo.h>
#include <pregeo/tecnico.h>

namespace lirmeto {

namespace {

std::string CartellaTecnici(const Sessione& sessione) {
  return sessione.CartellaProgramma + "\\TECNICI";
}

// Surname and name from the surveyor's text where the surname is one word: a file that an older program wrote may lack
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

void FormCatasto1TXT::ElencaTecnici() {
  File1 = ambiente_.disco.Elenca(CartellaTecnici(ambiente_.sessione), ".PFS");
  File1Indice = std::string::npos;
}

void FormCatasto1TXT::ScegliTecnico(std::size_t indice) {
  if (indice >= File1.size()) return;
  File1Indice = indice;
  constexpr int carica = 21;
  Premi(carica);
}

void FormCatasto1TXT::CaricaTecnicoScelto() {
  if (File1Indice >= File1.size()) return ambiente_.dialoghi.Messaggio("Selezionare un Tecnico!", "Carica Tecnico");
  Sessione& sessione = ambiente_.sessione;
  CaricaTecnico(ambiente_, File1[File1Indice]);
  DividiTecnico(sessione);
  Cambia(casella::Cognome, sessione.Cognome);
  Cambia(casella::Nome, sessione.Nome);
  Cambia(casella::Qualifica, sessione.Qualifica);
  Cambia(casella::Provincia, sessione.Provincia);
  Cambia(casella::Iscrizione, sessione.NumeroIscrizione);
  Cambia(casella::CodiceFiscale, sessione.CodiceFiscale);
  Cambia(casella::Recapito, sessione.Recapito);
  for (const std::size_t precisione : {casella::PrecisioneLineare, casella::PrecisioneAngolare})
    Cambia(precisione, ValorePredefinito(precisione, sessione, {}));
}

void FormCatasto1TXT::EliminaTecnico() {
  const std::string titolo = "Elimina Tecnico";
  if (File1Indice >= File1.size()) return ambiente_.dialoghi.Messaggio("Selezionare un Tecnico!", titolo);
  const std::string nome = File1[File1Indice];
  const Risposta risposta =
      ambiente_.dialoghi.Chiedi("Eliminare definitivamente " + nome + " ??", titolo, Bottoni::SiNo);
  if (risposta != Risposta::Si) return;
  ambiente_.disco.Elimina(CartellaTecnici(ambiente_.sessione) + "\\" + ComponenteFile(nome));
  ElencaTecnici();
}

} // namespace lirmeto
