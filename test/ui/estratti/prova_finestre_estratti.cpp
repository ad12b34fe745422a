// The windows of the extracts: each button pressed with the mouse, and what it leaves on disk.
#include <ui/tavolo.h>

#include <ui/estratti/anteprima_raster.h>
#include <ui/estratti/finestra_completa.h>
#include <ui/estratti/finestra_estratti.h>
#include <ui/estratti/finestra_somma.h>

#include <applicazione/forme.h>
#include <estratti/kr_estratto.h>

#include <QBuffer>
#include <QComboBox>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QTabWidget>
#include <QToolButton>

#include <gtest/gtest.h>

#include <map>

namespace lirmeto::prova {
namespace {

const std::string Cartella = "C:\\PREGEO\\ESTRATTI\\";
const std::string Zero = "0|12062026|PD0041877/2026|G224|00123|35,36|PD|PUB|RSSMTN|1|";

std::string Estratto(const std::string& zero) {
  return Testo({zero, "8|1%|0|0|", "8|2%|10|0|", "8|3%|10|10|", "8|9%|77|7|", "7|4|1%|2%|3%|1%|NC|35|35|50|",
                "7|4|1%|3%|2%|1%|NC|36|36|50|", "6|DITTA|1|ROSSI|2|X|", "6|PARTICELLA|35|  |SEMINATIVO  |1|1| | |",
                "6|DISTORSIONE|1.5|"});
}

std::string Immagine(const char* formato, int lato) {
  QImage immagine(lato, lato, QImage::Format_Mono);
  immagine.fill(0);
  QByteArray byte;
  QBuffer uscita(&byte);
  uscita.open(QIODevice::WriteOnly);
  EXPECT_TRUE(immagine.save(&uscita, formato));
  return byte.toStdString();
}

struct Sala {
  Sala() {
    tavolo.banco.disco.cartelle.insert(tavolo.banco.disco.cartelle.end(),
                                       {"C:\\FIDUCIAL", "C:\\FIDUCIAL\\DITTA", "C:\\DATI", "C:\\PREGEO\\TMP"});
    Disco().Metti(Cartella + "A.EMP", Estratto(Zero));
    Disco().Metti(Cartella + "A.PNG", Immagine("PNG", 20));
    Disco().Metti(Cartella + "B.EMP", Estratto("0|AUTOALLESTITO|0|0|0|0|0|0|0|0|"));
    Disco().Metti(Cartella + "C.PNG", "filevuoto");
    tavolo.banco.dialoghi.risposte = {Risposta::Si};
  }

  DiscoInMemoria& Disco() { return tavolo.banco.disco; }

  // Opens the manager, selects a file, does something with the window and closes it.
  void Con(const std::string& nome, const std::function<void(QWidget&)>& azione) {
    NellaProssimaFinestra([&](QWidget& finestra) {
      if (!nome.empty()) Seleziona(finestra, nome);
      azione(finestra);
      finestra.close();
    });
    tavolo.modello.Esegui(Comando::EstrattiDiMappa);
  }

  static void Seleziona(QWidget& finestra, const std::string& nome) {
    auto* elenco = finestra.findChild<QListView*>(QStringLiteral("File1"));
    const auto trovati =
        elenco->model()->match(elenco->model()->index(0, 0), Qt::DisplayRole, QString::fromStdString(nome));
    if (trovati.isEmpty()) qFatal("no such file in the list");
    elenco->scrollTo(trovati.first());
    QTest::mouseClick(elenco->viewport(), Qt::LeftButton, {}, elenco->visualRect(trovati.first()).center());
    QCoreApplication::processEvents();
  }

