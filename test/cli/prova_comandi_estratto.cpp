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
}

} // namespace lirmeto::prova
