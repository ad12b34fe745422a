#include <ui/tavolo.h>

#include <ui/comune/aspetto.h>
#include <ui/comune/casella_testo.h>
#include <ui/supporto/finestra_stampa_generale.h>
#include <ui/supporto/stampa_qt.h>

#include <base/errore.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QDialog>
#include <QFile>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

const std::string Modelli = "C:\\users\\prova\\Documents\\LIRMETO\\MODELLI_STAMPA\\";

struct ConFinestraStampa : testing::Test {
  ConFinestraStampa() {
    banco.Apri(Testo(RigheDiProva()));
    banco.disco.Metti(Modelli + "A.RTF", "{\\rtf1 a}");
    banco.disco.Metti(Modelli + "B.RTF", "{\\rtf1 _stampa_generale_}");
    banco.sessione.NomeBaseStampa = "C:\\dati\\Elenco";
    form.List1 = ListaRighe{"uno", "due", "tre"};
    form.AlCaricamento();
    finestra.emplace(form);
    finestra->show();
    QCoreApplication::processEvents();
  }
  void Premi(const QString& testo) {
    for (QAbstractButton* bottone : finestra->findChildren<QAbstractButton*>())
      if (bottone->text().remove(u'&') == testo)
        return QTest::mouseClick(bottone, Qt::LeftButton, {}, {8, bottone->height() / 2});
    qFatal("no such button");
  }
  [[nodiscard]] QListView& Lista() {
    for (QListView* lista : finestra->findChildren<QListView*>())
      if (qobject_cast<QListWidget*>(lista) == nullptr) return *lista;
    qFatal("no list");
  }
  [[nodiscard]] QString Riga(int riga) { return Lista().model()->index(riga, 0).data().toString(); }

  Banco banco;
  KR_StampaGenerale form{banco.ambiente};
  std::optional<ui::FinestraStampaGenerale> finestra;
};

TEST_F(ConFinestraStampa, IBottoniRifannoLeRigheESiStampaInOrizzontale) {
  Premi(QStringLiteral("Sposta a destra"));
  EXPECT_EQ(Riga(2), QStringLiteral(" tre"));
  Premi(QStringLiteral("Sposta a sinistra"));
  Premi(QStringLiteral("Togli prima riga"));
  EXPECT_EQ(Riga(0), QStringLiteral("due"));
  Premi(QStringLiteral("Aggiungi riga"));
  EXPECT_EQ(Lista().model()->rowCount(), 3);
  Premi(QStringLiteral("Orizzontale"));
  QTest::keyClick(&*finestra, Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(banco.dialoghi.stampati, (std::vector<std::string>{"Elenco/O| |due|tre"}));
  EXPECT_FALSE(finestra->isVisible());
}

TEST_F(ConFinestraStampa, SiCompilaIlModelloScelto) {
  auto* modelli = finestra->findChild<QListWidget*>();
  const QPoint secondo = modelli->visualItemRect(modelli->item(1)).center();
  QTest::mouseClick(modelli->viewport(), Qt::LeftButton, {}, secondo);
  Premi(QStringLiteral("Compila"));
  QTest::mouseClick(modelli->viewport(), Qt::LeftButton, {}, secondo);
  QTest::mouseDClick(modelli->viewport(), Qt::LeftButton, {}, secondo);
  EXPECT_EQ(banco.processi.aperti, (std::vector<std::string>{"C:\\LIBRETTO.DAT_B.RTF", Modelli + "B.RTF"}));
  EXPECT_EQ(banco.disco.Contenuto("C:\\LIBRETTO.DAT_B.RTF"), "{\\rtf1 uno\\cf1\\line due\\cf1\\line tre\\cf1\\line }");
}

// The message of an error makes the window active again: that must not tell the error again, and so on for ever.
TEST_F(ConFinestraStampa, UnCarattereRottoSiDiceUnaVoltaEEscChiude) {
  banco.disco.rotti["C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO\\CARATTERESTAMPA.INI"] = 70;
  QEvent attiva(QEvent::ActivationChange);
  QApplication::setActiveWindow(&*finestra);
  for (int volta = 0; volta < 3; ++volta) QCoreApplication::sendEvent(&*finestra, &attiva);
  EXPECT_EQ(banco.dialoghi.detti.size(), 1U);
  QTest::keyClick(&*finestra, Qt::Key_Escape);
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_EQ(banco.sessione.NomeBaseStampa, "");
}

TEST(FinestraStampa, DoppioClickApreLEditorDelleStampe) {
  Tavolo tavolo;
  tavolo.banco.dialoghi.risposte = {Risposta::Si};
  NellaProssimaFinestra([](QWidget& stampa) {
    NellaProssimaFinestra([](QWidget& editor) {
      EXPECT_EQ(editor.windowTitle(), QStringLiteral("Edit Stampe"));
      editor.findChild<ui::CasellaTesto*>()->appendPlainText(QStringLiteral("quattro è"));
      editor.close();
    });
    auto* lista = stampa.findChild<QListView*>();
    const QPoint punto = lista->visualRect(lista->model()->index(0, 0)).topLeft() + QPoint(5, 5);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, punto);
    QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, punto);
    EXPECT_EQ(lista->model()->index(1, 0).data().toString(), QStringLiteral("quattro è"));
    stampa.close();
  });
  MostraStampaGenerale(tavolo.ambiente, ListaRighe{"uno"});
}

