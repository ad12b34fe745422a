#include "censuario.h"

#include <base/numeri.h>
#include <proposte/kr_tm_fusione.h>
#include <proposte/tipo_mappale.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::BancoCensuario;
using prova::Conteggio;
using prova::Copia;
using prova::TestataCensuaria;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Coda = "                 |";

// "SN", "SR" or blanks of each row of a parcel.
std::string SrSn(const ListaRighe& righe) {
  std::string segni;
  for (std::size_t i = 2; i < righe.size(); ++i) segni += righe[i].substr(33, 2);
  return segni;
}

// A row by its columns 3 to 52.
std::string Dati(const std::string& colonne) {
  return "6|" + colonne + Coda;
}

TEST(NuovaCostruzione, DaiModelliAlMemo) {
  BancoCensuario banco;
  KR_NuovaCostruzione form(banco.ambiente, banco.Particella("6|PARTICELLA|1234567|07|PRATO       |98765432109|||||"));
  form.Form_Load();
  form.ScegliNome(2);
  EXPECT_EQ(Copia(form.List1), (Righe{TestataCensuaria, Conteggio("3SPC ", "003"),
                                      Dati("O|12345|000|  |     |765432109|SN|  |     |005|07|"),
                                      Dati("S|12345|000|  |     |000000000|  |  |     |000|  |"),
                                      Dati("C|     |000|a |AAC  |765432109|SN|  |     |282|  |")}));
  form.Premi(4);
  EXPECT_EQ(SrSn(form.List1), "SR  SR");
  form.Premi(1); // an empty memo
  EXPECT_EQ(banco.dialoghi.detti.back().titolo + "/" + banco.dialoghi.UltimoTesto(),
            "Memo Vuoto/Nessuna informazone da aggiungere al Libretto!");
  EXPECT_FALSE(form.Chiusa);
  form.Premi(2);
  form.Premi(2);
  EXPECT_EQ(form.List2.Riga(1), Conteggio("3SPC ", "006"));
  form.DoppioClickMemo(1); // heading and count stay
  form.DoppioClickMemo(7);
  EXPECT_EQ(form.List2.Riga(1), Conteggio("3SPC ", "005"));
  form.Premi(1);
  EXPECT_TRUE(form.Chiusa);
  form.Premi(3);
  EXPECT_TRUE(form.List2.Vuoto());
}

// A count goes into the second row of the memo, whatever it is.
TEST(NuovaCostruzione, DietroUnAltraSezione) {
  BancoCensuario banco;
  banco.sessione.Libretto =
      Testo({"0|1|2|G224|0010|35|R|G|P|", "9|1|", TestataCensuaria, Conteggio("51FTP", "000"), "corta"});
  KR_NuovaCostruzione form(banco.ambiente, banco.Particella("6|PARTICELLA|8||ENTE URBANO |5||||SN|"));
  form.Form_Load();
  EXPECT_EQ(form.List1[2].substr(45, 6), "282|  ");
  form.AggiungiAlMemo();
  EXPECT_EQ(form.List2.Riga(1), Conteggio("51FTP", "003"));
}

struct CasoVariazione {
  Righe memo;
  Righe conteggi; // the count rows afterwards
  std::size_t righe;
};

class Variazione : public testing::TestWithParam<CasoVariazione> {};

TEST_P(Variazione, AggiungeAllUltimaSezione) {
  BancoCensuario banco;
  banco.sessione.Libretto = Testo(GetParam().memo);
  KR_TMVariazione form(banco.ambiente, banco.Particella("6|PARTICELLA|79|02|PRATO       |100||||SN|"));
  form.Form_Load();
  EXPECT_EQ(std::string(form.List1[2]) + std::string(form.List1[3]),
            Dati("O|79   |000|  |     |000000100|SN|  |     |005|02|") +
                Dati("V|79   |000|  |     |000000100|SN|  |     |282|  |"));
  form.Premi(4);
  Righe conteggi;
  for (const auto riga : form.List2.Righe())
    if (ApreSezione(riga)) conteggi.emplace_back(riga.substr(2, 9));
  EXPECT_EQ(conteggi, GetParam().conteggi);
  EXPECT_EQ(form.List2.Quante(), GetParam().righe);
  form.Premi(2);
  EXPECT_EQ(SrSn(form.List1), "SRSR");
}

