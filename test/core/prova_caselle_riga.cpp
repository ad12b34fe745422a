#include "sostituti/banco.h"

#include <core/appunti_righe.h>
#include <core/caselle_riga.h>
#include <core/salvataggio.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Nove;
using prova::Testo;
using prova::Zero;
using Righe = std::vector<std::string>;

const std::string Originale = "6|O|35   |000|  |     |000029390|SN|  |     |001|1 |                 |";

struct CasoCaselle {
  std::string riga;
  std::string caselle; // "Name=value" of each, the unit in brackets
};

class Caselle : public testing::TestWithParam<CasoCaselle> {};

TEST_P(Caselle, HannoLeDidascalieELeValoriDellaRiga) {
  std::string detto;
  for (const CasellaRiga& casella : CaselleDi(GetParam().riga)) {
    if (!detto.empty()) detto += ", ";
    detto.append(casella.nome).append(casella.unita.empty() ? "" : "(" + casella.unita + ")");
    detto.append("=").append(casella.valore);
  }
  EXPECT_EQ(detto, GetParam().caselle);
}

INSTANTIATE_TEST_SUITE_P(
    Righe, Caselle,
    testing::Values(CasoCaselle{"2|205|323.5725|38.944|SPIGOLO|",
                                "Punto=205, Hz(gon)=323.5725, Distanza ridotta(m)=38.944, Nota=SPIGOLO"},
                    CasoCaselle{"2|7|1,2,3|9,9|1.2|0.50|N|",
                                "Punto=7, Differenze X,Y,Z(m)=1,2,3, Varianze e covarianze=9,9, PDOP=1.2, "
                                "Altezza antenna(m)=0.50, Nota=N"},
                    CasoCaselle{"7|3|1|2|1|NC|12|12|500|",
                                "Vertici=3, Vertice 1=1, Vertice 2=2, Vertice 3=1, Linea=NC, Particella=12, "
                                "Particella=12, Superficie(mq)=500"},
                    CasoCaselle{"6|a|b|", "Testo=a, Testo 2=b"},
                    CasoCaselle{Originale, "Operazione=O, Particella=35, Subalterno=000, Lettera=, Nome temporaneo=, "
                                           "Area(mq)=000029390, SR/SN=SN, Lettera di destinazione=, Destinazione=, "
                                           "Qualit\xE0=001, Classe=1, Coda="},
                    CasoCaselle{"6|ESTRATTO DI MAPPA|", ""}, CasoCaselle{"6|***** Relazione  Tecnica *****|", ""},
                    CasoCaselle{"6|51FTP|004|                                                         |", ""},
                    CasoCaselle{"12|x|", ""}, CasoCaselle{"6", ""}, CasoCaselle{"", ""}));

struct CasoCambia {
  std::string riga;
  std::size_t campo;
  std::string testo;
  std::string dopo;
};

class Cambia : public testing::TestWithParam<CasoCambia> {};

TEST_P(Cambia, SoloQuelCampo) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, GetParam().riga}));
  CambiaCasella(banco.ambiente, 2, GetParam().campo, GetParam().testo);
  EXPECT_EQ(banco.Righe()[2], GetParam().dopo);
  EXPECT_EQ(banco.sessione.Libretto, Testo({Zero, Nove, GetParam().dopo}));
}

const std::string Battuta = "2|205|323.5725|38.944|SPIGOLO|";
std::string Area(std::string_view nove) {
  return "6|O|35   |000|  |     |" + std::string(nove) + "|SN|  |     |001|1 |                 |";
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Cambia,
    testing::Values(CasoCambia{Battuta, 3, " 40,5 ", "2|205|323.5725|40.5|SPIGOLO|"}, // a comma, as one writes by hand
                    CasoCambia{Battuta, 4, "A,B|C", "2|205|323.5725|38.944|A,B C|"},  // of a text it stays
                    CasoCambia{Battuta, 4, "", "2|205|323.5725|38.944|NOTE:|"}, CasoCambia{Battuta, 3, "", Battuta},
                    CasoCambia{Battuta, 9, "x", Battuta},
                    CasoCambia{"2|7|1,2,3|9,9|1.2|0.50|N|", 2, "4,5,6", "2|7|4,5,6|9,9|1.2|0.50|N|"},
                    CasoCambia{Area("000029390"), 6, "150", Area("000000150")},
                    CasoCambia{Originale, 4, "bis",
                               "6|O|35   |000|bi|     |000029390|SN|  |     |001|1 |" + std::string(17, ' ') + "|"},
                    CasoCambia{Originale, 12, "", Originale}));

