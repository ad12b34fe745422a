// Pictures of the real windows over a libretto, without a display. Nothing is written but the pictures: the disk is
// only read, processes are left alone, messages go to standard error.
//
//   lirmeto-foto --dischi DIR --uscita DIR [--scala 1|2] FILE
//   lirmeto-foto --dischi DIR --uscita DIR [--scala 1|2] --disegno FILE
//   lirmeto-foto --dischi DIR --uscita DIR [--scala 1|2] --disegno FILE.LXC    the libretto from a drawing
//   lirmeto-foto --dischi DIR --uscita DIR [--scala 1|2] --censuario FILE      the census windows

#include "macchina_ferma.h"

#include <ui/comune/aspetto.h>
#include <ui/comune/barra_ricerca.h>
#include <ui/comune/testo_qt.h>
#include <ui/disegno/finestra_disegno.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/estratti/finestra_completa.h>
#include <ui/estratti/finestra_estratti.h>
#include <ui/estratti/finestra_somma.h>
#include <ui/fiduciali/finestra_elco_pf.h>
#include <ui/fiduciali/finestra_elco_pf_grafica.h>
#include <ui/fiduciali/finestra_elco_pf_griglia.h>
#include <ui/generazione/finestra_libretto_disegno.h>
#include <ui/generazione/finestra_mappali.h>
#include <ui/generazione/finestra_tipol10.h>
#include <ui/intestazione/finestra_catasto1.h>
#include <ui/libretto/finestra_principale.h>
#include <ui/libretto/finestra_riordino.h>
#include <ui/libretto/finestra_scartate.h>
#include <ui/libretto/vista_righe.h>
#include <ui/pregeo/finestra_configura_pregeo.h>
#include <ui/pregeo/finestra_dapregeo.h>
#include <ui/proposte/finestra_edm.h>
#include <ui/proposte/finestra_fusione.h>
#include <ui/proposte/finestra_proposta.h>
#include <ui/proposte/finestra_tipo_mappale.h>
#include <ui/supporto/finestra_autore.h>
#include <ui/supporto/finestra_codfis.h>
#include <ui/supporto/finestra_editor.h>
#include <ui/supporto/finestra_stampa_generale.h>

#include <applicazione/forme.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <estratti/kr_estratto.h>
#include <generazione/polilinee_dxf.h>
#include <piattaforma/disco_dischi.h>
#include <piattaforma/orologi.h>
#include <piattaforma/processi_ospite.h>

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMouseEvent>
#include <QTextStream>

namespace {

using namespace lirmeto;
using namespace lirmeto::foto;

// Takes and saves the pictures of one libretto.
class Fotografo {
public:
  Fotografo(KR_LibrettoOriginale& modello, Ambiente& ambiente, const QDir& uscita)
      : modello_(modello), ambiente_(ambiente), uscita_(uscita) {}

  [[nodiscard]] bool Tutte() {
    ui::FinestraPrincipale finestra(modello_, [](const QString&) { return std::string(); });
    finestra.resize(1440, 900); // the platform's screen is smaller than any real one
    finestra.show();
    return Principale(finestra) && Ricerca(finestra) && Strumenti(finestra) && Editor() && Riordino() &&
           ConfiguraPregeo() && Intestazione() && Stampa() && Comuni() && Fiduciali() && Estratti() &&
           Verifiche(finestra) && Scartate(finestra);
  }

  [[nodiscard]] bool Disegno(const std::string& file) {
    FormDisegno form(ambiente_);
    if (!form.Apri(file)) return false;
    ui::FinestraDisegno finestra(form);
    finestra.resize(1240, 840);
    finestra.show();
    // The mouse stands near a point, so that the readout shows.
    QWidget& superficie = finestra.Pannello().Superficie();
    const QPointF posto(superficie.width() * 0.45, superficie.height() * 0.55);
    QMouseEvent mouse(QEvent::MouseMove, posto, superficie.mapToGlobal(posto), Qt::NoButton, Qt::NoButton, {});
    QApplication::processEvents();
    QApplication::sendEvent(&superficie, &mouse);
    return Salva(finestra, "disegno");
  }

