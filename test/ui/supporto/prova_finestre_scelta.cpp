#include <ui/tavolo.h>

#include <core/posizione_form.h>

#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

QPushButton* Bottone(QWidget& finestra, const char* testo) {
  for (auto* bottone : finestra.findChildren<QPushButton*>())
    if (bottone->text().remove(u'&') == QLatin1String(testo)) return bottone;
  qFatal("no such button");
}

QListView& Elenco(QWidget& finestra, const char* nome) {
  for (auto* elenco : finestra.findChildren<QListView*>())
    if (elenco->accessibleName() == QLatin1String(nome)) return *elenco;
  qFatal("no such list");
}

void Clicca(QListView& elenco, int riga, bool doppio = false) {
  const QPoint punto = elenco.visualRect(elenco.model()->index(riga, 0)).center();
  QTest::mouseClick(elenco.viewport(), Qt::LeftButton, {}, punto);
  if (doppio) QTest::mouseDClick(elenco.viewport(), Qt::LeftButton, {}, punto);
}

struct Scelte : testing::Test {
  Scelte() { tavolo.finestre.Usa(tavolo.ambiente); }

  // Opens a form by its name, as the forms that need it do, and plays the user, who closes it at last.
  void Apri(std::string_view nome, const std::function<void(QWidget&)>& utente) {
    NellaProssimaFinestra([&](QWidget& finestra) {
      utente(finestra);
      finestra.close();
    });
    tavolo.finestre.Apri(nome);
  }

  Tavolo tavolo;
  Sessione& sessione = tavolo.banco.sessione;
};

TEST_F(Scelte, ComuneScrivendoEConLeFrecce) {
  sessione.Comuni.assign(8700, {"X001", "D3AA", "PD", "ALTRO"});
  sessione.Comuni.push_back({"C337", "B1AA", "BG", "CASTRO"});
  sessione.Comuni.push_back({"C338", "B2AA", "LE", "CASTRO"});
  Apri("KR_CodFis", [&](QWidget& finestra) {
    auto* nome = finestra.findChild<QLineEdit*>(QStringLiteral("Text1"));
    QListView& comuni = Elenco(finestra, "Comuni");
    QTest::keyClicks(nome, QStringLiteral("caz"));
    QTest::keyClick(nome, Qt::Key_Return);
    EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "Selezionare un comune!");
    QTest::keyClick(nome, Qt::Key_Backspace);
    QTest::keyClicks(nome, QStringLiteral("str"));
    EXPECT_EQ(nome->text(), QStringLiteral("CASTR"));
    EXPECT_EQ(comuni.currentIndex().row(), 8700);
    EXPECT_TRUE(comuni.viewport()->rect().contains(comuni.visualRect(comuni.currentIndex()).center()));
    QTest::keyClick(nome, Qt::Key_Down);
    QTest::keyClick(nome, Qt::Key_Return);
  });
  EXPECT_EQ(sessione.CodiceComune + sessione.SiglaProvincia, "C338LE");
  EXPECT_EQ(sessione.EsitoSelezione, 1);
}

TEST_F(Scelte, ComunePerProvincia) {
  Apri("KR_Comuni8", [&](QWidget& finestra) {
    Clicca(Elenco(finestra, "Province"), 1);
    EXPECT_EQ(Elenco(finestra, "Comuni").model()->rowCount(), 1);
    Clicca(Elenco(finestra, "Comuni"), 0, true);
  });
  EXPECT_EQ(sessione.CodiceComune + sessione.NomeProvincia, "L736VENEZIA");
}

TEST_F(Scelte, PossessoriSceltiEdEliminati) {
  tavolo.banco.disco.Metti("C:\\FIDUCIAL\\VISURE\\A.VIS", "X|1|2|BIANCHI|ADA|\r\nROSSI MARIO\r\n");
  tavolo.banco.disco.Metti("C:\\FIDUCIAL\\VISURE\\B.VIS", "VERDI ANNA\r\n");
  Apri("ArchivioPossessori", [&](QWidget& finestra) {
    Clicca(Elenco(finestra, "File"), 0);
    Clicca(Elenco(finestra, "Possessori"), 0, true);
  });
  EXPECT_EQ(sessione.ElencoPossessori, "BIANCHI ADA\r\n");
  Apri("ArchivioPossessori", [&](QWidget& finestra) {
    Clicca(Elenco(finestra, "File"), 1);
    QTest::mouseClick(Bottone(finestra, "Elimina File"), Qt::LeftButton);
    EXPECT_EQ(Elenco(finestra, "File").model()->rowCount(), 1);
    EXPECT_EQ(Elenco(finestra, "Possessori").model()->rowCount(), 0);
  });
  EXPECT_EQ(sessione.EsitoSelezione, -1);
}

// Under its own name; what leads off every screen is forgotten, what is too large is cut to it.
TEST_F(Scelte, OgniFinestraTornaDovEra) {
  Apri("KR_Comuni8", [](QWidget& finestra) {
    finestra.resize(717, 563);
    finestra.move(31, 47);
  });
  Apri("KR_CodFis", [](QWidget& finestra) { EXPECT_NE(finestra.size(), QSize(717, 563)); });
  Apri("KR_Comuni8",
       [](QWidget& finestra) { EXPECT_EQ(QRect(finestra.pos(), finestra.size()), QRect(31, 47, 717, 563)); });
  ScriviPosizione(tavolo.ambiente.impostazioni, "KR_Comuni8", {-9000, 9000, 30000, 30000});
  Apri("KR_Comuni8", [](QWidget& finestra) {
    EXPECT_TRUE(finestra.screen()->geometry().contains(finestra.pos()));
    EXPECT_LE(finestra.width(), finestra.screen()->geometry().width());
  });
}

} // namespace
} // namespace lirmeto::prova
