#include <ui/tavolo.h>

#include <ui/disegno/grafica_superficie.h>
#include <ui/verifiche/elenco_verifiche.h>
#include <ui/verifiche/pannello_rilievo.h>

#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <QTreeView>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace lirmeto::prova {
namespace {

// Two stations that see each other and a point each; a comma in row 4, a zenith in row 6, an accent in row 8.
const std::vector<std::string> Righe = {
    "0|12032026|18|G224|0010|12|ROSSI MARIO|GEOMETRA|PADOVA|",
    "9|20|10|20|1070|10.00-G,STDA 2.08|FR|NOTE|",
    "1|100|1.430|CHIODO|",
    "2|200|100.0000|100.0000|50.000|1.600|CHIODO|",
    "2|101|50.0000|100.0000|20,000|1.600|SPIGOLO|",
    "1|200|1.430|CHIODO|",
    "2|100|300.0000|10.0000|50.000|1.600|CHIODO|",
    "2|201|350.0000|100.0000|20.000|1.600|SPIGOLO|",
    "2|202|360.0000|100.0000|25.000|1.600|TERMINE GI\xC0 POSTO|",
};

struct TavoloVerifiche : Tavolo {
  TavoloVerifiche() : Tavolo(Righe) {
    QTest::keyClick(&*finestra, Qt::Key_F8, Qt::ControlModifier);
    QTest::keyClick(&*finestra, Qt::Key_F9);
    Aspetta();
  }

  // The checks follow when the event loop is free.
  static void Aspetta() {
    QCoreApplication::processEvents();
    QTest::qWait(1);
  }
  template <typename T>
  [[nodiscard]] T* Figlio(const char* nome) {
    return finestra->findChild<T*>(QString::fromLatin1(nome));
  }
  [[nodiscard]] QAbstractItemModel& Tabella() { return *Figlio<QTreeView>("Segnalazioni")->model(); }
  [[nodiscard]] QString Cella(int riga, int colonna) { return Tabella().index(riga, colonna).data().toString(); }
  // Codes that the list shows, from above.
  [[nodiscard]] QString Codici() {
    QString codici;
    for (int i = 0; i < Tabella().rowCount(); ++i) codici += Cella(i, ui::TabellaVerifiche::Codice) + u' ';
    return codici;
  }
  [[nodiscard]] int Posto(const QString& codice) {
    for (int i = 0; i < Tabella().rowCount(); ++i)
      if (Cella(i, ui::TabellaVerifiche::Codice) == codice) return i;
    return -1;
  }
  void CliccaVoce(int posto) {
    auto* elenco = Figlio<QTreeView>("Segnalazioni");
    const QModelIndex indice = Tabella().index(posto, ui::TabellaVerifiche::Frase);
    elenco->scrollTo(indice);
    QTest::mouseClick(elenco->viewport(), Qt::LeftButton, {}, elenco->visualRect(indice).center());
    Aspetta();
  }
  [[nodiscard]] QImage Righe2() { return vista->viewport()->grab().toImage(); }
};

} // namespace

TEST(FinestraVerifiche, IlClicPortaAllaRigaEIlRimedioSiAnnulla) {
  TavoloVerifiche t;
  const int posto = t.Posto(QStringLiteral("L004"));
  ASSERT_GE(posto, 0) << t.Codici().toStdString();
  EXPECT_EQ(t.Cella(posto, ui::TabellaVerifiche::Riga), QStringLiteral("5"));
  const QImage prima = t.Righe2();
  t.CliccaVoce(posto);
  EXPECT_EQ(t.Selezionate(), std::vector<std::size_t>{4});
  EXPECT_NE(t.Righe2(), prima);
  QTest::keyClick(&*t.finestra, Qt::Key_Return, Qt::AltModifier);
  TavoloVerifiche::Aspetta();
  EXPECT_EQ(t.Elenco().Riga(4), "2|101|50.0000|100.0000|20.000|1.600|SPIGOLO|");
  EXPECT_EQ(t.Posto(QStringLiteral("L004")), -1);
  QTest::keyClick(&*t.finestra, Qt::Key_Z, Qt::ControlModifier);
  TavoloVerifiche::Aspetta();
  EXPECT_EQ(t.Elenco().Riga(4), Righe[4]);
  EXPECT_GE(t.Posto(QStringLiteral("L004")), 0);
}

TEST(FinestraVerifiche, F8GiraPerTutteAvantiEIndietro) {
  TavoloVerifiche t;
  const int quante = t.Tabella().rowCount();
  std::set<QString> viste;
  for (int i = 0; i < quante; ++i) {
    QTest::keyClick(&*t.finestra, Qt::Key_F8);
    viste.insert(t.Cella(static_cast<int>(*t.modello.Verifiche.Scelta()), ui::TabellaVerifiche::Codice));
  }
  const auto ultima = t.modello.Verifiche.Scelta();
  QTest::keyClick(&*t.finestra, Qt::Key_F8);
  QTest::keyClick(&*t.finestra, Qt::Key_F8, Qt::ShiftModifier);
  EXPECT_EQ(t.modello.Verifiche.Scelta(), ultima);
  EXPECT_TRUE(viste.contains(QStringLiteral("L006")));
  EXPECT_TRUE(viste.contains(QStringLiteral("L015")));
}