// Pages of a .PDF file, and its bytes.
struct Pdf {
  qsizetype pagine;
  QByteArray byte;
};

// As the user does in the dialog, whose last printer is the file.
void ScegliFile(ui::StampaQt& stampa, const QString& file) {
  NellaProssimaFinestra([&](QWidget& finestra) {
    auto* stampanti = finestra.findChild<QComboBox*>(QStringLiteral("printers"));
    stampanti->setCurrentIndex(stampanti->count() - 1);
    finestra.findChild<QLineEdit*>(QStringLiteral("filename"))->setText(file);
    qobject_cast<QDialog*>(&finestra)->accept();
  });
  EXPECT_TRUE(stampa.Scegli(nullptr));
}

Pdf StampaInPdf(const Stampato& stampato) {
  QTemporaryDir cartella;
  const QString file = cartella.filePath(QStringLiteral("s.pdf"));
  ui::StampaQt stampa;
  ScegliFile(stampa, file);
  EXPECT_TRUE(stampa.Pronta());
  stampa.Stampa(stampato);
  EXPECT_FALSE(stampa.Pronta()) << "the next printout must not overwrite this one";
  QFile letto(file);
  EXPECT_TRUE(letto.open(QIODevice::ReadOnly));
  const QByteArray byte = letto.readAll();
  return {byte.count("/Type /Page\n"), byte};
}

TEST(StampaQt, LePagineTengonoLeRigheELOrientamento) {
  std::vector<std::string_view> righe(300, "riga");
  const Pdf alta = StampaInPdf({righe, {}, Orientamento::Verticale, "T", false});
  const Pdf bassa = StampaInPdf({righe, {}, Orientamento::Orizzontale, "T", true});
  EXPECT_GE(alta.pagine, 4); // 267 mm hold some 65 lines of ten points
  EXPECT_LE(alta.pagine, 6);
  EXPECT_GT(bassa.pagine, alta.pagine);
  EXPECT_TRUE(alta.byte.contains("/MediaBox [0 0 595"));
  EXPECT_TRUE(bassa.byte.contains("/MediaBox [0 0 842"));
  EXPECT_EQ(StampaInPdf({{}, {}, Orientamento::Verticale, "T", false}).pagine, 1);
}

TEST(StampaQt, UnaRigaLargaVaACapoENonSiPerdeNulla) {
  const QFontMetricsF misure(ui::FontDa({}));
  const double larghezza = misure.horizontalAdvance(QString(10, u'x'));
  EXPECT_EQ(
      ui::RigheDiPagina({"abcdefghijklmno", "", "a\tb"}, misure, larghezza),
      (std::vector<QString>{QStringLiteral("abcdefghij"), QStringLiteral("klmno"), {}, QStringLiteral("a       b")}));
  EXPECT_EQ(ui::RigheDiPagina({"abc"}, misure, 0).size(), 3U);
}

TEST(StampaQt, UnFileCheNonSiScriveEUnErroreDellaStampante) {
  ui::StampaQt stampa;
  ScegliFile(stampa, QTemporaryDir().filePath(QStringLiteral("s.pdf"))); // in a folder that is gone by then
  try {
    stampa.Stampa({});
    ADD_FAILURE();
  } catch (const Errore& errore) {
    EXPECT_EQ(errore.Numero(), errore::ErroreStampante);
  }
}

} // namespace
} // namespace lirmeto::prova
