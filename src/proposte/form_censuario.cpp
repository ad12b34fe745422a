#include <proposte/form_censuario.h>

#include <base/testo.h>
#include <core/mostra_errore.h>
#include <supporto/stampa_generale.h>

namespace lirmeto {

void FormCensuario::Premi(int indice) {
  ambiente_.sessione.PuntoErrore = NomeForm();
  (void)Intrappola(ambiente_, [&] { Esegui(indice); });
}

std::vector<Segnalazione> FormCensuario::RilieviList1() const {
  return VerificaElencoCensuario(List1, ambiente_.sessione.TabellaQualita);
}

// Heading and count alone are no memo yet.
std::vector<Segnalazione> FormCensuario::RilieviMemo() {
  return VerificaElencoCensuario(Memo().Righe(), ambiente_.sessione.TabellaQualita);
}

void FormCensuario::CopiaMemo() {
  ambiente_.appunti.MettiTesto(RigheUnite(Memo().Righe()));
}

void FormCensuario::Esegui(int indice) {
  if (indice == pulsante::Chiudi) Chiusa = true;
  if (indice == pulsante::Copia) CopiaMemo();
  if (indice == pulsante::Stampa) MostraStampaGenerale(ambiente_, Memo().Righe());
}

} // namespace lirmeto
