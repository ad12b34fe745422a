#include <ui/tavolo.h>

#include <ui/comune/barra_a_capo.h>
#include <ui/disegno/finestra_disegno.h>
#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/disegno/grafica_uscite.h>

#include <grafica/form_disegno.h>

#include <QClipboard>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QMimeData>
#include <QSvgRenderer>
#include <QWheelEvent>

#include <gtest/gtest.h>

#include <algorithm>

namespace lirmeto::prova {
namespace {

const std::string Estratto = "C:\\ESTRATTO.EMP";

// A square of a hundred metres with a parcel, a toponym and a fiducial point.
std::string TestoEstratto() {
  return Testo({"0|12032026|G224|0010|0000|12|6|", "8|1%|0|0|", "8|2%|0|100|", "8|3%|100|100|", "8|4%|100|0|",
                "8|5%|100.004|0.003|", "8|9T|50|20|0|VIA|", "8|PF01/0100/G224|60|60|",
                "7|5|1%|2%|3%|4%|1%|RC|12|12|500|"});
}

struct Disegno : testing::Test {
  Disegno() {
    banco.disco.Metti(Estratto, TestoEstratto());
    banco.sessione.CartellaProgramma = "C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO";
    banco.disco.cartelle.push_back(banco.sessione.CartellaProgramma);
    EXPECT_TRUE(modello.Apri(Estratto));
    finestra.emplace(modello);
    finestra->resize(900, 700);
    finestra->show();
    QApplication::setActiveWindow(&*finestra);
    QCoreApplication::processEvents();
    superficie = &finestra->Pannello().Superficie();
  }

  [[nodiscard]] Grafica& G() { return modello.Grafica1(); }
  [[nodiscard]] QPoint Dove(double x, double y) const { return superficie->Posto(x, y).toPoint(); }
  void Muovi(const QPoint& dove, Qt::MouseButtons tasti = Qt::NoButton) {
    QMouseEvent evento(QEvent::MouseMove, dove, superficie->mapToGlobal(dove), Qt::NoButton, tasti, {});
    QApplication::sendEvent(superficie, &evento);
  }
  void Entra() {
    QEnterEvent evento(QPointF(5, 5), QPointF(5, 5), superficie->mapToGlobal(QPointF(5, 5)));
    QApplication::sendEvent(superficie, &evento);
  }
  void Rotella(int ottavi) {
    QWheelEvent evento(QPointF(5, 5), superficie->mapToGlobal(QPointF(5, 5)), {}, {0, ottavi}, Qt::NoButton, {},
                       Qt::NoScrollPhase, false);
    QApplication::sendEvent(superficie, &evento);
  }
  void Premi(const QString& testo) {
    for (QAction* azione : finestra->findChild<ui::BarraACapo*>()->actions())
      if (azione->text() == testo) return azione->trigger();
    qFatal("no such button");
  }
  [[nodiscard]] QImage Foto() { return superficie->grab().toImage(); }
  // How many pixels of a picture are red, green or black, blurred ones too.
  static int Quanti(const QImage& foto, std::int16_t colore) {
    int quanti = 0;
    for (int y = 0; y < foto.height(); ++y)
      for (int x = 0; x < foto.width(); ++x) {
        const QColor pixel = foto.pixelColor(x, y);
        const int r = pixel.red(), g = pixel.green(), b = pixel.blue();
        quanti += colore == colore::RossoChiaro ? r > std::max(g, b) + 60
                  : colore == colore::Verde     ? g > std::max(r, b) + 30
                                                : std::max({r, g, b}) < 128;
      }
    return quanti;
  }

