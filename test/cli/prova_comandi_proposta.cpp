#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace lirmeto::prova {

struct CasoProposta {
  std::vector<std::string> parole;
  std::string byte;
  std::string uscita;
  int codice = 0;
};

TEST_F(ProvaCli, PolilineeEProposte) {
  const std::string dxf = "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n8\nRT\n10\n1\n20\n2\n10\n3\n20\n4\n0\nENDSEC\n";
  const std::string righe = "8|1*|2.000|1.000|\r\n8|2*|4.000|3.000|\r\n6|Portico|\r\n7|2|1*|2*|RT|\r\n";
  const std::string lunga = "7|11|1|2|3|4|5|6|7|8|9|10|";
  const CasoProposta casi[] = {
      {{"polilinee"}, dxf, righe},
      {{"elenco"}, "LAYER RT\nal punto X=1 Y=2\nal punto X=3 Y=4\n", righe},
      {{"elenco"}, "niente\n", ""},
      {{"polilinee"}, "niente\n", "", 1},
      {{"polilinee"}, dxf.substr(0, 50), "", 1},
      {{"proposta", "esplodi"}, lunga + "RC|5+|5|9|\n7|0|11|RC|\n", lunga + "11|5+|5|9|\r\n"},
      {{"proposta", "implodi"},
       "6|a|\n" + lunga + "11|RC|5+|5|9|\n",
       "6|a|\r\n" + lunga + "RC|5+|5|9|\r\n7|0|11|RC|\r\n"},
      {{"proposta", "spezza"}, "6|a|\n" + lunga + "11|NC|\n", "6|a|\r\n" + lunga + "NC|\r\n7|0|11|NC|\r\n"},
      {{"proposta", "aree"},
       "6|ESTRATTO DI MAPPA|\n7|1|1%|NC|5|5|9|\n6|ESTRATTO DI MAPPA AGGIORNATO|\n7|1|1%|NC|AAA|5|8|\n",
       "6|ESTRATTO DI MAPPA AGGIORNATO|\r\nAAA = 8\r\n\r\n5 = 9_AAA = 8\r\n"},
  };
  for (const auto& caso : casi) {
    std::vector<std::string> parole = caso.parole;
    parole.push_back(Metti("x.txt", caso.byte));
    const auto esito = Lancia(parole);
    EXPECT_EQ(esito.uscita, caso.uscita) << caso.parole.back() << esito.errori;
    EXPECT_EQ(esito.codice, caso.codice) << caso.parole.back() << esito.errori;
  }
}

} // namespace lirmeto::prova
