#include <ui/tavolo.h>

#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/generazione/finestra_libretto_disegno.h>

#include <core/apertura.h>
#include <core/salvataggio.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

using Opzioni = std::vector<std::pair<std::string, std::string>>;

const std::vector<std::string> LineeDelDisegno = {"P,100,0,0,10,CHIODO,1.5",
                                                  "P,200,60,10,11.2,PICCHETTO,1.6",
                                                  "P,300,30,50,12.1,CHIODO,1.55",
                                                  "P,101,12.345,7.1,10.01,MURO,1.4",
                                                  "P,102,20.2,4.4,10.3,MURO,1.4",
                                                  "P,201,50.7,20.3,11.1,MURO,1.4",
                                                  "P,301,20.1,42.9,12.2,SIEPE,1.4",
                                                  "P,PF01/0010/G224,-30,55,9,SP.,0",
                                                  "L,0,0,10,60,10,11.2",
                                                  "L,60,10,11.2,30,50,12.1",
                                                  "L,0,0,10,-30,55,9",
                                                  "L,30,50,12.1,-30,55,9",
                                                  "7,|101|102|201|RC|,FABBRICATO,",
                                                  "7,|100|200|300|,POLIGONALE,"};
const QPointF InMezzo(30, 5);            // of the line 100 - 200
const QPointF InMezzoAllUltima(0, 52.5); // of the line 300 - PF01/0010/G224, on which nothing else is drawn

void Apparecchia(Banco& banco, const std::vector<std::string>& disegno) {
  banco.Apri(Testo({RigheDiProva()[0], RigheDiProva()[1]}), "C:\\RILIEVO.LXC");
  banco.disco.Metti("C:\\RILIEVO.LXC", Testo(disegno));
}

// The bytes that the command line gives.
std::string SenzaFinestra(const Opzioni& opzioni, std::optional<std::size_t> tolta) {
  Banco banco;
  Apparecchia(banco, LineeDelDisegno);
  DisegnoCondiviso condiviso;
  LibrettoDaDisegno form(banco.ambiente, condiviso);
  form.Form_Load();
  if (tolta) form.DoppioClickList1(*tolta);
  for (const auto& [chiave, valore] : opzioni) EXPECT_TRUE(form.Imposta(chiave, valore)) << chiave;
  EXPECT_TRUE(form.GeneraLibrettoMisureAutomatico());
  return TestoDaSalvare(banco.sessione);
}

struct LibrettoDisegno : testing::Test {
  void Mostra(const std::vector<std::string>& disegno = LineeDelDisegno) {
    Apparecchia(banco, disegno);
    form.Form_Load();
    finestra.emplace(form);
    finestra->resize(1300, 860);
    finestra->show();
    QApplication::setActiveWindow(&*finestra);
    QCoreApplication::processEvents();
    linee = finestra->findChild<QListView*>(QStringLiteral("List1"));
    superficie = finestra->findChild<ui::GraficaSuperficie*>();
  }
  [[nodiscard]] QAbstractButton& Bottone(const char* nome) {
    return *finestra->findChild<QAbstractButton*>(QString::fromLatin1(nome));
  }
  void Clicca(QAbstractButton& bottone) {
    QTest::mouseClick(&bottone, Qt::LeftButton, {}, QPoint(9, bottone.height() / 2));
  }
  void Passo(const QString& didascalia) {
    for (auto* bottone : finestra->findChildren<QAbstractButton*>())
      if (bottone->text().remove(u'&') == didascalia) return Clicca(*bottone);
    qFatal("no such step");
  }
  void DoppioClick(int riga) {
    const QPoint posto = linee->visualRect(linee->model()->index(riga, 0)).center();
    QTest::mouseClick(linee->viewport(), Qt::LeftButton, {}, posto);
    QTest::mouseDClick(linee->viewport(), Qt::LeftButton, {}, posto);
  }
  void Muovi(const QPointF& dove) {
    const QPointF posto = superficie->Posto(dove.x(), dove.y());
    QMouseEvent evento(QEvent::MouseMove, posto, superficie->mapToGlobal(posto), Qt::NoButton, Qt::NoButton, {});
    QApplication::sendEvent(superficie, &evento);
  }
  // Whether anything is drawn there.
  [[nodiscard]] bool SiVede(const QPointF& dove) {
    const QImage foto = superficie->grab().toImage();
    const QPoint posto = superficie->Posto(dove.x(), dove.y()).toPoint();
    bool vista = false;
    for (int i = -9; i < 10; ++i) vista = vista || foto.pixelColor(posto + QPoint(0, i)).red() < 160;
    return vista;
  }
  [[nodiscard]] QColor Tinta(const QPointF& dove) {
    return superficie->grab().toImage().pixelColor(superficie->Posto(dove.x(), dove.y()).toPoint() + QPoint(0, 3));
  }

  Banco banco;
  DisegnoCondiviso condiviso;
  LibrettoDaDisegno form{banco.ambiente, condiviso};
  std::optional<ui::FinestraLibrettoDisegno> finestra;
  QListView* linee = nullptr;
  ui::GraficaSuperficie* superficie = nullptr;
};

