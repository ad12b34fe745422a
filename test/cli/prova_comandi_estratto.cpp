#include <cli/lancio.h>

#include <gtest/gtest.h>

#include <string>

namespace lirmeto::prova {

namespace {

const std::string Zero = "0|12062024|PD0041877/2024|G224|00123|35,36|PD|PUB|RSSMTN|1|\r\n";
const std::string Punti = "8|10%|0|0|\n8|9%|30|0|\n8|11%|0|40|\n8|12%|-30|0|\n8|99%|7|7|\n";
const std::string Anelli = "7|4|10%|9%|11%|10%|NC|35|35|1.5|\n7|4|10%|11%|12%|10%|NC|36|36|2|\n";
const std::string File = Zero + Punti + Anelli + "6|DISTORSIONE|1.5|\n6|PARTICELLA|35|";

std::string SenzaRitorni(std::string testo) {
  std::erase(testo, '\r');
  return testo;
}

} // namespace

TEST_F(ProvaCli, EstrattoMostraISuoiValori) {
  const auto esito = Lancia({"estratto", "mostra", Metti("x.emp", File)}); // on 21-11-2024
  EXPECT_EQ(esito.errori, "");
  EXPECT_EQ(esito.uscita, "EstrattoData=12062024\nEstrattoComune=G224\nEstrattoProvincia=PD\nEstrattoFoglio=00123\n"
                          "EstrattoParticelle=35,36\nEstrattoMesi=5\nEstrattoEstMedio=20\nVersionePregeoEstratto=10\n"
                          "TipoEstratto=\nScadenza=L'Estratto scade tra    -1 mesi\n");
  EXPECT_EQ(esito.codice, 0);
}

struct CasoModifica {
  std::vector<std::string> parole;
  std::string punti;
  std::string anelli;
};

TEST_F(ProvaCli, EstrattoDaIByteDelSalvataggioENonCambiaIlFile) {
  const std::string file = Metti("x.emp", File);
  const std::string coda = "6|PARTICELLA|35|\r\n6|DISTORSIONE|1.5|\r\n";
  const std::string tre = "8|1%|30|0|\r\n8|2%|0|0|\r\n8|3%|0|40|\r\n";
  const CasoModifica casi[] = {
      {{"salva"},
       tre + "8|4%|-30|0|\r\n8|5%|7|7|\r\n",
       "7|4|2%|3%|4%|2%|NC|36|36|600|\r\n7|4|2%|1%|3%|2%|NC|35|35|600|\r\n"},
      {{"pulisci"}, tre + "8|4%|-30|0|\r\n", "7|4|2%|3%|4%|2%|NC|36|36|600|\r\n7|4|2%|1%|3%|2%|NC|35|35|600|\r\n"},
      {{"elimina", "36"}, tre, "7|4|2%|1%|3%|2%|NC|35|35|600|\r\n"},
  };
  for (const auto& caso : casi) {
    std::vector<std::string> parole = {"estratto", caso.parole[0], file};
    parole.insert(parole.end(), caso.parole.begin() + 1, caso.parole.end());
    const auto esito = Lancia(parole);
    EXPECT_EQ(esito.errori, "");
    EXPECT_EQ(esito.uscita, Zero + caso.punti + caso.anelli + coda) << caso.parole[0];
    EXPECT_EQ(esito.codice, 0);
  }
  const auto rinominato = Lancia({"estratto", "rinomina", file, "35", "AAA"});
  EXPECT_EQ(SenzaRitorni(rinominato.uscita),
            SenzaRitorni(Zero + Punti) + "7|4|10%|9%|11%|10%|NC|AAA|AAA|1.5|\n7|4|10%|11%|12%|10%|NC|36|36|2|\n" +
                "6|DISTORSIONE|1.5|\n6|PARTICELLA|35|\n");
  EXPECT_EQ(rinominato.uscita.size(), SenzaRitorni(rinominato.uscita).size() + 10) << "every line ends with CR LF";
  EXPECT_EQ(CartellaProvvisoria::Prendi(file), File);
}

TEST_F(ProvaCli, AutoallestitoSommaECxfNonScrivonoAccanto) {
  const std::string autoallestito = "0|AUTOALLESTITO|0|0|0|0|0|0|0|0|\r\n";
  const std::string uno =
      Metti("uno.emp", Zero + "8|1%|0|0|\n8|2T|0|0|0|VIA|\n7|2|1%|1%|NC|35|35|1|\n6|INQUADRAMENTO|1|");
  const std::string due = Metti("due.emp", Zero + "8|1%|0|0.0001|\n8|2%|5|5|\n7|2|1%|2%|NC|36|36|1|\n");
  const std::string anello = "7|2|1%|1%|NC|35|35|1|\r\n";
  const auto trasformato = Lancia({"estratto", "autoallestito", uno});
  EXPECT_EQ(trasformato.uscita, autoallestito + "8|1%|0|0|\r\n" + anello + "6|INQUADRAMENTO|1|\r\n");
  const auto somma = Lancia({"estratto", "somma", uno, due, uno, due});
  EXPECT_EQ(somma.uscita, autoallestito + "8|1%|0|0|\r\n8|2%|5|5|\r\n" + anello + "7|2|1%|2%|NC|36|36|1|\r\n");
  EXPECT_EQ(trasformato.errori + somma.errori, "");
  EXPECT_EQ(Lancia({"estratto", "somma", uno}).codice, 2);
  EXPECT_EQ(CartellaProvvisoria::Prendi(due).size(), Zero.size() + 47);
}

TEST_F(ProvaCli, CxfDaLEstrattoESenzaSupLoDice) {
  const std::string foglio =
      Metti("g.cxf", "MAPPA\nG\n2000\nBORDO\n35\n10\n0\n1\n1\n1\n1\n   0\n   2\n 1.5\n 2\n3\n4\nEOF\n");
  const auto senza = Lancia({"cxf", foglio});
  EXPECT_EQ(senza.codice, 0);
  EXPECT_NE(senza.errori.find("NON TROVATO!"), std::string::npos);
  (void)Metti("g.sup", "G 20180312\n35            120\n");
  const auto con = Lancia({"cxf", foglio});
  EXPECT_EQ(con.errori, "");
  EXPECT_EQ(con.uscita, "0|12032018|PD0012345/2018|G224|00042|101,102,103|PD|PUB|ROSMRA|10000000000017|\r\n"
                        "8|1%| 2| 1.5|\r\n8|2%|4|3|\r\n7|2|1%|2%|NC|35|35|120|\r\n6|DISTORSIONE|1.5|\r\n"
                        "6|SCALAORIGINARIA|2000|\r\n6|INQUADRAMENTO|3|4|0.1693333333|0|0|0|\r\n");
  EXPECT_NE(senza.uscita.find("|NC|35|35|20|"), std::string::npos);
  EXPECT_EQ(Lancia({"cxf", Metti("rotto.cxf", "MAPPA\n")}).codice, 1);
}

TEST_F(ProvaCli, EstrattoGuastoNienteRisultato) {
  const std::string corto = Metti("corto.emp", "0|1|2|\r\n");
  for (const char* comando : {"mostra", "salva", "pulisci"}) {
    const auto esito = Lancia({"estratto", comando, corto});
    EXPECT_EQ(esito.uscita, "");
    EXPECT_NE(esito.errori.find("Nella Routine EsplodiEstratto"), std::string::npos) << esito.errori;
    EXPECT_EQ(esito.codice, 1);
  }
  EXPECT_EQ(Lancia({"estratto", "salva", corto + "x"}).codice, 3);
  EXPECT_EQ(Lancia({"estratto", "elimina", corto}).codice, 2);
  EXPECT_EQ(Lancia({"estratto", "rinomina", corto, "", "B"}).codice, 1);
  EXPECT_EQ(Lancia({"estratto", "rinomina", corto, "A", "B|C"}).codice, 1);
}

} // namespace lirmeto::prova
