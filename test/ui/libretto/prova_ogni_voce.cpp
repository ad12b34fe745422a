#include <ui/tavolo.h>

#include <ui/libretto/menu_principale.h>
#include <ui/libretto/pannello_pulsanti.h>

#include <QAction>
#include <QDialog>
#include <QMenuBar>
#include <QPushButton>
#include <QToolButton>

#include <gtest/gtest.h>

#include <map>

namespace lirmeto::prova {
namespace {

// Everything that an entry can leave behind.
struct Stato {
  std::vector<std::string> righe;
  std::vector<std::size_t> selezionate;
  std::map<std::string, std::string> file;
  std::vector<std::string> avviati;
  std::vector<std::string> aperti;
  std::vector<long> terminati;
  std::size_t collegamenti = 0;
  std::size_t detti = 0;
  std::string appunti;
  bool strumenti = false;
  bool segnalazioni = false;
  bool rilievo = false;
  bool campi = false; // the keys are in the boxes of the row
  bool aperta = true;
};

Stato StatoDi(Tavolo& tavolo) {
  const Banco& banco = tavolo.banco;
  return {banco.Righe(),
          tavolo.Selezionate(),
          banco.disco.file,
          banco.processi.avviati,
          banco.processi.aperti,
          banco.processi.terminati,
          banco.processi.collegamenti.size(),
          banco.dialoghi.detti.size(),
          banco.appunti.testo,
          tavolo.modello.PannelloStrumenti,
          !tavolo.finestra->findChild<QWidget*>(QStringLiteral("ElencoVerifiche"))->isHidden(),
          !tavolo.finestra->findChild<QWidget*>(QStringLiteral("PannelloRilievo"))->isHidden(),
          tavolo.finestra->focusWidget()->objectName() == QStringLiteral("Campo_0"),
          tavolo.finestra->isVisible()};
}

// A modal window tells its title and is closed, and so is one behind it.
void ChiudiFinestre(std::vector<std::string>& titoli) {
  Dopo(0, [&titoli] {
    QWidget* finestra = QApplication::activeModalWidget();
    if (finestra == nullptr) return;
    titoli.push_back(finestra->windowTitle().toStdString());
    ChiudiFinestre(titoli);
    finestra->close();
  });
}

std::string Differenza(const Stato& prima, const Stato& dopo, const std::vector<std::string>& titoli) {
  std::string detto;
  const auto dici = [&](bool si, const std::string& che) { detto += si ? (detto.empty() ? "" : ", ") + che : ""; };
  for (const std::string& titolo : titoli) dici(true, "finestra " + titolo.substr(0, titolo.find(" : ")));
  dici(prima.righe != dopo.righe, "righe");
  dici(prima.selezionate != dopo.selezionate, "selezione");
  dici(prima.file != dopo.file, "file");
  dici(prima.avviati != dopo.avviati, "programma " + (dopo.avviati.empty() ? "" : dopo.avviati.back()));
  dici(prima.aperti != dopo.aperti, "documento " + (dopo.aperti.empty() ? "" : dopo.aperti.back()));
  dici(prima.terminati != dopo.terminati, "processi");
  dici(prima.collegamenti != dopo.collegamenti, "collegamenti");
  dici(prima.appunti != dopo.appunti, "appunti");
  dici(prima.detti != dopo.detti, "messaggio");
  dici(prima.strumenti != dopo.strumenti, "pannello");
  dici(prima.segnalazioni != dopo.segnalazioni, "elenco delle segnalazioni");
  dici(prima.rilievo != dopo.rilievo, "rilievo");
  dici(prima.campi != dopo.campi, "campi");
  dici(prima.aperta != dopo.aperta, "chiusa");
  return detto.empty() ? "niente" : detto;
}

// What an entry of a fresh window does; `usa` finds it there and uses it, or says that it is disabled.
std::string Effetto(const std::function<bool(Tavolo&)>& usa, bool estratto = false) {
  Tavolo tavolo;
  tavolo.banco.appunti.testo = "A\t1,5\t2\r\n";
  tavolo.banco.dialoghi.fileScelto = "C:\\ESPORTATO.DAT";
  tavolo.banco.sessione.EstrattoAssociato = estratto ? "E.EMP" : "";
  tavolo.banco.disco.Metti("C:\\PREGEO\\ESTRATTI\\E.EMP", "0|1|\r\n8|PF01/0010/G224|1|2|\r\n");
  tavolo.banco.dialoghi.carattereScelto = {14, "Liberation Mono", true, false};
  tavolo.banco.processi.vivi["pregeo.exe"] = {77};
  tavolo.Clicca(3);
  const Stato prima = StatoDi(tavolo);
  std::vector<std::string> titoli;
  ChiudiFinestre(titoli);
  if (!usa(tavolo)) return "spenta";
  QCoreApplication::processEvents();
  return Differenza(prima, StatoDi(tavolo), titoli);
}

std::vector<QAction*> Voci(Tavolo& tavolo) {
  std::vector<QAction*> voci;
  for (QAction* azione : tavolo.finestra->menuBar()->findChildren<QAction*>())
    if (azione->menu() == nullptr && !azione->isSeparator()) voci.push_back(azione);
  return voci;
}

bool Usa(QAction& voce) {
  if (voce.isEnabled()) voce.trigger();
  return voce.isEnabled();
}

// The dialog over an archive that nobody answers for.
const std::string ArchivioVuoto = "finestra C:\\LIBRETTO.DAT, programma "
                                  "C:\\users\\prova\\Documents\\LIRMETO\\Trasvea.exe2, messaggio";

// The workbench asks Pregeo's archive for the proposal first, and says that the libretto has no extract.
const std::string ApreIlBanco = "finestra Archivio Particelle - G224-0010  Libretto: LIBRETTO.DAT Estratto: , "
                                "programma C:\\users\\prova\\Documents\\LIRMETO\\Trasvea.exe, messaggio";

// An entry that is shown as unavailable says so. Nothing is alive that does nothing.
using Effetti = std::map<std::string, std::string>;

TEST(OgniVoce, DelMenuFaCioCheDice) {
  const Effetti attesi = {
      {"Nuovo Libretto", "finestra Intestazione del Libretto - Righe 0 e 9, file"}, // cancelled: the rows are back
      {"Apri Libretto da Pregeo", ArchivioVuoto},
      {"Apri Libretto da File", "messaggio"},
      {"1 C:\\LIBRETTO.DAT", "messaggio"}, // the question, answered no
      {"Ripristina da Archivio Libretti", "messaggio"},
      {"Salva", "file"},
      {"Esporta Libretto", "file, messaggio"},
      {"Attiva Pregeo", "programma lascia C:\\pregeo\\exe\\Pregeo.EXE"},
      {"Termina Moduli Bloccati", "messaggio"},
      {"Seleziona Font", "file"},
      {"Kill Pregeo", "processi"},
      {"Chiudi", "chiusa"},
      {"Annulla", "spenta"},
      {"Ripeti", "spenta"},
      {"Taglia Righe", "righe, selezione, appunti"},
      {"Copia Righe", "appunti"},
      {"Incolla Righe", "messaggio"}, // the clipboard holds none
      {"Elimina Righe", "messaggio"}, // the answer is No
      {"Seleziona Tutte le Righe", "selezione"},
      {"Campi della Riga", "campi"},
      {"Stampa Libretto", "finestra Stampa Generale"},
      {"Modifica Diretta", "finestra Edit Libretto Misure"},
      {"Riga 0-9", "finestra Intestazione del Libretto - Righe 0 e 9, file"},
      {"Relazione Tecnica", "finestra Edit Libretto Misure"},
      {"Riordino Righe", "niente"},
      {"Modello Censuario", ApreIlBanco},
      {"Importa Fiduciali da TAF", "finestra Importa Fiduciali da TAF"},
      {"Importa Fiduciali da Estratto", "messaggio"},
      {"Incolla da Appunti", "messaggio"},
      {"Descrizione", "finestra Cambia Descrizione"},
      {"Seleziona Stazioni", "selezione"},
      {"Seleziona Squadri", "selezione"},
      {"Seleziona Contorni", "selezione"},
      {"Elenco delle Segnalazioni", "elenco delle segnalazioni"},
      {"Segnalazione Successiva", "selezione"},
      {"Segnalazione Precedente", "selezione"},
      {"Prendi il Rimedio", "niente"}, // the row chosen has none
      {"Rilievo accanto alle Righe", "rilievo"},
      {"Righe 8 - (P, N, E)", "righe"},
      {"Righe 8 Nome Auto (N, E)", "righe"},
      {"Righe Complete", "righe"},
      {"Gondella", "programma C:\\Program Files (x86)\\Gondella\\GondellaLibretti.exe"},
      {"Archivia Libretti", "file, messaggio"},
      {"Grafica Pregeo > DXF", ArchivioVuoto},
      {"Ricarica da Storico", "messaggio"},
      {"PF-VE", "spenta"},
      {"Configura Provincia di Pregeo", "finestra Configurazione di Pregeo - C:\\WINDOWS\\PREGEO.INI"},
      {"Crea Collegamenti Pregeo", "collegamenti, messaggio"},
      {"Info Misurate PF", "messaggio"},
      {"Guarda un Disegno", "finestra Disegno"},
      {"Cerca Comune", "finestra Ricerca Comune"},
      {"Comuni per Provincia", "finestra Comuni per Provincia"},
      {"Archivio Possessori", "finestra Archivio Possessori"},
      {"Gestione Estratti di Mappa", "finestra Gestione Estratti di Mappa - Estratto Associato = "},
      {"Completa Autoallestito", "messaggio"},
      {"Informazioni generali - operative - garanzie", "messaggio"},
      {"Libretto per Coordinate da Polilinee DXF", "finestra Tipologia 1000"},
      {"Libretto per coordinate da Elaborazione Pregeo", "righe, selezione"},
      {"Autore", "finestra Autore"},
      {"Configurazione", "finestra Stampa Generale"},
      {"Pagina Web", "documento https://www.lirmeto.example/"},
  };
  Tavolo elenco;
  const auto voci = Voci(elenco);
  for (std::size_t i = 0; i < voci.size(); ++i) {
    const std::string titolo = voci[i]->text().remove(u'&').toStdString();
    const auto atteso = attesi.find(titolo);
    const bool tipologia = titolo.ends_with(')') && !attesi.contains(titolo); // without an extract it says so
    EXPECT_EQ(Effetto([i](Tavolo& tavolo) { return Usa(*Voci(tavolo)[i]); }), tipologia                ? "messaggio"
                                                                              : atteso == attesi.end() ? "non prevista"
                                                                                                       : atteso->second)
        << titolo;
  }
}

TEST(OgniVoce, DeiPulsantiFaCioCheDice) {
  const std::map<int, std::string> attesi = {
      {1, ArchivioVuoto},
      {3, "finestra Stampa Generale"},
      {7, "finestra Configurazione di Pregeo - C:\\WINDOWS\\PREGEO.INI"},
      {9, "messaggio"},
      {21, ArchivioVuoto},
      {22, "spenta"},
      {23, "spenta"},
      {24, "programma lascia C:\\pregeo\\exe\\Pregeo.EXE"},
      {4, "file"},
      {5, "messaggio"},
      {6, "programma C:\\Program Files (x86)\\Gondella\\Dervola.exe"},
      {10, "finestra Intestazione del Libretto - Righe 0 e 9, file"},
      {11, "messaggio"},
      {14, "finestra Riordino Righe"},
      {15, "programma desktop"},
      {16, "finestra Edit Libretto Misure"},
      {17, ApreIlBanco},
      {18, "finestra Gestione Estratti di Mappa - Estratto Associato = "},
      {20, "programma C:\\Program Files (x86)\\Gondella\\GondellaLibretti.exe"},
      {25, "pannello"},
      {27, "selezione"},
      {28, "selezione"},
      {30, "selezione"},
      {31, "file, appunti, messaggio"},
  };
  for (const Pulsante& pulsante : Pulsanti()) {
    const auto atteso = attesi.find(pulsante.indice);
    const auto usa = [&](Tavolo& tavolo) {
      auto* bottone = tavolo.finestra->findChild<ui::PannelloPulsanti*>()->Bottone(pulsante.indice);
      QTest::mouseClick(bottone, Qt::LeftButton);
      return bottone->isEnabled();
    };
    EXPECT_EQ(Effetto(usa), atteso == attesi.end() ? "non previsto" : atteso->second) << pulsante.indice;
  }
}

TEST(OgniVoce, DegliStrumentiFaCioCheDice) {
  const Effetti attesi = {
      {"QUOTA_MEDIA", "finestra Quota Media Comuni Italiani, messaggio"}, // no table is there
      {"tecnici", "messaggio"},
      {"CONFIGURA_PREGEO", "finestra Configurazione di Pregeo - C:\\WINDOWS\\PREGEO.INI"},
      {"Modulistica", "documento C:\\fiducial\\MODULISTICA"},
      {"ANTEPRIMA_PROPOSTA", "messaggio"},
      {"archivio_libretti", ArchivioVuoto},
      {"gestione_pf", "finestra Punti Fiduciali: scelta del Comune"},
      {"GESTIONE_MISURATE", "finestra Selezione Database Distanze Misurate"},
      {"CERCA_NEI_LIBRETTI", Sostituisci(ArchivioVuoto, "C:\\LIBRETTO.DAT", "Cerca nei Libretti in Pregeo")},
      {"STORICO_LIBRETTI", "messaggio"},
  };
  for (const Strumento& strumento : Strumenti()) {
    const std::string tag(strumento.tag);
    const auto usa = [&](Tavolo& tavolo) {
      auto& bottone = Figlio<QPushButton>(tavolo, tag.c_str());
      bottone.click();
      return bottone.isEnabled();
    };
    EXPECT_EQ(Effetto(usa), attesi.contains(tag) ? attesi.at(tag) : "non previsto") << tag;
  }
}

// With an extract the entries that need one open their windows.
TEST(OgniVoce, ConUnEstratto) {
  const auto fiduciali = [](Tavolo& tavolo) {
    return Usa(*ui::VoceDi(*tavolo.finestra->menuBar(), Comando::ImportaFiducialiEstratto));
  };
  EXPECT_EQ(Effetto(fiduciali, true), "finestra Importa Fiduciali da Estratto");
}

} // namespace
} // namespace lirmeto::prova
