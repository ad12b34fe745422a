#include <ui/finestre_qt.h>

#include <ui/comune/aspetto.h>
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
  Finestra finestra(*questo, QApplication::activeWindow());
  const bool ricorda = impostazioni != nullptr && !nome.empty();
  if (ricorda) RimettiAlPosto(finestra, LeggiPosizione(*impostazioni, nome));
  finestra.exec();
  if (ricorda) ScriviPosizione(*impostazioni, nome, {finestra.x(), finestra.y(), finestra.width(), finestra.height()});
  return true;
}

struct Mostratore {
  std::string_view nome;
  bool (*mostra)(Modello&, Impostazioni*, std::string_view);
};

// Which window belongs to which model, a line each.
constexpr std::array Mostratori = {
    Mostratore{"KR_EditorGen", &MostraSe<KR_EditorGen, FinestraEditor>},
    Mostratore{"FormRiordinoRighe", &MostraSe<FormRiordinoRighe, FinestraRiordino>},
    Mostratore{"", &MostraSe<FormCatasto1TXT, FinestraCatasto1>},
    Mostratore{"FormRigheScartate", &MostraSe<FormRigheScartate, FinestraScartate>},
    Mostratore{"FormConfiguraPregeo", &MostraSe<FormConfiguraPregeo, FinestraConfiguraPregeo>},
    Mostratore{"FormDisegno", &MostraSe<FormDisegno, FinestraDisegno>},
    Mostratore{"LibrettoDaDisegno", &MostraSe<LibrettoDaDisegno, FinestraLibrettoDisegno>},
    Mostratore{"", &MostraSe<KR_Dapregeo, FinestraDapregeo>},
    Mostratore{"SelezionaMappali", &MostraSe<SelezionaMappali, FinestraSelezionaMappali>},
    Mostratore{"MappaleDaMantenere", &MostraSe<MappaleDaMantenere, FinestraMappaleDaMantenere>},
    Mostratore{"", &MostraSe<Tipol10, FinestraTipol10>},
    Mostratore{"KR_StampaGenerale", &MostraSe<KR_StampaGenerale, FinestraStampaGenerale>},
    Mostratore{"KR_CodFis", &MostraSe<KR_CodFis, FinestraCodFis>},
    Mostratore{"KR_Comuni8", &MostraSe<KR_Comuni8, FinestraComuni>},
    Mostratore{"ArchivioPossessori", &MostraSe<ArchivioPossessori, FinestraPossessori>},
    Mostratore{"autore", &MostraSe<autore, FinestraAutore>},
    Mostratore{"AssegnaDescrizione", &MostraSe<AssegnaDescrizione, FinestraAssegnaDescrizione>},
    Mostratore{"", &MostraSe<KR_EstrattiDiMappa1, FinestraEstratti>},
    Mostratore{"KR_SommaEstratti", &MostraSe<KR_SommaEstratti, FinestraSomma>},
    Mostratore{"CompletaAutoallestito", &MostraSe<CompletaAutoallestito, FinestraCompleta>},
    Mostratore{"FormImportaFiduciali", &MostraSe<FormImportaFiduciali, FinestraImportaFiduciali>},
    Mostratore{"KR_SelezionaMisurate", &MostraSe<KR_SelezionaMisurate, FinestraSelezionaMisurate>},
    Mostratore{"KR_ElcoPf", &MostraSe<KR_ElcoPf, FinestraElcoPf>},
    Mostratore{"KR_ElcoPfGriglia", &MostraSe<KR_ElcoPfGriglia, FinestraElcoPfGriglia>},
    Mostratore{"KR_ElcoPFGrafica", &MostraSe<KR_ElcoPFGrafica, FinestraElcoPfGrafica>},
    Mostratore{"Imputa", &MostraSe<Imputa, FinestraImputa>},
    Mostratore{"", &MostraSe<KR_EDM, FinestraEdm>},
    Mostratore{"", &MostraSe<KR_Fraziona, FinestraProposta>},
    Mostratore{"", &MostraSe<KR_Stralcio, FinestraProposta>},
    Mostratore{"", &MostraSe<KR_NuovaCostruzione, FinestraTipoMappale>},
    Mostratore{"", &MostraSe<KR_TMVariazione, FinestraTipoMappale>},
    Mostratore{"", &MostraSe<KR_TMFusione, FinestraFusione>},
};

} // namespace

void FinestreQt::MostraModale(Modello& modello) {
  Impostazioni* impostazioni = ambiente_ == nullptr ? nullptr : &ambiente_->impostazioni;
  for (const auto& [nome, mostra] : Mostratori)
    if (mostra(modello, impostazioni, nome)) return;
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
