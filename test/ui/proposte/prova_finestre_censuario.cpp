#include <ui/tavolo.h>

#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/libretto/riga_di_stato.h>
#include <ui/proposte/finestra_edm.h>
#include <ui/proposte/finestra_fusione.h>
#include <ui/proposte/finestra_proposta.h>
#include <ui/proposte/finestra_tipo_mappale.h>
#include <ui/proposte/parti_censuario.h>

#include <core/riga_censuaria.h>
#include <core/tabelle.h>

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QRadioButton>
#include <QTableView>
#include <QToolButton>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

using Righe = std::vector<std::string>;

const std::string Archivio = "C:\\FIDUCIAL\\PARTICELLE\\";
const std::string Cento = "6|PARTICELLA|35|01|SEMINATIVO  |100|100|1.00|2.00|SN|";

struct Censuario : testing::Test {
  Censuario() {
    Banco& banco = tavolo.banco;
    banco.disco.cartelle.insert(banco.disco.cartelle.end(), {"C:\\FIDUCIAL", "C:\\FIDUCIAL\\PARTICELLE"});
    banco.disco.Metti(Archivio + "G224_00010_35.MAP", Cento + "\r\n");
    banco.disco.Metti(Archivio + "G224_00010_36.MAP", "6|PARTICELLA|36|00|ENTE URBANO |50|50|0|0|SN|\r\n");
    banco.sessione.TabellaQualita = LeggiQualita("x\r\nSEMINATIVO   001\r\nENTE URBANO  282\r\n");
    banco.sessione.ModoEditor = ModoSopprime;
  }

  template <typename T>
  T& Figlio(QWidget& finestra, const char* nome) {
    auto* figlio = finestra.findChild<T*>(QString::fromLatin1(nome));
    if (figlio == nullptr) qFatal("no such widget: %s", nome);
    return *figlio;
  }
  void Premi(QWidget& finestra, int indice) {
    QTest::mouseClick(finestra.findChild<QToolButton*>(QStringLiteral("Pulsante_%1").arg(indice)), Qt::LeftButton);
  }
  void Mostra(QWidget& finestra) {
    finestra.show();
    QApplication::setActiveWindow(&finestra);
    QCoreApplication::processEvents();
  }
  [[nodiscard]] Righe Mostrate(QListView& vista) {
    Righe righe;
    for (int i = 0; i < vista.model()->rowCount(); ++i)
      righe.push_back(ui::DaQString(vista.model()->index(i, 0).data().toString()));
    return righe;
  }
  void DoppioClic(QAbstractItemView& vista, int riga, int colonna) {
    const QModelIndex indice = vista.model()->index(riga, colonna);
    vista.scrollTo(indice);
    const QPoint posto = vista.visualRect(indice).center();
    QTest::mouseClick(vista.viewport(), Qt::LeftButton, {}, posto);
    QTest::mouseDClick(vista.viewport(), Qt::LeftButton, {}, posto);
  }

  Tavolo tavolo;
};

