#include <ui/tavolo.h>

#include <ui/comune/appunti_qt.h>
#include <ui/comune/dialoghi_qt.h>
#include <ui/comune/impostazioni_qt.h>
#include <ui/comune/percorsi_qt.h>

#include <base/errore.h>

#include <QAbstractButton>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QMessageBox>
#include <QProgressDialog>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

ui::DialoghiQt Dialoghi() {
  return ui::DialoghiQt({[](std::string_view) { return QDir::tempPath(); },
                         [](const QString& ospite) { return "Z:" + ui::DaQString(ospite); }});
}

void PremiBottone(QWidget& finestra, const QString& testo) {
  for (QAbstractButton* bottone : finestra.findChildren<QAbstractButton*>())
    if (bottone->text().remove(u'&') == testo) return bottone->click();
  qFatal("no such button");
}

struct Scelta {
  Bottoni bottoni;
  QString premuto; // empty: Esc
  Risposta attesa;
};

class Domanda : public testing::TestWithParam<Scelta> {};

TEST_P(Domanda, RispondeConIlBottone) {
  ui::DialoghiQt dialoghi = Dialoghi();
  NellaProssimaFinestra([](QWidget& finestra) {
    const auto& scatola = dynamic_cast<QMessageBox&>(finestra);
    EXPECT_EQ(scatola.text(), QStringLiteral("<b>È così?</b>\nseconda"));
    EXPECT_EQ(scatola.textFormat(), Qt::PlainText);
    GetParam().premuto.isEmpty() ? QTest::keyClick(&finestra, Qt::Key_Escape)
                                 : PremiBottone(finestra, GetParam().premuto);
  });
  EXPECT_EQ(dialoghi.Chiedi("<b>\xC8 cos\xEC?</b>\r\nseconda", "Titolo", GetParam().bottoni), GetParam().attesa);
}

INSTANTIATE_TEST_SUITE_P(Bottoni, Domanda,
                         testing::Values(Scelta{Bottoni::SiNo, QStringLiteral("Sì"), Risposta::Si},
                                         Scelta{Bottoni::SiNo, QStringLiteral("No"), Risposta::No},
                                         Scelta{Bottoni::SiNo, {}, Risposta::No},
                                         Scelta{Bottoni::SiNoAnnulla, QStringLiteral("Sì"), Risposta::Si},
                                         Scelta{Bottoni::SiNoAnnulla, QStringLiteral("No"), Risposta::No},
                                         Scelta{Bottoni::SiNoAnnulla, QStringLiteral("Annulla"), Risposta::Annulla},
                                         Scelta{Bottoni::SiNoAnnulla, {}, Risposta::Annulla}));

TEST(DialoghiQt, UnaFraPiuRisposte) {
  ui::DialoghiQt dialoghi = Dialoghi();
  const std::vector<std::string> risposte = {"Prima", "Seconda"};
  NellaProssimaFinestra([](QWidget& finestra) { PremiBottone(finestra, QStringLiteral("Seconda")); });
  EXPECT_EQ(dialoghi.Scegli("Quale?", "Titolo", risposte), std::optional<std::size_t>(1));
  NellaProssimaFinestra([](QWidget& finestra) { QTest::keyClick(&finestra, Qt::Key_Escape); });
  EXPECT_EQ(dialoghi.Scegli("Quale?", "Titolo", risposte), std::nullopt);
}

TEST(DialoghiQt, MessaggioConTitoloEGravita) {
  ui::DialoghiQt dialoghi = Dialoghi();
  NellaProssimaFinestra([](QWidget& finestra) {
    const auto& scatola = dynamic_cast<QMessageBox&>(finestra);
    EXPECT_EQ(scatola.icon(), QMessageBox::Critical);
    EXPECT_EQ(scatola.text(), QStringLiteral("Perché"));
    EXPECT_EQ(scatola.windowTitle(), QStringLiteral("Rilevato errore"));
    PremiBottone(finestra, QStringLiteral("OK"));
  });
  dialoghi.Messaggio("Perch\xE9", "Rilevato errore", Gravita::Critico);
}

