#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <string>

namespace lirmeto::prova {

namespace {

const std::string Testata = "6|Dati per aggiornare il D.B. Censuario dell'Ufficio Tecnico Erariale|\r\n";
const std::string Bianchi(57, ' ');
const std::string Coda = "                 |\r\n";
const std::string Riga0 = "0|01022024|7|G224|0010|35|ROSSI ADA|GEOMETRA|PADOVA|\r\n";
const std::string Riga9 = "9|12|10|20|0|VER|FR|TOTALE|\r\n";

std::string Conteggio(const std::string& sezione, const std::string& cifre) {
  return "6|" + sezione + "|" + cifre + "|" + Bianchi + "|\r\n";
}

std::string Dati(const std::string& colonne) {
  return "6|" + colonne + Coda;
}

const std::string Origine = Dati("O|35   |000|  |     |000000100|SN|  |     |001|1 |");
const std::string Soppressa = Dati("S|35   |000|  |     |000000000|  |  |     |000|  |");

class Censuario : public ProvaCli {
protected:
  Censuario() {
    cartella.Metti("dischi/c/pregeo/exe/qualita.txt", "testata\r\nSEMINATIVO   001\r\nENTE URBANO  282\r\n");
  }

  std::string particella = Metti("G224_00010_35.MAP", "6|PARTICELLA|35|01|SEMINATIVO  |100|100|1|2|SN|\r\n");
  std::string libretto = Metti("x.dat", Riga0 + Riga9 + Testata + Conteggio("51FTP", "000") + "6|<EST>X.EMP|\r\n");
};

struct CasoCensuario {
  std::vector<std::string> parole; // behind "censuario"
  std::string uscita;
};

} // namespace

TEST_F(Censuario, RigheComposte) {
  const std::string memo = Metti("memo.cen", Dati("C|     |000|b |AAB  |000000001|SN|  |     |000|  |"));
  const std::string derivazioni = Metti("modello.txt", "35 = 100_X = 1\n35 = 100_AAC = 1\n");
  const CasoCensuario casi[] = {
      {{"frazionamento", particella, "--aree", "40:F:R,30,30", "--mantieni"},
       Testata + Conteggio("51FTP", "005") + Origine + Dati("V|35   |000|  |     |000000040|SR|  |     |000|  |") +
           Dati("C|     |000|a |AAA  |000000030|SN|  |     |000|  |") +
           Dati("C|     |000|b |AAB  |000000030|SN|  |     |000|  |")},
      {{"frazionamento", "--memo", memo, "--derivazioni", derivazioni, "--aree", "1,1", particella},
       Testata + Conteggio("51FTP", "004") + Origine + Soppressa +
           Dati("C|     |000|a |X    |000000050|SN|  |     |000|  |") +
           Dati("C|     |000|b |AAC  |000000050|SN|  |     |000|  |")},
      {{"stralcio", particella, "--memo", memo, "--derivazioni", derivazioni, "--aree", "1,1", "--urbani", "2"},
       Testata + Conteggio("3SPC ", "004") + Origine + Soppressa +
           Dati("C|     |000|a |AAC  |000000050|SN|  |     |282|  |") +
           Dati("C|     |000|b |AAD  |000000050|SN|  |     |001|1 |")},
      {{"nuova-costruzione", particella, "--nome", "AAB", "--sr"},
       Testata + Conteggio("3SPC ", "003") + Dati("O|35   |000|  |     |000000100|SR|  |     |001|01|") + Soppressa +
           Dati("C|     |000|a |AAB  |000000100|SR|  |     |282|  |")},
      {{"variazione", particella},
       Testata + Conteggio("3SPC ", "002") + Dati("O|35   |000|  |     |000000100|SN|  |     |001|01|") +
           Dati("V|35   |000|  |     |000000100|SN|  |     |282|  |")},
      {{"fusione", "--conserva", "--m31fu", particella},
       Testata + Conteggio("M31FU", "002") + Origine + Dati("V|35   |000|  |     |000000100|SN|A |35   |282|  |")},
  };
  for (const auto& caso : casi) {
    auto parole = caso.parole;
    parole.insert(parole.begin(), "censuario");
    const auto esito = Lancia(parole);
    EXPECT_EQ(esito.errori, "");
    EXPECT_EQ(esito.uscita, caso.uscita) << caso.parole[0];
    EXPECT_EQ(esito.codice, 0);
  }
}

TEST_F(Censuario, NelLibretto) {
  const std::string coda = "6|<EST>X.EMP|\r\n6|<COD>RSSDAA80A41G224X|\r\n6|<ISC>3127|\r\n6|<DIT>|\r\n";
  const std::string nata = Dati("C|     |000|a |AAA  |000000100|SN|  |     |000|  |");
  const auto frazionato = Lancia({"censuario", "frazionamento", particella, "--aree", "7", "--in", libretto});
  EXPECT_EQ(frazionato.errori, "");
  EXPECT_TRUE(frazionato.uscita.starts_with(Riga0 + Riga9 + Testata + Conteggio("51FTP", "003") + Origine + Soppressa +
                                            nata + "6|<EST>X.EMP|\r\n"))
      << frazionato.uscita;
  const auto fuso = Lancia({"censuario", "fusione", particella, "--in", Metti("y.dat", frazionato.uscita)});
  EXPECT_TRUE(fuso.uscita.starts_with(Riga0 + Riga9 + Testata + Conteggio("51FTP", "003") + Origine + Soppressa + nata +
                                      Conteggio("3SPC ", "003") + Origine + Soppressa +
                                      Dati("C|     |000|a |AAA  |000000100|SN|A |AAA  |282|  |")))
      << fuso.uscita;
  const auto archivio = Lancia({"censuario", "archivio", Metti("z.dat", fuso.uscita)});
  EXPECT_EQ(archivio.uscita, "G224_00010_AAA.MAP 6|PARTICELLA|AAA|01|001         |100|100|0|0|\r\n");
}

// More derivations than areas compose nothing, and it is said.
TEST_F(Censuario, DerivazioniDiTroppo) {
  const std::string modello = Metti("m.txt", "35 = 100_X = 1\n35 = 100_Y = 1\n35 = 100_Z = 1\n");
  const auto esito = Lancia({"censuario", "frazionamento", particella, "--aree", "60,40", "--derivazioni", modello});
  EXPECT_NE(esito.errori.find("Le righe non sono ricomposte: "), std::string::npos) << esito.errori;
}

TEST_F(Censuario, UsoSbagliato) {
  const std::vector<std::string> casi[] = {{"frazionamento", particella, "--aree", "1:X"},
                                           {"stralcio", particella, "--aree", "1", "--urbani", "1"},
                                           {"nuova-costruzione", particella, "--nome", "ABC"},
                                           {"variazione", particella, "--nome", "AAA"},
                                           {"fusione", libretto}};
  for (auto parole : casi) {
    parole.insert(parole.begin(), "censuario");
    const auto esito = Lancia(parole);
    EXPECT_EQ(esito.codice, 1) << parole[1] << esito.errori;
    EXPECT_EQ(esito.uscita, "");
  }
  const auto lungo = Lancia({"censuario", "variazione", Metti("l.map", "6|PARTICELLA|" + std::string(5000, '9'))});
  EXPECT_LT(lungo.errori.size(), 500U) << "a row is shown by its beginning";
  EXPECT_EQ(Lancia({"censuario", "frazionamento", particella}).codice, 2);
  EXPECT_EQ(Lancia({"censuario", "fusione", particella + "x"}).codice, 3);
}

} // namespace lirmeto::prova
