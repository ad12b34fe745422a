#include <ui/comune/casella_testo.h>
#include <ui/comune/testo_qt.h>

#include <base/testo.h>

#include <QTextDocument>

#include <gtest/gtest.h>

namespace lirmeto::ui {
namespace {

// Every byte but the two of a line end.
std::string TuttiIByte() {
  std::string byte;
  for (int i = 0; i < 256; ++i)
    if (i != '\r' && i != '\n') byte += static_cast<char>(i);
  return byte;
}

TEST(TestoQt, OgniByteTornaDaUnicode) {
  EXPECT_EQ(DaQString(AQString(TuttiIByte())), TuttiIByte());
}

TEST(TestoQt, StessiCaratteriDiUtf8) {
  EXPECT_EQ(AQString("perch\xE9 \x80"), QStringLiteral("perché €"));
  EXPECT_EQ(DaQString(QStringLiteral("α€")), "?\x80");
}

TEST(TestoQt, OgniByteTornaDalDocumentoConLeSueRighe) {
  CasellaTesto casella;
  const std::string testo = "0|prima|\r\n" + TuttiIByte() + "\r\n\r\n9|\xA0|\r\n";
  casella.MettiTesto(testo);
  EXPECT_EQ(casella.blockCount(), 5);
  EXPECT_EQ(casella.Testo(), testo);
}

TEST(TestoQt, MaiuscoloTieneLunghezzaERighe) {
  const QString testo = QStringLiteral("straße àèü ÿ") + QChar(QChar::ParagraphSeparator) + QStringLiteral("b\u00A0c?");
  const QString atteso =
      QStringLiteral("STRAßE ÀÈÜ Ÿ") + QChar(QChar::ParagraphSeparator) + QStringLiteral("B\u00A0C?");
  EXPECT_EQ(InMaiuscolo(testo), atteso);
  EXPECT_EQ(InMinuscolo(QStringLiteral("ÀÈ|PF01")), QStringLiteral("àè|pf01"));
}

TEST(TestoQt, DisegnoSenzaCaratteriDiControllo) {
  EXPECT_EQ(PerDisegno(std::string("a\tb\0c\x81", 6)), QStringLiteral("a b·c·"));
}

TEST(TestoQt, UnMessaggioStaInUnoSchermo) {
  EXPECT_EQ(PerMessaggio("uno\r\ndue"), QStringLiteral("uno\ndue"));
  EXPECT_LT(PerMessaggio(std::string(1'000'000, 'x')).size(), 1000);
  std::string righe;
  for (int i = 0; i < 1000; ++i) righe += "r\r\n";
  EXPECT_LT(PerMessaggio(righe).count(u'\n'), 40);
  EXPECT_TRUE(PerMessaggio(righe).endsWith(QStringLiteral("...")));
}

} // namespace
} // namespace lirmeto::ui
