#include <ui/tavolo.h>

#include <ui/libretto/finestra_riordino.h>

#include <QLabel>
#include <QListView>
#include <QPushButton>
#include <QToolButton>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

constexpr std::size_t Stazioni = 6; // place of the class among the classes

// A dialog over rows out of order, the last of which belongs to no class.
struct ConRiordino : testing::Test {
  ConRiordino() {
    auto righe = RigheDiProva();
    std::swap(righe[3], righe[5]);
    righe.emplace_back("6|a|b|c|");
    banco.Apri(Testo(righe));
    form.AlCaricamento();
    finestra.emplace(form);
    finestra->show();
    QTest::qWait(1);
  }
  [[nodiscard]] QList<QPushButton*> Classi() { return finestra->findChildren<QPushButton*>(QStringLiteral("Classe")); }
  [[nodiscard]] QListView& Vista(std::size_t classe) {
    const QString nome = Classi()[static_cast<qsizetype>(classe)]->text();
    for (QListView* lista : finestra->findChildren<QListView*>())
      if (lista->accessibleName() == nome) return *lista;
    qFatal("no such list");
  }
  void Elimina(const char* titolo) {
    for (QToolButton* bottone : finestra->findChildren<QToolButton*>())
      if (bottone->accessibleName() == QString::fromLatin1(titolo)) return bottone->click();
    qFatal("no such button");
  }
  void DoppioClick(std::size_t classe, int riga) {
    Classi()[static_cast<qsizetype>(classe)]->click();
    QListView& lista = Vista(classe);
    const QRect posto = lista.visualRect(lista.model()->index(riga, 0)) & lista.viewport()->rect();
    QTest::mouseClick(lista.viewport(), Qt::LeftButton, {}, posto.center());
    QTest::mouseDClick(lista.viewport(), Qt::LeftButton, {}, posto.center());
  }
  Banco banco;
  FormRiordinoRighe form{banco.ambiente};
  std::optional<ui::FinestraRiordino> finestra;
};

TEST_F(ConRiordino, OgniClasseHaLaSuaListaELeRigheSenzaClasseSiVedono) {
  const auto& classi = FormRiordinoRighe::Classi();
  ASSERT_EQ(Classi().size(), static_cast<qsizetype>(classi.size()) + 1);
  for (std::size_t i = 0; i < classi.size(); ++i) {
    EXPECT_EQ(Classi()[static_cast<qsizetype>(i)]->text(), ui::AQString(classi[i].nome));
    EXPECT_EQ(Vista(i).model()->rowCount(), static_cast<int>(form.Righe[classi[i].classe].size()));
  }
  EXPECT_TRUE(Classi().last()->isVisible());
  EXPECT_EQ(Vista(Stazioni).model()->index(0, 0).data().toString(), QStringLiteral("1|100|1.430|CHIODO|"));
  EXPECT_TRUE(Vista(Stazioni).isVisible());
  EXPECT_FALSE(finestra->findChild<QLabel*>(QStringLiteral("TitoloGruppo"))->text().contains(u'&'));
}

TEST_F(ConRiordino, EliminaChiedeESvuotaSoloSeSi) {
  banco.dialoghi.risposte = {Risposta::No, Risposta::Si};
  Elimina("Eliminazione Stazioni");
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Eliminare Stazioni-P.Battuti?\r\n3 righe");
  EXPECT_EQ(Vista(Stazioni).model()->rowCount(), 3);
  Elimina("Eliminazione Stazioni");
  EXPECT_EQ(Vista(Stazioni).model()->rowCount(), 0);
}

TEST_F(ConRiordino, TornareAttivaNonRimetteLeRigheEliminate) {
  banco.dialoghi.risposte = {Risposta::Si};
  Elimina("Eliminazione Stazioni");
  QEvent attiva(QEvent::WindowActivate);
  QCoreApplication::sendEvent(&*finestra, &attiva);
  finestra->hide();
  finestra->show();
  QTest::qWait(1);
  EXPECT_EQ(Vista(Stazioni).model()->rowCount(), 0);
}

TEST_F(ConRiordino, DoppioClickECancTolgonoUnaRiga) {
  banco.dialoghi.risposte = {Risposta::Si};
  DoppioClick(Stazioni, 1);
  EXPECT_EQ(form.Righe[ClasseRighe::Stazioni], (ListaRighe{RigheDiProva()[2], RigheDiProva()[3]}));
  EXPECT_EQ(Vista(Stazioni).model()->rowCount(), 2);
  QTest::keyClick(&Vista(Stazioni), Qt::Key_Delete);
  EXPECT_EQ(form.Righe[ClasseRighe::Stazioni], (ListaRighe{RigheDiProva()[2]}));
  QTest::keyClick(&Vista(Stazioni), Qt::Key_Delete); // the cursor stands on the row that is left
  EXPECT_EQ(Vista(Stazioni).model()->rowCount(), 0);
}

TEST_F(ConRiordino, ChiudiLasciaIlLibrettoEChiedeSeQualcosaEEliminato) {
  const std::string prima = banco.sessione.Libretto;
  banco.dialoghi.risposte = {Risposta::Si, Risposta::No, Risposta::Si};
  DoppioClick(Stazioni, 1);
  QTest::keyClick(&*finestra, Qt::Key_Escape);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Chiudere senza confermare le eliminazioni?");
  EXPECT_TRUE(finestra->isVisible());
  finestra->findChild<QPushButton*>(QStringLiteral("Chiudi"))->click();
  EXPECT_FALSE(finestra->isVisible());
  EXPECT_EQ(banco.sessione.Libretto, prima);
}

TEST_F(ConRiordino, UnaRigaMoltoLungaSiMostraTagliata) {
  form.Righe[ClasseRighe::Stazioni] = Lista({"2|" + std::string(1'000'000, 'x') + "|"});
  DoppioClick(Stazioni, 0);
  EXPECT_LT(Vista(Stazioni).model()->index(0, 0).data().toString().size(), 2000);
}

TEST(FinestraRiordino, ConfermaRiordinaIlLibrettoAperto) {
  auto righe = RigheDiProva();
  std::swap(righe[3], righe[5]);
  Tavolo tavolo(righe);
  Dopo(50, [] { QApplication::activeModalWidget()->findChild<QPushButton*>(QStringLiteral("Conferma"))->click(); });
  tavolo.modello.Esegui(Comando::MostraRiordino);
  ASSERT_EQ(tavolo.Elenco().Quante(), 6U);
  EXPECT_EQ(tavolo.Elenco().Riga(2), "1|100|1.430|CHIODO|");
  EXPECT_EQ(tavolo.Elenco().Riga(5), RigheDiProva()[5]);
  EXPECT_EQ(tavolo.banco.sessione.EsitoForm, EsitoConfermato);
}

} // namespace
} // namespace lirmeto::prova
