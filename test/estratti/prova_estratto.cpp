#include "sostituti/banco.h"

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/campi.h>
#include <estratti/dati_estratto.h>
#include <estratti/kr_estratto.h>
#include <estratti/modifiche_estratto.h>
#include <estratti/superfici.h>

#include <gtest/gtest.h>

#include <array>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Percorso = "C:\\pregeo\\estratti\\X.EMP";
const std::string ZeroEstratto = "0|12062026|PD0041877/2026|G224|00123|35,36|PD|PUB|RSSMTN|10000000000017|";

// Loads and saves in place.
Righe Salvate(Banco& banco, const Righe& righe) {
  banco.disco.Metti(Percorso, Testo(righe));
  KR_Estratto estratto;
  EXPECT_TRUE(EsplodiEstratto(banco.ambiente, estratto, "x.emp")) << banco.dialoghi.UltimoTesto();
  EXPECT_TRUE(SalvaEstratto(banco.ambiente, estratto)) << banco.dialoghi.UltimoTesto();
  EXPECT_TRUE(estratto.ZERO.empty() && estratto.Punti.empty()) << "a save lets the lists go";
  Righe salvate;
  const std::string testo = banco.disco.Contenuto(Percorso);
  for (const auto riga : RigheDi(testo)) salvate.emplace_back(riga);
  return salvate;
}

// Every class of row: points out of order, a ring of ten and one of eleven, a hole, a further ring, a line of two rows,
// rows that no list wants.
const Righe Mista = {
    // clang-format off
    ZeroEstratto, "8|1%|0.0|0.0|", "8|10%|100.0|0.0|", "8|2%|100.0|100.0|", "8|30%|0.0|100.0|",
    "8|7T|50.0|50.0|1.57|VIA ROMA|", "8|PF01/1230/G224|1.0|2.0|", "7|5|1%|10%|2%|30%|1%|NC|35|35|1376.6562654372|",
    "7|5|1%|2%|30%|1%|1%|NC|35-|35-|7|", "8|8L|1.0|1.0|", "8|9L|2.0|2.0|",
    "7|10|1%|10%|10%|10%|10%|2%|2%|2%|2%|1%|NC|36|36|1|",
    "6|INQUADRAMENTO|-5314.4|-4186.2|0.5|-5314.4|-4186.2|6.28|",
    "7|11|1%|10%|2%|30%|30%|30%|30%|30%|30%|30%|NC|37+|37+|1|", "7|0|1%|NC|", "7|4|8L|9L|8L|NT|", "7|0|9L|NT|",
    "6|SCALAORIGINARIA|2000|", "6|DISTORSIONE|1.5|", "6|SCONOSCIUTA|1|", "6|PFCART|01|",
    "6|PARTICELLA|35|  |SEMINATIVO  |1|    | | |", "6|DITTA|1|ROSSI MARIO|2|X|", "6|DISTANZA|A|B|12.3|", "5|1|2|",
    "testo"
    // clang-format on
};

const Righe MistaSalvata = {
    // clang-format off
    ZeroEstratto, "8|1%|0.0|0.0|", "8|2%|100.0|100.0|", "8|3%|100.0|0.0|", "8|4%|0.0|100.0|",
    "8|5T|50.0|50.0|1.57|VIA ROMA|", "8|6L|1.0|1.0|", "8|7L|2.0|2.0|", "8|PF01/1230/G224|1.0|2.0|",
    "7|11|1%|3%|2%|4%|4%|4%|4%|4%|4%|4%|NC|37+|37+|10000|", "7|0|1%|NC|",
    "7|10|1%|3%|3%|3%|3%|2%|2%|2%|2%|1%|NC|36|36|5000|", "7|5|1%|2%|4%|1%|1%|NC|35-|35-|5000|",
    "7|5|1%|3%|2%|4%|1%|NC|35|35|10000|", "7|4|6L|7L|6L|NT|7L|NT|", "6|DITTA|1|ROSSI MARIO|2|X|",
    "6|PARTICELLA|35|  |SEMINATIVO  |1|    | | |", "6|PFCART|01|", "6|DISTORSIONE|1.5|", "6|DISTANZA|A|B|12.3|",
    "6|SCALAORIGINARIA|2000|", "6|INQUADRAMENTO|-5314.4|-4186.2|0.5|-5314.4|-4186.2|6.28|"
    // clang-format on
};

