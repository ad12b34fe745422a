#include "sostituti/banco.h"

#include <base/testo.h>
#include <core/apertura.h>
#include <core/zero_nove.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;

const std::string Nove = "9|12|10|25|-1000|VER|FR|STAZIONE TOTALE|";

TEST(DecoZeroNove, RicavaOgniCampo) {
  Banco banco;
  banco.sessione.Cognome = "ROSSI";
  banco.sessione.Nome = "MARIO";
  banco.Apri(Testo({"0|01022024|7|L736|0010A|12,3|BIANCHI LUCA|INGEGNERE|VENEZIA|", Nove}));
  const Sessione& s = banco.sessione;
  EXPECT_EQ(s.DataLibretto, "01022024");
  EXPECT_EQ(s.AnnoLibretto, "2024");
  EXPECT_EQ(s.ProtocolloPregeo, "247");
  EXPECT_EQ(s.NomeComune, "VENEZIA");
  EXPECT_EQ(s.SiglaProvincia, "VE");
  EXPECT_EQ(s.NomeProvincia, "VENEZIA");
  EXPECT_EQ(s.Tecnico, "BIANCHI LUCA");
  EXPECT_EQ(s.Qualifica, "INGEGNERE");
  EXPECT_EQ(s.QuotaMedia + "/" + s.PrecisioneLineare + "/" + s.PrecisioneAngolare + "/" + s.EstMedio, "12/10/25/-1000");
  EXPECT_EQ(s.TipologiaRilievo + "/" + s.Strumentazione + "/" + s.ClasseAtto, "FR/STAZIONE TOTALE/S");
  // surname and name are those of the surveyor, not of row 0
  EXPECT_EQ(s.NomeFascicolo, "2024_ROSSI MARIO_S_FR_7_L736_0010A_12_3");
}