  // The libretto from a drawing, over the old libretto beside it, with one line lit.
  [[nodiscard]] bool LibrettoDisegno(const std::string& file) {
    const std::string vecchio = file.substr(0, file.size() - 4) + ".TXT";
    if (!modello_.Avvia(ambiente_.disco.Esiste(vecchio) ? vecchio : std::string())) return false;
    ambiente_.sessione.NomeFileLibretto = file;
    DisegnoCondiviso disegno;
    LibrettoDaDisegno form(ambiente_, disegno);
    form.Form_Load();
    ui::FinestraLibrettoDisegno finestra(form);
    finestra.resize(1440, 900);
    finestra.show();
    auto* linee = finestra.findChild<QListView*>(QStringLiteral("List1"));
    linee->setCurrentIndex(linee->model()->index(1, 0));
    return Salva(finestra, "libretto_disegno");
  }

  // Pregeo's archive, and a new building from the menu to its proposal. They write, and start the exchange programs.
  [[nodiscard]] bool Tipologie(const std::string& dxf) {
    DisegnoCondiviso disegno;
    KR_Dapregeo archivio(ambiente_, disegno);
    archivio.AlCaricamento();
    archivio.CambiaRiga(archivio.MSFlexGrid1.size() - 1);
    ui::FinestraDapregeo finestraArchivio(archivio);
    finestraArchivio.resize(1220, 690);
    finestraArchivio.show();
    if (!Salva(finestraArchivio, "da_pregeo")) return false;
    ambiente_.sessione.TipologiaCorrente = "07";
    return Mappali() && Proposta(dxf);
  }

  // The workbench on the libretto's first parcel, and the forms on it; the proposal is the exported one.
  [[nodiscard]] bool Censuario() {
    CaricaLibrettoInList1(ambiente_);
    KR_EDM edm(ambiente_);
    edm.AlCaricamento();
    edm.ClicList1(0);
    ui::FinestraEdm finestra(edm);
    finestra.resize(1240, 700);
    finestra.show();
    const ParticellaScelta scelta = ScegliParticella(ambiente_.sessione, edm.Label2, RigheUnite(edm.List3));
    return Salva(finestra, "censuario") && Derivate(scelta) && TipoMappale(scelta) && Fusione();
  }

private:
  bool Mappali() {
    SelezionaMappali mappali(ambiente_);
    mappali.AlCaricamento();
    mappali.SelezionaTutti();
    ui::FinestraSelezionaMappali scelta(mappali);
    scelta.show();
    const bool salvata = Salva(scelta, "seleziona_mappali");
    mappali.Conferma();
    Sessione& sessione = ambiente_.sessione;
    const std::string scelte = std::exchange(sessione.ParticelleScelte, "57,58,74");
    sessione.RigheEnteUrbano = "6|PARTICELLA|57|  |ENTE URBANO |7544|    | | |\r\n";
    MappaleDaMantenere mantiene(ambiente_);
    mantiene.AlCaricamento();
    ui::FinestraMappaleDaMantenere finestra(mantiene);
    finestra.show();
    sessione.ParticelleScelte = scelte;
    return Salva(finestra, "mappale_da_mantenere") && salvata;
  }

  bool Proposta(const std::string& dxf) {
    DisegnoCondiviso disegno;
    Tipol10 form(ambiente_, disegno);
    form.AlCaricamento();
    ambiente_.appunti.MettiTesto(ElencoDaDxf(ambiente_.dialoghi, ambiente_.disco.Leggi(dxf)));
    form.ButtonPlus1(2);
    ui::FinestraTipol10 finestra(form);
    finestra.resize(1220, 690);
    finestra.show();
    return Salva(finestra, "tipologia");
  }

  bool Derivate(const ParticellaScelta& scelta) {
    ambiente_.sessione.ModoEditor = ModoSopprime;
    KR_Fraziona frazionamento(ambiente_, scelta);
    frazionamento.Form_Load();
    frazionamento.PropostaAutomatica();
    frazionamento.AggiungiAlMemo();
    frazionamento.Invio();
    ui::FinestraProposta prima(frazionamento);
    prima.resize(1240, 700);
    prima.show();
    KR_Stralcio stralcio(ambiente_, scelta);
    stralcio.Form_Load();
    stralcio.PropostaAutomatica();
    ui::FinestraProposta seconda(stralcio);
    seconda.resize(1240, 700);
    seconda.show();
    return Salva(prima, "frazionamento") && Salva(seconda, "stralcio");
  }