TEST(Estratto, IlSalvataggioOrdinaRinumeraERovescia) {
  Banco banco;
  EXPECT_EQ(Salvate(banco, Mista), MistaSalvata);
  EXPECT_TRUE(banco.dialoghi.detti.empty());
  EXPECT_EQ(banco.sessione.PuntoErrore, "SalvaEstratto1");
  EXPECT_EQ(prova::Copia(banco.sessione.RigheScartate), (Righe{"6|SCONOSCIUTA|1|", "5|1|2|", "testo"}));
  // The hole stood behind its parcel in the file, hence before it in SETTE: only now it is taken off.
  Righe ancora = Salvate(banco, MistaSalvata);
  EXPECT_EQ(ancora[9], "7|5|1%|3%|2%|4%|1%|NC|35|35|5000|");
  EXPECT_EQ(ancora[12], "7|11|1%|3%|2%|4%|4%|4%|4%|4%|4%|4%|NC|37+|37+|10000|") << "the first order is back";
  EXPECT_EQ(Salvate(banco, ancora), MistaSalvata);
}

TEST(Estratto, LeStringheDellaSessione) {
  Banco banco;
  banco.disco.Metti(Percorso, Testo(Mista));
  KR_Estratto estratto;
  ASSERT_TRUE(EsplodiEstratto(banco.ambiente, estratto, "x.emp"));
  const Sessione& s = banco.sessione;
  EXPECT_EQ(s.EstrattoFile, "C:\\pregeo\\estratti\\x.emp");
  EXPECT_EQ(s.EstrattoRigaZero, ZeroEstratto);
  EXPECT_EQ(s.EstrattoData + s.EstrattoComune + s.EstrattoFoglio + s.EstrattoParticelle + s.EstrattoProvincia,
            "12062026G2240012335,36PD");
  EXPECT_EQ(s.EstrattoMesi, "5");
  EXPECT_EQ(s.EstrattoEstMedio, "50");
  EXPECT_EQ(s.EstrattoDitte, "1|ROSSI MARIO|2|X|\r\n");
  EXPECT_EQ(s.EstrattoTestoParticelle, "35|  |SEMINATIVO  |1|    | | |\r\n");
  EXPECT_EQ(s.EstrattoSetteBase, "7|10|1%|10%|10%|10%|10%|2%|2%|2%|2%|1%|NC|36|36|1|\r\n"
                                 "7|5|1%|10%|2%|30%|1%|NC|35|35|1376.6562654372|\r\n");
  EXPECT_EQ(s.EstrattoSetteSegno, "7|11|1%|10%|2%|30%|30%|30%|30%|30%|30%|30%|1%|NC|37+|37+|1|\r\n"
                                  "7|5|1%|2%|30%|1%|1%|NC|35-|35-|7|\r\n");
  EXPECT_EQ(RigheDi(s.EstrattoSette), std::vector<std::string_view>(estratto.SETTE.begin(), estratto.SETTE.end()));
  EXPECT_EQ(prova::Copia(estratto.DISTANZA), (Righe{"6|DISTORSIONE|1.5|", "6|DISTANZA|A|B|12.3|"}));
  EXPECT_EQ(prova::Copia(estratto.INQUADRAMENTO),
            (Righe{"6|INQUADRAMENTO|-5314.4|-4186.2|0.5|-5314.4|-4186.2|6.28|", "-5314.4", "-4186.2", "0.5", "-5314.4",
                   "-4186.2", "6.28", ""}));
  EXPECT_EQ(s.PuntoErrore, "EsplodiEstratto1");
  // without an unload the next load goes behind
  ASSERT_TRUE(EsplodiEstratto(banco.ambiente, estratto, Percorso));
  EXPECT_EQ(estratto.Punti.size(), 8U);
}

TEST(Campi, DallaFineDellaRiga) {
  EXPECT_EQ(Unisci({CampoDaUltimo("a|b|", 0), CampoDaUltimo("a|b|", 1), CampoDaUltimo("a|b|", 2)}, "/"), "/b/a");
  EXPECT_EQ(CampoDaUltimo("|a", 0), "a");
  for (const char* riga : {"", "a|b"}) EXPECT_THROW((void)CampoDaUltimo(riga, 2), Errore);
}

