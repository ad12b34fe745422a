#include <ui/tavolo.h>

#include <ui/comune/aspetto.h>

#include <QScrollBar>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

using Indici = std::vector<std::size_t>;

// A view of its own over invented rows.
struct Vista {
  explicit Vista(std::size_t quante, const std::string& riga = "2|101|323.5725|100.2380|38.944|3.600|SPIGOLO|")
      : vista(elenco) {
    elenco.Riempi(Lista(std::vector<std::string>(quante, riga)));
    vista.resize(800, 400);
    vista.show();
    vista.Aggiorna();
    QCoreApplication::processEvents();
  }
  void Clicca(std::size_t riga, Qt::KeyboardModifiers modificatori = {}) {
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, modificatori, {200, vista.RettangoloRiga(riga).center().y()});
  }
  [[nodiscard]] Indici Selezionate() const {
    Indici quali;
    for (std::size_t i = 0; i < elenco.Quante(); ++i)
      if (elenco.Selezionata(i)) quali.push_back(i);
    return quali;
  }
  ElencoRighe elenco;
  ui::VistaRighe vista;
};

struct Gesto {
  const char* nome;
  std::function<void(Vista&)> fa;
  Indici attese;
  long indice;
};

class SelezioneConMouseETasti : public testing::TestWithParam<Gesto> {};

TEST_P(SelezioneConMouseETasti, PassaNellElenco) {
  Vista prova(10);
  GetParam().fa(prova);
  EXPECT_EQ(prova.Selezionate(), GetParam().attese);
  EXPECT_EQ(prova.elenco.Indice(), GetParam().indice);
}

void Tasto(Vista& v, Qt::Key tasto, Qt::KeyboardModifiers modificatori = {}) {
  QTest::keyClick(&v.vista, tasto, modificatori);
}

INSTANTIATE_TEST_SUITE_P(Gesti, SelezioneConMouseETasti,
                         testing::Values(Gesto{"click",
                                               [](Vista& v) {
                                                 v.Clicca(2);
                                                 v.Clicca(4);
                                               },
                                               {4},
                                               4},
                                         Gesto{"ctrl",
                                               [](Vista& v) {
                                                 v.Clicca(2);
                                                 v.Clicca(5, Qt::ControlModifier);
                                               },
                                               {2, 5},
                                               5},
                                         Gesto{"ctrlToglie",
                                               [](Vista& v) {
                                                 v.Clicca(2);
                                                 v.Clicca(2, Qt::ControlModifier);
                                               },
                                               {},
                                               2},
                                         Gesto{"maiusc",
                                               [](Vista& v) {
                                                 v.Clicca(5);
                                                 v.Clicca(3, Qt::ShiftModifier);
                                               },
                                               {3, 4, 5},
                                               3},
                                         Gesto{"maiuscDueVolte",
                                               [](Vista& v) {
                                                 v.Clicca(5);
                                                 v.Clicca(3, Qt::ShiftModifier);
                                                 v.Clicca(6, Qt::ShiftModifier);
                                               },
                                               {5, 6},
                                               6},
                                         Gesto{"ctrlMaiusc",
                                               [](Vista& v) {
                                                 v.Clicca(1);
                                                 v.Clicca(4, Qt::ControlModifier);
                                                 v.Clicca(6, Qt::ControlModifier | Qt::ShiftModifier);
                                               },
                                               {1, 4, 5, 6},
                                               6},
                                         Gesto{"trascina",
                                               [](Vista& v) {
                                                 const auto punto = [&](std::size_t riga) {
                                                   return QPoint(200, v.vista.RettangoloRiga(riga).center().y());
                                                 };
                                                 QTest::mousePress(v.vista.viewport(), Qt::LeftButton, {}, punto(2));
                                                 QMouseEvent muove(QEvent::MouseMove, punto(4),
                                                                   v.vista.viewport()->mapToGlobal(punto(4)),
                                                                   Qt::NoButton, Qt::LeftButton, {});
                                                 QCoreApplication::sendEvent(v.vista.viewport(), &muove);
                                                 QTest::mouseRelease(v.vista.viewport(), Qt::LeftButton, {}, punto(4));
                                               },
                                               {2, 3, 4},
                                               4},
                                         Gesto{"frecce",
                                               [](Vista& v) {
                                                 Tasto(v, Qt::Key_Home);
                                                 Tasto(v, Qt::Key_Down);
                                                 Tasto(v, Qt::Key_Down, Qt::ShiftModifier);
                                               },
                                               {1, 2},
                                               2},
                                         Gesto{"oltreLaFine",
                                               [](Vista& v) {
                                                 Tasto(v, Qt::Key_End);
                                                 Tasto(v, Qt::Key_Down);
                                                 Tasto(v, Qt::Key_PageDown);
                                               },
                                               {9},
                                               9},
                                         Gesto{"oltreLInizio",
                                               [](Vista& v) {
                                                 v.Clicca(1);
                                                 Tasto(v, Qt::Key_PageUp);
                                                 Tasto(v, Qt::Key_Up);
                                               },
                                               {0},
                                               0},
                                         Gesto{"soloIlCursore",
                                               [](Vista& v) {
                                                 v.Clicca(1);
                                                 Tasto(v, Qt::Key_Down, Qt::ControlModifier);
                                               },
                                               {1},
                                               2},
                                         Gesto{"spazio",
                                               [](Vista& v) {
                                                 v.Clicca(1);
                                                 Tasto(v, Qt::Key_Down, Qt::ControlModifier);
                                                 Tasto(v, Qt::Key_Space, Qt::ControlModifier);
                                               },
                                               {1, 2},
                                               2},
                                         Gesto{"tutte",
                                               [](Vista& v) {
                                                 v.Clicca(1);
                                                 Tasto(v, Qt::Key_A, Qt::ControlModifier);
                                               },
                                               {0, 1, 2, 3, 4, 5, 6, 7, 8, 9},
                                               1}),
                         [](const auto& caso) { return caso.param.nome; });