// Number, areas and keys typed, a double click; the rows shown and the libretto are those of the model driven alike.
TEST_F(Censuario, IlFrazionamentoBattuto) {
  KR_Fraziona form(tavolo.ambiente, ScegliParticella(tavolo.banco.sessione, Cento, {}));
  form.Form_Load();
  ui::FinestraProposta finestra(form);
  Mostra(finestra);
  auto& text1 = Figlio<QLineEdit>(finestra, "Text1");
  auto& text2 = Figlio<QLineEdit>(finestra, "Text2");
  EXPECT_FALSE(text2.isEnabled());
  QTest::keyClicks(&text1, QStringLiteral("2"));
  QTest::keyClicks(&text2, QStringLiteral("40fr"));
  EXPECT_EQ(text2.text(), QStringLiteral("40  "));
  QTest::keyClick(&text2, Qt::Key_Return);
  QTest::keyClicks(&text2, QStringLiteral("30"));
  EXPECT_EQ(form.RigaCorrente, 4U);
  QTest::keyClick(&text2, Qt::Key_Up);
  EXPECT_EQ(form.RigaCorrente, 3U);
  auto& griglia = Figlio<QTableView>(finestra, "MSFlexGrid1");
  EXPECT_EQ(griglia.model()->index(2, 2).data().toString(), QStringLiteral("40"));
  DoppioClic(griglia, 3, 6); // SN of the second derived parcel
  const Righe attese = {std::string(censuario::Intestazione),
                        RigaConteggio(censuario::Frazionamento, 4),
                        "6|O|35   |000|  |     |000000100|SN|  |     |001|1 |                 |",
                        "6|S|35   |000|  |     |000000000|  |  |     |000|  |                 |",
                        "6|C|     |000|a |AAA  |000000040|SR|  |     |000|  |                 |",
                        "6|C|     |000|b |AAB  |000000030|SR|  |     |000|  |                 |"};
  EXPECT_EQ(Mostrate(Figlio<QListView>(finestra, "List1")), attese);
  EXPECT_TRUE(Figlio<QLabel>(finestra, "Somma").text().contains(QStringLiteral(">-30<"))) << "70 of 100";
  EXPECT_TRUE(Figlio<QListWidget>(finestra, "Rilievi")
                  .item(1)
                  ->text()
                  .startsWith(QStringLiteral("Avviso, particella riga 3: Le superfici nuove sommano 70 mq")));
  emit Figlio<ui::ElencoRilievi>(finestra, "Rilievi").Scelto(ui::ElencoRilievi::Dove::Composizione, 4);
  EXPECT_TRUE(Figlio<ui::RigaDiStato>(finestra, "RigaSpiegata").accessibleName().contains(QStringLiteral("Lettera a")));
  Premi(finestra, 2); // into the memo; the question is answered with no
  Premi(finestra, 8);
  EXPECT_FALSE(finestra.isVisible());
  EXPECT_TRUE(tavolo.banco.sessione.Libretto.ends_with("CHIESA|\r\n" + Testo(attese)));
  EXPECT_TRUE(tavolo.banco.impostazioni.valori.contains("POSIZIONE_FORMx/KR_Fraziona"));
}