TEST(Estratto, MesiDalRilascioEScadenza) {
  std::string scaduto;
  scaduto += "L'Estratto è scaduto da "_w;
  const std::string scade = "L'Estratto scade tra    ";
  const std::vector<std::array<std::string, 4>> casi = {
      {"30112026", "0", scade + "-6 mesi", "Rilasciato il 30-11-2026"},
      {"01052026", "6", scade + "0 mesi", "Rilasciato il 01-05-2026"},
      {"30042026", "7", scaduto + "1 mesi", "Rilasciato il 30-04-2026"},
      {"AUTOALLESTITO", "203", scaduto + "197 mesi", "Rilasciato il 01-12-2009"},
      {"x", "24323", scaduto + "24317 mesi", "Rilasciato il x--"},
  };
  for (const auto& [data, mesi, scadenza, rilascio] : casi) {
    Banco banco; // on 21-11-2026
    banco.disco.Metti(Percorso, "0|" + data + "|0|0|0|0|0|0|0|0|");
    KR_Estratto estratto;
    ASSERT_TRUE(EsplodiEstratto(banco.ambiente, estratto, Percorso));
    EXPECT_EQ(banco.sessione.EstrattoMesi, mesi);
    EXPECT_EQ(ScadenzaEstratto(banco.sessione), scadenza);
    EXPECT_EQ(RilascioEstratto(banco.sessione), rilascio);
    EXPECT_EQ(banco.sessione.EstrattoComune + banco.sessione.EstrattoEstMedio, "00");
  }
}

TEST(Estratto, QuelCheTornaDiUnAnello) {
  const std::vector<std::pair<Righe, Righe>> casi = {
      // two points of one name
      {{"8|5%|1|1|", "8|5%|2|2|", "7|2|5%|5%|NC|A|A|3|"}, {"8|1%|1|1|", "8|2%|2|2|", "7|2|1%|1%|NC|A|A||"}},
      // "a" sorts before "1%", becomes it, and is taken up by that point's replacement
      {{"8|a|0|0|", "8|1%|1|1|", "7|3|a|1%|a|NC|A|A|3|"}, {"8|1%|0|0|", "8|2%|1|1|", "7|3|2%|2%|2%|NC|A|A||"}},
      // a point called as the parcel
      {{"8|35|0|0|", "7|2|9%|9%|NC|35|35|3|"}, {"8|1%|0|0|", "7|2|9%|9%|NC|1%|1%||"}},
      // a last row of six characters is dropped
      {{"7|11|a|b|c|d|e|f|g|h|i|j|NC|A|A|3|", "7|0|k|NC|"}, {"7|11|a|b|c|d|e|f|g|h|i|j|NC|A|A||"}},
      {{"7|0|1%|2%|NC|"}, {}}, // no ring before
      {{"8|1%|0|0|", "8|2%|0|3|", "8|3%|4|0|", "7|22|1%|1%|1%|1%|1%|1%|1%|1%|1%|1%|NC|A|A|3|",
        "7|0|2%|2%|2%|2%|2%|2%|2%|2%|2%|2%|NC|", "7|0|3%|1%|NC|"},
       {"8|1%|0|0|", "8|2%|0|3|", "8|3%|4|0|", "7|22|1%|1%|1%|1%|1%|1%|1%|1%|1%|1%|NC|A|A|6|",
        "7|0|2%|2%|2%|2%|2%|2%|2%|2%|2%|2%|NC|", "7|0|3%|1%|NC|"}},
      // a parcel's name that ends in "L" makes its ring a line
      {{"8|1%|0|0|", "7|3|1%|1%|1%|NC|35L|35L|3|"}, {"8|1%|0|0|", "7|3|1%|1%|1%|NC|35L|35L|3|"}},
      // the first vertex of a line bears one of the new numbers: from the last to the first
      {{"8|1%|0|0|", "8|1L|0|0|", "8|2L|1|1|", "7|2|1L|2L|NT|"},
       {"8|1%|0|0|", "8|2L|0|0|", "8|3L|1|1|", "7|2|2L|3L|NT|"}},
  };
  for (auto [righe, attese] : casi) {
    Banco banco;
    righe.insert(righe.begin(), ZeroEstratto);
    attese.insert(attese.begin(), ZeroEstratto);
    EXPECT_EQ(Salvate(banco, righe), attese);
  }
}