const std::string Nulla = Dati("X|     |000|  |     |000000000|  |  |     |000|  |");

INSTANTIATE_TEST_SUITE_P(
    Casi, Variazione,
    testing::Values(CasoVariazione{{}, {"3SPC |002"}, 4},
                    CasoVariazione{{TestataCensuaria, Conteggio("3SPC ", "001"), Nulla}, {"3SPC |003"}, 5},
                    CasoVariazione{{TestataCensuaria, Conteggio("51FTP", "001"), Nulla}, {"51FTP|001", "3SPC |002"}, 6},
                    // Every section takes the count of the last.
                    CasoVariazione{
                        {TestataCensuaria, Conteggio("3SPC ", "002"), Nulla, Nulla, Conteggio("3SPC ", "000")},
                        {"3SPC |002", "3SPC |002"},
                        7}));

struct CasoFusione {
  Righe particelle; // names
  bool conserva;
  int opzione;
  Righe memo;
  std::string provincia;
  Righe attese; // columns 3 on of the rows behind the heading
};

class Fusione : public testing::TestWithParam<CasoFusione> {};

const std::string OrigineUno = "O|1    |000|  |     |000000010|SN|  |     |001|1 |";
const std::string OrigineDue = "O|2    |000|  |     |000000020|SN|  |     |282|  |";

TEST_P(Fusione, Anteprima) {
  BancoCensuario banco;
  banco.disco.Metti(prova::Archivio + "G224_00010_1.MAP", "6|PARTICELLA|1|01|SEMINATIVO  |10|10|0|0|SN|\r\n");
  banco.disco.Metti(prova::Archivio + "G224_00010_2.MAP", "6|PARTICELLA|2|00|ENTE URBANO |20|20|0|0|SN|\r\n");
  banco.disco.Metti(prova::Temp + "Fusione.CEN", Testo(GetParam().memo));
  banco.sessione.CodiceComune = "G224";
  banco.sessione.Foglio = "0010";
  banco.sessione.SiglaProvincia = GetParam().provincia;
  KR_TMFusione form(banco.ambiente);
  form.Form_Load();
  form.CambiaOption1(GetParam().opzione);
  for (const auto& nome : GetParam().particelle) {
    const auto posto = std::find(form.File1.begin(), form.File1.end(), "G224_00010_" + nome + ".MAP");
    form.Aggiungi(static_cast<std::size_t>(posto - form.File1.begin()));
  }
  form.CambiaCheck1(GetParam().conserva);
  Righe attese = {TestataCensuaria};
  for (const auto& riga : GetParam().attese)
    attese.push_back(riga.size() == 9 ? Conteggio(riga.substr(0, 5), riga.substr(6))
                     : riga.ends_with("|  |") && GetParam().provincia == "GO" ? "6|" + riga
                                                                              : Dati(riga));
  EXPECT_EQ(Copia(form.List1), attese);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Fusione,
    testing::Values(CasoFusione{{}, false, 0, {}, "PD", {"3SPC |001"}},
                    CasoFusione{{"1", "2", "1"},
                                false,
                                0,
                                {},
                                "PD",
                                {"3SPC |007", OrigineUno, "S|1    |000|  |     |000000000|  |A |AAA  |000|  |",
                                 OrigineDue, "S|2    |000|  |     |000000000|  |A |AAA  |000|  |", OrigineUno,
                                 "S|1    |000|  |     |000000000|  |  |     |000|  |",
                                 "C|     |000|a |AAA  |000000010|SN|A |AAA  |282|  |"}},
                    CasoFusione{{"1", "2"},
                                true,
                                1,
                                {Dati("S|9    |000|  |     |000000000|  |A |AAA  |000|  |")},
                                "PD",
                                {"M31FU|004", OrigineUno, "S|1    |000|  |     |000000000|  |B |2    |000|  |",
                                 OrigineDue, "V|2    |000|  |     |000000020|SN|B |2    |282|  |"}},
                    CasoFusione{{"2"},
                                true,
                                0,
                                {},
                                "GO",
                                {"3SPC |002", "O|2         |000|  |          |000000020|SN|  |          |282|  |  |",
                                 "V|2         |000|  |          |000000020|SN|A |2         |282|  |  |"}}));