TEST(DialoghiQt, UnaSceltaAnnullataEErrore32755) {
  ui::DialoghiQt dialoghi = Dialoghi();
  const auto annulla = [] {
    NellaProssimaFinestra([](QWidget& finestra) { dynamic_cast<QDialog&>(finestra).reject(); });
  };
  const auto numero = [](const auto& azione) {
    try {
      azione();
    } catch (const Errore& errore) {
      return errore.Numero();
    }
    return 0;
  };
  annulla();
  EXPECT_EQ(numero([&] { (void)dialoghi.ScegliFileDaSalvare({"Salva", "c:\\", "zzz.dat", {}}); }), 32755);
  annulla();
  EXPECT_EQ(numero([&] { (void)dialoghi.ScegliCarattere({}); }), 32755);
  annulla();
  EXPECT_EQ(numero([&] { (void)dialoghi.ScegliFileDaAprire({"Apri", {}, {}, "Editor (*.EXE)"}); }), 32755);
  annulla();
  EXPECT_EQ(numero([&] { dialoghi.ScegliStampante(); }), 32755);
  annulla();
  EXPECT_EQ(numero([&] { dialoghi.Stampa({}); }), 32755) << "without a printer one is asked for first";
}

TEST(DialoghiQt, IlFileSceltoTornaComePercorso) {
  QTemporaryDir cartella;
  ui::DialoghiQt dialoghi({[&](std::string_view) { return cartella.path(); },
                           [](const QString& ospite) { return "Z:" + ui::DaQString(ospite); }});
  NellaProssimaFinestra([](QWidget& finestra) { PremiBottone(finestra, QStringLiteral("Salva")); });
  EXPECT_EQ(dialoghi.ScegliFileDaSalvare({"Salva", "c:\\", "zzz.dat", {}}),
            "Z:" + ui::DaQString(cartella.filePath(QStringLiteral("zzz.dat"))));
}

TEST(DialoghiQt, LaBarraVieneDopoMezzoSecondoESparisceAllaFine) {
  ui::DialoghiQt dialoghi = Dialoghi();
  const auto visibile = [] { return QApplication::activeModalWidget() != nullptr; };
  dialoghi.Avanzamento("Lavoro", 1, 100);
  EXPECT_FALSE(visibile());
  QThread::msleep(600);
  dialoghi.Avanzamento("Lavoro", 50, 100);
  ASSERT_TRUE(visibile());
  EXPECT_EQ(dynamic_cast<QProgressDialog&>(*QApplication::activeModalWidget()).labelText(), QStringLiteral("Lavoro"));
  dialoghi.Avanzamento("Lavoro", 100, 100);
  EXPECT_FALSE(visibile());
}

TEST(DialoghiQt, UnaBarraAbbandonataSparisceDaSola) {
  ui::DialoghiQt dialoghi = Dialoghi();
  dialoghi.Avanzamento("Lavoro", 1, 100);
  QThread::msleep(600);
  dialoghi.Avanzamento("Lavoro", 50, 100);
  EXPECT_TRUE(QTest::qWaitFor([] { return QApplication::activeModalWidget() == nullptr; }, 3000));
}

// The windows are painted while something is waited for, and the button of the box ends the wait.
TEST(DialoghiQt, UnAttesaSiPuoRinunciare) {
  ui::DialoghiQt dialoghi = Dialoghi();
  int giri = 0;
  QElapsedTimer tempo;
  tempo.start();
  while (dialoghi.Attesa("Attendo la fine di X.exe") && tempo.elapsed() < 5000) {
    QThread::msleep(5);
    ++giri;
    auto* barra = dynamic_cast<QProgressDialog*>(QApplication::activeModalWidget());
    if (barra == nullptr) continue;
    EXPECT_EQ(barra->labelText(), QStringLiteral("Attendo la fine di X.exe"));
    QTest::mouseClick(barra->findChild<QPushButton*>(), Qt::LeftButton);
  }
  EXPECT_GT(giri, 20) << "the box comes after half a second";
  EXPECT_LT(tempo.elapsed(), 5000);
  dialoghi.Avanzamento({}, 1, 1);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(dialoghi.Attesa("ancora")) << "another wait begins anew";
}

