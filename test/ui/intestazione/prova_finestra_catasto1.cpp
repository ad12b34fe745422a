#include <ui/tavolo.h>

#include <ui/intestazione/finestra_catasto1.h>
#include <ui/libretto/pannello_pulsanti.h>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

const std::string Programma = "C:\\users\\prova\\Documents\\LIRMETO";
const std::string CodiceGiusto = "RSSMRA85T10A562S";

// The form's window played by its user.
struct Mano {
  QWidget& finestra;

  template <typename T>
  [[nodiscard]] T& Figlio(const QString& nome) const {
    auto* figlio = finestra.findChild<T*>(nome);
    if (figlio == nullptr) qFatal("no such widget");
    return *figlio;
  }
  [[nodiscard]] QLineEdit& Casella(std::size_t indice) const {
    return Figlio<QLineEdit>(QStringLiteral("Text1_%1").arg(indice));
  }
  // Writes into the box that the keys go to, in the place of what it held, and goes on to the next one.
  void Scrivi(const char* testo) const {
    auto* casella = QApplication::focusWidget();
    QTest::keyClick(casella, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(casella, QString::fromLatin1(testo));
    Avanti();
  }
  void Avanti() const {
    do QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    while (qobject_cast<QPushButton*>(QApplication::focusWidget()) != nullptr);
  }
  void Clicca(int pulsante) const {
    QTest::mouseClick(&Figlio<QPushButton>(QStringLiteral("Pulsante_%1").arg(pulsante)), Qt::LeftButton);
  }
};

// From the entry of the list to its box, by the keys.
void ScegliDaElenco(const QComboBox& elenco, int quanteVolteGiu) {
  for (int i = 0; i < quanteVolteGiu; ++i) QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
  EXPECT_TRUE(elenco.hasFocus());
}

TEST(FinestraCatasto1, UnAttoDaZero) {
  Tavolo tavolo;
  bool mostrata = false;
  NellaProssimaFinestra([&](QWidget& finestra) {
    const Mano mano{finestra};
    mostrata = true;
    QApplication::setActiveWindow(&finestra);
    EXPECT_EQ(QApplication::focusWidget(), &mano.Casella(casella::Data));
    mano.Scrivi("221126");
    EXPECT_EQ(mano.Casella(casella::Data).text(), QStringLiteral("22112026"));
    mano.Scrivi("44");
    mano.Scrivi("E098");
    EXPECT_EQ(mano.Figlio<QLabel>(QStringLiteral("NomeComune")).text(), QStringLiteral("GORIZIA (GO)"));
    mano.Scrivi("7B");
    mano.Scrivi("12,3,12");
    EXPECT_EQ(mano.Casella(casella::Foglio).text() + mano.Casella(casella::Mappali).text(),
              QStringLiteral("0007B3,12"));
    mano.Scrivi("Prova|barre");
    ScegliDaElenco(mano.Figlio<QComboBox>(QStringLiteral("Elenco_2")), 3);
    EXPECT_EQ(mano.Casella(casella::Tipologia).text(), QStringLiteral("CM"));
    mano.Avanti();
    ScegliDaElenco(mano.Figlio<QComboBox>(QStringLiteral("Elenco_3")), 1);
    mano.Avanti();
    for (const char* testo : {"", "30", "52"}) mano.Scrivi(testo);
    for (int i = 0; i < 3; ++i) mano.Avanti(); // two boxes and the surveyors' list
    for (const char* testo : {"Neri", "Ugo", "Ingegnere", "Gorizia", "55", "rssmra85t10a562s", "via Roma 1"})
      mano.Scrivi(testo);
    EXPECT_EQ(mano.Casella(casella::PrecisioneLineare).text(), QStringLiteral("10")); // an empty one is completed
    QTest::mouseClick(&mano.Figlio<QCheckBox>(QStringLiteral("AggiornaData")), Qt::LeftButton, {}, QPoint(8, 8));
    mano.Clicca(2);
    mano.Clicca(0);
    if (finestra.isVisible()) mano.Clicca(1); // a test that fails must not wait for its user
  });
  tavolo.finestra->findChild<ui::PannelloPulsanti*>()->Bottone(10)->click();
  ASSERT_TRUE(mostrata);
  EXPECT_TRUE(tavolo.banco.dialoghi.detti.empty()) << tavolo.banco.dialoghi.UltimoTesto();
  const std::vector<std::string> attese = {"0|22112026|44|E098|0007B|3,12|NERI UGO|INGEGNERE|GORIZIA|",
                                           "9|52|10|30|1070|10.00-G,STDA 2.08|CM|MISURE ASSENTI|", "6|CONFERMA|",
                                           "6|PROVABARRE|"};
  EXPECT_EQ(tavolo.banco.Righe(), attese);
  EXPECT_EQ(tavolo.banco.sessione.Libretto, Testo(attese));
  EXPECT_TRUE(tavolo.banco.disco.Esiste(Programma + "\\Catasto1.txt"));
  EXPECT_TRUE(tavolo.finestra->windowTitle().contains(QStringLiteral("E098 - GORIZIA")));
}

TEST(FinestraCatasto1, DoppioClickSullaRigaNoveEChiudi) {
  Tavolo tavolo;
  tavolo.banco.dialoghi.risposte = {Risposta::Si}; // it asks whether to leave the date as it was
  const auto prima = tavolo.banco.Righe();
  bool mostrata = false;
  NellaProssimaFinestra([&](QWidget& finestra) {
    const Mano mano{finestra};
    mostrata = finestra.objectName() == QStringLiteral("FormCatasto1TXT");
    EXPECT_EQ(mano.Casella(casella::Mappali).text(), QStringLiteral("12"));
    QTest::keyClicks(&mano.Casella(casella::Data), QStringLiteral("010101"));
    QTest::keyClick(&finestra, Qt::Key_Escape);
  });
  tavolo.Clicca(1);
  QTest::mouseDClick(tavolo.vista->viewport(), Qt::LeftButton, {}, tavolo.Punto(1));
  EXPECT_TRUE(mostrata);
  EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "Chiudere senza confermare le modifiche?");
  EXPECT_EQ(tavolo.Selezionate(), (std::vector<std::size_t>{1})); // the row stays chosen
  EXPECT_EQ(tavolo.banco.Righe(), prima);
  EXPECT_EQ(tavolo.banco.sessione.EsitoForm, EsitoAnnullato);
  EXPECT_TRUE(tavolo.banco.impostazioni.valori.contains("POSIZIONE_FORMx/FormCatasto1TXT"));
}

