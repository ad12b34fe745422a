#include <base/data.h>
#include <base/errore.h>
#include <base/testo.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

std::string TuttiIByte() {
  std::string byte;
  for (int i = 0; i < 256; ++i) byte += static_cast<char>(i);
  return byte;
}

TEST(Unicode, OgniByteTornaComEra) {
  EXPECT_EQ(DaUtf8(AUtf8(TuttiIByte())), TuttiIByte());
  EXPECT_EQ(AUtf8("\x80\x92\xE0\x81"), "\xE2\x82\xAC\xE2\x80\x99\xC3\xA0\xC2\x81");
  EXPECT_TRUE(RappresentabileDaUtf8(AUtf8(TuttiIByte())));
}

TEST(Unicode, CioCheNonHaByteDiventaUnDomanda) {
  EXPECT_EQ(DaUtf8("\xE6\x97\xA5x"),
            "?x");                            // a character that is not in the code page
  EXPECT_EQ(DaUtf8("\xF0\x9F\x98\x80"), "?"); // beyond the basic plane
  EXPECT_EQ(DaUtf8("\xC3"), "?");             // cut sequence
  EXPECT_EQ(DaUtf8("\xC0\x80\xFF"
                   "a"),
            "???a"); // overlong and impossible bytes
  EXPECT_EQ(DaUtf8("a\xE2\x82"), "a??");
  EXPECT_FALSE(RappresentabileDaUtf8("\xE6\x97\xA5"));
}

TEST(Unicode, LetteraleDelSorgente) {
  EXPECT_EQ("è già €’"_w, "\xE8 gi\xE0 \x80\x92");
  EXPECT_EQ(AUtf8("Qualità"_w), "Qualità");
}

TEST(Caso, LettereAccentateDellaPagina1252) {
  EXPECT_EQ(Maiuscolo("perché òàùìÿ šœž ß÷µ"_w), "PERCHÉ ÒÀÙÌŸ ŠŒŽ ß÷µ"_w);
  EXPECT_EQ(Minuscolo("PERCHÉ Ÿ ŠŒŽ ×ÀÞ"_w), "perché ÿ šœž ×àþ"_w);
  for (const char byte : TuttiIByte()) {
    EXPECT_EQ(Maiuscolo(Minuscolo(Maiuscolo(byte))), Maiuscolo(byte)) << int(byte);
    EXPECT_EQ(Minuscolo(Maiuscolo(Minuscolo(byte))), Minuscolo(byte)) << int(byte);
  }
  EXPECT_TRUE(UgualiSenzaCaso("Citt\xE0", "CITT\xC0"));
  EXPECT_FALSE(UgualiSenzaCaso("a", "ab"));
  EXPECT_TRUE(FinisceConSenzaCaso("C:\\x.Lxb", ".LXB"));
  EXPECT_FALSE(FinisceConSenzaCaso("XB", ".LXB"));
}

TEST(Taglia, SoloBianchiVeri) {
  EXPECT_EQ(Taglia("  a b  "), "a b");
  EXPECT_EQ(Taglia("\t a\xA0 "), "\t a\xA0");
  EXPECT_EQ(Taglia("    "), "");
}

TEST(Dividi, UnaParteInPiuDeiSeparatori) {
  EXPECT_TRUE(Dividi("", "|").empty());
  EXPECT_EQ(Dividi("|", "|").size(), 2U);
  EXPECT_EQ(Dividi("a\r\n\r\nb", "\r\n"), (std::vector<std::string_view>{"a", "", "b"}));
  EXPECT_EQ(Dividi("aaa", "aa"), (std::vector<std::string_view>{"", "a"}));
  EXPECT_EQ(Unisci(Dividi("x||y|", "|"), "|"), "x||y|");
  for (const char* testo : {"", "a", "|", "a|b", "|a||"}) {
    const auto parti = Dividi(testo, "|");
    EXPECT_EQ(QuanteParti(testo, '|'), parti.size()) << testo;
    for (std::size_t i = 0; i < parti.size() + 2; ++i)
      EXPECT_EQ(Parte(testo, '|', i), i < parti.size() ? parti[i] : "") << testo << i;
  }
}

TEST(Sostituisci, UnaPassataDaSinistra) {
  EXPECT_EQ(Sostituisci("a|||b", "||", "|NOTE:|"), "a|NOTE:||b");
  EXPECT_EQ(Sostituisci("a||||b", "||", "|NOTE:|"), "a|NOTE:||NOTE:|b");
  EXPECT_EQ(Sostituisci("\n\n\n\n\n", "\n\n", "\n"), "\n\n\n");
  EXPECT_EQ(Sostituisci("abc", "", "x"), "abc");
}

TEST(Allineamento, DestraTieneLaCodaSinistraLaTesta) {
  EXPECT_EQ(AllineaDestra("12", 5), "   12");
  EXPECT_EQ(AllineaDestra("123456", 5), "23456");
  EXPECT_EQ(RiempiECorta("AB", 4), "AB  ");
  EXPECT_EQ(RiempiECorta("ABCDEF", 4), "ABCD");
}

class FineDiRiga : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(FineDiRiga, OgniLineaFinisceConCrLf) {
  EXPECT_EQ(ConFineRiga(std::string_view(GetParam().first)), GetParam().second);
  EXPECT_EQ(ConFineRiga(std::string(GetParam().first)), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Tutte, FineDiRiga,
                         testing::Values(std::pair{"", ""}, std::pair{"a", "a\r\n"}, std::pair{"a\r\n", "a\r\n"},
                                         std::pair{"a\nb\rc\r\nd", "a\r\nb\r\nc\r\nd\r\n"},
                                         std::pair{"\n\r", "\r\n\r\n"}, std::pair{"\r\r\n\n", "\r\n\r\n\r\n"},
                                         std::pair{"a\r", "a\r\n"}));

TEST(Data, GiornoMeseAnno) {
  EXPECT_EQ(TestoData({2026, 11, 21}), "21112026");
  EXPECT_EQ(TestoData({1980, 1, 2}), "02011980");
}

TEST(Errore, HaLaSuaDescrizione) {
  EXPECT_EQ(Errore(53).Descrizione(), "Impossibile trovare il file");
  EXPECT_EQ(Errore(58).Descrizione(), "Il file esiste già"_w);
  EXPECT_FALSE(Errore(12345).Descrizione().empty());
}

} // namespace
} // namespace lirmeto
