#include <ui/finestre_qt.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/cursore_attesa.h>
#include <ui/comune/prepara_finestra.h>
#include <ui/disegno/finestra_disegno.h>
#include <ui/estratti/finestra_completa.h>
#include <ui/estratti/finestra_estratti.h>
#include <ui/estratti/finestra_somma.h>
#include <ui/fiduciali/finestra_elco_pf.h>
#include <ui/fiduciali/finestra_elco_pf_grafica.h>
#include <ui/fiduciali/finestra_elco_pf_griglia.h>
#include <ui/fiduciali/finestra_importa_fiduciali.h>
#include <ui/fiduciali/finestra_quote_medie.h>
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
#include <core/posizione_form.h>

#include <QApplication>

#include <array>

namespace lirmeto::ui {

namespace {

// Shows `Finestra` when the model is the one it belongs to, where and as large as it stood last under that name; without
// a name the window sees to its own place.
template <typename Tipo, typename Finestra>
bool MostraSe(Modello& modello, Impostazioni* impostazioni, std::string_view nome) {
  auto* questo = dynamic_cast<Tipo*>(&modello);
  if (questo == nullptr) return false;
  QWidget* sotto = QApplication::activeWindow();
  Finestra finestra(*questo, sotto);
  const bool ricorda = impostazioni != nullptr && !nome.empty();
  if (ricorda) RimettiAlPosto(finestra, LeggiPosizione(*impostazioni, nome));
  MettiNelMezzo(finestra);
  PreparaFinestra(finestra);
  const TempoDellUtente sua;
  finestra.exec();
  // Where a question closed with the form, some window managers leave the keyboard to nobody.
  if (sotto != nullptr) sotto->activateWindow();
  if (ricorda) ScriviPosizione(*impostazioni, nome, {finestra.x(), finestra.y(), finestra.width(), finestra.height()});
  return true;
}

struct Mostratore {
  std::string_view nome;
  bool (*mostra)(Modello&, Impostazioni*, std::string_view);
  const std::type_info* tipo;
};

template <typename Tipo, typename Finestra>
constexpr Mostratore Mostra(std::string_view nome = {}) {
  return {nome, &MostraSe<Tipo, Finestra>, &typeid(Tipo)};
}

// Which window belongs to which model, a line each.
constexpr std::array Mostratori = {
    Mostra<KR_EditorGen, FinestraEditor>("KR_EditorGen"),
    Mostra<FormRiordinoRighe, FinestraRiordino>("FormRiordinoRighe"),
    Mostra<FormCatasto1TXT, FinestraCatasto1>(),
    Mostra<FormRigheScartate, FinestraScartate>("FormRigheScartate"),
    Mostra<FormConfiguraPregeo, FinestraConfiguraPregeo>("FormConfiguraPregeo"),
    Mostra<FormDisegno, FinestraDisegno>("FormDisegno"),
    Mostra<LibrettoDaDisegno, FinestraLibrettoDisegno>("LibrettoDaDisegno"),
    Mostra<KR_Dapregeo, FinestraDapregeo>(),
    Mostra<SelezionaMappali, FinestraSelezionaMappali>("SelezionaMappali"),
    Mostra<MappaleDaMantenere, FinestraMappaleDaMantenere>("MappaleDaMantenere"),
    Mostra<Tipol10, FinestraTipol10>(),
    Mostra<KR_StampaGenerale, FinestraStampaGenerale>("KR_StampaGenerale"),
    Mostra<KR_CodFis, FinestraCodFis>("KR_CodFis"),
    Mostra<KR_Comuni8, FinestraComuni>("KR_Comuni8"),
    Mostra<ArchivioPossessori, FinestraPossessori>("ArchivioPossessori"),
    Mostra<autore, FinestraAutore>("autore"),
    Mostra<AssegnaDescrizione, FinestraAssegnaDescrizione>("AssegnaDescrizione"),
    Mostra<KR_EstrattiDiMappa1, FinestraEstratti>(forma::EstrattiDiMappa),
    Mostra<KR_SommaEstratti, FinestraSomma>("KR_SommaEstratti"),
    Mostra<CompletaAutoallestito, FinestraCompleta>("CompletaAutoallestito"),
    Mostra<FormImportaFiduciali, FinestraImportaFiduciali>("FormImportaFiduciali"),
    Mostra<KR_SelezionaMisurate, FinestraSelezionaMisurate>("KR_SelezionaMisurate"),
    Mostra<QuoteMedie, FinestraQuoteMedie>("QuoteMedie"),
    Mostra<KR_ElcoPf, FinestraElcoPf>("KR_ElcoPf"),
    Mostra<KR_ElcoPfGriglia, FinestraElcoPfGriglia>("KR_ElcoPfGriglia"),
    Mostra<KR_ElcoPFGrafica, FinestraElcoPfGrafica>("KR_ElcoPFGrafica"),
    Mostra<Imputa, FinestraImputa>("Imputa"),
    Mostra<KR_EDM, FinestraEdm>(),
    Mostra<KR_Fraziona, FinestraProposta>(),
    Mostra<KR_Stralcio, FinestraProposta>(),
    Mostra<KR_NuovaCostruzione, FinestraTipoMappale>(),
    Mostra<KR_TMVariazione, FinestraTipoMappale>(),
    Mostra<KR_TMFusione, FinestraFusione>(),
};

} // namespace

void FinestreQt::MostraModale(Modello& modello) {
  Impostazioni* impostazioni = ambiente_ == nullptr ? nullptr : &ambiente_->impostazioni;
  for (const auto& [nome, mostra, tipo] : Mostratori)
    if (mostra(modello, impostazioni, nome)) return;
  throw Errore(errore::ErroreInterno);
}

std::vector<const std::type_info*> ModelliConFinestra() {
  std::vector<const std::type_info*> modelli;
  modelli.reserve(Mostratori.size());
  for (const Mostratore& uno : Mostratori) modelli.push_back(uno.tipo);
  return modelli;
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
