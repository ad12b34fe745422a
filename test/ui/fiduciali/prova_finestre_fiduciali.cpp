#include <ui/tavolo.h>

#include <ui/fiduciali/finestra_importa_fiduciali.h>
#include <ui/fiduciali/finestra_seleziona_misurate.h>

#include <applicazione/forme.h>

#include <QCheckBox>
#include <QListWidget>
#include <QPushButton>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

const std::string Dati = "C:\\fiducial\\DATI\\";

void Premi(QWidget& finestra, const QString& nome) {
  auto* bottone = finestra.findChild<QPushButton*>(nome);
  if (bottone == nullptr) qFatal("no such button");
  QTest::mouseClick(bottone, Qt::LeftButton);
}

std::string Linea(const std::string& numero, const std::string& nord) {
  return RiempiECorta(RiempiECorta("G224   010 0   " + numero, 29) + "CHIESA", 101) + nord + "  1724410.300 05";
}

TEST(FinestreFiduciali, LeRighe8VengonoDallaTafESiAnnulla) {
  Tavolo tavolo;
  tavolo.Elenco().Aggiungi("8|101|1|2|");
  tavolo.banco.disco.Metti(Dati + "G224.taf", Linea("01", " 5029871.225"));
  NellaProssimaFinestra([](QWidget& finestra) {
    EXPECT_EQ(finestra.windowTitle(), QStringLiteral("Importa Fiduciali da TAF"));
    auto* quote = finestra.findChild<QCheckBox*>();
    QTest::mouseClick(quote, Qt::LeftButton, {}, {8, quote->height() / 2});
    const auto* taf = finestra.findChildren<QListWidget*>()[1];
    ASSERT_EQ(taf->count(), 2);
    EXPECT_EQ(taf->item(0)->text(), QStringLiteral("8|PF01/0100/G224|5029871.225|1724410.300|05|CHIESA|"));
    Premi(finestra, QStringLiteral("Conferma"));
  });
  tavolo.modello.Esegui(Comando::ImportaFiduciali);
  EXPECT_EQ(tavolo.Elenco().Quante(), RigheDiProva().size() + 2) << "place and height; the row of 101 stays";
  EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "Righe 8 mantenute perché assenti in TAF:\r\n101"_w);
  tavolo.modello.Esegui(Comando::Annulla);
  EXPECT_EQ(tavolo.Elenco().Riga(RigheDiProva().size()), "8|101|1|2|");
}

TEST(FinestreFiduciali, UnArchivioSiEliminaESiSceglieColDoppioClick) {
  Tavolo tavolo;
  for (const std::string nome : {"PD2024.DDD", "VE2020.DDD"}) tavolo.banco.disco.Metti(Dati + nome, "x");
  tavolo.banco.dialoghi.risposte = {Risposta::Si};
  NellaProssimaFinestra([&](QWidget& finestra) {
    auto* elenco = finestra.findChild<QListWidget*>();
    Premi(finestra, QStringLiteral("Conferma"));
    EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "Selezionare un Database!!");
    const auto punto = [&](int riga) { return elenco->visualItemRect(elenco->item(riga)).center(); };
    QTest::mouseClick(elenco->viewport(), Qt::LeftButton, {}, punto(1));
    Premi(finestra, QStringLiteral("Elimina"));
    EXPECT_EQ(elenco->count(), 1);
    QTest::mouseClick(elenco->viewport(), Qt::LeftButton, {}, punto(0));
    QTest::mouseDClick(elenco->viewport(), Qt::LeftButton, {}, punto(0));
    EXPECT_FALSE(finestra.isVisible());
  });
  tavolo.finestre.Apri(forma::SelezionaMisurate);
  EXPECT_EQ(tavolo.banco.sessione.MisurateAssociate, "PD2024.DDD");
  EXPECT_FALSE(tavolo.banco.disco.Esiste(Dati + "VE2020.DDD"));
}

} // namespace
} // namespace lirmeto::prova
