#include <ui/tavolo.h>

#include <ui/libretto/striscia_campi.h>

#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

QLineEdit& Casella(Tavolo& tavolo, int quale) {
  return Figlio<QLineEdit>(tavolo, QStringLiteral("Campo_%1").arg(quale).toLatin1().constData());
}

QString Mostrate(Tavolo& tavolo) {
  QStringList testi;
  for (const QLineEdit* casella : tavolo.finestra->findChild<ui::StrisciaCampi*>()->findChildren<QLineEdit*>())
    if (casella->isVisible()) testi.append(casella->accessibleName() + u'=' + casella->text());
  return testi.join(u' ');
}

const std::string& Prima() {
  return RigheDiProva()[3]; // 2|205|323.5725|100.2380|38.944|3.600|SPIGOLO|
}

TEST(StrisciaCampi, F4InvioEscEAnnulla) {
  Tavolo tavolo;
  tavolo.Clicca(3);
  EXPECT_EQ(Mostrate(tavolo), QStringLiteral("Punto=205 Hz (gon)=323.5725 Zenit (gon)=100.2380 "
                                             "Distanza inclinata (m)=38.944 Altezza prisma (m)=3.600 Nota=SPIGOLO"));
  QTest::keyClick(tavolo.vista, Qt::Key_F4);
  ASSERT_TRUE(Casella(tavolo, 0).hasFocus());
  QTest::keyClicks(&Casella(tavolo, 0), QStringLiteral("2|06")); // the whole text is selected, a bar is no letter
  QTest::keyClick(&Casella(tavolo, 0), Qt::Key_Escape);
  EXPECT_EQ(tavolo.Elenco().Riga(3), Prima());
  EXPECT_TRUE(tavolo.vista->hasFocus());
  QTest::keyClick(tavolo.vista, Qt::Key_F4);
  QTest::keyClicks(&Casella(tavolo, 0), QStringLiteral("2|06"));
  QTest::keyClick(&Casella(tavolo, 0), Qt::Key_Return);
  EXPECT_EQ(tavolo.Elenco().Riga(3), "2|206|323.5725|100.2380|38.944|3.600|SPIGOLO|");
  EXPECT_TRUE(Casella(tavolo, 0).hasFocus());
  QTest::keyClick(&Casella(tavolo, 0), Qt::Key_Tab);
  QTest::keyClicks(&Casella(tavolo, 1), QStringLiteral("12,5"));
  QTest::keyClick(&Casella(tavolo, 1), Qt::Key_Tab); // a box that is left is taken
  EXPECT_EQ(tavolo.Elenco().Riga(3), "2|206|12.5|100.2380|38.944|3.600|SPIGOLO|");
  tavolo.modello.Esegui(Comando::Annulla);
  tavolo.modello.Esegui(Comando::Annulla);
  EXPECT_EQ(tavolo.Elenco().Riga(3), Prima());
}

// The arrows go to the next row and stay in the box; what is typed belongs to the row that is left.
TEST(StrisciaCampi, LeFrecceVannoAllaRigaAccanto) {
  Tavolo tavolo;
  tavolo.Clicca(3);
  QTest::keyClick(tavolo.vista, Qt::Key_F4);
  QTest::keyClicks(&Casella(tavolo, 0), QStringLiteral("7"));
  QTest::keyClick(&Casella(tavolo, 0), Qt::Key_Up);
  EXPECT_TRUE(tavolo.Elenco().Riga(3).starts_with("2|7|"));
  EXPECT_EQ(tavolo.Elenco().Indice(), 2);
  EXPECT_EQ(Casella(tavolo, 0).text(), QStringLiteral("100"));
  EXPECT_TRUE(Casella(tavolo, 0).hasFocus());
}

TEST(StrisciaCampi, UnComandoTrovaCioCheEScritto) {
  Tavolo tavolo;
  tavolo.Clicca(3);
  QTest::keyClick(tavolo.vista, Qt::Key_F4);
  QTest::keyClicks(&Casella(tavolo, 0), QStringLiteral("9"));
  QTest::keyClick(&Casella(tavolo, 0), Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(Contiene(tavolo.banco.disco.Contenuto("C:\\LIBRETTO.DAT"), "2|9|323.5725|"));
  tavolo.Clicca(0);
  QTest::keyClick(tavolo.vista, Qt::Key_F4);
  QTest::keyClick(&Casella(tavolo, 0), Qt::Key_Tab);
  QTest::keyClicks(&Casella(tavolo, 1), QStringLiteral("41"));
  QTest::keyClick(&Casella(tavolo, 1), Qt::Key_Return);
  EXPECT_TRUE(tavolo.finestra->windowTitle().contains(QStringLiteral("[41 12032026]")));
}

TEST(MenuDelleRighe, CopiaTagliaIncollaDallElencoENonDalleCaselle) {
  Tavolo tavolo;
  tavolo.Clicca(2);
  tavolo.Clicca(3, Qt::ShiftModifier);
  QTest::keyClick(tavolo.vista, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(tavolo.banco.appunti.testo, Testo({RigheDiProva()[2], RigheDiProva()[3]}));
  QTest::keyClick(tavolo.vista, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(tavolo.Elenco().Quante(), 4U);
  tavolo.Clicca(3);
  QTest::keyClick(tavolo.vista, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(tavolo.Elenco().Riga(5), RigheDiProva()[3]);
  EXPECT_EQ(tavolo.Selezionate(), (std::vector<std::size_t>{4, 5}));
  auto& ditta = Figlio<QPlainTextEdit>(tavolo, "CasellaDitta");
  ditta.setFocus();
  QTest::keyClick(&ditta, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(&ditta, Qt::Key_X, Qt::ControlModifier);
  EXPECT_EQ(tavolo.Elenco().Quante(), 6U);
  EXPECT_EQ(tavolo.Selezionate().size(), 2U);
}

// The right button chooses the row it is pressed on; every entry is one of the menu bar.
TEST(MenuDelleRighe, SonoLeVociDelMenu) {
  Tavolo tavolo;
  tavolo.Clicca(2);
  QContextMenuEvent evento(QContextMenuEvent::Mouse, tavolo.Punto(4),
                           tavolo.vista->viewport()->mapToGlobal(tavolo.Punto(4)));
  QApplication::sendEvent(tavolo.vista->viewport(), &evento);
  auto* menu = tavolo.finestra->findChild<QMenu*>(QStringLiteral("MenuRighe"));
  ASSERT_NE(menu, nullptr);
  EXPECT_EQ(tavolo.Selezionate(), (std::vector<std::size_t>{4}));
  int voci = 0;
  for (QAction* voce : menu->actions()) {
    if (voce->isSeparator()) continue;
    EXPECT_TRUE(tavolo.finestra->menuBar()->findChildren<QAction*>().contains(voce)) << voce->text().toStdString();
    ++voci;
  }
  EXPECT_GE(voci, 10);
  menu->close();
}

} // namespace
} // namespace lirmeto::prova
