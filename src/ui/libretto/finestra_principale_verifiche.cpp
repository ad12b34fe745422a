// The findings beside the rows, their list and the picture of the survey.

#include <ui/libretto/finestra_principale.h>

#include <ui/comune/testo_qt.h>
#include <ui/libretto/vista_righe.h>
#include <ui/verifiche/elenco_verifiche.h>
#include <ui/verifiche/pannello_rilievo.h>
#include <ui/verifiche/segni.h>

#include <QSplitter>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace lirmeto::ui {

void FinestraPrincipale::CollegaVerifiche() {
  righe_->Segni([this](std::size_t riga) { return modello_.Verifiche.SegnoDi(riga); },
                [this](std::size_t riga) { return AQString(modello_.Verifiche.SpiegazioneDi(riga)); });
  ritardo_->setSingleShot(true);
  ritardo_->setInterval(0);
  connect(ritardo_, &QTimer::timeout, this, &FinestraPrincipale::AggiornaVerifiche);
  connect(verifiche_, &ElencoVerifiche::Scelta, this, [this](std::size_t indice) {
    Fa([&] { modello_.ScegliSegnalazione(indice); });
    VaiAllaCorrente();
  });
  connect(verifiche_, &ElencoVerifiche::RimedioRichiesto, this, [this] { Comanda(Comando::PrendiRimedio); });
  connect(verifiche_, &ElencoVerifiche::CopiaRichiesta, this, [this] { Fa([&] { modello_.CopiaSegnalazioni(); }); });
  connect(verifiche_, &ElencoVerifiche::StampaRichiesta, this, [this] { Fa([&] { modello_.StampaSegnalazioni(); }); });
  connect(verifiche_, &ElencoVerifiche::ChiusuraRichiesta, this, [this] { Comanda(Comando::MostraVerifiche); });
  connect(rilievo_, &PannelloRilievo::ChiusuraRichiesta, this, [this] { Comanda(Comando::MostraRilievo); });
  connect(rilievo_, &PannelloRilievo::Cliccato, this, [this](const PuntoPiano& posto, double entro) {
    Fa([&] { modello_.CliccaRilievo(posto, entro); });
    VaiAllaCorrente();
  });
}

// The current row comes into view, and of a chosen finding its field is lit.
void FinestraPrincipale::VaiAllaCorrente() {
  const long indice = Elenco().Indice();
  if (indice >= 0) righe_->VaiA(static_cast<std::size_t>(indice));
  const auto scelta = modello_.Verifiche.Scelta();
  const bool sua = scelta && modello_.Verifiche.Voce(*scelta).riga == static_cast<std::size_t>(indice);
  righe_->AccendiCampo(static_cast<std::size_t>(indice), sua ? modello_.Verifiche.Voce(*scelta).campo : 0);
}

void FinestraPrincipale::AggiornaVerifiche() {
  if (occupata_ || chiusa_) return;
  if (modello_.AggiornaVerifiche()) righe_->AccendiCampo(0, 0);
  MostraVerifiche();
}

// The model says what stands there and how large; hidden parts take no room.
void FinestraPrincipale::MostraVerifiche() {
  const bool elencoNuovo = modello_.ElencoVerifiche && verifiche_->isHidden();
  const bool rilievoNuovo = modello_.RilievoVisibile && rilievo_->isHidden();
  verifiche_->setVisible(modello_.ElencoVerifiche);
  rilievo_->setVisible(modello_.RilievoVisibile);
  if (elencoNuovo)
    sopra_->setSizes({std::max(1, sopra_->height() - modello_.AltezzaVerifiche), modello_.AltezzaVerifiche});
  if (rilievoNuovo)
    accanto_->setSizes({std::max(1, accanto_->width() - modello_.LarghezzaRilievo), modello_.LarghezzaRilievo});
  if (modello_.ElencoVerifiche) verifiche_->Mostra();
  if (modello_.RilievoVisibile) rilievo_->Mostra();
  const Conteggio& quante = modello_.Verifiche.Esito().Quante();
  const Severita peggiore = quante.errori > 0   ? Severita::Errore
                            : quante.avvisi > 0 ? Severita::Avviso
                                                : Severita::Nota;
  conta_->setIcon(quante.Tutte() == 0 ? QIcon() : IconaSegno(peggiore));
  conta_->setText(AQString(modello_.AvvisoErrori.empty() ? modello_.Verifiche.Riepilogo() : modello_.AvvisoErrori));
  righe_->viewport()->update();
}

void FinestraPrincipale::TieniMisure() {
  modello_.DimensionaVerifiche(verifiche_->isVisible() ? verifiche_->height() : modello_.AltezzaVerifiche,
                               rilievo_->isVisible() ? rilievo_->width() : modello_.LarghezzaRilievo);
}

} // namespace lirmeto::ui