  Tavolo tavolo;
};

template <typename T>
T& Trova(QWidget& finestra, const char* nome) {
  auto* figlio = finestra.findChild<T*>(QString::fromLatin1(nome));
  if (figlio == nullptr) qFatal("no such widget");
  return *figlio;
}

void Scrivi(QWidget& finestra, const char* nome, const char* testo) {
  auto& casella = Trova<QLineEdit>(finestra, nome);
  casella.clear();
  QTest::keyClicks(&casella, QString::fromLatin1(testo));
}

void Premi(QWidget& finestra, const char* nome) {
  QTest::mouseClick(&Trova<QAbstractButton>(finestra, nome), Qt::LeftButton);
  QCoreApplication::processEvents();
}

struct CasoPulsante {
  int indice;
  std::string cambiati; // names of files that are new (+), gone (-) or changed (~)
};

class Pulsanti : public testing::TestWithParam<CasoPulsante> {};

TEST_P(Pulsanti, LascianoSulDisco) {
  const int indice = GetParam().indice;
  Sala sala;
  sala.tavolo.banco.dialoghi.fileScelto = "C:\\DATI\\N.EMP";
  sala.Disco().Metti("C:\\DATI\\N.EMP", Estratto(Zero));
  sala.Disco().Metti("C:\\DATI\\N.PNG", "foto");
  std::map<std::string, std::string> prima;
  sala.Con("A.EMP", [&](QWidget& finestra) {
    prima = sala.Disco().file;
    Scrivi(finestra, "NuovoNome", "NUOVO");
    Scrivi(finestra, "NomeParticella", "36");
    Scrivi(finestra, "NuovoNomeParticella", "AAA");
    const auto chiudi = [](QWidget& seconda) { seconda.close(); };
    if (indice == 18) NellaProssimaFinestra(chiudi);
    auto& bottone = Trova<QToolButton>(finestra, ("Pulsante_" + std::to_string(indice)).c_str());
    EXPECT_FALSE(bottone.icon().isNull());
    EXPECT_FALSE(bottone.text().isEmpty());
    Premi(finestra, ("Pulsante_" + std::to_string(indice)).c_str());
    if (indice == 16) NellaProssimaFinestra(chiudi); // it comes when this one has gone
    EXPECT_EQ(finestra.isVisible(), indice != 15 && indice != 16);
    std::string cambiati;
    for (const auto& [file, contenuto] : sala.Disco().file)
      if (!prima.contains(file) || prima.at(file) != contenuto)
        cambiati += (prima.contains(file) ? "~" : "+") + file.substr(file.rfind('\\') + 1) + " ";
    for (const auto& [file, contenuto] : prima)
      if (!sala.Disco().file.contains(file)) cambiati += "-" + file.substr(file.rfind('\\') + 1) + " ";
    EXPECT_EQ(cambiati, GetParam().cambiati);
  });
  EXPECT_EQ(sala.tavolo.banco.sessione.EstrattoAssociato, indice == 15 ? "A.EMP" : indice == 2 ? "N.EMP" : "");
}

INSTANTIATE_TEST_SUITE_P(Indici, Pulsanti,
                         testing::Values(CasoPulsante{2, "+N.EMP +N.PNG "}, CasoPulsante{8, "-A.EMP -A.PNG "},
                                         CasoPulsante{11, "+NUOVO.EMP +NUOVO.PNG "}, CasoPulsante{14, "~A.EMP "},
                                         CasoPulsante{15, ""}, CasoPulsante{16, ""}, CasoPulsante{18, ""}));

TEST(FinestraEstratti, MostraDisegnoTestiERaster) {
  Sala sala;
  sala.Con("A.EMP", [](QWidget& finestra) {
    EXPECT_EQ(finestra.windowTitle(), QStringLiteral("Gestione Estratti di Mappa - Estratto Associato =  - A.EMP"));
    EXPECT_TRUE(Trova<QPlainTextEdit>(finestra, "TestoFile").toPlainText().startsWith(QStringLiteral("0|12062026|")));
    EXPECT_EQ(Trova<QPlainTextEdit>(finestra, "TestoDitte").toPlainText().trimmed(), QStringLiteral("1 ROSSI 2 X"));
    auto& anteprima = Trova<QStackedWidget>(finestra, "Anteprima");
    EXPECT_EQ(anteprima.currentIndex(), 0);
    Premi(finestra, "SoloRaster");
    EXPECT_EQ(anteprima.currentIndex(), 1);
    EXPECT_EQ(finestra.findChild<ui::AnteprimaRaster*>()->Avviso(), QString());
    Premi(finestra, "SoloRaster");
    Sala::Seleziona(finestra, "C.PNG");
    EXPECT_EQ(anteprima.currentIndex(), 1);
    EXPECT_EQ(finestra.findChild<ui::AnteprimaRaster*>()->Avviso(), QStringLiteral("Il file non è un'immagine"));
    EXPECT_FALSE(Trova<QToolButton>(finestra, "Pulsante_9").isEnabled()) << "a command on rows";
    EXPECT_FALSE(Trova<QToolButton>(finestra, "Completa").isVisible());
  });
}

TEST(FinestraEstratti, FiltriESenzaSelezioneUnMessaggio) {
  Sala sala;
  sala.Con("", [&](QWidget& finestra) {
    EXPECT_FALSE(Trova<QListView>(finestra, "File1").selectionModel()->hasSelection());
    const auto* nomi = Trova<QListView>(finestra, "File1").model();
    EXPECT_EQ(nomi->rowCount(), 4);
    Premi(finestra, "Filtro_PNG");
    EXPECT_EQ(nomi->rowCount(), 2);
    Premi(finestra, "Filtro_EMP");
    EXPECT_EQ(nomi->rowCount(), 2);
    EXPECT_FALSE(Trova<QPushButton>(finestra, "Filtro_PNG").isChecked());
    Premi(finestra, "Filtro_EMP");
    EXPECT_EQ(nomi->rowCount(), 4);
    Premi(finestra, "Pulsante_8");
    EXPECT_EQ(sala.tavolo.banco.dialoghi.UltimoTesto(), "Selezionare un estratto!");
  });
}

TEST(FinestraEstratti, UnFileLasciatoEntraEUnoMilleSiElencano) {
  Sala sala;
  for (int i = 0; i < 1000; ++i) sala.Disco().Metti(Cartella + "M" + std::to_string(i) + ".EMP", Estratto(Zero));
  sala.Disco().Metti("Z:\\TMP\\N.EMP", Estratto(Zero));
  sala.Disco().Metti("Z:\\TMP\\N.PNG", "foto");
  sala.Con("M500.EMP", [&](QWidget& finestra) {
    EXPECT_EQ(Trova<QListView>(finestra, "File1").model()->rowCount(), 1004);
    QMimeData dati;
    dati.setUrls({QUrl::fromLocalFile(QStringLiteral("C:\\DATI\\manca.emp"))});
    QDragEnterEvent entra(QPoint(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, {});
    QApplication::sendEvent(&finestra, &entra);
    EXPECT_TRUE(entra.isAccepted());
    QDropEvent lascia(QPointF(5, 5), Qt::CopyAction, &dati, Qt::LeftButton, {});
    QApplication::sendEvent(&finestra, &lascia);
    QCoreApplication::processEvents();
    EXPECT_FALSE(sala.tavolo.banco.dialoghi.detti.empty()) << "a file that is not there is told";
  });
  sala.tavolo.modello.TrascinaAccanto("Z:\\TMP\\N.EMP");
  EXPECT_EQ(sala.tavolo.banco.sessione.EstrattoAssociato, "N.EMP") << "the same import by a drop on the main window";
  EXPECT_TRUE(sala.Disco().Esiste(Cartella + "N.PNG"));
}

struct CasoRaster {
  std::string nome;
  std::string byte;
  bool mostrata;
};

TEST(Raster, PngTifEJpgSiVedonoIlRestoSiDice) {
  const std::string png = Immagine("PNG", 5000);
  for (const CasoRaster& caso :
       {CasoRaster{"png", png, true}, CasoRaster{"tif", Immagine("TIFF", 30), true},
        CasoRaster{"jpg", Immagine("JPG", 30), true}, CasoRaster{"enorme", Immagine("PNG", 20'000), false},
        CasoRaster{"vuoto", "", false}, CasoRaster{"testo", "filevuoto", false},
        CasoRaster{"tagliato", Immagine("JPG", 300).substr(0, 120), false}}) {
    ui::AnteprimaRaster raster;
    raster.MostraByte(caso.byte);
    EXPECT_EQ(raster.Avviso().isEmpty(), caso.mostrata) << caso.nome << raster.Avviso().toStdString();
    EXPECT_EQ(raster.Avviso().startsWith(QStringLiteral("Immagine troppo grande")), caso.nome == "enorme");
  }
}

TEST(FinestraSomma, SiSceglieSiVedeESiFa) {
  Sala sala;
  sala.Disco().Metti(Cartella + "B.EMP", Testo({Zero, "8|1%|0|0.0001|", "8|2%|50|50|"}));
  sala.Con("A.EMP", [&](QWidget& finestra) {
    NellaProssimaFinestra([&](QWidget& somma) {
      auto& elenco = Trova<QListWidget>(somma, "File1");
      elenco.item(1)->setCheckState(Qt::Checked);
      QCoreApplication::processEvents();
      Premi(somma, "Conferma");
      EXPECT_EQ(sala.tavolo.banco.dialoghi.UltimoTesto(), "Inserire il Nome dell'Estratto Risultante");
      Scrivi(somma, "NomeSomma", "INSIEME");
      Premi(somma, "Conferma");
      EXPECT_FALSE(somma.isVisible());
    });
    Premi(finestra, "Pulsante_3");
    const auto& elenco = Trova<QListView>(finestra, "File1");
    EXPECT_EQ(elenco.currentIndex().data().toString(), QStringLiteral("INSIEME.EMP"));
  });
  EXPECT_TRUE(sala.Disco().Contenuto(Cartella + "INSIEME.EMP").starts_with("0|AUTOALLESTITO|"));
}

TEST(FinestraCompleta, RigheDiParticellaERigaZero) {
  Sala sala;
  sala.Con("B.EMP", [&](QWidget& finestra) {
    NellaProssimaFinestra([](QWidget& completa) {
      EXPECT_EQ(completa.windowTitle(), QStringLiteral("Completa Autoallestito - B"));
      auto& particelle = Trova<QListWidget>(completa, "List1");
      ASSERT_EQ(particelle.count(), 2);
      particelle.setCurrentRow(1);
      Premi(completa, "Qualita_1");
      Scrivi(completa, "Superficie", "123.7");
      Premi(completa, "RicalcolaParticella");
      Scrivi(completa, "Foglio", "42");
      Trova<QLineEdit>(completa, "Superficie").setFocus();
      Premi(completa, "RicalcolaAutoAllestito");
      Premi(completa, "Conferma");
      completa.close();
    });
    Premi(finestra, "Completa");
  });
  const std::string file = sala.Disco().Contenuto(Cartella + "B.EMP");
  EXPECT_TRUE(Contiene(file, "|00042|35,36|")) << file;
  EXPECT_TRUE(Contiene(file, "6|PARTICELLA|36||ENTE URBANO |124|124|||SN|\r\n")) << file;
}

} // namespace
} // namespace lirmeto::prova
