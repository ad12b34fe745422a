#include <ui/utente.h>

#include <ui/disegno/grafica_pannello.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/generazione/finestra_tipol10.h>

#include <QDialog>
#include <QListWidget>
#include <QTableWidget>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

using Elenco = std::vector<std::string>;

const std::string Estratto = Testo(
    {"0|12032018|1|G224|00042|35|PD|PUB|A|1|", "8|1%|10.000|10.000|", "8|2%|10.000|110.000|", "8|3%|110.000|110.000|",
     "8|4%|110.000|10.000|", "7|5|1%|2%|3%|4%|1%|NC|35|35|10000|", "6|PARTICELLA|35|  |SEMINATIVO  |1|    | | |"});

// From the menu to the proposal in the rows, with a building drawn by the mouse on the extract.
TEST(Tipologie, DalMenuAllaPropostaColMouse) {
  Tavolo tavolo;
  tavolo.banco.disco.Metti("C:\\PREGEO\\ESTRATTI\\E.EMP", Estratto);
  tavolo.banco.sessione.EstrattoAssociato = "E.EMP";
  Utente utente({{QStringLiteral("SelezionaMappali"),
                  [](QWidget& finestra) {
                    EXPECT_EQ(finestra.findChild<QListWidget*>()->count(), 1);
                    Premi(finestra, QStringLiteral("Seleziona Tutti"));
                    Premi(finestra, QStringLiteral("Conferma"));
                  }},
                 {QStringLiteral("Tipol10"), [](QWidget& finestra) {
                    EXPECT_EQ(finestra.windowTitle(), QStringLiteral("Tipologia 07"));
                    auto& superficie = *finestra.findChild<ui::GraficaSuperficie*>();
                    const auto clicca = [&](double est, double nord) {
                      QTest::mouseClick(&superficie, Qt::LeftButton, {}, superficie.Posto(est, nord).toPoint());
                    };
                    Premi(finestra, QStringLiteral("Punto Medio"));
                    clicca(10, 10);
                    clicca(110, 110);
                    Premi(finestra, QStringLiteral("Inizia Contorno"));
                    Premi(finestra, QStringLiteral("Contorno Rosso"));
                    clicca(10, 10);
                    clicca(110, 10);
                    clicca(61, 61);
                    clicca(10, 10);
                    Premi(finestra, QStringLiteral("Contorno in Righe"));
                    Premi(finestra, QStringLiteral("Conferma"));
                  }}});
  Scegli(tavolo, QStringLiteral("7 Nuova Costruzione"));
  EXPECT_TRUE(utente.Finito());
  const Elenco righe = tavolo.banco.Righe();
  EXPECT_NE(std::find(righe.begin(), righe.end(), "6|ESTRATTO DI MAPPA AGGIORNATO|"), righe.end());
  // A triangle of base 100 and height 50 metres.
  EXPECT_NE(std::find(righe.begin(), righe.end(), "7|4|1%|2%|NC|35+|35|2500|"), righe.end());
  EXPECT_EQ(righe[1], "9|20|10|20|1070|10.00-G,STDA 2.08|07|NOTE|");
}

TEST(DaPregeo, UnAltraRigaMostraUnAltroLibretto) {
  Tavolo tavolo;
  const std::string temp = tavolo.banco.sessione.CartellaProgramma + "\\TEMP\\";
  tavolo.banco.disco.Metti(tavolo.banco.sessione.CartellaDocumenti + "\\TEMP\\ELENCO_LIBRETTI.txt",
                           "1|2017|974\r\n2|2018|5\r\n");
  tavolo.banco.processi.quandoAvvia = [&](const std::string&, const Elenco& argomenti) {
    if (argomenti.size() == 2)
      tavolo.banco.disco.Metti(temp + "ESPORTA_PUNTI_ELABORATI.txt", argomenti[1] + ",1,2,3,x\r\nB,9,9,9,y\r\n");
  };
  Utente utente({{QStringLiteral("KR_Dapregeo"), [](QWidget& finestra) {
                    auto* punti = finestra.findChild<QTableWidget*>(QStringLiteral("MSFlexGrid2"));
                    EXPECT_EQ(punti->item(0, 0)->text(), QStringLiteral("17974"));
                    finestra.findChild<QTableWidget*>(QStringLiteral("MSFlexGrid1"))->setCurrentCell(1, 3);
                    EXPECT_EQ(punti->item(0, 0)->text(), QStringLiteral("185"));
                    Premi(finestra, QStringLiteral("Chiudi"));
                  }}});
  Scegli(tavolo, QStringLiteral("Grafica Pregeo"));
  EXPECT_TRUE(utente.Finito());
  EXPECT_EQ(tavolo.banco.Righe(), RigheDiProva());
}

} // namespace
} // namespace lirmeto::prova
