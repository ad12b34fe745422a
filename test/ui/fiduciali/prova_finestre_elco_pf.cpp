#include <ui/tavolo.h>

#include <ui/comune/barra_a_capo.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/fiduciali/finestra_elco_pf.h>
#include <ui/fiduciali/finestra_elco_pf_grafica.h>
#include <ui/fiduciali/finestra_elco_pf_griglia.h>

#include <core/cartelle.h>

#include <QCheckBox>
#include <QClipboard>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>
#include <QTableView>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

const std::string Dati = "C:\\fiducial\\DATI\\";
const std::string Programma = "C:\\users\\prova\\Documents\\LIRMETO\\";
const std::string Forvale = "C:\\users\\prova\\Documents\\Forvale\\TEMP\\";

std::string Linea(const std::string& foglio, const std::string& numero, const std::string& nord,
                  const std::string& est) {
  const std::string inizio = RiempiECorta("G224   " + foglio + " 0   " + numero, 29) + "CHIESA";
  return RiempiECorta(RiempiECorta(inizio, 102) + nord, 115) + est + "\r\n";
}

void Metti(Banco& banco) {
  CreaCartelle(banco.ambiente);
  banco.disco.Metti(Dati + "G224.taf", Linea("001", "01", "0", "0") + Linea("001", "02", "100", "1000") +
                                           Linea("002", "03", "500", "600") + Linea("002", "04", "500", "100"));
  banco.disco.Metti(Dati + "PD.DDD", "PF01/0010/G224 - PF02/0010/G224       1.0\r\n"
                                     "PF02/0010/G224 - PF03/0020/G224       1.0\r\n");
}

struct Piano : testing::Test {
  Piano() {
    Metti(banco);
    CaricaPunti(banco.ambiente, tabella);
    modello.emplace(banco.ambiente, tabella);
    modello->AlCaricamento();
    finestra.emplace(*modello);
    finestra->show();
    QApplication::setActiveWindow(&*finestra);
    QCoreApplication::processEvents();
    superficie = &finestra->Superficie();
  }
  void Premi(const QString& testo) {
    for (ui::BarraACapo* barra : finestra->findChildren<ui::BarraACapo*>())
      for (QAction* azione : barra->actions())
        if (azione->text() == testo) return azione->trigger();
    qFatal("no such button");
  }
  [[nodiscard]] QPoint Dove(double x, double y) const { return superficie->Posto(x, y).toPoint(); }
  void Clic(double x, double y) { QTest::mouseClick(superficie, Qt::LeftButton, {}, Dove(x, y)); }
  [[nodiscard]] std::string Scelti() const {
    std::string scelti;
    for (const PuntoPF& punto : modello->Punti) scelti += punto.Selezionato() ? 'S' : '-';
    return scelti;
  }

  Banco banco;
  TabellaPF tabella{"G224", "PADOVA", "PD", {}};
  std::optional<KR_ElcoPFGrafica> modello;
  std::optional<ui::FinestraElcoPfGrafica> finestra;
  ui::GraficaSuperficie* superficie = nullptr;
};

// What each button writes, opens or says.
TEST_F(Piano, OgniComandoFaCioCheDice) {
  const auto scrive = [&](const QString& bottone, const std::string& file) {
    banco.disco.file.erase(Maiuscolo(file));
    Premi(bottone);
    EXPECT_TRUE(banco.disco.Esiste(file)) << bottone.toStdString();
  };
  Premi(QStringLiteral("Misurate"));
  EXPECT_EQ(modello->Segmenti.size(), 2U);
  Premi(QStringLiteral("Tutti"));
  scrive(QStringLiteral("DXF"), Programma + "GraficaPF.DXF");
  scrive(QStringLiteral("Stampa"), Programma + "Stampe.TXT");
  scrive(QStringLiteral("Stampa punti"), Programma + "temp\\Stampa_Fiduciali.CSV");
  EXPECT_TRUE(Contiene(banco.disco.Contenuto(Programma + "temp\\Stampa_Fiduciali.TXT"), "PF04/0020/G224"));
  QGuiApplication::clipboard()->clear();
  Premi(QStringLiteral("Copia"));
  EXPECT_FALSE(QGuiApplication::clipboard()->image().isNull());
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Contenuto Schermo copiato negli Appunti!");
  scrive(QStringLiteral("Nel disegno"), Forvale + "CopiaInFile.txt");
  EXPECT_TRUE(modello->TuttoChiuso && !finestra->isVisible());
}