TEST(Superfici, QuelloCheRestaNellePosizioni) {
  KR_Estratto estratto;
  for (const auto* riga : {"8|1%|0|0|", "8|2%|0|30|", "8|3%|40|30|"}) estratto.Punti.Aggiungi(riga);
  SuperficiAnelli anelli(estratto);
  anelli.SuperficieRigaSette("7|1|1%|NC|A|A|5|");
  EXPECT_EQ(estratto.SuperficieCalcolata, 0) << "fewer than three";
  anelli.SuperficieRigaSette("7|4|1%|2%|3%|1%|NC|A|A|5|");
  EXPECT_EQ(estratto.SuperficieCalcolata, 600);
  // a missing point takes what the ring before it left in its place: 3%
  anelli.SuperficieRigaSette("7|4|1%|2%|7%|1%|NC|A|A|5|");
  EXPECT_EQ(estratto.SuperficieCalcolata, 600);
  anelli.SuperficieRigaSette("7|1|2%|NC|A|A|5|");
  EXPECT_EQ(estratto.SuperficieCalcolata, 600) << "a ring of two leaves the result";
  // but its first vertex in the place behind its last, where the missing point finds it
  anelli.SuperficieRigaSette("7|4|1%|2%|7%|1%|NC|A|A|5|");
  EXPECT_EQ(estratto.SuperficieCalcolata, 0);
}

// A ring of so many fields to look up, the "NC" among them.
std::string AnelloDi(std::size_t campi) {
  std::string riga = "7|9|";
  for (std::size_t i = 1; i < campi; ++i) riga += "1%|";
  return riga + "NC|A|A|5|";
}

struct CasoGuasto {
  std::string nome;
  std::string file;
  int errore;             // 0: read and saved
  std::string_view detto; // part of the report
};

class Guasto : public testing::TestWithParam<CasoGuasto> {};

// Whatever the file holds, it is read and saved, or told of and left as it was.
TEST_P(Guasto, DettoENientePerso) {
  Banco banco;
  banco.disco.Metti(Percorso, GetParam().file);
  const bool pulito = PulisciEstratto(banco.ambiente, "X.EMP");
  EXPECT_EQ(pulito, GetParam().errore == 0);
  EXPECT_EQ(banco.sessione.NumeroErrore, GetParam().errore) << banco.sessione.TestoErrore;
  EXPECT_EQ(banco.dialoghi.detti.size(), GetParam().errore == 0 ? 0U : 1U);
  EXPECT_NE(banco.dialoghi.UltimoTesto().find(GetParam().detto), std::string::npos) << banco.dialoghi.UltimoTesto();
  if (!pulito) {
    EXPECT_EQ(banco.disco.Contenuto(Percorso), GetParam().file);
  }
}

const std::string Punto = ZeroEstratto + "\r\n8|1%|0|0|\r\n";

