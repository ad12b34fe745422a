#include <base/errore.h>
#include <core/descrizione_riga.h>
#include <core/riga.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

class Genere : public testing::TestWithParam<std::pair<const char*, double>> {};

TEST_P(Genere, IlNumeroInTesta) {
  EXPECT_EQ(GenereRiga(GetParam().first), GetParam().second) << GetParam().first;
}

INSTANTIATE_TEST_SUITE_P(Righe, Genere,
                         testing::Values(std::pair{"8|1|", 8}, std::pair{"", 0}, std::pair{"ciao", 0},
                                         std::pair{"|8|", 0}, std::pair{" 8 |", 8}, std::pair{"08|", 8},
                                         std::pair{"12|", 12}, std::pair{"1 2|", 12}, std::pair{"6", 6},
                                         std::pair{"-1|", -1}, std::pair{"0.5|", 0.5}, std::pair{"6E0|", 6}));

struct CasoSplit {
  std::string riga;
  int ultimoCampo;
  int ultimoVertice;
};

class Split : public testing::TestWithParam<CasoSplit> {};

TEST_P(Split, UltimoCampoEVertice) {
  const RigaDivisa divisa = SplitRiga(GetParam().riga);
  EXPECT_EQ(divisa.UltimoCampo, GetParam().ultimoCampo) << GetParam().riga;
  EXPECT_EQ(divisa.UltimoVertice, GetParam().ultimoVertice) << GetParam().riga;
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Split,
    testing::Values(CasoSplit{"", 0, 0}, CasoSplit{"    ", 0, 0}, CasoSplit{"2|101|323.57|100.2|38.9|3.6|SPIG|", 6, 0},
                    CasoSplit{"2|101|323.57|100.2|38.9|3.6|SPIG", 6, 0}, CasoSplit{"2|101||38.9|", 1, 0},
                    CasoSplit{"2||x|", 0, 0}, CasoSplit{"7|3|1%|2%|1%|NC|12|12|500|", 8, 4},
                    CasoSplit{"7|3|1|2|3|", 4, 4},  // no line code: all are vertices
                    CasoSplit{"7|3|A|2|", 3, 1},    // "A" has no value
                    CasoSplit{"7|3|1|2P|3|", 4, 2}, // a letter of the line codes ends the vertices
                    CasoSplit{"7|3|1|0|3|", 4, 2}, CasoSplit{"7|3|1||3|", 2, 2}, CasoSplit{"7|1|100|PV|", 3, 2},
                    CasoSplit{"7|0|", 1, 0}, CasoSplit{"6|" + std::string(38, 'x'), 1, 0},
                    CasoSplit{"6|" + std::string(39, '|'), 0, 0}));

TEST(Split, UnaRiga6LungaTieneLeBarre) {
  const std::string riga = "6|PARTICELLA|a|b|" + std::string(24, '-');
  ASSERT_EQ(riga.size(), 41U);
  const RigaDivisa divisa = SplitRiga(riga);
  EXPECT_EQ(divisa.CampiRiga[0], "6");
  EXPECT_EQ(divisa.CampiRiga[1], riga.substr(2));
  EXPECT_EQ(divisa.CampiRiga[2], "");
}

TEST(Split, TrecentoUnoCampiBastanoIlSuccessivoEErrore) {
  std::string riga = "7";
  for (int i = 0; i < 300; ++i) riga += "|1";
  EXPECT_EQ(SplitRiga(riga).UltimoCampo, 300);
  EXPECT_EQ(SplitRiga(riga + "|").CampiRiga[300],
            "1"); // the closing bar opens no field
  for (const char* coda : {"|1", "||", "| "}) {
    try {
      (void)SplitRiga(riga + coda);
      ADD_FAILURE() << coda;
    } catch (const Errore& errore) {
      EXPECT_EQ(errore.Numero(), errore::IndiceFuoriIntervallo);
    }
  }
  EXPECT_EQ(SplitRiga("6|" + std::string(1000000, '|')).UltimoCampo, 0);
}

