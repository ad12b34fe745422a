#include <applicazione/avvio.h>

#include <core/cartelle.h>
#include <core/mostra_errore.h>
#include <core/zero_nove.h>
#include <pregeo/pregeo_ini.h>

namespace lirmeto {

void PreparaCartelle(Ambiente& ambiente) {
  ambiente.sessione.PuntoErrore = "Initialize01";
  (void)Intrappola(ambiente, [&] { CartelleSpeciali(ambiente); });
}

void ScriviCartellaDocumenti(Ambiente& ambiente) {
  const Sessione& sessione = ambiente.sessione;
  (void)Intrappola(ambiente, [&] {
    ambiente.disco.Scrivi(sessione.CartellaTemp + "\\CARTELLADOCUMENTI.TXT", sessione.CartellaProgramma + "\r\n");
  });
}

void CaricaInstallazione(Ambiente& ambiente) {
  (void)Intrappola(ambiente, [&] { LeggiPregeoIni(ambiente); });
  (void)Intrappola(ambiente, [&] {
    CaricaProvinceComuni(ambiente);
    Sessione& sessione = ambiente.sessione;
    if (const CodiceENome* provincia = TrovaPerCodice(sessione.Province, sessione.SiglaProvincia))
      sessione.NomeProvincia = provincia->nome;
  });
}

} // namespace lirmeto