TEST_F(Piano, LaVistaSiMuoveConBottoniTastiERotella) {
  const double larga = modello->Larghezza();
  const double xc = modello->Grafica1().Vista().Xc;
  Premi(QStringLiteral("Ingrandisci"));
  EXPECT_DOUBLE_EQ(modello->Larghezza(), larga * 0.8);
  QTest::keyClick(superficie, Qt::Key_Right);
  EXPECT_DOUBLE_EQ(modello->Grafica1().Vista().Xc, xc + larga * 0.8 * 0.2);
  QTest::keyClick(superficie, Qt::Key_Home);
  EXPECT_DOUBLE_EQ(modello->Larghezza(), larga);
  finestra->resize(finestra->width() - 300, finestra->height());
  QCoreApplication::processEvents();
  (void)superficie->grab();
  EXPECT_NEAR(modello->Larghezza(), larga, 1e-6) << "the width of the view stays";
}

TEST_F(Piano, GliStrumentiDelMouse) {
  Premi(QStringLiteral("Foglio"));
  Clic(610, 490);
  EXPECT_EQ(Scelti(), "--SS");
  Premi(QStringLiteral("Inverti"));
  EXPECT_EQ(Scelti(), "SS--");
  Premi(QStringLiteral("Nessuno"));
  NellaProssimaFinestra([](QWidget& domanda) {
    QTest::keyClicks(domanda.findChild<QLineEdit*>(), QStringLiteral("450"));
    QTest::keyClick(&domanda, Qt::Key_Return);
  });
  ui::FinestreQt finestre;
  Ambiente ambiente{banco.sessione, banco.disco,        banco.dialoghi, finestre,
                    banco.processi, banco.impostazioni, banco.appunti,  banco.orologio};
  KR_ElcoPFGrafica conFinestre(ambiente, tabella);
  conFinestre.AlCaricamento();
  conFinestre.Seleziona(SelezionePF::Intorno);
  conFinestre.Clic({1000, 500});
  EXPECT_TRUE(conFinestre.Punti[1].Selezionato() && conFinestre.Punti[2].Selezionato());
  EXPECT_EQ(conFinestre.Selezionati(), 2U);
  Premi(QStringLiteral("Foglio"));
  QTest::keyClick(&*finestra, Qt::Key_Escape);
  Clic(610, 490);
  EXPECT_EQ(Scelti(), "----") << "Esc left the tool";
  EXPECT_TRUE(finestra->isVisible());
  Premi(QStringLiteral("Finestra"));
  const QPoint primo = Dove(500, 450), secondo = Dove(700, 550);
  QTest::mousePress(superficie, Qt::LeftButton, {}, primo);
  QMouseEvent mossa(QEvent::MouseMove, secondo, superficie->mapToGlobal(secondo), Qt::NoButton, Qt::LeftButton, {});
  QApplication::sendEvent(superficie, &mossa);
  QTest::mouseRelease(superficie, Qt::LeftButton, {}, secondo);
  EXPECT_NEAR(modello->Grafica1().Vista().Xc, 600, 3);
  EXPECT_LT(modello->Larghezza(), 300);
}

