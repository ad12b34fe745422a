#include <pregeo/form_configura_pregeo.h>

#include <base/testo.h>
#include <core/mostra_errore.h>
#include <pregeo/collegamenti.h>
#include <pregeo/pregeo_ini.h>
#include <pregeo/pregeo_ini_scrittura.h>

#include <utility>

namespace lirmeto {

// Each command reports its own error: the box stays open over it.
void FormConfiguraPregeo::Prova(std::string_view passo, void (FormConfiguraPregeo::*comando)()) {
  ambiente_.sessione.PuntoErrore = "FormConfiguraPregeo " + std::string(passo);
  (void)Intrappola(ambiente_, [&] { (this->*comando)(); });
}

void FormConfiguraPregeo::AlCaricamento() {
  Titolo = "Configurazione di Pregeo - " + PercorsoPregeoIni(ambiente_.sessione);
  Ricarica();
}

void FormConfiguraPregeo::Chiudi() {
  Chiusa = Testo == salvato_ || ambiente_.dialoghi.Chiedi("Chiudere senza salvare le modifiche?",
                                                          "Configurazione di Pregeo", Bottoni::SiNo) == Risposta::Si;
}

void FormConfiguraPregeo::Salva() {
  Prova("Salva", &FormConfiguraPregeo::Scrivi);
}

void FormConfiguraPregeo::Scrivi() {
  const std::string percorso = PercorsoPregeoIni(ambiente_.sessione);
  const std::string originale = ambiente_.disco.Esiste(percorso) ? ambiente_.disco.Leggi(percorso) : std::string{};
  auto righe = RigheIni(Testo);
  ambiente_.disco.Scrivi(percorso, TestoIni(righe, originale));
  ambiente_.sessione.RighePregeoIni = std::move(righe);
  salvato_ = Testo;
}

void FormConfiguraPregeo::Ricarica() {
  Prova("Ricarica", &FormConfiguraPregeo::Leggi);
}

void FormConfiguraPregeo::Leggi() {
  LeggiPregeoIni(ambiente_);
  const auto& righe = ambiente_.sessione.RighePregeoIni;
  Testo = Unisci({righe.begin(), righe.end()}, FineRiga);
  salvato_ = Testo;
  EtichettaVersione = ambiente_.sessione.VersionePregeo;
}

void FormConfiguraPregeo::CreaCollegamenti() {
  CreaCollegamentiPregeo(ambiente_);
}

void FormConfiguraPregeo::Carica_Versione_Pregeo() {
  Prova("Carica_Versione_Pregeo", &FormConfiguraPregeo::LeggiVersione);
}

void FormConfiguraPregeo::LeggiVersione() {
  Titolo = "Versione Pregeo.EXE = " +
           ambiente_.processi.VersioneFile(ambiente_.sessione.RadicePregeo + "\\pregeo\\EXE\\PREGEO.EXE");
}

} // namespace lirmeto
