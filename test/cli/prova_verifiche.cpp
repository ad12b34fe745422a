#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <string>

namespace lirmeto::prova {

namespace {

constexpr std::string_view Buono = "0|21112024|18|G224|0010|12|ROSSI ADA|GEOMETRA|PADOVA|\r\n"
                                   "9|12|10|20|0|10.00-G,APAG 2.12|TM|GEODIMETRO|\r\n";
constexpr std::string_view Estratto = "0|01012024|PD1/2024|G224|00010|12|PD|PUB|X|1|\r\n"
                                      "8|1%|0.000|0.000|\r\n8|2%|0.000|10.000|\r\n8|3%|10.000|10.000|\r\n"
                                      "7|4|1%|2%|3%|1%|NC|12|12|50|\r\n";

std::string ConErrore() {
  return std::string(Buono) + "1|100|1.5|CHIODO|\r\n2|101|10,5|100.0000|20.000|1.5|Citt\xE0 \"X\"|\r\n";
}

const std::string Errore = "errore\t3\tL004\t\"10,5\" ha la virgola: i decimali si scrivono con il punto\n";
const std::string SenzaEstratto = "nota\t\tE003\tNessun estratto associato: i controlli sulla mappa non si fanno\n";

} // namespace

TEST_F(ProvaCli, VerificaDiceUnaSegnalazionePerRiga) {
  const auto buono = Lancia({"verifica", Metti("a.dat", Buono)});
  EXPECT_EQ(buono.uscita, SenzaEstratto);
  EXPECT_EQ(buono.codice, 0);
  const auto esito = Lancia({"verifica", Metti("b.dat", ConErrore())});
  EXPECT_EQ(esito.uscita,
            Errore + "nota\t3\tL015\tLa riga contiene caratteri fuori dall'alfabeto semplice\n" + SenzaEstratto);
  EXPECT_EQ(esito.errori, "");
  EXPECT_EQ(esito.codice, 4);
}

TEST_F(ProvaCli, VerificaUnEstratto) {
  const auto esito = Lancia({"verifica", Metti("x.emp", Estratto)});
  EXPECT_EQ(esito.uscita, "avviso\t\tE001\tL'estratto \xC3\xA8 scaduto da 4 mesi\n");
  EXPECT_EQ(esito.codice, 0);
  const auto storto = Lancia({"verifica", Metti("Y.AGG", std::string(Estratto) + "7|3|1%|2%|9%|NC|13|13|0|\r\n")});
  EXPECT_NE(storto.uscita.find("errore\t5\tE010\tLa particella 13 usa il vertice 9%"), std::string::npos);
  EXPECT_EQ(storto.codice, 4);
}

TEST_F(ProvaCli, VerificaPiuFileConIlRiepilogo) {
  const std::string a = Metti("a.dat", Buono);
  const auto esito = Lancia({"verifica", a, Metti("b.dat", ConErrore()), Metti("x.emp", Estratto)});
  EXPECT_EQ(esito.codice, 4);
  EXPECT_EQ(esito.uscita.find("file\t"), 0U);
  EXPECT_NE(esito.uscita.find(":\\"), std::string::npos) << "with its drive";
  const std::string riepilogo = esito.uscita.substr(esito.uscita.find("riepilogo"));
  EXPECT_NE(riepilogo.find("a.dat\t0\t0\t1\n"), std::string::npos) << riepilogo;
  EXPECT_NE(riepilogo.find("b.dat\t1\t0\t2\n"), std::string::npos) << riepilogo;
  EXPECT_NE(riepilogo.find("x.emp\t0\t1\t0\n"), std::string::npos) << riepilogo;
}

TEST_F(ProvaCli, VerificaInJson) {
  const auto esito = Lancia({"verifica", "--json", Metti("b.dat", ConErrore())});
  EXPECT_EQ(esito.codice, 4);
  EXPECT_NE(esito.uscita.find("\"errori\":1,\"avvisi\":0,\"note\":2"), std::string::npos) << esito.uscita;
  EXPECT_NE(esito.uscita.find(
                "{\"severita\":\"errore\",\"riga\":3,\"campo\":2,\"codice\":\"L004\",\"testo\":\"\\\"10,5\\\" ha"),
            std::string::npos);
  EXPECT_NE(esito.uscita.find("\"rimedio\":\"2|101|10.5|100.0000|20.000|1.5|Citt\xC3\xA0 \\\"X\\\"|\"}"),
            std::string::npos);
  EXPECT_NE(esito.uscita.find("{\"severita\":\"nota\",\"riga\":null"), std::string::npos);
  EXPECT_EQ(Lancia({"verifica", "--json"}).codice, 2);
  EXPECT_EQ(Lancia({"verifica", "manca.dat"}).codice, 3);
}

} // namespace lirmeto::prova
