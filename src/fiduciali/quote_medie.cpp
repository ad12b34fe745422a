#include <fiduciali/quote_medie.h>

#include <base/testo.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/zero_nove.h>
#include <fiduciali/quota_media.h>

#include <algorithm>
#include <iterator>

namespace lirmeto {

namespace {

constexpr std::size_t CampoQuotaMedia = 1; // of row 9

QuoteMedie::Comune ComuneDa(std::string_view riga) {
  const auto campo = [riga](std::size_t quale) { return std::string(Taglia(Parte(riga, '|', quale))); };
  return {campo(0), campo(1), campo(2)};
}

} // namespace

void QuoteMedie::AlCaricamento() {
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
  ambiente_.sessione.PuntoErrore = "QuoteMedie";
  const std::string percorso = PercorsoQuotaMedia(ambiente_.sessione);
  (void)Intrappola(ambiente_, [&] {
    if (!ambiente_.disco.Esiste(percorso))
      return ambiente_.dialoghi.Messaggio(percorso + std::string(FineRiga) + "Non Trovato!");
    const std::string testo = CaricaFileIntero(ambiente_, percorso);
    for (const auto riga : RigheDi(testo))
      if (Contiene(riga, "|")) tutti_.push_back(ComuneDa(riga));
  });
  Righe = tutti_;
  const auto suo = std::find_if(Righe.begin(), Righe.end(), [this](const Comune& comune) {
    return comune.codice == ambiente_.sessione.CodiceComune;
  });
  Indice = suo == Righe.end() ? -1 : static_cast<long>(suo - Righe.begin());
}

void QuoteMedie::Cerca(std::string_view testo) {
  Testo = testo;
  const std::string cercato = Maiuscolo(Taglia(testo));
  Righe.clear();
  std::copy_if(tutti_.begin(), tutti_.end(), std::back_inserter(Righe), [&cercato](const Comune& comune) {
    return Contiene(Maiuscolo(comune.codice + " " + comune.nome), cercato);
  });
  Indice = Righe.empty() ? -1 : 0;
}

void QuoteMedie::Scegli(long indice) {
  Indice = indice < static_cast<long>(Righe.size()) ? indice : -1;
}

void QuoteMedie::MettiInRigaNove() {
  if (Indice < 0) return ambiente_.dialoghi.Messaggio("Selezionare un Comune!", "Quota Media Comuni Italiani");
  CambiaCampoNove(ambiente_, CampoQuotaMedia, Righe.at(static_cast<std::size_t>(Indice)).quota);
  ambiente_.sessione.EsitoForm = EsitoConfermato;
  Chiusa = true;
}

} // namespace lirmeto