TEST(CambiaCasella, LeRigheZeroENoveValgonoSubito) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove}));
  CambiaCasella(banco.ambiente, 0, 2, "88");
  EXPECT_EQ(banco.sessione.Protocollo, "88");
  CambiaCasella(banco.ambiente, 0, 2, ""); // these rows may have empty fields
  EXPECT_TRUE(banco.Righe()[0].starts_with("0|01022024||G224|"));
  EXPECT_TRUE(banco.dialoghi.detti.empty());
}

struct CasoIncolla {
  std::string nome;
  std::string appunti;
  long indice;
  Righe attese;      // behind rows 0 and 9
  std::string detto; // "" where nothing is told
};

class Incolla : public testing::TestWithParam<CasoIncolla> {};

TEST_P(Incolla, AlPosto) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "1|100|1.5|A|", "2|1|0|10|B|"}));
  banco.sessione.List1.Indice(GetParam().indice);
  banco.appunti.testo = GetParam().appunti;
  IncollaRighe(banco.ambiente);
  Righe attese = GetParam().attese;
  attese.insert(attese.begin(), {Zero, Nove});
  EXPECT_EQ(banco.Righe(), attese);
  EXPECT_EQ(banco.sessione.Libretto, Testo(attese));
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), GetParam().detto);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Incolla,
    testing::Values(
        CasoIncolla{"DietroLaCorrente",
                    "2|8|0|1|X|\n  2|9|0|2|Y|\r\n",
                    2,
                    {"1|100|1.5|A|", "2|8|0|1|X|", "2|9|0|2|Y|", "2|1|0|10|B|"},
                    ""},
        CasoIncolla{"MaiPrimaDelleFisse", "2|8|0|1|X|", 0, {"2|8|0|1|X|", "1|100|1.5|A|", "2|1|0|10|B|"}, ""},
        CasoIncolla{"SenzaCorrenteInFondo", "2|8|0|1|X|", -1, {"1|100|1.5|A|", "2|1|0|10|B|", "2|8|0|1|X|"}, ""},
        CasoIncolla{"CioCheNonERigaSiDice",
                    Zero + "\r\n2|8|0|1|X|\r\nuna frase\r\n12|x|\r\n",
                    3,
                    {"1|100|1.5|A|", "2|1|0|10|B|", "2|8|0|1|X|"},
                    "3 righe non si possono incollare:\r\n" + Zero + "\r\nuna frase\r\n12|x|"},
        CasoIncolla{"UgualeAllaPrecedenteSiDice",
                    "2|1|0|10|b|\r\n2|8|0|1|X|",
                    3,
                    {"1|100|1.5|A|", "2|1|0|10|B|", "2|8|0|1|X|"},
                    "1 riga uguale alla precedente: tolta"},
        CasoIncolla{"NessunaRiga",
                    "prezzo 12|3",
                    2,
                    {"1|100|1.5|A|", "2|1|0|10|B|"},
                    "Gli Appunti non contengono righe da incollare nel Libretto!"}),
    [](const auto& caso) { return caso.param.nome; });

TEST(AppuntiRighe, TagliaECopiaLeSelezionateOLaCorrente) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "1|100|1.5|A|", "2|1|0|10|B|", "8|3|1|2|"}));
  ElencoRighe& elenco = banco.sessione.List1;
  elenco.Indice(0);
  CopiaRighe(banco.ambiente); // nothing is selected: the current one
  EXPECT_EQ(banco.appunti.testo, Testo({Zero}));
  TagliaRighe(banco.ambiente); // row 0 stays, and the clipboard as it was
  EXPECT_EQ(banco.Righe().size(), 5U);
  elenco.SelezionaIntervallo(1, 3, true);
  TagliaRighe(banco.ambiente);
  EXPECT_EQ(banco.appunti.testo, Testo({"1|100|1.5|A|", "2|1|0|10|B|"}));
  EXPECT_EQ(banco.sessione.Libretto, Testo({Zero, Nove, "8|3|1|2|"})) << "what is saved";
  IncollaRighe(banco.ambiente);
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "1|100|1.5|A|", "2|1|0|10|B|", "8|3|1|2|"}));
  EXPECT_EQ(elenco.Selezionate(), (std::vector<std::size_t>{2, 3}));
}

} // namespace
} // namespace lirmeto
