#include "fotografo.h"

#include <ui/comune/testo_qt.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/estratti/finestra_completa.h>
#include <ui/estratti/finestra_estratti.h>
#include <ui/estratti/finestra_somma.h>
#include <ui/fiduciali/finestra_elco_pf.h>
#include <ui/fiduciali/finestra_elco_pf_grafica.h>
#include <ui/fiduciali/finestra_elco_pf_griglia.h>
#include <ui/fiduciali/finestra_importa_fiduciali.h>
#include <ui/fiduciali/finestra_quote_medie.h>
#include <ui/fiduciali/finestra_seleziona_misurate.h>
#include <ui/supporto/finestra_assegna_descrizione.h>
#include <ui/supporto/finestra_codfis.h>
#include <ui/supporto/finestra_comuni.h>
#include <ui/supporto/finestra_imputa.h>
#include <ui/supporto/finestra_possessori.h>

#include <estratti/kr_estratto.h>

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>

namespace lirmeto::foto {

// A comune found by what was typed.
bool Fotografo::Comuni() {
  KR_CodFis form(ambiente_);
  form.AlCaricamento();
  form.CambiaText1("PAD");
  ui::FinestraCodFis finestra(form);
  Mostra(finestra);
  return Salva(finestra, "comuni");
}

// The small windows that other windows ask with.
bool Fotografo::Domande() {
  Imputa raggio(ambiente_, "Seleziona Intorno", "Raggio in metri");
  KR_Comuni8 comuni(ambiente_);
  ArchivioPossessori possessori(ambiente_);
  AssegnaDescrizione descrizione(ambiente_);
  FormImportaFiduciali importa(ambiente_);
  KR_SelezionaMisurate misurate(ambiente_);
  QuoteMedie quote(ambiente_);
  comuni.AlCaricamento();
  possessori.AlCaricamento();
  descrizione.AlCaricamento();
  importa.AlCaricamento();
  misurate.AlCaricamento();
  quote.AlCaricamento();
  return Ritrai<ui::FinestraImputa>(raggio, "raggio") && Ritrai<ui::FinestraComuni>(comuni, "comuni_italiani") &&
         Ritrai<ui::FinestraPossessori>(possessori, "possessori") &&
         Ritrai<ui::FinestraAssegnaDescrizione>(descrizione, "descrizione") &&
         Ritrai<ui::FinestraImportaFiduciali>(importa, "fiduciali_importa") &&
         Ritrai<ui::FinestraSelezionaMisurate>(misurate, "fiduciali_misurate") &&
         Ritrai<ui::FinestraQuoteMedie>(quote, "quote_medie") && DaEstratto();
}

// The fiducial points of the libretto's extract; no picture where it has none.
bool Fotografo::DaEstratto() {
  if (ambiente_.sessione.EstrattoAssociato.empty()) return true;
  FormImportaFiduciali importa(ambiente_, FonteFiduciali::Estratto);
  importa.AlCaricamento();
  return Ritrai<ui::FinestraImportaFiduciali>(importa, "fiduciali_estratto");
}

// The comuni with a TAF, the points of one, and those of a sheet selected on the plane with the distances measured.
bool Fotografo::Fiduciali() {
  constexpr int misurate = 6;
  KR_ElcoPf scelta(ambiente_);
  scelta.AlCaricamento();
  ui::FinestraElcoPf comuni(scelta);
  Mostra(comuni);
  KR_ElcoPfGriglia griglia(ambiente_, {"G224", "PADOVA", "PD", {}});
  griglia.Carica();
  ui::FinestraElcoPfGriglia tabella(griglia);
  Mostra(tabella, 1180, 480);
  KR_ElcoPFGrafica piano(ambiente_, griglia.Tabella());
  piano.AlCaricamento();
  ui::FinestraElcoPfGrafica grafica(piano);
  Mostra(grafica, 1240, 680);
  QApplication::processEvents();
  piano.Esegui(misurate);
  if (!piano.Punti.empty()) piano.SelezionaFoglio({piano.Punti.front().est, piano.Punti.front().nord});
  emit grafica.Superficie().Uscito();
  return Salva(comuni, "fiduciali_comuni") && Salva(tabella, "fiduciali_tabella") && Salva(grafica, "fiduciali_piano");
}

// The manager over an extract with owners and over a raster; a sum of neighbours; an auto-assembled one.
bool Fotografo::Estratti() {
  KR_EstrattiDiMappa1 form(ambiente_);
  form.AlCaricamento();
  ui::FinestraEstratti finestra(form);
  Mostra(finestra, 1260, 700);
  auto* file = finestra.findChild<QListView*>(QStringLiteral("File1"));
  const auto scegli = [file](const char* nome) {
    file->setCurrentIndex(
        file->model()->match(file->model()->index(0, 0), Qt::DisplayRole, QLatin1String(nome)).value(0));
  };
  scegli("G224_008700_214.EMP");
  if (!Salva(finestra, "estratti")) return false;
  scegli("G224_008700_214.PNG");
  if (!Salva(finestra, "estratti_raster")) return false;
  return Somma() && Completa();
}

bool Fotografo::Somma() {
  KR_SommaEstratti form(ambiente_, CartellaEstratti(ambiente_.sessione) + "\\G224_004500_101.EMP");
  form.AlCaricamento();
  form.NomeSomma = "SOMMA_101_104";
  ui::FinestraSomma finestra(form);
  Mostra(finestra, 1080, 660);
  auto* file = finestra.findChild<QListWidget*>(QStringLiteral("File1"));
  for (QListWidgetItem* voce : file->findItems(QStringLiteral("G224_004500_104.EMP"), Qt::MatchExactly))
    voce->setCheckState(Qt::Checked);
  finestra.findChild<QLineEdit*>(QStringLiteral("NomeSomma"))->setText(ui::AQString(form.NomeSomma));
  return Salva(finestra, "estratti_somma");
}

bool Fotografo::Completa() {
  CompletaAutoallestito form(ambiente_, "AUTOALLESTITO_0056.EMP");
  form.AlCaricamento();
  form.ScegliQualita(1);
  form.Superficie = "455";
  form.RicalcolaParticella();
  ui::FinestraCompleta finestra(form);
  Mostra(finestra, 1000, 600);
  return Salva(finestra, "estratti_completa");
}

} // namespace lirmeto::foto
