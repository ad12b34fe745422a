#include <cli/disegno_png.h>
#include <cli/immagine.h>
#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace lirmeto::prova {

// Five pixels a metre, the centre at 100, 50.
TEST(DisegnoPng, OgniOperazioneAlSuoPosto) {
  Operazioni lista;
  lista.scala = {-20, 10, 20, -10};
  lista.linee = {{-20, 9, 20, 9, 4, 0, stile::Tratteggiato},
                 {-20, -9, 20, -9, 2, colore::BluChiaro, stile::Continuo},
                 {-60, 7, 20, 7, 4, colore::RossoChiaro, stile::Tratteggiato},
                 {30, 0, 40, 0, 1, 0, 0}};
  lista.cerchi = {{0, 0, 4, colore::Verde}, {60, 0, 4, 0}};
  lista.testi = {{-19, 0, "MMM", "", 12, 0, colore::Nero}, {15, -3, "MMM", "", 12, 900, 0}, {90, 0, "M", "", 9, 0, 0}};
  const std::string png = DisegnoPng(lista, 200, 100);
  const Immagine immagine = ImmagineDaPng(png);
  ASSERT_EQ(immagine.larga, 200);
  EXPECT_EQ(immagine.Tinta(5, 5), 0U);
  EXPECT_EQ(immagine.Tinta(32, 5), 0xFDFDFBU) << "a dash of 24, a gap of 16";
  EXPECT_EQ(immagine.Tinta(32, 95), 0x0000FFU);
  EXPECT_EQ(immagine.Tinta(44, 5), 0U);
  EXPECT_EQ(immagine.Tinta(2, 15), 0xFF0000U) << "dashes from the line's own beginning";
  EXPECT_TRUE(immagine.Tinta(195, 95) == 0x0000FF && !immagine.Dipinta(0, 97, 200, 100));
  for (const auto& [x, y] : {std::pair{119, 49}, {80, 50}, {100, 30}, {99, 69}, {114, 64}})
    EXPECT_TRUE(immagine.Dipinta(x, y, x + 2, y + 2)) << x << " " << y << ": a whole circle, behind a dashed line";
  EXPECT_FALSE(immagine.Dipinta(90, 40, 110, 60)) << "not filled";
  EXPECT_TRUE(immagine.Dipinta(5, 50, 40, 66));
  EXPECT_FALSE(immagine.Dipinta(5, 20, 40, 50)) << "below its corner";
  EXPECT_FALSE(immagine.Dipinta(5, 70, 75, 90)) << "twelve points high";
  EXPECT_TRUE(immagine.Dipinta(175, 35, 191, 60));
  EXPECT_FALSE(immagine.Dipinta(175, 66, 200, 90)) << "upwards from its corner";
}

TEST_F(ProvaCli, IlDisegnoEsceInCinqueModi) {
  const std::string file = Metti("a.emp", "0|\r\n8|1%|0|0|\r\n8|2%|0|8|\r\n7|3|1%|2%|1%|NC|5|5|9|\r\n");
  for (const auto& [comando, coda] : std::map<std::string, std::string>{
           {"dxf", " 10\r\n0\r\n 20\r\n0\r\n 11\r\n8\r\n 21\r\n0\r\n  0\r\nENDSEC\r\n  0\r\nEOF\r\n"},
           {"html", "context.fillText(' 5',405.333,500.000);\r\n   </script>\r\n </body>\r\n</html>\r\n"},
           {"stampa", "T,2%,4.000,0.000,Courier New,8,0\r\nT, 5,-1.333,0.000,Courier New,12,0\r\n"},
           {"scambio", "\"L\",8,0,0,0,0,0,0,1,\"NC\"\r\n\"L\",0,0,0,8,0,0,0,1,\"NC\"\r\n"}}) {
    const Esito esito = Lancia({"disegno", comando, file});
    EXPECT_TRUE(esito.codice == 0 && esito.errori.empty() && esito.uscita.ends_with(coda)) << comando << esito.uscita;
  }
  const Immagine immagine = ImmagineDaPng(Lancia({"disegno", "png", file}).uscita);
  EXPECT_TRUE(immagine.larga == 1600 && immagine.tinte.size() == 1600U * 1200) << "as its help tells";
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
