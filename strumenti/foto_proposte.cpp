#include "fotografo.h"

#include <ui/generazione/finestra_mappali.h>
#include <ui/generazione/finestra_tipol10.h>
#include <ui/pregeo/finestra_dapregeo.h>
#include <ui/proposte/finestra_edm.h>
#include <ui/proposte/finestra_fusione.h>
#include <ui/proposte/finestra_proposta.h>
#include <ui/proposte/finestra_tipo_mappale.h>

#include <core/apertura.h>
#include <generazione/polilinee_dxf.h>

#include <QLineEdit>

#include <utility>

namespace lirmeto::foto {

namespace {

// The first parcel of the libretto, or of the extract where the archive has none of the libretto's.
void ScegliUna(KR_EDM& edm) {
  constexpr int archivioDallEstratto = 16;
  edm.ClicList1(0);
  if (!edm.Label2.empty()) return;
  edm.Premi(archivioDallEstratto);
  if (!edm.File1.empty()) edm.ClicFile1(0);
}

} // namespace

// Pregeo's archive, and a new building from the menu to its proposal. They write, and start the exchange programs.
bool Fotografo::Tipologie(const std::string& dxf) {
  DisegnoCondiviso disegno;
  KR_Dapregeo archivio(ambiente_, disegno);
  archivio.AlCaricamento();
  archivio.CambiaRiga(archivio.MSFlexGrid1.size() - 1);
  ui::FinestraDapregeo finestraArchivio(archivio);
  Mostra(finestraArchivio, 1220, 690);
  if (!Salva(finestraArchivio, "da_pregeo") || !RicercaInPregeo()) return false;
  ambiente_.sessione.TipologiaCorrente = "07";
  return Mappali() && Proposta(dxf);
}

bool Fotografo::RicercaInPregeo() {
  DisegnoCondiviso disegno;
  KR_Dapregeo archivio(ambiente_, disegno);
  archivio.ConRicerca = true;
  archivio.AlCaricamento();
  ui::FinestraDapregeo finestra(archivio);
  Mostra(finestra, 1220, 690);
  finestra.findChild<QLineEdit*>(QStringLiteral("Cercato"))->setText(QStringLiteral("ROSSETTO"));
  return Salva(finestra, "cerca_pregeo");
}

// The workbench on the libretto's first parcel, and the forms on it; the proposal is the exported one.
bool Fotografo::Censuario() {
  CaricaLibrettoInList1(ambiente_);
  KR_EDM edm(ambiente_);
  edm.AlCaricamento();
  ScegliUna(edm);
  ui::FinestraEdm finestra(edm);
  Mostra(finestra, 1240, 700);
  const ParticellaScelta scelta = ScegliParticella(ambiente_.sessione, edm.Label2, RigheUnite(edm.List3));
  return Salva(finestra, "censuario") && Derivate(scelta) && TipoMappale(scelta) && Fusione();
}

bool Fotografo::Mappali() {
  SelezionaMappali mappali(ambiente_);
  mappali.AlCaricamento();
  mappali.SelezionaTutti();
  ui::FinestraSelezionaMappali scelta(mappali);
  Mostra(scelta);
  const bool salvata = Salva(scelta, "seleziona_mappali");
  mappali.Conferma();
  Sessione& sessione = ambiente_.sessione;
  const std::string scelte = std::exchange(sessione.ParticelleScelte, "57,58,74");
  sessione.RigheEnteUrbano = "6|PARTICELLA|57|  |ENTE URBANO |7544|    | | |\r\n";
  MappaleDaMantenere mantiene(ambiente_);
  mantiene.AlCaricamento();
  ui::FinestraMappaleDaMantenere finestra(mantiene);
  Mostra(finestra);
  sessione.ParticelleScelte = scelte;
  return Salva(finestra, "mappale_da_mantenere") && salvata;
}

bool Fotografo::Proposta(const std::string& dxf) {
  DisegnoCondiviso disegno;
  Tipol10 form(ambiente_, disegno);
  form.AlCaricamento();
  ambiente_.appunti.MettiTesto(ElencoDaDxf(ambiente_.dialoghi, ambiente_.disco.Leggi(dxf)));
  form.ButtonPlus1(2);
  ui::FinestraTipol10 finestra(form);
  Mostra(finestra, 1220, 690);
  return Salva(finestra, "tipologia");
}

bool Fotografo::Derivate(const ParticellaScelta& scelta) {
  ambiente_.sessione.ModoEditor = ModoSopprime;
  KR_Fraziona frazionamento(ambiente_, scelta);
  frazionamento.Form_Load();
  frazionamento.PropostaAutomatica();
  frazionamento.AggiungiAlMemo();
  frazionamento.Invio();
  ui::FinestraProposta prima(frazionamento);
  Mostra(prima, 1240, 700);
  KR_Stralcio stralcio(ambiente_, scelta);
  stralcio.Form_Load();
  stralcio.PropostaAutomatica();
  ui::FinestraProposta seconda(stralcio);
  Mostra(seconda, 1240, 700);
  return Salva(prima, "frazionamento") && Salva(seconda, "stralcio");
}

bool Fotografo::TipoMappale(const ParticellaScelta& scelta) {
  KR_NuovaCostruzione nuova(ambiente_, scelta);
  nuova.Form_Load();
  ui::FinestraTipoMappale prima(nuova);
  Mostra(prima, 1120, 560);
  KR_TMVariazione variazione(ambiente_, scelta);
  variazione.Form_Load();
  ui::FinestraTipoMappale seconda(variazione);
  Mostra(seconda, 1120, 460);
  return Salva(prima, "nuova_costruzione") && Salva(seconda, "variazione");
}

// The first two parcels of the sheet made one; no picture where it has one alone.
bool Fotografo::Fusione() {
  KR_TMFusione fusione(ambiente_);
  fusione.Form_Load();
  if (fusione.File1.size() < 2) return true;
  fusione.Aggiungi(0);
  fusione.Aggiungi(1);
  ui::FinestraFusione finestra(fusione);
  Mostra(finestra, 1120, 640);
  return Salva(finestra, "fusione");
}

} // namespace lirmeto::foto