TEST(Fusioni, MemoELibretto) {
  BancoCensuario banco;
  banco.disco.Metti(prova::Archivio + "G224_00010_1.MAP", "6|PARTICELLA|1|01|ROVO|10|10|0|0|SN|\r\n");
  const Righe testa = {"0|01022024|7|G224|0010|35|ROSSI|G|PD|", "9|12|10|20|0|V|FR|T|"};
  banco.Apri(Testo({testa[0], testa[1], TestataCensuaria, Conteggio("3SPC ", "001"), Nulla}));
  KR_TMFusione form(banco.ambiente);
  form.Form_Load();
  EXPECT_EQ(banco.disco.Contenuto(prova::Temp + "FUSIONE.CEN"), ""); // made on opening
  form.Aggiungi(0);
  EXPECT_EQ(form.List1[2].substr(45, 6), "ROV|1 ");
  form.Premi(2);
  EXPECT_TRUE(form.List1.empty());
  form.AnteprimaTMFusione();
  EXPECT_EQ(form.List1.back().substr(17, 3), "AAA"); // the last parcel of a fusion alone bears no letter
  const Righe memo = Copia(form.List4.Righe());
  EXPECT_EQ(banco.disco.Contenuto(prova::Temp + "Fusione.CEN"), Testo(memo));
  form.Premi(1); // one heading, the old rows first
  Righe attese = testa;
  attese.insert(attese.end(), {TestataCensuaria, Conteggio("3SPC ", "001"), Nulla});
  attese.insert(attese.end(), memo.begin() + 1, memo.end());
  EXPECT_EQ(banco.sessione.Libretto, Testo(attese));
  EXPECT_TRUE(form.Chiusa);
  banco.dialoghi.risposte = {Risposta::No, Risposta::Si};
  form.Premi(3);
  EXPECT_FALSE(form.List4.Vuoto());
  form.Premi(3);
  form.Premi(9);
  EXPECT_EQ(banco.sessione.Libretto, Testo(testa));
  form.Premi(5);
  EXPECT_EQ(form.List1.size(), 2U);
}

struct CasoGuasto {
  std::string contenuto;
  std::string descrizione;
};

// What cannot be read ends the composition at that parcel, with a report.
TEST(Fusioni, ParticelleGuaste) {
  const CasoGuasto casi[] = {{"", "vuoto"}, {"6|PARTICELLA|", "La riga della particella"}, {"(manca)", "53"}};
  for (const auto& caso : casi) {
    BancoCensuario banco;
    banco.disco.Metti(prova::Archivio + "1.MAP", "6|PARTICELLA|1|01|PRATO|10|\r\n");
    if (caso.contenuto != "(manca)") banco.disco.Metti(prova::Archivio + "2.MAP", caso.contenuto);
    KR_TMFusione form(banco.ambiente);
    form.List2 = {"1.MAP", "2.MAP", "1.MAP"};
    form.AnteprimaTMFusione();
    EXPECT_EQ(form.List1.size(), 4U);
    EXPECT_NE(banco.dialoghi.UltimoTesto().find(caso.descrizione), std::string::npos) << banco.dialoghi.UltimoTesto();
    EXPECT_TRUE(banco.dialoghi.UltimoTesto().ends_with("Nella Routine AnteprimaTMFusione"));
  }
}

