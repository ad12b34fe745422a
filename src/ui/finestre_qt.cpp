#include <ui/finestre_qt.h>

#include <ui/disegno/finestra_disegno.h>
#include <ui/estratti/finestra_completa.h>
#include <ui/estratti/finestra_estratti.h>
#include <ui/estratti/finestra_somma.h>
#include <ui/fiduciali/finestra_elco_pf.h>
#include <ui/fiduciali/finestra_elco_pf_grafica.h>
#include <ui/fiduciali/finestra_elco_pf_griglia.h>
#include <ui/fiduciali/finestra_importa_fiduciali.h>
#include <ui/fiduciali/finestra_seleziona_misurate.h>
#include <ui/generazione/finestra_libretto_disegno.h>
#include <ui/generazione/finestra_mappali.h>
#include <ui/generazione/finestra_tipol10.h>
#include <ui/intestazione/finestra_catasto1.h>
#include <ui/libretto/finestra_riordino.h>
#include <ui/libretto/finestra_scartate.h>
#include <ui/pregeo/finestra_configura_pregeo.h>
#include <ui/pregeo/finestra_dapregeo.h>
#include <ui/proposte/finestra_edm.h>
#include <ui/proposte/finestra_fusione.h>
#include <ui/proposte/finestra_proposta.h>
#include <ui/proposte/finestra_tipo_mappale.h>
#include <ui/supporto/finestra_assegna_descrizione.h>
#include <ui/supporto/finestra_autore.h>
#include <ui/supporto/finestra_codfis.h>
#include <ui/supporto/finestra_comuni.h>
#include <ui/supporto/finestra_editor.h>
#include <ui/supporto/finestra_imputa.h>
#include <ui/supporto/finestra_possessori.h>
#include <ui/supporto/finestra_stampa_generale.h>

#include <applicazione/forme.h>
#include <base/errore.h>

#include <QApplication>

#include <array>

namespace lirmeto::ui {

namespace {

// Shows `Finestra` when the model is the one it belongs to.
template <typename Tipo, typename Finestra>
bool MostraSe(Modello& modello) {
  auto* questo = dynamic_cast<Tipo*>(&modello);
  if (questo == nullptr) return false;
  Finestra(*questo, QApplication::activeWindow()).exec();
  return true;
}

// Which window belongs to which model, a line each.
constexpr std::array Mostratori = {
    &MostraSe<KR_EditorGen, FinestraEditor>,
    &MostraSe<FormRiordinoRighe, FinestraRiordino>,
    &MostraSe<FormCatasto1TXT, FinestraCatasto1>,
    &MostraSe<FormRigheScartate, FinestraScartate>,
    &MostraSe<FormConfiguraPregeo, FinestraConfiguraPregeo>,
    &MostraSe<FormDisegno, FinestraDisegno>,
    &MostraSe<LibrettoDaDisegno, FinestraLibrettoDisegno>,
    &MostraSe<KR_Dapregeo, FinestraDapregeo>,
    &MostraSe<SelezionaMappali, FinestraSelezionaMappali>,
    &MostraSe<MappaleDaMantenere, FinestraMappaleDaMantenere>,
    &MostraSe<Tipol10, FinestraTipol10>,
    &MostraSe<KR_StampaGenerale, FinestraStampaGenerale>,
    &MostraSe<KR_CodFis, FinestraCodFis>,
    &MostraSe<KR_Comuni8, FinestraComuni>,
    &MostraSe<ArchivioPossessori, FinestraPossessori>,
    &MostraSe<autore, FinestraAutore>,
    &MostraSe<AssegnaDescrizione, FinestraAssegnaDescrizione>,
    &MostraSe<KR_EstrattiDiMappa1, FinestraEstratti>,
    &MostraSe<KR_SommaEstratti, FinestraSomma>,
    &MostraSe<CompletaAutoallestito, FinestraCompleta>,
    &MostraSe<FormImportaFiduciali, FinestraImportaFiduciali>,
    &MostraSe<KR_SelezionaMisurate, FinestraSelezionaMisurate>,
    &MostraSe<KR_ElcoPf, FinestraElcoPf>,
    &MostraSe<KR_ElcoPfGriglia, FinestraElcoPfGriglia>,
    &MostraSe<KR_ElcoPFGrafica, FinestraElcoPfGrafica>,
    &MostraSe<Imputa, FinestraImputa>,
    &MostraSe<KR_EDM, FinestraEdm>,
    &MostraSe<KR_Fraziona, FinestraProposta>,
    &MostraSe<KR_Stralcio, FinestraProposta>,
    &MostraSe<KR_NuovaCostruzione, FinestraTipoMappale>,
    &MostraSe<KR_TMVariazione, FinestraTipoMappale>,
    &MostraSe<KR_TMFusione, FinestraFusione>,
};

} // namespace

void FinestreQt::MostraModale(Modello& modello) {
  for (const auto mostra : Mostratori)
    if (mostra(modello)) return;
  throw Errore(errore::ErroreInterno);
}

bool FinestreQt::Disponibile(std::string_view nome) const {
  return ambiente_ != nullptr && TrovaForma(nome) != nullptr;
}

void FinestreQt::Apri(std::string_view nome) {
  const Forma* form = ambiente_ == nullptr ? nullptr : TrovaForma(nome);
  if (form != nullptr) return form->apri(*ambiente_);
  throw Errore(errore::ErroreInterno, "Finestra non disponibile: " + std::string(nome));
}

} // namespace lirmeto::ui