TEST_F(Censuario, LoStralcioConUnUrbano) {
  const std::string modello = "35 = 100_AAA = 60\r\n35 = 100_AAB = 40\r\n";
  KR_Stralcio form(tavolo.ambiente, ScegliParticella(tavolo.banco.sessione, Cento, modello));
  form.Apri({{}, modello, {}, {}});
  ui::FinestraProposta finestra(form);
  Mostra(finestra);
  Premi(finestra, 9);
  auto& urbani = Figlio<QListView>(finestra, "List4");
  QTest::mouseClick(urbani.viewport(), Qt::LeftButton, {}, urbani.visualRect(urbani.model()->index(1, 0)).center());
  const Righe righe = Mostrate(Figlio<QListView>(finestra, "List1"));
  EXPECT_EQ(righe.at(4).substr(45, 6) + righe.at(5).substr(45, 6), "001|1 282|  ");
  QTest::mouseClick(&Figlio<QCheckBox>(finestra, "Check1"), Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_EQ(Mostrate(Figlio<QListView>(finestra, "List1")).at(3).substr(0, 9), "6|V|35   ");
}

TEST_F(Censuario, NomeEScambioDiUnaNuovaCostruzione) {
  KR_NuovaCostruzione form(tavolo.ambiente, ScegliParticella(tavolo.banco.sessione, Cento, {}));
  form.Form_Load();
  ui::FinestraTipoMappale finestra(form);
  Mostra(finestra);
  auto& nomi = Figlio<QListWidget>(finestra, "List3");
  QTest::mouseClick(nomi.viewport(), Qt::LeftButton, {}, nomi.visualItemRect(nomi.item(1)).center());
  Premi(finestra, 4);
  EXPECT_EQ(Mostrate(Figlio<QListView>(finestra, "List1")),
            (Righe{std::string(censuario::Intestazione), RigaConteggio(censuario::Stralcio, 3),
                   "6|O|35   |000|  |     |000000100|SR|  |     |001|01|                 |",
                   "6|S|35   |000|  |     |000000000|  |  |     |000|  |                 |",
                   "6|C|     |000|a |AAB  |000000100|SR|  |     |282|  |                 |"}));
  Premi(finestra, 2);
  DoppioClic(Figlio<QListView>(finestra, "Memo"), 4, 0);
  EXPECT_EQ(form.List2.Quante(), 4U);
}

TEST_F(Censuario, LaVariazioneNelLibretto) {
  KR_TMVariazione form(tavolo.ambiente, ScegliParticella(tavolo.banco.sessione, Cento, {}));
  form.Form_Load();
  ui::FinestraTipoMappale finestra(form);
  Mostra(finestra);
  const Righe righe = {std::string(censuario::Intestazione), RigaConteggio(censuario::Stralcio, 2),
                       "6|O|35   |000|  |     |000000100|SN|  |     |001|01|                 |",
                       "6|V|35   |000|  |     |000000100|SN|  |     |282|  |                 |"};
  EXPECT_EQ(Mostrate(Figlio<QListView>(finestra, "List1")), righe);
  Premi(finestra, 4);
  Premi(finestra, 1);
  EXPECT_TRUE(tavolo.banco.sessione.Libretto.ends_with(Testo(righe))) << tavolo.banco.sessione.Libretto;
}

TEST_F(Censuario, LaFusioneDiDueParticelle) {
  KR_TMFusione form(tavolo.ambiente);
  form.Form_Load();
  ui::FinestraFusione finestra(form);
  Mostra(finestra);
  auto& file = Figlio<QListWidget>(finestra, "File1");
  DoppioClic(file, 0, 0);
  DoppioClic(file, 1, 0);
  QTest::mouseClick(&Figlio<QRadioButton>(finestra, "Option1_1"), Qt::LeftButton, {}, QPoint(8, 8));
  QTest::mouseClick(&Figlio<QCheckBox>(finestra, "Check1"), Qt::LeftButton, {}, QPoint(8, 8));
  EXPECT_EQ(Mostrate(Figlio<QListView>(finestra, "List1")),
            (Righe{std::string(censuario::Intestazione), RigaConteggio(censuario::Fusione, 4),
                   "6|O|35   |000|  |     |000000100|SN|  |     |001|1 |                 |",
                   "6|S|35   |000|  |     |000000000|  |A |36   |000|  |                 |",
                   "6|O|36   |000|  |     |000000050|SN|  |     |282|  |                 |",
                   "6|V|36   |000|  |     |000000050|SN|A |36   |282|  |                 |"}));
  DoppioClic(Figlio<QListWidget>(finestra, "List2"), 0, 0);
  EXPECT_EQ(form.List2, (Righe{"G224_00010_36.MAP"}));
}

// The workbench: a parcel chosen, changed and saved; a form opened on it.
TEST_F(Censuario, IlBancoDelleParticelle) {
  tavolo.banco.sessione.Mappali = "35,99";
  tavolo.banco.disco.Metti(
      "C:\\users\\prova\\Documents\\LIRMETO\\temp\\TempProposta",
      "6|ESTRATTO DI MAPPA|\r\n8|1%|0|0|\r\n8|2%|0|9|\r\n8|3%|9|0|\r\n7|4|1%|2%|3%|1%|NC|35|35|40|\r\n");
  KR_EDM form(tavolo.ambiente);
  form.AlCaricamento();
  ui::FinestraEdm finestra(form);
  Mostra(finestra);
  auto& particelle = Figlio<QListWidget>(finestra, "List1");
  const QString prima = particelle.item(0)->text();
  EXPECT_FALSE(finestra.findChild<QToolButton*>(QStringLiteral("Pulsante_16"))->isEnabled());
  QTest::mouseClick(particelle.viewport(), Qt::LeftButton, {}, particelle.visualItemRect(particelle.item(0)).center());
  auto& file = Figlio<QListView>(finestra, "File1");
  QTest::mouseClick(file.viewport(), Qt::LeftButton, {}, file.visualRect(file.model()->index(0, 0)).center());
  EXPECT_EQ(Figlio<QLineEdit>(finestra, "Text3").text(), QStringLiteral("35"));
  auto& disegno = *finestra.findChild<ui::GraficaSuperficie*>();
  const QImage accesa = disegno.grab().toImage();
  finestra.findChild<ui::EvidenzaParticella*>()->Illumina({});
  EXPECT_NE(disegno.grab().toImage(), accesa) << "the parcel is lit in the drawing";
  auto& classe = Figlio<QLineEdit>(finestra, "Text6");
  classe.selectAll();
  QTest::keyClicks(&classe, QStringLiteral("3"));
  QTest::keyClick(&classe, Qt::Key_Return);
  EXPECT_EQ(classe.text(), QStringLiteral("03"));
  Premi(finestra, 19);
  Premi(finestra, 2);
  EXPECT_EQ(tavolo.banco.disco.Contenuto(Archivio + "G224_00010_35.MAP"),
            "6|PARTICELLA|35|03|SEMINATIVO  |100|100|1.00|2.00|SR|\r\n");
  QString titolo;
  NellaProssimaFinestra([&](QWidget& aperta) {
    titolo = aperta.windowTitle();
    aperta.close();
  });
  Premi(finestra, 7);
  EXPECT_EQ(titolo, QStringLiteral("Fraziona Particella 35"));
  Premi(finestra, 0);
  EXPECT_FALSE(finestra.isVisible());
}

} // namespace
} // namespace lirmeto::prova
