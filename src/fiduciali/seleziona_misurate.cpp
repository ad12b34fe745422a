#include <fiduciali/seleziona_misurate.h>

#include <base/errore.h>
#include <base/testo.h>
#include <core/mostra_errore.h>
#include <fiduciali/misurate.h>
#include <fiduciali/taf.h>

#include <algorithm>

namespace lirmeto {

void KR_SelezionaMisurate::AlCaricamento() {
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
  ambiente_.sessione.PuntoErrore = "KR_SelezionaMisurate";
  (void)Intrappola(ambiente_, [this] { TogliSuperate(); });
  (void)Intrappola(ambiente_, [this] { Ricarica(); });
}

void KR_SelezionaMisurate::TogliSuperate() {
  const auto archivi = ElencoArchiviMisurate(ambiente_);
  for (std::size_t i = 0; i + 1 < archivi.size(); ++i)
    if (StessaProvincia(archivi[i], archivi[i + 1]))
      ambiente_.disco.Elimina(CartellaArchivi(ambiente_.sessione) + archivi[i]);
}

void KR_SelezionaMisurate::Ricarica() {
  File1 = ElencoArchiviMisurate(ambiente_);
  const auto suo = std::find_if(File1.begin(), File1.end(), [this](const std::string& nome) {
    return UgualiSenzaCaso(nome, ambiente_.sessione.MisurateAssociate);
  });
  Indice = suo == File1.end() ? -1 : static_cast<long>(suo - File1.begin());
}

void KR_SelezionaMisurate::Scegli(std::size_t indice) {
  if (indice >= File1.size()) throw Errore(errore::IndiceFuoriIntervallo);
  Indice = static_cast<long>(indice);
}

bool KR_SelezionaMisurate::SenzaScelta() {
  if (Indice < 0) ambiente_.dialoghi.Messaggio("Selezionare un Database!!", "Seleziona archivio");
  return Indice < 0;
}

void KR_SelezionaMisurate::SelezionaLeMisurate() {
  if (SenzaScelta()) return;
  ambiente_.sessione.MisurateAssociate = Maiuscolo(File1.at(static_cast<std::size_t>(Indice)));
  ambiente_.sessione.EsitoForm = EsitoConfermato;
  Chiusa = true;
}

void KR_SelezionaMisurate::Importa() {
  (void)Intrappola(ambiente_, [this] {
    ImportaTafMisurate(ambiente_);
    Ricarica();
  });
}

void KR_SelezionaMisurate::Elimina() {
  if (SenzaScelta()) return;
  const std::string& nome = File1.at(static_cast<std::size_t>(Indice));
  const Risposta risposta =
      ambiente_.dialoghi.Chiedi("Eliminare definitivamente " + nome + " ??", "Eliminazione Database", Bottoni::SiNo);
  if (risposta != Risposta::Si) return;
  (void)Intrappola(ambiente_, [&] {
    ambiente_.sessione.PuntoErrore = "KR_SelezionaMisurate";
    ambiente_.disco.Elimina(CartellaArchivi(ambiente_.sessione) + nome);
    Ricarica();
  });
}

} // namespace lirmeto