TEST(FinestraVerifiche, FiltriRicercaEOrdine) {
  TavoloVerifiche t;
  const int tutte = t.Tabella().rowCount();
  const auto filtri = t.finestra->findChildren<QToolButton*>(QStringLiteral("Filtro"));
  ASSERT_EQ(filtri.size(), 3);
  QTest::mouseClick(filtri[2], Qt::LeftButton); // no notes
  EXPECT_EQ(t.Posto(QStringLiteral("L015")), -1);
  EXPECT_LT(t.Tabella().rowCount(), tutte);
  QTest::mouseClick(filtri[2], Qt::LeftButton);
  t.finestra->findChild<ui::ElencoVerifiche*>()->findChild<QLineEdit*>()->setText(QStringLiteral("zenit 10"));
  EXPECT_EQ(t.Codici(), QStringLiteral("L006 "));
  t.finestra->findChild<ui::ElencoVerifiche*>()->findChild<QLineEdit*>()->clear();
  t.modello.Verifiche.Ordina(OrdineVerifiche::Codice);
  t.finestra->findChild<ui::ElencoVerifiche*>()->Mostra();
  const QStringList codici = t.Codici().split(u' ', Qt::SkipEmptyParts);
  EXPECT_TRUE(std::is_sorted(codici.begin(), codici.end()));
  EXPECT_EQ(codici.size(), tutte);
}

TEST(FinestraVerifiche, SiCopianoESiContano) {
  TavoloVerifiche t;
  QTest::mouseClick(t.Figlio<QToolButton>("Copia"), Qt::LeftButton);
  EXPECT_NE(t.banco.appunti.testo.find("errore\t5\tL004\t\"20,000\" ha la virgola"), std::string::npos);
  auto* conta = t.Figlio<QToolButton>("ContaVerifiche");
  const QString quante = conta->text();
  EXPECT_TRUE(quante.contains(QStringLiteral("error")));
  QTest::keyClick(&*t.finestra, Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(conta->text().startsWith(QStringLiteral("Il libretto esce con "))) << conta->text().toStdString();
  EXPECT_FALSE(t.banco.disco.Contenuto("C:\\LIBRETTO.DAT").empty());
  t.Elenco().Cambia(4, "2|101|50.0000|100.0000|20.000|1.600|SPIGOLO|");
  t.finestra->Mostra();
  TavoloVerifiche::Aspetta();
  EXPECT_FALSE(conta->text().startsWith(QStringLiteral("Il libretto"))); // another act than the one that left
}

TEST(FinestraVerifiche, RigaEPuntoSiAccendonoAVicenda) {
  TavoloVerifiche t;
  auto& superficie = *t.finestra->findChild<ui::PannelloRilievo*>()->findChild<ui::GraficaSuperficie*>();
  EXPECT_TRUE(t.Figlio<QLabel>("AvvisoRilievo")->text().contains(QStringLiteral("non è una compensazione")));
  t.Clicca(7);
  TavoloVerifiche::Aspetta();
  const auto& figura = t.modello.Rilievo.Grafica1;
  ASSERT_TRUE(figura.Evidenza.has_value());
  const PuntoPiano punto{figura.Evidenza->X2, figura.Evidenza->Y2};
  EXPECT_DOUBLE_EQ(figura.Vista().Xc, punto.est);
  EXPECT_DOUBLE_EQ(figura.Vista().Yc, punto.nord);
  // A click upon another point, its row.
  t.Clicca(2);
  TavoloVerifiche::Aspetta();
  const QPointF posto = superficie.Posto(punto.est, punto.nord);
  QTest::mouseClick(&superficie, Qt::LeftButton, {}, posto.toPoint());
  TavoloVerifiche::Aspetta();
  EXPECT_EQ(t.Selezionate(), std::vector<std::size_t>{7});
  // The row changes, and its point moves.
  t.Elenco().Cambia(7, "2|201|350.0000|100.0000|30.000|1.600|SPIGOLO|");
  t.finestra->Mostra();
  TavoloVerifiche::Aspetta();
  ASSERT_TRUE(figura.Evidenza.has_value());
  EXPECT_NEAR(DistanzaPiana(punto, {figura.Evidenza->X2, figura.Evidenza->Y2}), 10, 0.01);
}

TEST(FinestraVerifiche, RicordaCheCosaSiVedeEQuantoEGrande) {
  TavoloVerifiche t;
  t.modello.DimensionaVerifiche(150, 333);
  KR_LibrettoOriginale altra(t.banco.ambiente);
  ASSERT_TRUE(altra.Avvia("C:\\LIBRETTO.DAT"));
  EXPECT_TRUE(altra.ElencoVerifiche);
  EXPECT_TRUE(altra.RilievoVisibile);
  EXPECT_EQ(altra.AltezzaVerifiche, 150);
  EXPECT_EQ(altra.LarghezzaRilievo, 333);
}

} // namespace lirmeto::prova