INSTANTIATE_TEST_SUITE_P(
    Prove, Guasto,
    testing::Values(
        CasoGuasto{"vuoto", "", 9, "L'estratto è vuoto"_w}, CasoGuasto{"rigaVuota", "\r\n8|1%|0|0|\r\n", 9, ""},
        CasoGuasto{"zeroCorta", "0|12062026|x|G224|00123|35|\r\n8|1%|0|0|\r\n", 0,
                   ""}, // the sixth bar opens a seventh field
        CasoGuasto{"zeroPiuCorta", "0|12062026|x|G224|00123|35\r\n8|1%|0|0|\r\n", 9, ""},
        CasoGuasto{"senzaZero", "8|1%|0|0|\r\n7|4|1%|1%|1%|1%|NC|A|A|5|\r\n", 9, ""},
        CasoGuasto{"soloLf", ZeroEstratto + "\n8|1%|0|0|\n7|2|1%|1%|NC|A|A|5|\n", 0, ""},
        CasoGuasto{"ottoSenzaNome", ZeroEstratto + "\r\n8\r\n", 9, ""},
        CasoGuasto{"ottoSenzaEst", ZeroEstratto + "\r\n8|1%|0|\r\n", 0, ""},
        CasoGuasto{"ottoSenzaNord", ZeroEstratto + "\r\n8|1%|\r\n", 9, ""},
        CasoGuasto{"setteNuda", Punto + "7\r\n", 9, ""}, CasoGuasto{"setteCorta", Punto + "7|2|1%|NC\r\n", 9, ""},
        CasoGuasto{"setteDiCinque", Punto + "7|2|1%|NC|\r\n", 0, ""},
        CasoGuasto{"lineaSenzaTesta", Punto + "7|0|2L|3L|NT|\r\n", 9, ""},
        CasoGuasto{"campi500", Punto + AnelloDi(500) + "\r\n", 0, ""},
        CasoGuasto{"campi501", Punto + AnelloDi(501) + "\r\n", 9, "Particella A: il contorno ha più di 500 vertici"_w},
        CasoGuasto{"puntoAssente", Punto + "7|4|1%|2%|3%|1%|NC|A|A|5|\r\n", 0, ""},
        CasoGuasto{"lettere", ZeroEstratto + "\r\n8|1%|nord|NaN|\r\n7|4|1%|1%|1%|1%|NC|A|A|5|\r\n", 0, ""},
        CasoGuasto{"enorme", ZeroEstratto + "\r\n8|1%|1e308|-1e308|\r\n8|2%|0|1e308|\r\n7|4|1%|2%|1%|1%|NC|A|A|5|\r\n",
                   6, "Particella A: coordinate fuori misura"},
        CasoGuasto{"inquadramentoNudo", Punto + "6|IN\r\n6|DITTA\r\n6|PA\r\n", 0, ""},
        CasoGuasto{"byteQualunque", Punto + std::string("\0\xFF|7|\x81\r\n7e0|||||||\r\n", 18), 0, ""}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Estratto, DiscoENomi) {
  Banco banco;
  KR_Estratto estratto;
  EXPECT_FALSE(EsplodiEstratto(banco.ambiente, estratto, "MANCA.EMP"));
  EXPECT_FALSE(EsplodiEstratto(banco.ambiente, estratto, ""));
  EXPECT_FALSE(EsplodiEstratto(banco.ambiente, estratto, "C:\\pregeo\\"));
  EXPECT_TRUE(banco.dialoghi.detti.empty()) << "a missing file is no message";
  EXPECT_FALSE(SalvaEstratto(banco.ambiente, estratto)) << "and nothing can be saved of it";
  EXPECT_EQ(banco.sessione.NumeroErrore, 9);
  EXPECT_FALSE(EsplodiEstratto(banco.ambiente, estratto, "../X.EMP"));
  EXPECT_EQ(banco.sessione.NumeroErrore, 52);
  banco.disco.Metti(Percorso, Testo(Mista));
  ASSERT_TRUE(EsplodiEstratto(banco.ambiente, estratto, "X.EMP"));
  banco.disco.rotti["C:\\PREGEO\\ESTRATTI\\X.EMP"] = 61;
  EXPECT_FALSE(SalvaEstratto(banco.ambiente, estratto));
  EXPECT_FALSE(estratto.Punti.empty()) << "a failed save keeps the lists";
  banco.disco.rotti.clear();
  EXPECT_EQ(banco.disco.Contenuto(Percorso), Testo(Mista));
}

TEST(Estratto, DatiPerIlLibretto) {
  Banco banco;
  banco.disco.Metti(Percorso, Testo(Mista) + "7|4|1%|2%|10%|1%|NC|41|41|9|\r\n");
  const auto dati = CopiaIDatiDellEstratto(banco.ambiente, "X.EMP");
  ASSERT_TRUE(dati);
  EXPECT_EQ(dati->comune + " " + dati->foglio + " " + dati->particelle + " " + dati->estMedio, "G224 0123 35,36,41 50");
  EXPECT_EQ(banco.sessione.Provincia, "PD");
  EXPECT_EQ(CopiaIDatiDellEstratto(banco.ambiente, "MANCA.EMP")->comune, "");
  EXPECT_EQ(CopiaIDatiDellEstratto(banco.ambiente, "")->comune, "");
  EXPECT_FALSE(CopiaIDatiDellEstratto(banco.ambiente, "x.agg"));
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "selezionare un .EMP !");
  RiconosciEstratto(banco.sessione, Testo(Mista));
  EXPECT_EQ(banco.sessione.VersionePregeoEstratto + banco.sessione.TipoEstratto, "10");
  RiconosciEstratto(banco.sessione, "0|AUTOALLESTITO|0|\r\n");
  EXPECT_EQ(banco.sessione.VersionePregeoEstratto + banco.sessione.TipoEstratto, "9AUTOALLESTITO");
}

} // namespace
} // namespace lirmeto