// --- findings

struct CasoRilievi {
  Righe righe;
  Righe attesi; // code and row
};

class Rilievi : public testing::TestWithParam<CasoRilievi> {};

TEST_P(Rilievi, DettiDoveStanno) {
  const BancoCensuario banco;
  Righe rilievi;
  const ListaRighe righe = prova::Lista(GetParam().righe);
  for (const Segnalazione& s : VerificaElencoCensuario(righe, banco.sessione.TabellaQualita))
    rilievi.push_back(std::string(s.regola->codice) + " " + TestoIntero(static_cast<long long>(*s.riga)) + " " +
                      s.valori);
  EXPECT_EQ(rilievi, GetParam().attesi);
}

const std::string Uno = Dati(OrigineUno);
const std::string MortaUno = Dati("S|1    |000|  |     |000000000|  |  |     |000|  |");
const std::string Nata = Dati("C|     |000|a |AAA  |000000010|SN|  |     |282|  |");

INSTANTIATE_TEST_SUITE_P(
    Casi, Rilievi,
    testing::Values(
        CasoRilievi{{}, {}}, CasoRilievi{{TestataCensuaria, Conteggio("51FTP", "003"), Uno, MortaUno, Nata}, {}},
        CasoRilievi{{Conteggio("51FTP", "003"), Uno, MortaUno, Nata}, {"M012 0 "}},
        CasoRilievi{{TestataCensuaria, Uno, MortaUno, Nata}, {"M011 1 ", "M011 2 ", "M011 3 "}},
        CasoRilievi{{TestataCensuaria, Conteggio("51FTP", "04 "), Uno, MortaUno, Nata}, {"M003 1 51FTP\t04 \t3"}},
        CasoRilievi{{TestataCensuaria, Conteggio("M31FU", "000"), TestataCensuaria}, {"M018 1 ", "M013 2 "}},
        CasoRilievi{{TestataCensuaria, Conteggio("51FTP", "002"), Uno, Nata}, {"M006 2 1"}},
        CasoRilievi{{TestataCensuaria, Conteggio("51FTP", "006"), Uno, MortaUno, Nata, Uno, MortaUno, Nata},
                    {"M014 5 1", "M010 7 AAA\t4"}},
        CasoRilievi{{TestataCensuaria, Conteggio("3SPC ", "003"), Uno, MortaUno,
                     Dati("C|     |000|b |     |000000009|SN|  |     |282|1 |")},
                    {"M004 2 9\t10\t-1", "M015 4 ", "M005 4 b", "M008 4 282"}},
        CasoRilievi{{TestataCensuaria, Conteggio("3SPC ", "005"), Uno,
                     Dati("S|1    |000|  |     |000000000|  |A |AAA  |000|  |"), Dati(OrigineDue),
                     Dati("S|2    |000|  |     |000000000|  |  |     |000|  |"),
                     Dati("C|     |000|a |AAA  |000000020|SN|A |AAA  |777|  |")},
                    {"M017 2 20\t30\t-10", "M007 6 777"}},
        // what goes without a new parcel shows in the sum of the section alone; a real area allows no difference
        CasoRilievi{{TestataCensuaria, Conteggio("3SPC ", "005"), Uno, MortaUno, Nata, Dati(OrigineDue),
                     Dati("S|2    |000|  |     |000000000|  |  |     |000|  |")},
                    {"M004 1 10\t30\t-20"}},
        CasoRilievi{{TestataCensuaria, Conteggio("51FTP", "003"),
                     Dati("O|1    |000|  |     |000000011|SR|  |     |001|1 |"), MortaUno, Nata},
                    {"M016 2 10\t11\t-1"}},
        CasoRilievi{{TestataCensuaria, Conteggio("3SPC ", "001"), "6|O|x", std::string(70, '6')},
                    {"M001 2 5", "M002 3 2"}}));

} // namespace
} // namespace lirmeto
