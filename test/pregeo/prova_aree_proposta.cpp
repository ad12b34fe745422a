#include "sostituti/banco.h"

#include <base/errore.h>
#include <pregeo/aree_proposta.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;

const std::string Originale = "6|ESTRATTO DI MAPPA|";
const std::string Aggiornato = "6|ESTRATTO DI MAPPA AGGIORNATO|";

struct CasoAree {
  std::string nome;
  std::vector<std::string> proposta;
  std::vector<std::string> aree;
  std::vector<std::string> modello;
};

class Aree : public testing::TestWithParam<CasoAree> {};

TEST_P(Aree, VecchieENuove) {
  const CasoAree& caso = GetParam();
  const AreeProposta lette = LeggiAreeProposta(Testo(caso.proposta));
  EXPECT_EQ(lette.aree, Testo(caso.aree));
  EXPECT_EQ(lette.modello, Testo(caso.modello));
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Aree,
    testing::Values(
        CasoAree{"un frazionamento, con righe di continuazione e senza area",
                 {Originale, "7|4|1%|2%|3%|4%|NC|35|35|29390|", "7|11|1%|2%|3%|4%|5%|6%|7%|8%|9%|10%|NC|36|36|80.5|",
                  "7|0|11%|NC|", "7|2|1L|2L|NT|", "8|1%|10|20|", Aggiornato, "7|3|1%|2%|5*|NC|101|35|29090|",
                  "7|3|2%|3%|5*|RC|AAB|36|300|"},
                 {Aggiornato, "101 = 29090", "AAB = 300"},
                 {"35 = 29390_101 = 29090", "36 = 80.5_AAB = 300"}},
        CasoAree{"i segni tolgono la riga intera, anche per l'area vecchia",
                 {Originale, "7|3|1%|2%|3%|NC|35+|35|50|", "7|3|1%|2%|3%|NC|36|36|-7|", Aggiornato,
                  "7|3|1%|2%|3%|NC|AAA|35+|40|", "7|3|1%|2%|3%|NC|AAB-|36|40|", "7|3|1%|2%|3%|NC|AAC|36|5|"},
                 {Aggiornato, "AAA = 40", "AAC = 5"},
                 {}},
        CasoAree{"un'origine sconosciuta prende l'area della riga prima, la prima nessuna",
                 {Aggiornato, "7|3|1%|2%|3%|NC|AAA|9|40|", "7|3|1%|2%|3%|NC|AAB|AAA|10|", "7|3|1%|2%|3%|NC|AAC|8|20|"},
                 {Aggiornato, "AAA = 40", "AAB = 10", "AAC = 20"},
                 {"9 = _AAA = 40", "AAA = 40_AAB = 10", "8 = 40_AAC = 20"}},
        CasoAree{"vale la prima area di un nome, e un nome intero",
                 {Originale, "7|3|1%|2%|3%|NC|135|135|1|", "7|3|1%|2%|3%|NC|35|35|2|", "7|3|1%|2%|3%|NC|35|35|3|",
                  Aggiornato, "7|3|1%|2%|3%|NC|101|35|4|"},
                 {Aggiornato, "101 = 4"},
                 {"35 = 2_101 = 4"}},
        CasoAree{"righe di un campo, anelli di un punto, nomi con spazi",
                 {"7", "7|", "|", "", Aggiornato, "7|5|", "7|1|1%|NC|A B|35|9|"},
                 {Aggiornato, " = ", "A B = 9"},
                 {" = _ = ", "35 = _A B = 9"}},
        CasoAree{"senza estratto aggiornato", {Originale, "7|3|1%|2%|3%|NC|35|35|2|"}, {}, {}},
        CasoAree{"vuota", {}, {}, {}}),
    [](const auto& caso) { return "caso" + std::to_string(caso.index); });

TEST(EsplodiAree, ChiedeAllArchivioEScriveTreFile) {
  Banco banco;
  const std::string cartella = banco.sessione.CartellaProgramma + "\\TEMP\\";
  const std::string proposta = Testo({Aggiornato, "7|3|1%|2%|3%|NC|101|35|4|"});
  banco.sessione.ProtocolloPregeo = "17974";
  std::string linea;
  banco.processi.quandoAvvia = [&](const std::string& programma, const std::vector<std::string>& argomenti) {
    linea = programma + " " + argomenti.at(0) + " " + argomenti.at(1);
    banco.disco.Metti(cartella + "ESPORTA_PROPOSTA.txt", proposta);
  };
  EXPECT_TRUE(EsplodiAreeProposta(banco.ambiente));
  EXPECT_EQ(linea, banco.sessione.CartellaProgramma + "\\Trasvea.exe ESPORTA_TUTTO 17974");
  EXPECT_EQ(banco.disco.Contenuto(cartella + "TempProposta"), proposta);
  EXPECT_EQ(banco.disco.Contenuto(cartella + "Aree Per Censuario.txt"), Testo({Aggiornato, "101 = 4"}));
  EXPECT_EQ(banco.disco.Contenuto(cartella + "Modello Censuario.TXT"), Testo({"35 = _101 = 4"}));
}

TEST(EsplodiAree, SenzaRispostaTaceESenzaProgrammaLoDice) {
  Banco banco;
  EXPECT_FALSE(EsplodiAreeProposta(banco.ambiente));
  EXPECT_TRUE(banco.dialoghi.detti.empty());
  banco.processi.guasti[banco.sessione.CartellaProgramma + "\\Trasvea.exe"] = errore::FileNonTrovato;
  EXPECT_FALSE(EsplodiAreeProposta(banco.ambiente));
  EXPECT_NE(banco.dialoghi.UltimoTesto().find("Programma non installato: C:\\"), std::string::npos);
  EXPECT_EQ(banco.disco.Contenuto(banco.sessione.CartellaProgramma + "\\TEMP\\TempProposta"), "(manca)");
}

} // namespace
} // namespace lirmeto