TEST(FinestraCatasto1, ElenchiTecniciECodiceFiscale) {
  Tavolo tavolo;
  tavolo.banco.disco.Metti(
      Programma + "\\TECNICI\\BLU ADA.PFS",
      "\"BLU ADA\",\"ARCHITETTO\",\"VENEZIA\"\r\n\"10\",\"20\",\"S\"\r\n\"9\",\"ERRATO\"\r\nBLU\r\nADA\r\n");
  FormCatasto1TXT form(tavolo.ambiente);
  form.AlCaricamento();
  ui::FinestraCatasto1 finestra(form);
  finestra.show();
  QApplication::setActiveWindow(&finestra);
  const Mano mano{finestra};
  auto& tecnici = mano.Figlio<QListWidget>(QStringLiteral("File1"));
  QTest::mouseClick(tecnici.viewport(), Qt::LeftButton, {}, tecnici.visualItemRect(tecnici.item(0)).center());
  EXPECT_EQ(mano.Casella(casella::Cognome).text() + mano.Casella(casella::Qualifica).text(),
            QStringLiteral("BLUARCHITETTO"));
  auto& strumenti = mano.Figlio<QComboBox>(QStringLiteral("Elenco_3"));
  const int quanti = strumenti.count();
  mano.Casella(casella::Strumentazione).setFocus();
  mano.Scrivi("Stazione Totale 1\"");
  mano.Clicca(16);
  EXPECT_EQ(strumenti.count(), quanti + 1);
  EXPECT_EQ(strumenti.currentText(), QStringLiteral("Stazione Totale 1\""));
  mano.Clicca(17);
  EXPECT_EQ(strumenti.count(), quanti);
  const auto segnata = [](const QLineEdit& casella) { return casella.property("difetto").toBool(); };
  EXPECT_TRUE(segnata(mano.Casella(casella::CodiceFiscale)));
  mano.Casella(casella::Comune).setFocus();
  mano.Scrivi("ZZZZ");
  EXPECT_TRUE(segnata(mano.Casella(casella::Comune)));
  mano.Clicca(0);
  EXPECT_TRUE(finestra.isVisible());
  EXPECT_TRUE(mano.Casella(casella::Comune).hasFocus());
  EXPECT_TRUE(tavolo.banco.dialoghi.detti.empty());
  QTest::keyClicks(&mano.Casella(casella::Comune), QStringLiteral("G224"));
  EXPECT_FALSE(segnata(mano.Casella(casella::Comune))); // as soon as it is right
  mano.Clicca(0);                                       // the code is wrong and the answer is No
  EXPECT_TRUE(finestra.isVisible());
  EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "Probabile Codice Fiscale non Corretto!\r\nContinuare?");
  tavolo.banco.dialoghi.risposte = {Risposta::Si};
  QTest::keyClick(&mano.Casella(casella::Recapito), Qt::Key_Return);
  EXPECT_FALSE(finestra.isVisible());
}

} // namespace
} // namespace lirmeto::prova