TEST_F(Piano, IlRighelloMisuraEConEscLascia) {
  Premi(QStringLiteral("Foglio")); // the ruler puts an armed tool down
  Premi(QStringLiteral("Righello"));
  for (const double est : {605.0, 103.0}) Clic(est, 500); // near two points, which it takes
  EXPECT_NEAR(modello->Grafica1().Metro().Misura().totale, 500, 1e-6);
  EXPECT_EQ(Scelti(), "----");
  QTest::keyClick(superficie, Qt::Key_Escape);
  EXPECT_FALSE(modello->Grafica1().Metro().Acceso());
  EXPECT_TRUE(finestra->isVisible());
}

TEST_F(Piano, SiDiceCheCosaStaSottoIlMouse) {
  const QPoint punto = Dove(600, 500);
  QMouseEvent mossa(QEvent::MouseMove, punto, superficie->mapToGlobal(punto), Qt::NoButton, Qt::NoButton, {});
  QApplication::sendEvent(superficie, &mossa);
  const QString detto = finestra->findChild<QLabel*>(QStringLiteral("PostoMouse"))->text();
  EXPECT_TRUE(detto.contains(QStringLiteral(" Scala : 1:")) &&
              detto.contains(QStringLiteral("PF03/0020/G224 - 500.000 / 600.000 / CHIESA")))
      << detto.toStdString();
  const QImage conNomi = superficie->grab().toImage();
  finestra->findChild<QCheckBox*>(QStringLiteral("Check1"))->setChecked(false);
  EXPECT_NE(superficie->grab().toImage(), conNomi);
}

TEST(FinestreElcoPf, DalloStrumentoAllaTabellaAlPianoESiChiudonoTutte) {
  Tavolo tavolo;
  Metti(tavolo.banco);
  tavolo.banco.sessione.CodiceComune = "G224";
  NellaProssimaFinestra([&](QWidget& scelta) {
    QTest::keyClicks(scelta.findChild<QLineEdit*>(), QStringLiteral("g22"));
    ASSERT_EQ(scelta.findChild<QListView*>()->model()->rowCount(), 1);
    NellaProssimaFinestra([&](QWidget& griglia) {
      auto* tabella = griglia.findChild<QTableView*>();
      auto* testata = tabella->horizontalHeader();
      const auto cella = [&](int riga) { return tabella->model()->index(riga, 0).data().toString(); };
      for (int i = 0; i < 2; ++i)
        QTest::mouseClick(testata->viewport(), Qt::LeftButton, {}, {testata->sectionViewportPosition(3) + 5, 5});
      EXPECT_EQ(cella(3), QStringLiteral("PF01/0010/G224"));
      auto* cerca = griglia.findChild<QLineEdit*>();
      QTest::keyClicks(cerca, QStringLiteral("/0020"));
      ASSERT_EQ(tabella->model()->rowCount(), 2);
      QApplication::setActiveWindow(&griglia);
      tabella->setFocus();
      tabella->selectRow(1);
      QTest::keyClick(tabella, Qt::Key_C, Qt::ControlModifier);
      EXPECT_TRUE(tavolo.banco.appunti.testo.starts_with(ui::DaQString(cella(1)) + "\t\t\t500\t"))
          << tavolo.banco.appunti.testo;
      NellaProssimaFinestra([&](QWidget& piano) {
        for (QAction* azione : piano.findChild<ui::BarraACapo*>()->actions())
          if (azione->data() == 7) return azione->trigger();
      });
      const QPoint riga = tabella->visualRect(tabella->model()->index(0, 0)).center();
      QTest::mouseClick(tabella->viewport(), Qt::LeftButton, {}, riga);
      QTest::mouseDClick(tabella->viewport(), Qt::LeftButton, {}, riga);
    });
    QTest::mouseClick(scelta.findChild<QPushButton*>(QStringLiteral("Conferma")), Qt::LeftButton);
    EXPECT_FALSE(scelta.isVisible());
  });
  tavolo.modello.EseguiStrumento("gestione_pf");
  EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "PF copiati!");
  EXPECT_EQ(tavolo.banco.sessione.CodiceComune, "G224");
}

} // namespace
} // namespace lirmeto::prova
