// The form over a drawing: its options, its lines, its errors.
#include <generazione/disegno.h>

#include <base/testo.h>

#include <gtest/gtest.h>

namespace lirmeto::prova {

TEST(Opzioni, SiConservanoEIGruppiNeTengonoUna) {
  ImpostazioniInMemoria impostazioni;
  OpzioniLibretto opzioni = LeggiOpzioni(impostazioni);
  EXPECT_TRUE(opzioni.OrientaPrecedente && opzioni.IncrementoCentesimale && opzioni.MantieniGps);
  EXPECT_TRUE(ImpostaOpzione(opzioni, "orienta_azimut", "True"));
  EXPECT_TRUE(ImpostaOpzione(opzioni, "PUNTO_PLA_DISLIVELLO", "3,5"));
  EXPECT_TRUE(ImpostaOpzione(opzioni, "PRECISIONE_ANGOLARE", "4"));
  EXPECT_FALSE(ImpostaOpzione(opzioni, "PRECISIONE_ANGOLARE", "6"));
  EXPECT_FALSE(ImpostaOpzione(opzioni, "METTI_CS", "forse"));
  EXPECT_FALSE(ImpostaOpzione(opzioni, "ALTRO", "1"));
  ScriviOpzioni(opzioni, impostazioni);
  std::string logiche; // written as words, the others as 0 and 1
  for (const auto& [chiave, valore] : impostazioni.valori)
    if (valore == "True" || valore == "False") logiche += chiave.substr(chiave.find('/')) + " ";
  EXPECT_EQ(logiche, "/INCREMENTO_CENTESIMALE /INCREMENTO_MILLESIMALE /ORIENTA_AZIMUT /ORIENTA_LIBRETTO "
                     "/ORIENTA_PRECEDENTE ");
  EXPECT_EQ(impostazioni.valori.at("LIBRETTO_AUTOMATICO/ORIENTA_PRECEDENTE"), "False");
  const OpzioniLibretto lette = LeggiOpzioni(impostazioni);
  EXPECT_TRUE(lette.OrientaAzimut && !lette.OrientaPrecedente);
  EXPECT_EQ(lette.Dislivello, "3,5");
  EXPECT_EQ(lette.PrecisioneAngolare, 4);
}

TEST(LibrettoDaDisegno, UnErroreDiceLaSuaRiga) {
  Disegno d;
  (void)d.Genera({"P,100,0,0", "P,101,1,1", "L,0,0,0,1,1,0"}, {"MANTIENI_8=1"},
                 {"8|1|1|1|", "8|2|" + std::string(800, '|')});
  EXPECT_TRUE(Contiene(d.dialoghi.UltimoTesto(), "\r\nRiga 6: 8|2||")) << d.dialoghi.UltimoTesto();
}

TEST(LibrettoDaDisegno, DelleLineeNeRestanoDue) {
  Disegno d;
  d.Apri(Testo(Testata), "C:\\RILIEVO.LXC");
  d.disco.Metti("C:\\RILIEVO.LXC", Testo({"P,100,0,0", "P,101,1,1", "P,102,2,2", "P,103,3,3", "L,0,0,0,1,1,0",
                                          "L,0,0,0,2,2,0", "L,0,0,0,3,3,0"}));
  LibrettoDaDisegno form(d.ambiente, d.condiviso);
  form.Form_Load();
  for (const auto& [indice, restano] : {std::pair{3U, 3U}, {0U, 2U}, {0U, 2U}}) {
    form.DoppioClickList1(indice);
    EXPECT_EQ(form.List1.size(), restano);
  }
}

} // namespace lirmeto::prova