TEST(VistaRighe, SottoLUltimaRigaNonCENulla) {
  Vista prova(3);
  QTest::mouseClick(prova.vista.viewport(), Qt::LeftButton, {}, {200, 300});
  EXPECT_TRUE(prova.Selezionate().empty());
  EXPECT_EQ(prova.vista.RigaAlPunto({200, 300}), std::nullopt);
}

TEST(VistaRighe, TastiSuUnElencoVuoto) {
  Vista prova(0);
  QSignalSpy invio(&prova.vista, &ui::VistaRighe::Invio);
  for (const auto tasto : {Qt::Key_Down, Qt::Key_End, Qt::Key_A, Qt::Key_Space, Qt::Key_Return})
    QTest::keyClick(&prova.vista, tasto, Qt::ControlModifier);
  EXPECT_EQ(prova.elenco.Indice(), -1);
  EXPECT_EQ(invio.size(), 0);
}

// Pixels of the row that have exactly this colour.
int Pixel(ui::VistaRighe& vista, std::size_t riga, const QColor& colore) {
  const QImage immagine = vista.viewport()->grab(vista.RettangoloRiga(riga)).toImage();
  int quanti = 0;
  for (int y = 0; y < immagine.height(); ++y)
    for (int x = 0; x < immagine.width(); ++x) quanti += immagine.pixelColor(x, y) == colore ? 1 : 0;
  return quanti;
}

TEST(VistaRighe, UnaSelezioneFattaDaFuoriSiVede) {
  Vista prova(10);
  EXPECT_EQ(Pixel(prova.vista, 4, ui::ColoreSelezione()), 0);
  prova.elenco.SelezionaIntervallo(3, 5, true);
  prova.vista.Aggiorna();
  EXPECT_GT(Pixel(prova.vista, 4, ui::ColoreSelezione()), 1000);
  EXPECT_EQ(Pixel(prova.vista, 6, ui::ColoreSelezione()), 0);
}

TEST(VistaRighe, OgniGenereHaIlSuoColore) {
  Vista prova(1);
  for (const char* riga : {"1|100|", "2|101|", "3|2|", "4|1|", "5|1|", "6|x|", "7|1|", "8|1|"}) {
    prova.elenco.Cambia(0, riga);
    prova.vista.Aggiorna();
    EXPECT_GT(Pixel(prova.vista, 0, ui::ColoriDelGenere(riga).striscia), 20) << riga;
  }
}

TEST(VistaRighe, IlTestoCercatoSiVede) {
  Vista prova(10);
  EXPECT_EQ(Pixel(prova.vista, 1, ui::ColoreTrovato()), 0);
  prova.vista.Evidenzia("spigolo");
  EXPECT_GT(Pixel(prova.vista, 1, ui::ColoreTrovato()), 200);
  prova.vista.Evidenzia({});
  EXPECT_EQ(Pixel(prova.vista, 1, ui::ColoreTrovato()), 0);
}

TEST(VistaRighe, CentomilaRigheFinoAllUltima) {
  Vista prova(100'000);
  QTest::keyClick(&prova.vista, Qt::Key_End);
  EXPECT_EQ(prova.elenco.Indice(), 99'999);
  EXPECT_EQ(prova.Selezionate(), Indici{99'999});
  const QRect ultima = prova.vista.RettangoloRiga(99'999);
  EXPECT_TRUE(prova.vista.viewport()->rect().contains(ultima));
  EXPECT_EQ(prova.vista.RigaAlPunto(ultima.center()), 99'999U);
  EXPECT_GT(Pixel(prova.vista, 99'999, ui::ColoreSelezione()), 1000);
}

TEST(VistaRighe, RigaDiUnMilioneDiCaratteriFinoAllaFine) {
  Vista prova(3, "2|" + std::string(1'000'000, 'x') + "|FINE|");
  prova.vista.Evidenzia("fine");
  EXPECT_EQ(Pixel(prova.vista, 1, ui::ColoreTrovato()), 0);
  prova.vista.horizontalScrollBar()->setValue(prova.vista.horizontalScrollBar()->maximum());
  EXPECT_GT(Pixel(prova.vista, 1, ui::ColoreTrovato()), 100);
}

TEST(VistaRighe, MenoRigheRiduconoLoScorrimento) {
  Vista prova(1000);
  prova.vista.VaiA(999);
  prova.elenco.Riempi({"0|", "9|"});
  prova.vista.Aggiorna();
  EXPECT_EQ(prova.vista.verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(prova.vista.RigaAlPunto({200, 5}), 0U);
}

} // namespace
} // namespace lirmeto::prova
