#include <supporto/assegna_descrizione.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/campi_riga.h>
#include <core/mostra_errore.h>
#include <core/salvataggio.h>

namespace lirmeto {

namespace {

constexpr std::string_view Titolo = "Cambia Descrizione";

} // namespace

void AssegnaDescrizione::AlCaricamento() {
  const ElencoRighe& elenco = ambiente_.sessione.List1;
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
  for (std::size_t i = 0; i < elenco.Quante(); ++i) {
    if (!elenco.Selezionata(i)) continue;
    ++Selezionate;
    const auto campo = CampoNota(elenco.Riga(i));
    if (!campo) continue;
    if (ConNota++ == 0) Text1 = Parte(elenco.Riga(i), '|', *campo);
  }
}

void AssegnaDescrizione::Conferma() {
  if (ConNota == 0) return ambiente_.dialoghi.Messaggio("Nessuna delle righe selezionate ha una nota.", Titolo);
  ambiente_.sessione.PuntoErrore = "AssegnaDescrizione";
  std::size_t cambiate = 0;
  Chiusa = Intrappola(ambiente_, [&] {
    ElencoRighe& elenco = ambiente_.sessione.List1;
    for (std::size_t i = 0; i < elenco.Quante(); ++i) {
      const auto campo = elenco.Selezionata(i) ? CampoNota(elenco.Riga(i)) : std::nullopt;
      if (!campo) continue;
      const std::string nuova = ConCampo(elenco.Riga(i), *campo, Text1);
      if (nuova == elenco.Riga(i)) continue;
      elenco.Cambia(i, nuova);
      ++cambiate;
    }
    AggiornaLibrettoMisure(ambiente_);
    ambiente_.sessione.EsitoForm = EsitoConfermato;
  });
  if (Chiusa) ambiente_.dialoghi.Messaggio("Descrizione cambiata in " + QuanteRighe(cambiate) + ".", Titolo);
}

} // namespace lirmeto