TEST_F(LibrettoDisegno, MouseETastiDannoIByteDiGenera) {
  Mostra();
  ASSERT_EQ(form.List1[1], "100 - PF01/0010/G224");
  DoppioClick(1);
  for (const char* nome : {"METTI_CS", "ORIENTA_AZIMUT", "NOTE_MANCANTI", "INCREMENTO_MILLESIMALE"})
    Clicca(Bottone(nome));
  Passo(QStringLiteral("0.001 (10cc)"));
  QTest::keyClick(&Bottone("PUNTO_PLANIMETRICO"), Qt::Key_Space);
  auto* millimetri = finestra->findChild<QLineEdit*>(QStringLiteral("PUNTO_PLA_DISLIVELLO"));
  millimetri->selectAll();
  QTest::keyClicks(millimetri, QStringLiteral("15"));
  QTest::keyClick(millimetri, Qt::Key_Return);
  EXPECT_TRUE(finestra->isVisible() && !form.FineProgramma) << "Enter ends the typing, not the program";
  Clicca(Bottone("Genera"));
  const Opzioni scelte = {{"METTI_CS", "1"},
                          {"ORIENTA_AZIMUT", "1"},
                          {"INCREMENTO_MILLESIMALE", "1"},
                          {"PRECISIONE_ANGOLARE", "3"},
                          {"PUNTO_PLANIMETRICO", "1"},
                          {"PUNTO_PLA_DISLIVELLO", "15"},
                          {"NOTE_MANCANTI", "0"}};
  EXPECT_EQ(banco.disco.Contenuto("C:\\RILIEVO.TXT"), SenzaFinestra(scelte, 1));
  EXPECT_NE(banco.disco.Contenuto("C:\\RILIEVO.TXT"), SenzaFinestra(scelte, {})) << "the line takes no part";
  EXPECT_TRUE(form.FineProgramma && !finestra->isVisible());
}

TEST_F(LibrettoDisegno, UnaLineaToltaSparisceELaVistaResta) {
  Mostra();
  QTest::keyClick(superficie, Qt::Key_Plus);
  QTest::keyClick(superficie, Qt::Key_Left);
  const VistaGrafica vista = form.Grafica1.Vista();
  const std::size_t prima = form.Grafica1.Archivio().Linee().size();
  ASSERT_TRUE(SiVede(InMezzoAllUltima));
  DoppioClick(3);
  EXPECT_EQ(form.List1.back(), "200 - 300");
  EXPECT_EQ(form.Grafica1.Archivio().Linee().size(), prima - 2) << "no line begins at 300 any more: its ray goes too";
  EXPECT_TRUE(form.Grafica1.Vista().Xc == vista.Xc && form.Grafica1.Vista().Zoom == vista.Zoom);
  EXPECT_FALSE(SiVede(InMezzoAllUltima));
  QTest::keyClick(linee, Qt::Key_Delete);
  EXPECT_EQ(linee->model()->rowCount(), 2);
  const auto rimetti = [&] { QTest::keyClick(&*finestra, Qt::Key_Z, Qt::ControlModifier); };
  rimetti();
  EXPECT_EQ(linee->model()->rowCount(), 3);
  rimetti();
  EXPECT_EQ(form.Grafica1.Archivio().Linee().size(), prima);
  EXPECT_EQ(linee->currentIndex().row(), 3) << "the line that came back is the chosen one";
  linee->setCurrentIndex({}); // and no longer lit
  EXPECT_TRUE(SiVede(InMezzoAllUltima));
  rimetti(); // all are there
  DoppioClick(3);
  DoppioClick(2);
  QTest::keyClick(linee, Qt::Key_Delete);
  DoppioClick(0);
  EXPECT_EQ(form.List1, (std::vector<std::string>{"100 - 200", "100 - PF01/0010/G224"})) << "of two none goes";
}

TEST_F(LibrettoDisegno, SiAccendeLaLineaSottoIlPuntatoreELaScelta) {
  Mostra();
  const auto accesa = [&] { return form.Grafica1.Evidenza ? form.Grafica1.Evidenza->X2 : -1; };
  const QColor spenta = Tinta(InMezzo);
  Muovi(InMezzo);
  EXPECT_EQ(accesa(), 60);
  EXPECT_NE(Tinta(InMezzo), spenta);
  QTest::mouseClick(superficie, Qt::LeftButton, {}, superficie->Posto(InMezzo.x(), InMezzo.y()).toPoint());
  EXPECT_EQ(linee->currentIndex().data().toString(), QStringLiteral("100 - 200"));
  Muovi({-10, -3});
  QEvent uscita(QEvent::Leave);
  QApplication::sendEvent(superficie, &uscita);
  EXPECT_EQ(accesa(), 60) << "it is the one selected";
  linee->setFocus();
  QTest::keyClick(linee, Qt::Key_Down);
  EXPECT_EQ(accesa(), -30);
  EXPECT_EQ(form.LineaVicina({-15, 27}, 1), 1U);
  DoppioClick(1);
  EXPECT_EQ(accesa(), 30) << "the light goes on to the next one";
  EXPECT_EQ(form.LineaVicina({-15, 27}, 1), std::nullopt);
}