class Secolo : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(Secolo, OttantaEIlConfine) {
  EXPECT_EQ(DataConSecolo(GetParam().first), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Date, Secolo,
                         testing::Values(std::pair{"010180", "01011980"}, std::pair{"010179", "01012079"},
                                         std::pair{"0101980", "01011980"}, std::pair{"01012024", "01012024"},
                                         std::pair{"010120245", "010120245"}, std::pair{"", "20"},
                                         std::pair{"5", "5205"}, std::pair{"0101XX", "010120XX"}));

class Classe : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(Classe, DalleUltimeDueLettere) {
  Banco banco;
  banco.Apri(Testo({"0|01022024|7|G224|1|1|A|B|C|", std::string("9|1|2|3|4|5|") + GetParam().first + "|7|"}));
  EXPECT_EQ(banco.sessione.ClasseAtto, GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Tipi, Classe,
                         testing::Values(std::pair{"TM", "M"}, std::pair{"08", "M"}, std::pair{"30", "M"},
                                         std::pair{"X24", "M"}, std::pair{"27", "S"}, std::pair{"FR", "S"},
                                         std::pair{"8", "S"}, std::pair{"", "S"}));

TEST(DecoZeroNove, RigheCorteDannoCampiVuoti) {
  Banco banco;
  banco.Apri(Testo({"0|01022024|7|", "9|12|", "8|1|2|3|"}));
  EXPECT_EQ(banco.sessione.Mappali, "");
  EXPECT_EQ(banco.sessione.QuotaMedia, "12");
  EXPECT_EQ(banco.sessione.Strumentazione, "");
}

TEST(DecoZeroNove, UnCodiceIgnotoLasciaINomi) {
  Banco banco;
  banco.Apri(Testo({"0|01022024|7|G224|1|1|A|B|C|", Nove}));
  banco.Apri(Testo({"0|01022024|7|Z999|1|1|A|B|C|", Nove}));
  EXPECT_EQ(banco.sessione.CodiceComune + "/" + banco.sessione.NomeComune, "Z999/PADOVA");
}

TEST(DecoZeroNove, RigheDiAltroGenereLascianoLaSessione) {
  Banco banco;
  const std::string zero = "0|01022024|7|G224|1|1|A|B|C|";
  banco.Apri(Testo({zero, Nove}));
  for (const std::string& testo :
       {Testo({"1|100|1.5|N|", "2|1|2|3|4|"}), "\r\n" + Testo({"0|31122025|8|L736|2|2|", Nove})}) {
    banco.Apri(testo);
    EXPECT_EQ(banco.sessione.RigaZero, zero);
    EXPECT_EQ(banco.sessione.RigaNove, Nove);
    EXPECT_EQ(banco.sessione.Libretto, testo) << "the text itself is not damaged";
  }
}

TEST(DecoZeroNove, UnLibrettoCortoPrendeLePredefiniteESiFerma) {
  Banco banco;
  banco.sessione.RigaZero = "0|";
  banco.sessione.RigaNove = "9|"; // the rebuilt libretto is short again
  banco.sessione.Libretto = "8|1|";
  DecoZeroNove(banco.ambiente);
  EXPECT_EQ(banco.sessione.Libretto, "0|\r\n9|\r\n");
  EXPECT_EQ(banco.Righe(), (std::vector<std::string>{"0|", "9|"}));
}

TEST(DecoZeroNove, UnaTabellaCheMancaSiDiceESiVaAvanti) {
  Banco banco;
  banco.disco.file.erase("C:\\PREGEO\\ARCH\\COMUNT.DAT");
  banco.Apri(Testo({"0|01022024|7|G224|1|1|A|B|C|", Nove}));
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "C:\\pregeo\\arch\\comunt.dat\r\nNon Trovato!");
  EXPECT_EQ(banco.sessione.NomeComune, "");
  EXPECT_EQ(banco.sessione.Protocollo, "7");
}

class Mappali : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(Mappali, InOrdineEUnaVolta) {
  EXPECT_EQ(RiordinoMappali(GetParam().first), GetParam().second);
  EXPECT_EQ(RiordinoMappali(RiordinoMappali(GetParam().first)), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Casi, Mappali,
                         testing::Values(std::pair{"", ""}, std::pair{"12,3,12", "3,12"},
                                         std::pair{"100,9,20", "9,20,100"}, std::pair{"12, 3", "3,12"},
                                         std::pair{"A,10,2", "2,A,10"}, std::pair{"5,,5", ",5"}));

TEST(Tabelle, RecordDiComunt) {
  const std::string record = "A"
                             "G224PADOVA             PDPDPADOVA                            D3AA";
  const auto comuni = LeggiComuni("testa @B" + record + "@B H501@Bx");
  ASSERT_EQ(comuni.size(), 3U);
  EXPECT_EQ(comuni[0].codice + "/" + comuni[0].provincia + "/" + comuni[0].nome + "/" + comuni[0].campo,
            "G224A/PD/PADOVA/D3AA");
  EXPECT_EQ(comuni[1].codice + comuni[1].provincia + comuni[1].nome,
            "H501"); // cut in the middle
  EXPECT_EQ(comuni[2].codice, "x");
  EXPECT_TRUE(LeggiComuni("senza segno").empty());
}

TEST(Tabelle, ConfiniDelleRaccolte) {
  const auto righe = [](std::size_t n) { return Testo(std::vector<std::string>(n, "PD, PADOVA ")); };
  EXPECT_EQ(LeggiProvince(righe(111)).size(), 111U);
  EXPECT_EQ(LeggiCollegi(righe(131)).size(), 131U);
  EXPECT_EQ(LeggiQualita(righe(502)).size(), 501U); // the first line is none
  EXPECT_EQ(LeggiProvince(righe(1))[0].nome, "PADOVA");
  EXPECT_THROW((void)LeggiProvince(righe(112)), Errore);
  EXPECT_THROW((void)LeggiCollegi(righe(132)), Errore);
  EXPECT_THROW((void)LeggiQualita(righe(503)), Errore);
}

TEST(Tabelle, Qualita) {
  const auto tabella = LeggiQualita("testata\r\nENTE URBANO  282\r\nBOSCO CEDUO   10\r\nVIGNETO\r\n");
  EXPECT_EQ(tabella, (std::vector<std::string>{"282   ENTE URBANO ", " 10   BOSCO CEDUO ", "      VIGNETO     "}));
  EXPECT_EQ(QualitaDaNome(tabella, "BOSCO"), "10");
  EXPECT_EQ(QualitaDaNome(tabella, "PRATO "), "PRATO "); // found nowhere: as it was
  EXPECT_EQ(CodiceQualita(tabella, "BOSCO"), " 10");
  EXPECT_EQ(CodiceQualita(tabella, "PRATO "), "PRATO ");
  EXPECT_EQ(CodiceQualita(tabella, "URBANO        "), "URBANO        "); // blanks are searched too
  EXPECT_EQ(CodiceQualita(tabella, ""), "282");
}

} // namespace
} // namespace lirmeto