  Banco banco;
  FormDisegno modello{banco.ambiente};
  std::optional<ui::FinestraDisegno> finestra;
  ui::GraficaSuperficie* superficie = nullptr;
};

TEST_F(Disegno, IlLettoreDiceISovrappostiELeCoordinate) {
  auto* etichetta = superficie->findChild<QLabel*>(QStringLiteral("Label1"));
  EXPECT_FALSE(etichetta->isVisible());
  Muovi(Dove(1, 99));
  EXPECT_EQ(etichetta->text(), QStringLiteral("4% 5%"));
  EXPECT_TRUE(etichetta->isVisible() && superficie->rect().contains(etichetta->geometry()));
  const QString posto = finestra->findChild<QLabel*>(QStringLiteral("PostoMouse"))->text();
  EXPECT_TRUE(posto.startsWith(QStringLiteral("Est ")) && posto.contains(QStringLiteral("Nord 9")));
  QEvent uscita(QEvent::Leave);
  QApplication::sendEvent(superficie, &uscita);
  EXPECT_FALSE(etichetta->isVisible());
}

TEST_F(Disegno, RotellaPerTaccheESoloConIlPuntatoreSopra) {
  const double zoom = G().Vista().Zoom;
  Rotella(120);
  EXPECT_EQ(G().Vista().Zoom, zoom); // no hook: the pointer has not come in
  Entra();
  EXPECT_EQ(banco.sessione.HostGrafica, 14);
  Rotella(120);
  EXPECT_DOUBLE_EQ(G().Vista().Zoom, zoom * 0.9);
  for (int i = 0; i < 3; ++i) Rotella(-40); // thirds of a notch
  EXPECT_DOUBLE_EQ(G().Vista().Zoom, zoom * 0.9 * 1.1);
  QTest::keyClick(superficie, Qt::Key_Home);
  EXPECT_EQ(G().Vista().Zoom, zoom);
}

// A view moved with the middle button, which scrolls the picture, looks like one painted anew.
TEST_F(Disegno, SpostareEComeRidipingere) {
  Premi(QStringLiteral("Ingrandisci"));
  (void)Foto();
  const QPoint preso = Dove(50, 50);
  QTest::mousePress(superficie, Qt::MiddleButton, {}, preso);
  Muovi(preso + QPoint(83, -41), Qt::MiddleButton);
  EXPECT_EQ(superficie->cursor().shape(), Qt::SizeAllCursor);
  const QPoint lasciato = preso + QPoint(83, -41);
  EXPECT_LE((Dove(50, 50) - lasciato).manhattanLength(), 1);
  QTest::mouseRelease(superficie, Qt::MiddleButton, {}, lasciato);
  EXPECT_EQ(superficie->cursor().shape(), Qt::CrossCursor);
  QEvent uscita(QEvent::Leave);
  QApplication::sendEvent(superficie, &uscita);
  const QImage spostata = Foto();
  G().Vista().Check2 = true;
  (void)Foto();
  G().Vista().Check2 = false;
  EXPECT_EQ(spostata, Foto());
}

TEST_F(Disegno, ColoriClassiciEFlag) {
  EXPECT_GT(Quanti(Foto(), colore::RossoChiaro), 400); // the sides of the parcel
  EXPECT_GT(Quanti(Foto(), colore::Verde), 5);         // the toponym
  const int nero = Quanti(Foto(), colore::Nero);
  Premi(QStringLiteral("Nomi"));
  EXPECT_LT(Quanti(Foto(), colore::Nero), nero);
  Premi(QStringLiteral("Toponimi")); // loads again without it
  EXPECT_EQ(Quanti(Foto(), colore::Verde), 0);
  const std::size_t prima = G().Archivio().Punti().size();
  Premi(QStringLiteral("Fiduciali"));
  EXPECT_EQ(G().Archivio().Punti().size(), prima - 1);
}

TEST_F(Disegno, DestroApreIlMenuESinistroUsaLoStrumento) {
  QTest::mousePress(superficie, Qt::RightButton, {}, Dove(50, 50));
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(menu->actions().size(), 7);
  menu->close();
  G().Strumento = "NUOVOPUNTO";
  G().NomeNuovoPunto = "A*";
  QTest::mouseClick(superficie, Qt::LeftButton, {}, Dove(99, 1));
  EXPECT_TRUE(G().Archivio().Punti().back().Nome == "A*" && G().Archivio().Punti().back().X == 100);
}

// Names that would cover each other: one is left out until they are all wanted, or the view is nearer. What is exported
// tells all of them.
TEST_F(Disegno, INomiNonSiCopronoFinoAlBottone) {
  for (int i = 0; i < 60; ++i)
    G().KR_AggiungiPuntoGraf({"N" + std::to_string(i) + "%", 50 + i * 0.01, 50, 0, 12, {}, 0, "", 8});
  G().KR_RidisegnaGrafica();
  const int pochi = Quanti(Foto(), colore::RossoChiaro);
  EXPECT_EQ(G().Dipingi(1).testi.size(), 68U);
  Premi(QStringLiteral("Tutti i nomi"));
  const int tutti = Quanti(Foto(), colore::RossoChiaro);
  EXPECT_NE(tutti, pochi);
  const std::string svg = ui::ImmagineVista(G(), QSize(400, 300), 1, ".SVG");
  EXPECT_NE(svg.find(">N59%<"), std::string::npos);
  Premi(QStringLiteral("Tutti i nomi"));
  EXPECT_EQ(Quanti(Foto(), colore::RossoChiaro), pochi);
}

TEST_F(Disegno, RighelloColMouse) {
  const QImage prima = Foto();
  Premi(QStringLiteral("Righello"));
  QTest::mouseClick(superficie, Qt::LeftButton, {}, Dove(1, 1));
  QTest::mouseClick(superficie, Qt::LeftButton, {}, Dove(1, 98));
  EXPECT_EQ(G().Metro().Vertici(), (std::vector<PuntoPiano>{{0, 0}, {0, 100}}));
  EXPECT_NE(Foto(), prima);
  QTest::keyClick(superficie, Qt::Key_Delete);
  EXPECT_EQ(G().Metro().Vertici().size(), 1U);
  QTest::keyClick(superficie, Qt::Key_Escape);
  EXPECT_TRUE(finestra->isVisible() && !G().Metro().Acceso());
  QTest::mousePress(superficie, Qt::LeftButton, {}, Dove(50, 50));
  Muovi(Dove(60, 50), Qt::LeftButton);
  EXPECT_EQ(superficie->cursor().shape(), Qt::SizeAllCursor) << "the left button moves the view again";
}

TEST_F(Disegno, UnaRigaSceltaAccendeIlSuoPunto) {
  auto* righe = finestra->findChild<QListView*>(QStringLiteral("LibrettoOriginale"));
  ASSERT_TRUE(righe->isVisible());
  EXPECT_EQ(righe->model()->rowCount(), 9);
  const QImage prima = Foto();
  righe->setCurrentIndex(righe->model()->index(3, 0));
  EXPECT_EQ(G().PuntiEvidenza, std::vector<PuntoPiano>{(PuntoPiano{100, 100})});
  EXPECT_NE(Foto(), prima);
  Premi(QStringLiteral("Fiduciali")); // loaded again without a row
  EXPECT_EQ(righe->model()->rowCount(), 8);
  EXPECT_TRUE(G().PuntiEvidenza.empty());
  Premi(QStringLiteral("Righe"));
  EXPECT_FALSE(righe->isVisible());
}

// The picture of a sheet lies beside its extract under the same name: neither is ever proposed, and the drawing itself is
// not written over.
TEST_F(Disegno, LImmagineNonPrendeIlPostoDellEstratto) {
  banco.dialoghi.fileScelto = "c:\\estratto.emp";
  Premi(QStringLiteral("Immagine"));
  EXPECT_EQ(banco.dialoghi.detti.at(banco.dialoghi.detti.size() - 2).testo, "C:\\ESTRATTO_vista.PNG");
  EXPECT_EQ(banco.disco.Contenuto(Estratto), TestoEstratto());
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Rilevato errore");
}

TEST_F(Disegno, OgniBottoneHaLaSuaIcona) {
  for (const QAction* azione : finestra->Pannello().Barra().actions())
    EXPECT_TRUE(azione->isSeparator() || !azione->icon().isNull()) << azione->text().toStdString();
}

TEST_F(Disegno, ImmaginiDellaVista) {
  Premi(QStringLiteral("Copia"));
  EXPECT_EQ(QGuiApplication::clipboard()->image().size(), superficie->size());
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Copia Raster");
  const std::pair<const char*, const char*> casi[] = {
      {"C:\\A.PNG", "\x89PNG"}, {"C:\\A.SVG", "<?xml"}, {"C:\\A.PDF", "%PDF-"}, {"C:\\A", "(manca)"}};
  for (const auto& [file, inizio] : casi) {
    banco.dialoghi.fileScelto = file;
    Premi(QStringLiteral("Immagine"));
    EXPECT_TRUE(banco.disco.Contenuto(file).starts_with(inizio)) << file;
  }
  const std::string svg = banco.disco.Contenuto("C:\\A.SVG");
  EXPECT_TRUE(QSvgRenderer(QByteArray::fromStdString(svg)).isValid());
  EXPECT_NE(svg.find(">PF01/0100/G224<"), std::string::npos); // text stays text
  const QImage doppia = QImage::fromData(QByteArray::fromStdString(ui::ImmagineVista(G(), QSize(400, 300), 2, ".png")));
  EXPECT_EQ(doppia.size(), QSize(800, 600));
  EXPECT_GT(Quanti(doppia, colore::RossoChiaro), 400);
}

TEST_F(Disegno, SfogliaLasciaEFileRotti) {
  banco.disco.Metti("C:\\LINEE.CSV", "L,0,0,0,10,10,0,12,1,0\r\nP,1,0,0,0,,0\r\n");
  banco.dialoghi.fileScelto = "C:\\LINEE.CSV";
  Premi(QStringLiteral("Apri"));
  EXPECT_EQ(finestra->windowTitle(), QStringLiteral("Disegno : C:\\LINEE.CSV"));
  EXPECT_EQ(G().Archivio().Linee().size(), 1U);
  banco.dialoghi.fileScelto = "C:\\MANCA.EMP";
  Premi(QStringLiteral("Apri"));
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Rilevato errore");
  EXPECT_EQ(G().Archivio().Linee().size(), 1U);
  banco.disco.Metti("Z:\\TMP\\LASCIATO.EMP", TestoEstratto());
  QMimeData dati;
  dati.setUrls({QUrl::fromLocalFile(QStringLiteral("/tmp/LASCIATO.EMP"))});
  QDragEnterEvent entra(QPoint(50, 50), Qt::CopyAction, &dati, Qt::LeftButton, {});
  QApplication::sendEvent(&*finestra, &entra);
  EXPECT_TRUE(entra.isAccepted());
  QDropEvent lascia(QPointF(50, 50), Qt::CopyAction, &dati, Qt::LeftButton, {});
  QApplication::sendEvent(&*finestra, &lascia);
  QCoreApplication::processEvents();
  EXPECT_EQ(finestra->windowTitle(), QStringLiteral("Disegno : Z:\\tmp\\LASCIATO.EMP"));
  EXPECT_EQ(G().Archivio().Linee().size(), 4U);
}

} // namespace
} // namespace lirmeto::prova
