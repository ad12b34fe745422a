#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <string>

namespace lirmeto::prova {

struct ProvaFiduciali : ProvaCli {
  ProvaFiduciali() {
    std::string taf = "G224   001 0   01";
    taf.resize(102, ' ');
    (taf += "     10.500") += ' ';
    cartella.Metti("dischi/c/fiducial/DATI/g224.TAF", taf + " -20.25      09\r\n");
    cartella.Metti("dischi/c/fiducial/DATI/PD2024.DDD", "PF01/0010/G224 - PF02/0010/G224        7.5\r\n");
  }
};

TEST_F(ProvaFiduciali, LeMisurateDiUnLibrettoEDiUnDisegno) {
  const std::string libretto = Metti("a.dat", "0|1|\r\n9|\r\n8|PF01/0010/G224|1|2|\r\n8|PF02/0010/G224|1|2|\r\n");
  const Esito daLibretto = Lancia({"misurate", libretto});
  EXPECT_EQ(daLibretto.codice, 0);
  EXPECT_EQ(daLibretto.errori, "[PF Non trovato] Il PF02/0010/G224\n Non \xC3\xA8 stato trovato nella TAF!\n");
  EXPECT_NE(daLibretto.uscita.find("        7.5    -7.500\r\n"), std::string::npos) << daLibretto.uscita;
  const std::string disegno = Metti("a.lxc", "P,PF01/0010/G224,0,0,1,,0\r\nP,PF02/0010/G224,3,4,1,,0\r\n");
  for (const auto& parole : {std::vector<std::string>{"misurate", disegno, "--disegno"},
                             std::vector<std::string>{"misurate", "--disegno", disegno}})
    EXPECT_NE(Lancia(parole).uscita.find("        5.000               (REALE)\r\n"), std::string::npos);
  const Esito senza = Lancia({"misurate", disegno});
  EXPECT_EQ(senza.codice, 1);
  EXPECT_EQ(senza.uscita + senza.errori, "[MISURATE PF] Nessun PF trovato nel libretto\n");
}

struct CasoPf {
  std::vector<std::string> parole;
  int codice;
  std::string detto; // on either channel
};

TEST_F(ProvaFiduciali, UnPuntoOUnComune) {
  for (const CasoPf& caso :
       {CasoPf{{"pf", "PF01/0010/G224"}, 0, "north=10.500\neast=-20.25\n"},
        CasoPf{{"pf", "PF09/0010/G224"}, 1, "Punto fiduciale non trovato"},
        CasoPf{{"pf"}, 2, "Manca il NOME del comando pf."}, CasoPf{{"pf", "PF01/0010/G224", "altro"}, 2, "altro"},
        CasoPf{{"pf", "elenco", "g224"}, 0, "PF01/0010/G224\t\t09\t10.500\t-20.25\t\t\t\t\t\r\n"},
        CasoPf{{"pf", "dxf", "G224"}, 0, " 8\r\nPunti\r\n 10\r\n-20.25\r\n 20\r\n10.5\r\n"},
        CasoPf{{"pf", "elenco"}, 2, "Manca il COMUNE del comando pf elenco."},
        CasoPf{{"pf", "dxf", "L736"}, 1, "Manca la TAF del comune \"L736\""},
        CasoPf{{"pf", "dxf", "..\\X"}, 1, "Manca la TAF"}}) {
    const Esito esito = Lancia(caso.parole);
    EXPECT_EQ(esito.codice, caso.codice) << caso.detto;
    EXPECT_NE((esito.uscita + esito.errori).find(caso.detto), std::string::npos) << esito.uscita << esito.errori;
  }
}

} // namespace lirmeto::prova