  bool TipoMappale(const ParticellaScelta& scelta) {
    KR_NuovaCostruzione nuova(ambiente_, scelta);
    nuova.Form_Load();
    ui::FinestraTipoMappale prima(nuova);
    prima.resize(1120, 560);
    prima.show();
    KR_TMVariazione variazione(ambiente_, scelta);
    variazione.Form_Load();
    ui::FinestraTipoMappale seconda(variazione);
    seconda.resize(1120, 460);
    seconda.show();
    return Salva(prima, "nuova_costruzione") && Salva(seconda, "variazione");
  }

  // The first two parcels of the sheet made one.
  bool Fusione() {
    KR_TMFusione fusione(ambiente_);
    fusione.Form_Load();
    fusione.Aggiungi(0);
    fusione.Aggiungi(1);
    ui::FinestraFusione finestra(fusione);
    finestra.resize(1120, 640);
    finestra.show();
    return Salva(finestra, "fusione");
  }

  // A sighting in the middle of the rows, with some of its neighbours selected.
  bool Principale(ui::FinestraPrincipale& finestra) {
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

  bool Ricerca(ui::FinestraPrincipale& finestra) {
    auto* barra = finestra.findChild<ui::BarraRicerca*>();
    barra->Apri();
    barra->findChild<QLineEdit*>()->setText(QStringLiteral("pf"));
    emit barra->Successiva();
    const bool salvata = Salva(finestra, "ricerca");
    barra->Chiudi();
    return salvata;
  }

  bool Strumenti(ui::FinestraPrincipale& finestra) {
    modello_.PuntatoreSuPulsante(PulsanteUtilita);
    finestra.Mostra();
    const bool salvata = Salva(finestra, "strumenti");
    modello_.PuntatoreSuPulsante(0);
    return salvata;
  }

  bool Editor() {
    KR_EditorGen editor(ambiente_);
    editor.AlCaricamento();
    ui::FinestraEditor finestra(editor);
    finestra.resize(1000, 700);
    finestra.show();
    return Salva(finestra, "editor");
  }

  bool Riordino() {
    FormRiordinoRighe form(ambiente_);
    form.AlCaricamento();
    ui::FinestraRiordino finestra(form);
    finestra.resize(1080, 640);
    finestra.show();
    return Salva(finestra, "riordino");
  }

  // The findings below the rows and the survey beside them, a row of the middle of the act chosen.
  bool Verifiche(ui::FinestraPrincipale& finestra) {
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
  bool Scartate(ui::FinestraPrincipale& finestra) {
    modello_.DatiSessione().List1.Aggiungi("6|una riga|che nessuna|classe|prende|");
    modello_.DatiSessione().List1.Aggiungi("6|altra|riga|di troppi|campi|");
    modello_.Esegui(Comando::RiordinoRighe);
    finestra.findChild<ui::VistaRighe*>()->VaiA(5);
    finestra.Mostra();
    FormRigheScartate form(ambiente_);
    ui::FinestraScartate elenco(form);
    elenco.show();
    autore dati;
    ui::FinestraAutore informazioni(dati);
    informazioni.show();
    return Salva(finestra, "scartate_avviso") && Salva(elenco, "scartate") && Salva(informazioni, "autore");
  }

  bool ConfiguraPregeo() {
    FormConfiguraPregeo form(ambiente_);
    form.AlCaricamento();
    ui::FinestraConfiguraPregeo finestra(form);
    finestra.resize(820, 640);
    finestra.show();
    return Salva(finestra, "configura_pregeo");
  }

  // A comune found by what was typed.
  bool Comuni() {
    KR_CodFis form(ambiente_);
    form.AlCaricamento();
    form.CambiaText1("PAD");
    ui::FinestraCodFis finestra(form);
    finestra.show();
    return Salva(finestra, "comuni");
  }

  // The comuni with a TAF, the points of one, and those of a sheet selected on the plane with the distances measured.
  bool Fiduciali() {
    constexpr int misurate = 6;
    KR_ElcoPf scelta(ambiente_);
    scelta.AlCaricamento();
    ui::FinestraElcoPf comuni(scelta);
    comuni.show();
    KR_ElcoPfGriglia griglia(ambiente_, {"G224", "PADOVA", "PD", {}});
    griglia.Carica();
    ui::FinestraElcoPfGriglia tabella(griglia);
    tabella.resize(1180, 480);
    tabella.show();
    KR_ElcoPFGrafica piano(ambiente_, griglia.Tabella());
    piano.AlCaricamento();
    ui::FinestraElcoPfGrafica grafica(piano);
    grafica.resize(1240, 680);
    grafica.show();
    QApplication::processEvents();
    piano.Esegui(misurate);
    if (!piano.Punti.empty()) piano.SelezionaFoglio({piano.Punti.front().est, piano.Punti.front().nord});
    emit grafica.Superficie().Uscito();
    return Salva(comuni, "fiduciali_comuni") && Salva(tabella, "fiduciali_tabella") &&
           Salva(grafica, "fiduciali_piano");
  }

  // The manager over an extract with owners and over a raster; a sum of neighbours; an auto-assembled one.
  bool Estratti() {
    KR_EstrattiDiMappa1 form(ambiente_);
    form.AlCaricamento();
    ui::FinestraEstratti finestra(form);
    finestra.resize(1260, 700);
    finestra.show();
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

  bool Somma() {
    KR_SommaEstratti form(ambiente_, CartellaEstratti(ambiente_.sessione) + "\\G224_004500_101.EMP");
    form.AlCaricamento();
    form.NomeSomma = "SOMMA_101_104";
    ui::FinestraSomma finestra(form);
    finestra.resize(1080, 660);
    finestra.show();
    auto* file = finestra.findChild<QListWidget*>(QStringLiteral("File1"));
    for (QListWidgetItem* voce : file->findItems(QStringLiteral("G224_004500_104.EMP"), Qt::MatchExactly))
      voce->setCheckState(Qt::Checked);
    finestra.findChild<QLineEdit*>(QStringLiteral("NomeSomma"))->setText(ui::AQString(form.NomeSomma));
    return Salva(finestra, "estratti_somma");
  }

  bool Completa() {
    CompletaAutoallestito form(ambiente_, "AUTOALLESTITO_0056.EMP");
    form.AlCaricamento();
    form.ScegliQualita(1);
    form.Superficie = "455";
    form.RicalcolaParticella();
    ui::FinestraCompleta finestra(form);
    finestra.resize(1000, 600);
    finestra.show();
    return Salva(finestra, "estratti_completa");
  }

  // The rows of the libretto as a report.
  bool Stampa() {
    KR_StampaGenerale form(ambiente_);
    form.List1 = modello_.DatiSessione().List1.Righe();
    form.AlCaricamento();
    ui::FinestraStampaGenerale finestra(form);
    finestra.resize(1080, 680);
    finestra.show();
    return Salva(finestra, "stampa");
  }

  bool Intestazione() {
    FormCatasto1TXT form(ambiente_);
    form.AlCaricamento();
    ui::FinestraCatasto1 finestra(form);
    finestra.resize(1040, 620);
    finestra.show();
    return Salva(finestra, "intestazione");
  }

  bool Salva(QWidget& finestra, const char* nome) {
    QApplication::setActiveWindow(&finestra);
    QApplication::processEvents();
    QApplication::processEvents();
    const QString file = uscita_.filePath(QString::fromLatin1(nome) + Coda());
    const bool salvata = finestra.grab().save(file);
    QTextStream(salvata ? stdout : stderr) << (salvata ? "" : "Impossibile scrivere ") << file << '\n';
    return salvata;
  }

  // Pictures of twice the size stand beside the others under the name that Qt gives them.
  static QString Coda() { return qApp->devicePixelRatio() > 1 ? QStringLiteral("@2x.png") : QStringLiteral(".png"); }

  KR_LibrettoOriginale& modello_;
  Ambiente& ambiente_;
  QDir uscita_;
};

// The forms that write and start programs, on the drives given: a copy that may change.
int FotografaTipologie(const std::filesystem::path& dischi, const QString& uscita, const QString& file,
                       const QString& dxf) {
  Sessione sessione;
  DiscoDischi disco(dischi);
  const auto processi = ProcessiDellaMacchina(disco);
  DialoghiMuti dialoghi;
  NessunaFinestra finestre;
  ImpostazioniVuote impostazioni;
  AppuntiPropri appunti;
  OrologioDiSistema orologio;
  Ambiente ambiente{sessione, disco, dialoghi, finestre, *processi, impostazioni, appunti, orologio};
  processi->CreaCartelleDiSistema();
  KR_LibrettoOriginale modello(ambiente);
  if (!modello.Avvia(ui::DaQString(file))) return 1;
  return Fotografo(modello, ambiente, QDir(uscita)).Tipologie(ui::DaQString(dxf)) ? 0 : 1;
}

int Fotografa(const std::filesystem::path& dischi, const QString& uscita, const QString& file, const QString& genere) {
  Sessione sessione;
  DiscoDischi discoVero(dischi);
  const auto processiVeri = ProcessiDellaMacchina(discoVero);
  DiscoInLettura disco(discoVero);
  ProcessiFermi processi(*processiVeri);
  DialoghiMuti dialoghi;
  NessunaFinestra finestre;
  ImpostazioniVuote impostazioni;
  AppuntiPropri appunti;
  OrologioDiSistema orologio;
  Ambiente ambiente{sessione, disco, dialoghi, finestre, processi, impostazioni, appunti, orologio};
  KR_LibrettoOriginale modello(ambiente);
  const bool conUnita = file.mid(1, 2) == QLatin1String(":\\");
  const std::string percorso = conUnita ? ui::DaQString(file) : PercorsoDaOspite(file.toStdString());
  if (genere == QLatin1String("disegno") && FinisceConSenzaCaso(percorso, ".LXC"))
    return Fotografo(modello, ambiente, QDir(uscita)).LibrettoDisegno(percorso) ? 0 : 1;
  if (genere == QLatin1String("disegno")) return Fotografo(modello, ambiente, QDir(uscita)).Disegno(percorso) ? 0 : 1;
  if (!modello.Avvia(percorso)) return 1;
  if (genere == QLatin1String("censuario")) return Fotografo(modello, ambiente, QDir(uscita)).Censuario() ? 0 : 1;
  return Fotografo(modello, ambiente, QDir(uscita)).Tutte() ? 0 : 1;
}

// The platform without a display warns of every window that it has no size hints.
void SoloErrori(QtMsgType genere, const QMessageLogContext& /*dove*/, const QString& testo) {
  if (genere == QtCriticalMsg || genere == QtFatalMsg) QTextStream(stderr) << testo << '\n';
}

// The scale must be known before Qt starts: it is looked for in the bare arguments.
QByteArray Scala(int argc, char** argv) {
  for (int i = 1; i + 1 < argc; ++i)
    if (QByteArray(argv[i]) == "--scala") return argv[i + 1];
  return "1";
}

} // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qputenv("QT_SCALE_FACTOR", Scala(argc, argv));
  qInstallMessageHandler(SoloErrori);
  QApplication applicazione(argc, argv);
  ui::VestiApplicazione(applicazione);
  QCommandLineParser lettore;
  lettore.addHelpOption();
  lettore.addOptions(
      {{QStringLiteral("dischi"), QStringLiteral("Cartella delle unità."), QStringLiteral("DIR")},
       {QStringLiteral("uscita"), QStringLiteral("Cartella delle immagini."), QStringLiteral("DIR")},
       {QStringLiteral("disegno"), QStringLiteral("Il file è un disegno.")},
       {QStringLiteral("censuario"), QStringLiteral("Le finestre del censuario.")},
       {QStringLiteral("tipologie"), QStringLiteral("L'archivio di Pregeo, e la proposta dalle polilinee di un DXF."),
        QStringLiteral("DXF")},
       {QStringLiteral("scala"), QStringLiteral("1 o 2."), QStringLiteral("N"), QStringLiteral("1")}});
  lettore.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("Libretto da mostrare."));
  lettore.process(applicazione);
  const QStringList file = lettore.positionalArguments();
  if (file.size() != 1 || !lettore.isSet(QStringLiteral("dischi")) || !lettore.isSet(QStringLiteral("uscita")))
    lettore.showHelp(2);
  const QString uscita = lettore.value(QStringLiteral("uscita"));
  if (!QDir().mkpath(uscita)) return 1;
  if (const QString dxf = lettore.value(QStringLiteral("tipologie")); !dxf.isEmpty())
    return FotografaTipologie(lettore.value(QStringLiteral("dischi")).toStdString(), uscita, file.first(), dxf);
  return Fotografa(lettore.value(QStringLiteral("dischi")).toStdString(), uscita, file.first(),
                   lettore.isSet(QStringLiteral("disegno"))     ? QStringLiteral("disegno")
                   : lettore.isSet(QStringLiteral("censuario")) ? QStringLiteral("censuario")
                                                                : QString());
}
