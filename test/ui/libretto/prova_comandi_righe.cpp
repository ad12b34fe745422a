#include <ui/tavolo.h>

#include <ui/libretto/menu_principale.h>
#include <ui/libretto/pannello_pulsanti.h>

#include <QAction>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

using Indici = std::vector<std::size_t>;

void Voce(Tavolo& tavolo, const QString& titolo) {
  for (QAction* azione : tavolo.finestra->findChildren<QAction*>())
    if (azione->text().remove(u'&') == titolo) return azione->trigger();
  qFatal("no such menu entry");
}

ui::PannelloPulsanti& Pannello(Tavolo& tavolo) {
  return *tavolo.finestra->findChild<ui::PannelloPulsanti*>();
}

void Clicca(Tavolo& tavolo, int indice) {
  QTest::mouseClick(Pannello(tavolo).Bottone(indice), Qt::LeftButton);
}

QAction* VoceAnnulla(Tavolo& tavolo) {
  return ui::VoceDi(*tavolo.finestra->menuBar(), Comando::Annulla);
}

TEST(ComandiRighe, CtrlZECtrlYRidannoLeRighe) {
  Tavolo tavolo;
  EXPECT_FALSE(VoceAnnulla(tavolo)->isEnabled());
  tavolo.banco.dialoghi.risposte = {Risposta::Si};
  tavolo.Clicca(3);
  tavolo.Clicca(4, Qt::ShiftModifier);
  QTest::keyClick(tavolo.vista, Qt::Key_Delete);
  tavolo.Clicca(2);
  QTest::keyClick(tavolo.vista, Qt::Key_Delete);
  EXPECT_EQ(tavolo.Elenco().Quante(), 3U);
  EXPECT_EQ(VoceAnnulla(tavolo)->text(), QStringLiteral("&Annulla Elimina Righe"));
  const auto premi = [&](Qt::Key tasto) {
    QTest::keyClick(tavolo.vista, tasto, Qt::ControlModifier);
    return tavolo.Elenco().Quante();
  };
  EXPECT_EQ(premi(Qt::Key_Z), 4U);
  EXPECT_EQ(tavolo.Selezionate(), Indici{2}) << "what came back is shown";
  EXPECT_EQ(premi(Qt::Key_Z), 6U);
  EXPECT_EQ(tavolo.banco.Righe(), RigheDiProva());
  EXPECT_EQ(premi(Qt::Key_Z), 6U);
  EXPECT_EQ(Figlio<QLabel>(tavolo, "EtichettaPosizione").text(), QStringLiteral("4/6"));
  EXPECT_EQ(premi(Qt::Key_Y), 4U);
  EXPECT_EQ(premi(Qt::Key_Y), 3U);
  EXPECT_EQ(premi(Qt::Key_Y), 3U);
}

TEST(ComandiRighe, CtrlZNellaDittaAnnullaLaScrittura) {
  Tavolo tavolo;
  tavolo.banco.appunti.testo = "x\t1\t2\r\n";
  Voce(tavolo, QStringLiteral("Righe 8 - (P, N, E)"));
  auto& ditta = Figlio<QPlainTextEdit>(tavolo, "CasellaDitta");
  ditta.setFocus();
  QTest::keyClicks(&ditta, QStringLiteral("rossi"));
  QTest::keyClick(&ditta, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(tavolo.Elenco().Quante(), 7U);
  EXPECT_NE(ditta.toPlainText(), QStringLiteral("ROSSI"));
}

TEST(ComandiRighe, IPulsantiDelleRigheFannoIlLoroComando) {
  auto righe = RigheDiProva();
  righe.insert(righe.begin() + 4, "2|G1|1,2,3|q|PDOP=1|0|NOTA|");
  Tavolo tavolo(righe);
  Clicca(tavolo, 27);
  EXPECT_EQ(tavolo.Selezionate(), Indici{2});
  Clicca(tavolo, 28);
  EXPECT_EQ(tavolo.Selezionate(), (Indici{5, 6}));
  Clicca(tavolo, 30);
  EXPECT_EQ(tavolo.Selezionate(), (Indici{0, 1, 2, 3, 4}));
  Voce(tavolo, QStringLiteral("Seleziona Squadri"));
  EXPECT_TRUE(tavolo.Selezionate().empty());
  tavolo.Clicca(4);
  Clicca(tavolo, 11);
  EXPECT_EQ(tavolo.Elenco().Riga(4), "2|G1|1,2,3|q|PDOP=1|0|NOTA [VRS]|");
  Clicca(tavolo, 5);
  EXPECT_EQ(tavolo.banco.Righe(), righe);
  Clicca(tavolo, 31);
  EXPECT_EQ(tavolo.banco.appunti.testo, Testo(righe));
  EXPECT_EQ(tavolo.banco.dialoghi.detti.back().titolo, "Copia Libretto");
}

TEST(ComandiRighe, LeRigheScartateSiLeggonoInBasso) {
  auto righe = RigheDiProva();
  righe.emplace_back("6|a|b|c|");
  Tavolo tavolo(righe);
  auto& avviso = Figlio<QToolButton>(tavolo, "Scartate");
  EXPECT_FALSE(avviso.isVisible());
  QTest::keyClick(&*tavolo.finestra, Qt::Key_F5);
  ASSERT_TRUE(avviso.isVisible());
  EXPECT_EQ(avviso.text(), QStringLiteral("Scartata 1 riga senza classe"));
  NellaProssimaFinestra([&](QWidget& finestra) {
    EXPECT_EQ(finestra.findChild<QListView*>()->model()->index(0, 0).data().toString(), QStringLiteral("6|a|b|c|"));
    finestra.findChild<QPushButton*>(QStringLiteral("Copia"))->click();
    finestra.findChild<QPushButton*>(QStringLiteral("Chiudi"))->click();
  });
  QTest::mouseClick(&avviso, Qt::LeftButton);
  EXPECT_EQ(tavolo.banco.appunti.testo, "6|a|b|c|\r\n");
  EXPECT_TRUE(avviso.isVisible());
  QApplication::setActiveWindow(&*tavolo.finestra); // a platform without a display does not give it back
  QTest::keyClick(tavolo.vista, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_FALSE(avviso.isVisible());
  EXPECT_EQ(tavolo.banco.Righe(), righe);
}

TEST(ComandiRighe, Autore) {
  Tavolo tavolo;
  QString titolo;
  NellaProssimaFinestra([&](QWidget& finestra) {
    titolo = finestra.windowTitle();
    finestra.findChild<QPushButton*>(QStringLiteral("Chiudi"))->click();
  });
  Voce(tavolo, QStringLiteral("Autore"));
  EXPECT_EQ(titolo, QStringLiteral("Autore"));
}

} // namespace
} // namespace lirmeto::prova