TEST_F(LibrettoDisegno, UnOpzioneSpentaNonSiSceglie) {
  Mostra();
  Clicca(Bottone("ORIENTA_LIBRETTO"));
  EXPECT_FALSE(Bottone("ORIENTA_LIBRETTO").isEnabled() || form.Opzioni.OrientaLibretto);
  EXPECT_TRUE(Bottone("ORIENTA_PRECEDENTE").isChecked());
  Clicca(Bottone("ORIENTA_AZIMUT"));
  EXPECT_FALSE(form.Opzioni.OrientaPrecedente || Bottone("ORIENTA_PRECEDENTE").isChecked());
  Clicca(Bottone("MANTIENI_8"));
  Clicca(Bottone("PF_DA_ESTRATTO"));
  EXPECT_FALSE(form.Opzioni.PfDaEstratto);
  Clicca(Bottone("MANTIENI_8"));
  Clicca(Bottone("PF_DA_ESTRATTO"));
  EXPECT_TRUE(form.Opzioni.PfDaEstratto);
}

TEST_F(LibrettoDisegno, DopoUnErroreLaFinestraRestaEIlBottoneNo) {
  auto disegno = LineeDelDisegno;
  disegno.emplace_back("7,|100|999|,LIVELLAZIONE RAGGIANTE,");
  Mostra(disegno);
  const std::string prima = banco.sessione.Libretto;
  Clicca(Bottone("Genera"));
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Rilevato errore");
  EXPECT_TRUE(finestra->isVisible() && finestra->findChild<QLabel*>(QStringLiteral("Avviso"))->isVisible());
  EXPECT_FALSE(Bottone("Genera").isEnabled());
  EXPECT_EQ(banco.sessione.Libretto, prima);
}

TEST(FinestraLibrettoDisegno, ChiudiTieneLeOpzioniENonScriveNulla) {
  Tavolo tavolo;
  Apparecchia(tavolo.banco, LineeDelDisegno);
  NellaProssimaFinestra([](QWidget& finestra) {
    QTest::mouseClick(finestra.findChild<QAbstractButton*>(QStringLiteral("METTI_CS")), Qt::LeftButton, {}, {9, 9});
    finestra.findChild<QAbstractButton*>(QStringLiteral("Chiudi"))->click();
  });
  tavolo.finestre.Apri("LibrettoDaDisegno");
  EXPECT_EQ(tavolo.banco.impostazioni.valori["LIBRETTO_AUTOMATICO/METTI_CS"], "1");
  EXPECT_EQ(tavolo.banco.sessione.EsitoForm, EsitoAnnullato);
  EXPECT_FALSE(tavolo.banco.disco.Esiste("C:\\RILIEVO.TXT"));
}

// Presses "Genera" once the window is up; the one before it takes a moment to go.
void PremiGenera(int volte = 200) {
  Dopo(10, [volte] {
    QWidget* finestra = QApplication::activeModalWidget();
    const bool questa = finestra != nullptr && finestra->objectName() == QStringLiteral("LibrettoDaDisegno");
    if (questa)
      finestra->findChild<QAbstractButton*>(QStringLiteral("Genera"))->click();
    else if (volte > 0)
      PremiGenera(volte - 1);
  });
}

// From the command line to the main window, through the real windows.
TEST(FinestraLibrettoDisegno, LAttoIntero) {
  Tavolo tavolo;
  Apparecchia(tavolo.banco, LineeDelDisegno);
  tavolo.banco.disco.Metti("C:\\RILIEVO.TXT", Testo({RigheDiProva()[0], RigheDiProva()[1]}));
  tavolo.banco.dialoghi.risposte = {Risposta::Si}; // the header goes on without a fiscal code
  const std::string disegno = tavolo.banco.disco.Contenuto("C:\\RILIEVO.LXC");
  NellaProssimaFinestra([](QWidget& intestazione) {
    EXPECT_EQ(intestazione.objectName(), QStringLiteral("FormCatasto1TXT"));
    PremiGenera();
    intestazione.findChild<QAbstractButton*>(QStringLiteral("Pulsante_0"))->click();
  });
  KR_LibrettoOriginale programma(tavolo.ambiente);
  EXPECT_FALSE(programma.Avvia("C:\\RILIEVO.LXC|LIBRETTO_DA_DISEGNO|")) << "it ends with the libretto";
  EXPECT_EQ(tavolo.banco.disco.Contenuto("C:\\RILIEVO.LXC"), disegno);
  EXPECT_TRUE(programma.Avvia("C:\\RILIEVO.TXT"));
  EXPECT_GT(tavolo.Elenco().Quante(), 15U);
  EXPECT_EQ(tavolo.Elenco().Riga(2), "3|3|100|200|300|");
}

} // namespace
} // namespace lirmeto::prova
