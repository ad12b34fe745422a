#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace lirmeto::prova {

TEST_F(ProvaCli, IlDisegnoEsceInQuattroModi) {
  const std::string file = Metti("a.emp", "0|\r\n8|1%|0|0|\r\n8|2%|0|8|\r\n7|3|1%|2%|1%|NC|5|5|9|\r\n");
  for (const auto& [comando, coda] : std::map<std::string, std::string>{
           {"dxf", " 10\r\n0\r\n 20\r\n0\r\n 11\r\n8\r\n 21\r\n0\r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n"},
           {"html", "context.fillText(' 5',405.333,500.000);\r\n   </script>\r\n </body>\r\n</html>\r\n"},
           {"stampa", "T,2%,4.000,0.000,Courier New,8,0\r\nT, 5,-1.333,0.000,Courier New,12,0\r\n"},
           {"scambio", "\"L\",8,0,0,0,0,0,0,1,\"NC\"\r\n\"L\",0,0,0,8,0,0,0,1,\"NC\"\r\n"}}) {
    const Esito esito = Lancia({"disegno", comando, file});
    EXPECT_TRUE(esito.codice == 0 && esito.errori.empty() && esito.uscita.ends_with(coda)) << comando << esito.uscita;
  }
}

TEST_F(ProvaCli, UnDisegnoGuastoNonEsce) {
  const Esito senzaPunti = Lancia({"disegno", "html", Metti("b.emp", "0|\n7|3|1%|2%|1%|NC|5|5|9|\n")});
  EXPECT_EQ(senzaPunti.codice, 1);
  EXPECT_EQ(senzaPunti.uscita, "");
  EXPECT_NE(senzaPunti.errori.find("errore : 11\n"), std::string::npos) << senzaPunti.errori;
  EXPECT_NE(senzaPunti.errori.find("Nella Routine AggiungiGrafica2"), std::string::npos);
  const Esito vuoto = Lancia({"disegno", "dxf", Metti("c.csv", "\n")});
  EXPECT_EQ(vuoto.codice, 1);
  EXPECT_NE(vuoto.errori.find("errore : 9\n"), std::string::npos) << vuoto.errori;
  EXPECT_NE(vuoto.errori.find("KR_SalvaDXF"), std::string::npos);
  EXPECT_EQ(Lancia({"disegno", "stampa", Metti("d.csv", "\n")}).codice, 0);
  EXPECT_EQ(Lancia({"disegno", "dxf", "/non/ce.emp"}).codice, 3);
}

} // namespace lirmeto::prova
