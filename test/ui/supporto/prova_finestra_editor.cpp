#include <ui/tavolo.h>

#include <ui/comune/barra_a_capo.h>
#include <ui/comune/casella_testo.h>
#include <ui/supporto/finestra_editor.h>

#include <QLabel>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

void Premi(QWidget& finestra, const QString& testo) {
  for (QAction* azione : finestra.findChild<ui::BarraACapo*>()->actions())
    if (azione->text() == testo) return azione->trigger();
  qFatal("no such button");
}

ui::CasellaTesto& Casella(QWidget& finestra) {
  return *finestra.findChild<ui::CasellaTesto*>();
}

// Opens the editor from the main window, adds a row, closes and answers.
struct Uscita {
  Risposta risposta;
  std::size_t righe;
};

class UscitaDallEditor : public testing::TestWithParam<Uscita> {};

TEST_P(UscitaDallEditor, SalvaSoloSeSi) {
  Tavolo tavolo;
  tavolo.banco.dialoghi.risposte = {GetParam().risposta};
  NellaProssimaFinestra([](QWidget& finestra) {
    Casella(finestra).moveCursor(QTextCursor::End);
    Casella(finestra).insertPlainText(QStringLiteral("  6|AGGIUNTA PERCHé|  "));
    Premi(finestra, QStringLiteral("Chiudi"));
  });
  QTest::keyClick(&*tavolo.finestra, Qt::Key_F2);
  EXPECT_EQ(tavolo.banco.dialoghi.UltimoTesto(), "Salvare Libretto modificato?");
  EXPECT_EQ(tavolo.banco.dialoghi.detti.back().titolo, "Uscita da Editor");
  ASSERT_EQ(tavolo.Elenco().Quante(), GetParam().righe);
  if (GetParam().righe > 6) {
    EXPECT_EQ(tavolo.Elenco().Riga(6), "6|AGGIUNTA PERCH\xE9|");
  }
}

INSTANTIATE_TEST_SUITE_P(Risposte, UscitaDallEditor, testing::Values(Uscita{Risposta::Si, 7}, Uscita{Risposta::No, 6}));

TEST(FinestraEditor, AnnullaRestaNellEditor) {
  Banco banco;
  banco.Apri(Testo(RigheDiProva()));
  KR_EditorGen editor(banco.ambiente);
  editor.AlCaricamento();
  ui::FinestraEditor finestra(editor);
  finestra.show();
  Casella(finestra).insertPlainText(QStringLiteral("x"));
  banco.dialoghi.risposte = {Risposta::Annulla};
  finestra.close();
  EXPECT_TRUE(finestra.isVisible());
  QTest::keyClick(&Casella(finestra), Qt::Key_Escape);
  EXPECT_TRUE(finestra.isVisible());
  EXPECT_EQ(banco.dialoghi.detti.size(), 2U);
  banco.dialoghi.risposte = {Risposta::No};
  Premi(finestra, QStringLiteral("Chiudi"));
  EXPECT_FALSE(finestra.isVisible());
}

struct ConEditor : testing::Test {
  ConEditor() {
    banco.Apri(Testo(RigheDiProva()));
    editor.AlCaricamento();
    finestra.emplace(editor);
    finestra->show();
  }
  Banco banco;
  KR_EditorGen editor{banco.ambiente};
  std::optional<ui::FinestraEditor> finestra;
};

TEST_F(ConEditor, SalvaSenzaUscire) {
  Casella(*finestra).setPlainText(QStringLiteral("0|a|b|\n\n9|c|d|\n1|NUOVA|"));
  Premi(*finestra, QStringLiteral("Salva"));
  EXPECT_TRUE(finestra->isVisible());
  EXPECT_EQ(banco.Righe(), (std::vector<std::string>{"0|a|b|", "9|c|d|", "1|NUOVA|"}));
}

TEST_F(ConEditor, MaiuscoloEMinuscoloTengonoLaSelezione) {
  Casella(*finestra).setPlainText(QStringLiteral("6|città\n7|Àb|"));
  Casella(*finestra).selectAll();
  Premi(*finestra, QStringLiteral("MAIUSCOLO"));
  EXPECT_EQ(Casella(*finestra).Testo(), "6|CITT\xC0\r\n7|\xC0"
                                        "B|");
  Premi(*finestra, QStringLiteral("minuscolo"));
  EXPECT_EQ(Casella(*finestra).Testo(), "6|citt\xE0\r\n7|\xE0"
                                        "b|");
}

TEST_F(ConEditor, LeTreDimensioni) {
  for (const int punti : {8, 12, 10}) {
    Premi(*finestra, QString::number(punti));
    EXPECT_EQ(Casella(*finestra).font().pointSize(), punti);
  }
}

TEST_F(ConEditor, AvvisaDeiCaratteriCheNonCiStanno) {
  const QLabel* avviso = finestra->findChild<QLabel*>(QStringLiteral("Avviso"));
  EXPECT_FALSE(avviso->isVisible());
  Casella(*finestra).insertPlainText(QStringLiteral("è €"));
  EXPECT_FALSE(avviso->isVisible());
  Casella(*finestra).insertPlainText(QStringLiteral("Ω"));
  EXPECT_TRUE(avviso->isVisible());
  EXPECT_TRUE(avviso->text().contains(u'Ω'));
}

TEST_F(ConEditor, CercaGirando) {
  auto& casella = Casella(*finestra);
  casella.moveCursor(QTextCursor::Start);
  EXPECT_TRUE(casella.Trova(QStringLiteral("spigolo"), true));
  EXPECT_EQ(casella.textCursor().blockNumber(), 3);
  EXPECT_TRUE(casella.Trova(QStringLiteral("spigolo"), true));
  EXPECT_EQ(casella.textCursor().blockNumber(), 3);
  const int posto = casella.textCursor().position();
  EXPECT_FALSE(casella.Trova(QStringLiteral("nulla"), false));
  EXPECT_EQ(casella.textCursor().position(), posto);
}

} // namespace
} // namespace lirmeto::prova