TEST(Gps, DallaForma) {
  for (const char* riga : {"6|L1|", "6|L2|x|", "6|x|BAS|", "6|a|RTK|b|", "6|DATA|PDOP=2.5|", "6|DATA|GDOP=3|"})
    EXPECT_TRUE(Riga6Gps(riga)) << riga;
  for (const char* riga : {"6|x|L1|", "6|BASE|RTKX|", "6|x PDOP=2|GDOP|"}) EXPECT_FALSE(Riga6Gps(riga)) << riga;
  EXPECT_TRUE(RigaGps("2|1|1.0,2.0,3.0|"));
  EXPECT_FALSE(RigaGps("2|1|10.0|20,5|"));
}

TEST(Note, TogliMarcatori) {
  EXPECT_EQ(TogliMarcatoriNota(" SPIG <P!> <PD><8=>"), "SPIG");
  EXPECT_EQ(TogliMarcatoriNota("<P<8Q>D>x"), "<PD>x"); // what a later removal joins is not looked at again
  EXPECT_EQ(TogliMarcatoriNota("<00><EL><8P><8Q><PV>"), "");
  EXPECT_EQ(TogliMarcatoriNota("[P.A.] [VRS]"), "[P.A.] [VRS]");
}

class Descrizione : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(Descrizione, NomeUnitaEValoreDiOgniCampo) {
  EXPECT_EQ(TestoDescrizione(DescriviRiga(GetParam().first)), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(
    Righe, Descrizione,
    testing::Values(
        std::pair{"1|100|1.430|CHIODO|", "Riga 1 - Stazione: Stazione 100 \xB7 Altezza strumento "
                                         "1.430 m \xB7 Nota CHIODO"},
        std::pair{"1|100|CHIODO|", "Riga 1 - Stazione planimetrica: Stazione 100 \xB7 Nota CHIODO"},
        std::pair{"2|101|323.5|38.9|SPIG|", "Riga 2 - Battuta planimetrica: Punto 101 \xB7 Hz 323.5 gon "
                                            "\xB7 Distanza ridotta 38.9 m \xB7 Nota SPIG"},
        std::pair{"2|101|1,2,3|c|PDOP=2|0.0|MR [VRS]|", "Riga 2 - Punto GPS: Punto 101 \xB7 Differenze X,Y,Z 1,2,3 m "
                                                        "\xB7 Varianze e covarianze c \xB7 PDOP PDOP=2 "
                                                        "\xB7 Altezza antenna 0.0 m \xB7 Nota MR [VRS]"},
        std::pair{"7|2|1%|2%|NC|12|12|50.5|", "Riga 7 - Contorno: Vertici 2 \xB7 Vertice 1 1% \xB7 Vertice 2 2% "
                                              "\xB7 Linea NC "
                                              "\xB7 Particella 12 \xB7 Particella 12 \xB7 Superficie 50.5 mq"},
        std::pair{"7|", "Riga 7 - Contorno"},
        std::pair{"8|PF01/0010/G224|1|2|11|SPIGOLO|", "Riga 8 - Punto Fiduciale: PF PF01/0010/G224 \xB7 Nord 1 m "
                                                      "\xB7 Est 2 m \xB7 Codice 11 \xB7 Descrizione SPIGOLO"},
        std::pair{"6|C|     |000|a |AAA  |000029090|SN|  |     |282|  |                 |",
                  "Riga 6 - Modello Censuario: Operazione C costituita \xB7 Subalterno 000 \xB7 Lettera a \xB7 "
                  "Nome temporaneo AAA \xB7 Area 000029090 mq \xB7 SR/SN SN \xB7 Qualit\xE0 282"},
        std::pair{"6|3SPC |003|                                                         |",
                  "Riga 6 - Modello Censuario: Sezione 3SPC \xB7 Righe 003"},
        std::pair{"zzz", "Riga di tipo sconosciuto: Testo zzz"}));

TEST(Descrizione, OgniRigaHaUnTestoAnchePiuLungaDiQuantoSiMostra) {
  for (int genere = 0; genere < 11; ++genere) {
    const std::string testa = std::to_string(genere);
    for (const std::string& coda : {std::string{}, std::string("|"), std::string("|||||||"), std::string(1000000, '|'),
                                    "|" + std::string(1000000, '9')})
      EXPECT_LT(TestoDescrizione(DescriviRiga(testa + coda)).size(), 60000U);
  }
}

} // namespace
} // namespace lirmeto