struct FineDiRiga {
  const char* appunti;
  const char* logica;
};

class RigheDegliAppunti : public testing::TestWithParam<FineDiRiga> {};

TEST_P(RigheDegliAppunti, HannoCrLfESoloDoveErano) {
  QGuiApplication::clipboard()->setText(QString::fromUtf8(GetParam().appunti));
  EXPECT_EQ(ui::AppuntiQt().Testo(), GetParam().logica);
}

INSTANTIATE_TEST_SUITE_P(Testi, RigheDegliAppunti,
                         testing::Values(FineDiRiga{"a\nb", "a\r\nb"}, FineDiRiga{"a\r\nb\r\n", "a\r\nb\r\n"},
                                         FineDiRiga{"a\rb\n\n", "a\r\nb\r\n\r\n"}, FineDiRiga{"è", "\xE8"},
                                         FineDiRiga{"", ""}));

TEST(AppuntiQt, IlTestoMessoTornaUguale) {
  ui::AppuntiQt appunti;
  appunti.MettiTesto("0|\xE0|\r\n9|\r\n");
  EXPECT_EQ(appunti.Testo(), "0|\xE0|\r\n9|\r\n");
}

TEST(DialoghiQt, AncheCioCheQtNonTraduceEInItaliano) {
  EXPECT_EQ(QCoreApplication::translate("QAbstractFileIconProvider", "Folder"), QStringLiteral("Cartella"));
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Annulla"));
  EXPECT_EQ(QKeySequence(Qt::SHIFT | Qt::Key_F8).toString(QKeySequence::NativeText), QStringLiteral("Maiusc+F8"));
}

struct PercorsoOspite {
  QString ospite;
  std::string detto;
};

class PercorsiDetti : public testing::TestWithParam<PercorsoOspite> {};

TEST_P(PercorsiDetti, ConUnitaOConUnMessaggio) {
  Banco banco;
  EXPECT_EQ(ui::PercorsoDetto(banco.ambiente)(GetParam().ospite), GetParam().detto);
  EXPECT_EQ(banco.dialoghi.detti.size(), GetParam().detto.empty() ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Percorsi, PercorsiDetti,
                         testing::Values(PercorsoOspite{QStringLiteral("C:\\Là\\a.dat"), "C:\\L\xE0\\a.dat"},
                                         PercorsoOspite{QStringLiteral("/tmp/Là/a.dat"), "Z:\\tmp\\L\xE0\\a.dat"},
                                         PercorsoOspite{QStringLiteral("/tmp/Ω.dat"), ""}));

TEST(ImpostazioniQt, RestanoNelFile) {
  QTemporaryDir cartella;
  const QString file = cartella.filePath(QStringLiteral("i.ini"));
  const std::string valore = "perch\xE9, \"1\";2 ";
  ui::ImpostazioniQt(file).Scrivi("FORMx", "Modulo/uno", valore);
  EXPECT_EQ(ui::ImpostazioniQt(file).Leggi("FORMx", "Modulo/uno", "-"), valore);
  EXPECT_EQ(ui::ImpostazioniQt(file).Leggi("FORMy", "Modulo/uno", "-"), "-");
  // The program that shows .CSV files keeps the viewer in a file of its own.
  const QString pernico = cartella.filePath(QStringLiteral("Pernico.ini"));
  QSettings(pernico, QSettings::IniFormat)
      .setValue(QStringLiteral("VisualizzatoreXLS/Visualizzatore"), QStringLiteral("X.EXE"));
  EXPECT_EQ(ui::ImpostazioniQt(file).Leggi("VisualizzatoreXLS", "Visualizzatore", ""), "X.EXE");
  ui::ImpostazioniQt(file).Scrivi("VisualizzatoreXLS", "Visualizzatore", "Y.EXE");
  EXPECT_EQ(
      QSettings(pernico, QSettings::IniFormat).value(QStringLiteral("VisualizzatoreXLS/Visualizzatore")).toString(),
      QStringLiteral("Y.EXE"));
}

} // namespace
} // namespace lirmeto::prova
