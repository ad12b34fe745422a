// An hour's work by the keys alone: every step is reached from where the one before has left the keys.
#include <ui/tavolo.h>

#include <QAction>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

// The keys go to whatever has them.
void Premi(Qt::Key tasto, Qt::KeyboardModifiers modificatori = {}) {
  QWidget* dove = QApplication::activePopupWidget();
  if (dove == nullptr) dove = QApplication::focusWidget();
  if (dove == nullptr) dove = QApplication::activeWindow();
  ASSERT_NE(dove, nullptr);
  QTest::keyClick(dove, tasto, modificatori);
}

void Scrivi(const char* testo) {
  QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(testo));
}

// The key of the underlined letter of a text.
Qt::Key Lettera(const QString& testo) {
  return static_cast<Qt::Key>(testo[testo.indexOf(u'&') + 1].toUpper().unicode());
}

// Through the menu bar by its letters.
void DalMenu(Tavolo& tavolo, const char* menu, const char* voce) {
  for (QAction* uno : tavolo.finestra->menuBar()->actions()) {
    if (uno->text().remove(u'&') != QString::fromLatin1(menu)) continue;
    for (QAction* sua : uno->menu()->actions()) {
      if (sua->text().remove(u'&') != QString::fromLatin1(voce)) continue;
      QTest::keyClick(&*tavolo.finestra, Lettera(uno->text()), Qt::AltModifier);
      ASSERT_EQ(QApplication::activePopupWidget(), uno->menu());
      return Premi(Lettera(sua->text()));
    }
  }
  FAIL() << menu << " " << voce;
}

// A modal window that comes up gets the keys, as a window manager would see to it.
void InFinestra(const std::function<void(QWidget&)>& azione) {
  NellaProssimaFinestra([azione](QWidget& finestra) {
    QApplication::setActiveWindow(&finestra);
    QTest::qWait(1);
    azione(finestra);
  });
}

// To the box of a caption, by Alt and its letter.
void AllaCasella(QWidget& finestra, const char* nome) {
  auto* casella = finestra.findChild<QLineEdit*>(QString::fromLatin1(nome));
  ASSERT_NE(casella, nullptr);
  for (const QLabel* etichetta : finestra.findChildren<QLabel*>())
    if (etichetta->buddy() == casella) QTest::keyClick(&finestra, Lettera(etichetta->text()), Qt::AltModifier);
  EXPECT_EQ(QApplication::focusWidget(), casella) << nome;
}

TEST(Giro, ConISoliTasti) {
  Tavolo tavolo;
  tavolo.banco.dialoghi.risposte = {Risposta::Si};
  ASSERT_TRUE(tavolo.vista->hasFocus());

  // The header, from the menu: protocol and sheet, Enter confirms.
  InFinestra([](QWidget& finestra) {
    AllaCasella(finestra, "Text1_1");
    Premi(Qt::Key_A, Qt::ControlModifier);
    Scrivi("77");
    AllaCasella(finestra, "Text1_3");
    Premi(Qt::Key_A, Qt::ControlModifier);
    Scrivi("12a");
    Premi(Qt::Key_Return);
    EXPECT_FALSE(finestra.isVisible());
  });
  DalMenu(tavolo, "Modifica Libretto", "Riga 0-9");
  QApplication::setActiveWindow(&*tavolo.finestra);
  EXPECT_EQ(tavolo.Elenco().Riga(0).substr(11, 13), "77|G224|0012A");

  // A field of the fourth row, then back to the list, and the row a second time further down.
  tavolo.vista->setFocus();
  Premi(Qt::Key_Home);
  for (int i = 0; i < 3; ++i) Premi(Qt::Key_Down);
  Premi(Qt::Key_F4);
  for (int i = 0; i < 3; ++i) Premi(Qt::Key_Tab);
  Scrivi("40,5");
  Premi(Qt::Key_Return);
  Premi(Qt::Key_Escape);
  ASSERT_TRUE(tavolo.vista->hasFocus());
  Premi(Qt::Key_C, Qt::ControlModifier);
  Premi(Qt::Key_Down);
  Premi(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(tavolo.Elenco().Riga(5), "2|205|323.5725|100.2380|40.5|3.600|SPIGOLO|");
  EXPECT_EQ(tavolo.Elenco().Indice(), 5);

  // The same row in the editor, which opens at it; Esc asks, and saves.
  InFinestra([](QWidget& finestra) {
    Premi(Qt::Key_End);
    Scrivi("X|");
    Premi(Qt::Key_Escape);
    EXPECT_FALSE(finestra.isVisible());
  });
  Premi(Qt::Key_F2);
  QApplication::setActiveWindow(&*tavolo.finestra);
  EXPECT_EQ(tavolo.Elenco().Riga(5), "2|205|323.5725|100.2380|40.5|3.600|SPIGOLO|X|");
  Premi(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(tavolo.Elenco().Riga(5), "2|205|323.5725|100.2380|40.5|3.600|SPIGOLO|");

  // The row goes, the rows are put in order, and the file is saved.
  ASSERT_TRUE(tavolo.vista->hasFocus());
  EXPECT_EQ(tavolo.Elenco().Indice(), 5);
  Premi(Qt::Key_Delete);
  EXPECT_EQ(tavolo.Elenco().Quante(), 6U);
  Premi(Qt::Key_F5);
  Premi(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(Contiene(tavolo.banco.disco.Contenuto("C:\\LIBRETTO.DAT"), "|77|G224|0012A|"));

  // The rows to be printed, and away.
  bool stampa = false;
  InFinestra([&](QWidget& finestra) {
    stampa = finestra.windowTitle() == QStringLiteral("Stampa Generale");
    Premi(Qt::Key_Escape);
    EXPECT_FALSE(finestra.isVisible());
  });
  Premi(Qt::Key_P, Qt::ControlModifier);
  EXPECT_TRUE(stampa);
}

} // namespace
} // namespace lirmeto::prova
