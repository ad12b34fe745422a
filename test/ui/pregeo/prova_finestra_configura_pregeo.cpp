#include <ui/tavolo.h>

#include <ui/comune/casella_testo.h>
#include <ui/comune/percorsi_qt.h>
#include <ui/libretto/pannello_strumenti.h>
#include <ui/pregeo/finestra_configura_pregeo.h>

#include <QLabel>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

const std::string PregeoIni = "C:\\WINDOWS\\PREGEO.INI";

void Premi(QWidget& finestra, const QString& testo) {
  for (QToolButton* bottone : finestra.findChildren<QToolButton*>())
    if (bottone->text().remove(u'&') == testo) return QTest::mouseClick(bottone, Qt::LeftButton);
  qFatal("no such button");
}

TEST(FinestraConfiguraPregeo, DalPannelloDegliStrumentiAlFile) {
  Tavolo tavolo;
  auto* strumento = tavolo.finestra->findChild<QPushButton*>(QStringLiteral("CONFIGURA_PREGEO"));
  ASSERT_TRUE(strumento->isEnabled());
  tavolo.modello.Esegui(Comando::UtilitaCatastali);
  tavolo.finestra->Mostra();
  bool aperta = false;
  NellaProssimaFinestra([&](QWidget& finestra) {
    aperta = true;
    QApplication::setActiveWindow(&finestra);
    auto& casella = *finestra.findChild<ui::CasellaTesto*>();
    EXPECT_EQ(finestra.windowTitle(), QStringLiteral("Configurazione di Pregeo - C:\\WINDOWS\\PREGEO.INI"));
    EXPECT_EQ(casella.Testo(), tavolo.banco.disco.Contenuto(PregeoIni));
    casella.moveCursor(QTextCursor::End);
    QTest::keyClicks(&casella, QStringLiteral("[PROV_DI_COMP]"));
    QTest::keyClick(&casella, Qt::Key_Return);
    QTest::keyClicks(&casella, QStringLiteral("provincia=VE"));
    QTest::keyClick(&casella, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(tavolo.banco.disco.Contenuto(PregeoIni).ends_with("[PROV_DI_COMP]\r\nprovincia=VE\r\n"));
    casella.clear();
    Premi(finestra, QStringLiteral("Ricarica"));
    EXPECT_EQ(casella.Testo(), tavolo.banco.disco.Contenuto(PregeoIni));
    Premi(finestra, QStringLiteral("Crea Collegamenti"));
    EXPECT_EQ(tavolo.banco.processi.collegamenti.size(), 3U);
    Premi(finestra, QStringLiteral("Versione di Pregeo.EXE"));
    EXPECT_EQ(finestra.windowTitle(), QStringLiteral("Versione Pregeo.EXE = 10.6.0.3"));
    Premi(finestra, QStringLiteral("Chiudi"));
    EXPECT_FALSE(finestra.isVisible());
  });
  QTest::mouseClick(strumento, Qt::LeftButton);
  EXPECT_TRUE(aperta);
  EXPECT_EQ(tavolo.modello.SiglaPulsanteProvincia, "VE") << "the main window shows what was read again";
}

TEST(FinestraConfiguraPregeo, AvvisaDelleLettereCheSiPerdono) {
  Banco banco;
  FormConfiguraPregeo form(banco.ambiente);
  form.AlCaricamento();
  ui::FinestraConfiguraPregeo finestra(form);
  finestra.show();
  const auto* avviso = finestra.findChild<QLabel*>(QStringLiteral("Avviso"));
  finestra.findChild<ui::CasellaTesto*>()->insertPlainText(QStringLiteral("è€"));
  EXPECT_FALSE(avviso->isVisible());
  finestra.findChild<ui::CasellaTesto*>()->insertPlainText(QStringLiteral("Ω"));
  EXPECT_TRUE(avviso->isVisible());
  Premi(finestra, QStringLiteral("Ricarica"));
  EXPECT_FALSE(avviso->isVisible());
}

TEST(RigaDiComando, IlFileDiventaUnPercorsoEIlRestoResta) {
  const auto percorso = [](const QString& ospite) {
    return ospite == QStringLiteral("no") ? std::string() : "Z:" + ui::DaQString(ospite);
  };
  const std::pair<QString, std::optional<std::string>> casi[] = {
      {QString(), ""},
      {QStringLiteral("\"/a b.dat\""), "Z:/a b.dat"},
      {QStringLiteral("no"), ""},
      {QStringLiteral("/a.dat|CONFIGURA_PREGEO|x|y"), "Z:/a.dat|CONFIGURA_PREGEO|x|y"},
      {QStringLiteral("|DA_PREGEO|è"), "|DA_PREGEO|\xE8"},
      {QStringLiteral("|||"), "|||"},
      {QStringLiteral("no|DA_PREGEO"), std::nullopt},
  };
  for (const auto& [riga, attesa] : casi) EXPECT_EQ(ui::RigaDiComando(riga, percorso), attesa) << riga.toStdString();
}

} // namespace
} // namespace lirmeto::prova
