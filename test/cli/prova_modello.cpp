#include <cli/lancio.h>

#include <gtest/gtest.h>

namespace lirmeto::prova {

namespace {
constexpr std::string_view Libretto = "0|22062018|18|G224|0010|12|ADA {A}|G|PD|\r\n9|0|10|20|0|V|TM|S|\r\n";
} // namespace

TEST_F(ProvaCli, ModelloTieneIByteEProteggeIValori) {
  const std::string libretto = Metti("a.dat", Libretto);
  const std::string modello =
      Metti("m.rtf", "{\\rtf1\n_nome_tecnico_libretto_\r\n{\\b \xE8}_stampa_generale_|_anno_libretto_\r}");
  const std::string inizio = "{\\rtf1\nADA \\{A\\}\r\n{\\b \xE8}";
  auto esito = Lancia({"modello", modello, libretto});
  EXPECT_EQ(esito.uscita, inizio + "|2018\r}");
  EXPECT_EQ(esito.errori, "");
  EXPECT_EQ(esito.codice, 0);
  esito = Lancia({"modello", modello, libretto, Metti("righe.txt", "C:\\a \n{x}")});
  EXPECT_EQ(esito.uscita, inizio + "C:\\\\a\\cf1\\line \\{x\\}\\cf1\\line |2018\r}");
  EXPECT_EQ(Lancia({"modello", modello, libretto, "manca.txt"}).codice, 1);
}

TEST_F(ProvaCli, ModelloCheNonERtfAvvisaEVuotoFallisce) {
  const std::string libretto = Metti("a.dat", Libretto);
  auto esito = Lancia({"modello", Metti("m.txt", "_foglio_libretto_"), libretto});
  EXPECT_EQ(esito.uscita, "0010");
  EXPECT_NE(esito.errori.find("m.txt non \xC3\xA8 un documento RTF"), std::string::npos) << esito.errori;
  EXPECT_EQ(esito.codice, 0);
  esito = Lancia({"modello", Metti("v.rtf", ""), libretto});
  EXPECT_EQ(esito.uscita, "");
  EXPECT_NE(esito.errori.find("vuoto"), std::string::npos) << esito.errori;
  EXPECT_EQ(esito.codice, 1);
}

} // namespace lirmeto::prova
