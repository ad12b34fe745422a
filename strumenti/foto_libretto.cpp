#include "fotografo.h"

#include <ui/comune/barra_ricerca.h>
#include <ui/intestazione/finestra_catasto1.h>
#include <ui/libretto/finestra_principale.h>
#include <ui/libretto/finestra_riordino.h>
#include <ui/libretto/finestra_scartate.h>
#include <ui/libretto/vista_righe.h>
#include <ui/pregeo/finestra_configura_pregeo.h>
#include <ui/supporto/finestra_autore.h>
#include <ui/supporto/finestra_editor.h>
#include <ui/supporto/finestra_stampa_generale.h>

#include <QApplication>
#include <QLineEdit>

namespace lirmeto::foto {

bool Fotografo::Libretto() {
  ui::FinestraPrincipale finestra(modello_, [](const QString&) { return std::string(); });
  Mostra(finestra, 1440, 900);
  return Principale(finestra) && Ricerca(finestra) && Strumenti(finestra) && Editor() && Riordino() &&
         ConfiguraPregeo() && Intestazione() && Stampa() && Comuni() && Domande() && Fiduciali() && Estratti() &&
         Verifiche(finestra) && Scartate(finestra);
}

// A sighting in the middle of the rows, with some of its neighbours selected.
bool Fotografo::Principale(ui::FinestraPrincipale& finestra) {
  ElencoRighe& righe = modello_.DatiSessione().List1;
  auto* vista = finestra.findChild<ui::VistaRighe*>();
  if (righe.Quante() > 8) {
    vista->VaiA(5);
    righe.SelezionaIntervallo(5, 7, true);
  }
  vista->setFocus();
  finestra.Mostra();
  return Salva(finestra, "finestra_principale");
}

bool Fotografo::Ricerca(ui::FinestraPrincipale& finestra) {
  auto* barra = finestra.findChild<ui::BarraRicerca*>();
  barra->Apri();
  barra->findChild<QLineEdit*>()->setText(QStringLiteral("pf"));
  emit barra->Successiva();
  const bool salvata = Salva(finestra, "ricerca");
  barra->Chiudi();
  return salvata;
}

bool Fotografo::Strumenti(ui::FinestraPrincipale& finestra) {
  modello_.PuntatoreSuPulsante(PulsanteUtilita);
  finestra.Mostra();
  const bool salvata = Salva(finestra, "strumenti");
  modello_.PuntatoreSuPulsante(0);
  return salvata;
}

bool Fotografo::Editor() {
  KR_EditorGen editor(ambiente_);
  editor.AlCaricamento();
  ui::FinestraEditor finestra(editor);
  Mostra(finestra, 1000, 700);
  return Salva(finestra, "editor");
}

bool Fotografo::Riordino() {
  FormRiordinoRighe form(ambiente_);
  form.AlCaricamento();
  ui::FinestraRiordino finestra(form);
  Mostra(finestra, 1080, 640);
  return Salva(finestra, "riordino");
}

// The findings below the rows and the survey beside them, a row of the middle of the act chosen.
bool Fotografo::Verifiche(ui::FinestraPrincipale& finestra) {
  modello_.Esegui(Comando::MostraVerifiche);
  modello_.Esegui(Comando::MostraRilievo);
  finestra.findChild<ui::VistaRighe*>()->VaiA(modello_.DatiSessione().List1.Quante() / 3);
  modello_.Esegui(Comando::SegnalazioneSuccessiva);
  finestra.Mostra();
  QApplication::processEvents();
  auto* vista = finestra.findChild<ui::VistaRighe*>();
  vista->VaiA(static_cast<std::size_t>(std::max(0L, modello_.DatiSessione().List1.Indice())));
  modello_.Rilievo.Grafica1.KR_ZoomPiu();
  const bool salvata = Salva(finestra, "verifiche");
  modello_.Esegui(Comando::MostraVerifiche);
  modello_.Esegui(Comando::MostraRilievo);
  finestra.Mostra();
  return salvata;
}

// A reorder that drops two rows: the notice at the foot, and their list.
bool Fotografo::Scartate(ui::FinestraPrincipale& finestra) {
  modello_.DatiSessione().List1.Aggiungi("6|una riga|che nessuna|classe|prende|");
  modello_.DatiSessione().List1.Aggiungi("6|altra|riga|di troppi|campi|");
  modello_.Esegui(Comando::RiordinoRighe);
  finestra.findChild<ui::VistaRighe*>()->VaiA(5);
  finestra.Mostra();
  FormRigheScartate form(ambiente_);
  ui::FinestraScartate elenco(form);
  Mostra(elenco);
  autore dati;
  ui::FinestraAutore informazioni(dati);
  Mostra(informazioni);
  return Salva(finestra, "scartate_avviso") && Salva(elenco, "scartate") && Salva(informazioni, "autore");
}

bool Fotografo::ConfiguraPregeo() {
  FormConfiguraPregeo form(ambiente_);
  form.AlCaricamento();
  ui::FinestraConfiguraPregeo finestra(form);
  Mostra(finestra, 820, 640);
  return Salva(finestra, "configura_pregeo");
}

bool Fotografo::Intestazione() {
  FormCatasto1TXT form(ambiente_);
  form.AlCaricamento();
  ui::FinestraCatasto1 finestra(form);
  Mostra(finestra, 1040, 620);
  return Salva(finestra, "intestazione") && IntestazioneErrata(form);
}

// With what is wrong marked at its boxes.
bool Fotografo::IntestazioneErrata(FormCatasto1TXT& form) {
  form.Cambia(casella::Data, "30022026");
  form.Cambia(casella::Comune, "G22");
  form.Cambia(casella::Foglio, "12AB");
  form.Cambia(casella::CodiceFiscale, "RSSMTN84C52G224X");
  ui::FinestraCatasto1 finestra(form);
  Mostra(finestra, 1040, 620);
  return Salva(finestra, "intestazione_errata");
}

// The rows of the libretto as a report.
bool Fotografo::Stampa() {
  KR_StampaGenerale form(ambiente_);
  form.List1 = modello_.DatiSessione().List1.Righe();
  form.AlCaricamento();
  ui::FinestraStampaGenerale finestra(form);
  Mostra(finestra, 1080, 680);
  return Salva(finestra, "stampa");
}

} // namespace lirmeto::foto
