// The rows of a proposal: unfolded, folded, closed, repaired.
#include "sostituti/banco.h"

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <generazione/completa7.h>
#include <generazione/proposta.h>
#include <generazione/ripara_proposta.h>

#include <gtest/gtest.h>

#include <algorithm>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

// "p|p + 1|...|u|" with the mark behind each.
std::string Nomi(int primo, int ultimo, const std::string& segno = "") {
  std::string nomi;
  for (int i = primo; i <= ultimo; ++i) nomi += std::to_string(i) + segno + "|";
  return nomi;
}

struct CasoRighe {
  std::string nome;
  Righe date;
  Righe attese;
};

std::string NomeCaso(const testing::TestParamInfo<CasoRighe>& caso) {
  return caso.param.nome;
}

class Esplodi : public testing::TestWithParam<CasoRighe> {};

TEST_P(Esplodi, UnaRigaPerContorno) {
  EXPECT_EQ(Esplodi_Proposta(Testo(GetParam().date)), Testo(GetParam().attese));
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Esplodi,
    testing::Values(CasoRighe{"DueContinuazioni",
                              {"7|23|" + Nomi(1, 10) + "RC|35+|35|9|", "7|0|" + Nomi(11, 20) + "RC|",
                               "7|0|" + Nomi(21, 23) + "RC|"},
                              {"7|23|" + Nomi(1, 23) + "35+|35|9|"}},
                    CasoRighe{"NcDelleContinuazioniResta",
                              {"7|12|" + Nomi(1, 10, "%") + "NC|35|35|9.5|", "7|0|11%|1%|NC|"},
                              {"7|12|" + Nomi(1, 11, "%") + "1%|NC|35|35|9.5|"}},
                    CasoRighe{"OrdineRovesciatoEAltreRighe",
                              {"8|1*|1|2|", "", "6|Portico|", "7|2|1*|2*|RT|", "7|3|1|2|3|RC|5+|5|7|"},
                              {"7|3|1|2|3|5+|5|7|", "7|2|1*|2*|RT|", "6|Portico|", "8|1*|1|2|"}},
                    CasoRighe{"SenzaCodaRestanoNomiECodice",
                              {"7|12|" + Nomi(1, 10) + "RT|", "7|0|11|12|RT|"},
                              {"7|12|" + Nomi(1, 10) + "11|12|RT|RT|"}},
                    CasoRighe{"ContinuazioniSenzaTesta",
                              {"7|0|1|2|RC|", "7|0|3|RC|", "8|9|1|2|", "7|0|4|RC|"},
                              {"7|0|4|RC|", "8|9|1|2|", "7|0|3|RC|", "7|0|1|2|RC|"}},
                    CasoRighe{"GiaEsplosa", {"7|3|1|2|3|5+|5|7|"}, {"7|3|1|2|3|5+|5|7|"}},
                    CasoRighe{"RigheDiUnCampo", {"7", "7|", "7|5|", "7|1|1*|RC|"}, {"7|1|1*|RC|", "7|5|", "7|", "7"}},
                    CasoRighe{"NomiConSpazi", {"7|2|A B| c|RC|P 1+|P 1|2|"}, {"7|2|A B| c|P 1+|P 1|2|"}}),
    NomeCaso);

class Implodi : public testing::TestWithParam<CasoRighe> {};

TEST_P(Implodi, RigheDiDieciNomi) {
  EXPECT_EQ(Implodi_Proposta(GetParam().date[0]), GetParam().attese);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Implodi,
    testing::Values(CasoRighe{"Venticinque",
                              {"7|25|" + Nomi(1, 25) + "RC|35+|35|9|"},
                              {"7|25|" + Nomi(1, 10) + "RC|35+|35|9|", "7|0|" + Nomi(11, 20) + "RC|",
                               "7|0|" + Nomi(21, 25) + "RC|"}},
                    CasoRighe{"DieciSonoUnaRiga", {"7|10|" + Nomi(1, 10) + "NC|"}, {"7|10|" + Nomi(1, 10) + "NC|"}},
                    CasoRighe{"TrattiDiversi",
                              {"7|5|1*|RC|2%|3%|NC|4*|1*|RC|35+|35|9|"},
                              {"7|5|1*|RC|35+|35|9|", "7|0|2%|3%|NC|", "7|0|4*|1*|RC|"}},
                    CasoRighe{"TrattiUgualiSiUniscono", {"7|4|1|RC|2|3|RC|4|RC|x|x|1|"}, {"7|4|1|2|3|4|RC|x|x|1|"}},
                    CasoRighe{"SenzaCodici", {"7|12|" + Nomi(1, 12) + "RT|"}, {"7|12|" + Nomi(1, 12) + "RT|"}},
                    CasoRighe{"NonRiga7", {"6|1|RC|2|"}, {"6|1|RC|2|"}}, CasoRighe{"UnCampo", {"7"}, {"7"}}),
    NomeCaso);

class Spezza : public testing::TestWithParam<CasoRighe> {};

TEST_P(Spezza, OgniPezzoHaIlCodice) {
  EXPECT_EQ(SpezzaRiga7(GetParam().date[0]), GetParam().attese);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Spezza,
    testing::Values(
        CasoRighe{"Ventuno",
                  {"7|21|" + Nomi(1, 21) + "RT|"},
                  {"7|21|" + Nomi(1, 10) + "RT|", "7|0|" + Nomi(11, 20) + "RT|", "7|0|21|RT|"}},
        CasoRighe{"Dieci", {"7|10|" + Nomi(1, 10) + "NC|"}, {"7|10|" + Nomi(1, 10) + "NC|"}},
        CasoRighe{"TestaDiUnContornoPiuLungo", {"7|15|" + Nomi(1, 10) + "RC|"}, {"7|15|" + Nomi(1, 10) + "RC|"}},
        CasoRighe{"Continuazione", {"7|0|" + Nomi(1, 11) + "RC|"}, {"7|0|" + Nomi(1, 10) + "RC|", "7|0|11|RC|"}},
        CasoRighe{
            "ConLaCodaDiUnMappale", {"7|11|" + Nomi(1, 11) + "NC|5|5|80|"}, {"7|11|" + Nomi(1, 11) + "NC|5|5|80|"}}),
    NomeCaso);

struct CasoArea {
  std::vector<PuntoPiano> vertici;
  double attesa;
};

class Area : public testing::TestWithParam<CasoArea> {};

TEST_P(Area, NeiDueVersi) {
  auto vertici = GetParam().vertici;
  EXPECT_DOUBLE_EQ(AreaPoligono(vertici), GetParam().attesa);
  std::reverse(vertici.begin(), vertici.end());
  EXPECT_DOUBLE_EQ(AreaPoligono(vertici), GetParam().attesa);
}

INSTANTIATE_TEST_SUITE_P(Casi, Area,
                         testing::Values(CasoArea{{{0, 0}, {0, 10}, {6, 0}}, 30},
                                         CasoArea{{{0, 0}, {0, 10}, {6, 0}, {0, 0}}, 30},
                                         CasoArea{{{-5, -5}, {5, -5}, {5, 5}, {0, 0}, {-5, 5}}, 75},
                                         CasoArea{{{0, 0}, {9, 9}}, 0}, CasoArea{{{1, 1}}, 0}, CasoArea{{}, 0}));

struct CasoCompleta {
  std::string codice;
  double lato; // metres, of a square
  std::string area;
  bool avvisa;
};

class Completa : public testing::TestWithParam<CasoCompleta> {};

TEST_P(Completa, ConLaRegolaDeiVentiMetri) {
  const CasoCompleta& caso = GetParam();
  Banco banco;
  banco.sessione.TipologiaCorrente = caso.codice;
  const PuntiPerNome punti = {{"1", {0, 0}}, {"2", {caso.lato, 0}}, {"3", {caso.lato, 5}}, {"4", {0, 5}}};
  // A name that is no point takes no part.
  const Righe righe = Genera7Completa(banco.ambiente, "7|6|1|2|99|3|4|1|RC|", punti, "35");
  EXPECT_EQ(righe, Righe{"7|6|1*|2*|99*|3*|4*|1*|RC|35+|35|" + caso.area + "|"});
  EXPECT_EQ(banco.dialoghi.detti.size(), caso.avvisa ? 1U : 0U);
  if (caso.avvisa) {
    EXPECT_EQ(banco.dialoghi.UltimoTesto(), "L'area del nuovo fabbricato supera i 20 mq");
    EXPECT_EQ(banco.dialoghi.detti[0].gravita, Gravita::Critico);
  }
}

INSTANTIATE_TEST_SUITE_P(Casi, Completa,
                         testing::Values(CasoCompleta{"08", 4, "20", false}, CasoCompleta{"08", 4.01, "20", true},
                                         CasoCompleta{"09", 40, "200", false}, CasoCompleta{"08", 40, "200", true}));

class MoltiVertici : public testing::TestWithParam<std::pair<int, bool>> {};

// The area of a contour of so many vertices is computed, or said not to be; the rows come either way.
TEST_P(MoltiVertici, LAreaFinoACinquecento) {
  const auto [quanti, calcolata] = GetParam();
  Banco banco;
  std::vector<std::string> nomi;
  for (int i = 1; i <= quanti; ++i) nomi.push_back(std::to_string(i));
  PuntiPerNome punti;
  for (int i = 1; i <= quanti; ++i) punti[nomi[static_cast<std::size_t>(i - 1)]] = {i * 1.0, i * i * 0.001};
  const Righe righe =
      Genera7Completa(banco.ambiente, "7|" + std::to_string(quanti) + "|" + Nomi(1, quanti) + "RC|", punti, "35");
  EXPECT_EQ(righe.size(), static_cast<std::size_t>((quanti + 9) / 10));
  EXPECT_EQ(Valore(Parte(righe[0], '|', 15)) > 0, calcolata) << righe[0];
  EXPECT_EQ(banco.dialoghi.detti.empty(), calcolata);
}

INSTANTIATE_TEST_SUITE_P(Casi, MoltiVertici, testing::Values(std::pair{500, true}, std::pair{501, false}));

// --- repair against the parcel of the extract: a square of 100 metres, named 1% to 4%

const ContornoMappale Quadrato = {
    "7|5|1%|2%|3%|4%|1%|NC|35|35|10000.5|",
    {"8|1%|0.000|0.000|", "8|2%|0.000|100.000|", "8|3%|100.000|100.000|", "8|4%|100.000|0.000|"}};

struct CasoRipara {
  std::string nome;
  Righe date;
  Righe riparate;
  Righe finali; // of the modest entity, on what was repaired
};

class Ripara : public testing::TestWithParam<CasoRipara> {};

TEST_P(Ripara, ControIlMappale) {
  const CasoRipara& caso = GetParam();
  const std::string riparata = SistemaProposta(Testo(caso.date), Quadrato, "6|Portico|\r\n7|2|1*|2*|RT|\r\n");
  EXPECT_EQ(riparata, Testo(caso.riparate));
  EXPECT_EQ(SistemaModestaEntita(riparata, Quadrato), Testo(caso.finali));
}

const std::string Contorno = "6|Contorno fabbricato|";
const std::string Mappale = "7|5|1%|2%|3%|4%|1%|NC|35|35|10000.5|";

INSTANTIATE_TEST_SUITE_P(
    Casi, Ripara,
    testing::Values(CasoRipara{"IsolatoNelMezzo",
                               {Contorno, "8|1*|10.000|10.000|", "8|2*|10.000|20.000|", "8|3*|20.000|20.000|",
                                "7|4|1*|2*|3*|1*|RC|35+|35|50|"},
                               {"8|1*|10.000|10.000|", "8|2*|10.000|20.000|", "8|3*|20.000|20.000|", "6|Portico|",
                                "7|2|1*|2*|RT|", "6|Contorno fabbricato|", "7|4|1*|2*|3*|1*|RC|35+|35|50|"},
                               {"8|1*|10.000|10.000|", "8|2*|10.000|20.000|", "8|3*|20.000|20.000|", "6|Portico|",
                                "7|2|1*|2*|RT|", "7|4|1*|2*|3*|1*|RC|35+|35|50|", Contorno, "7|2|1*|2*|RC|",
                                "7|2|2*|3*|RC|", "7|2|3*|1*|RC|", Mappale}},
                    // Points 1 and 2 stand on 1% and 2%, a millimetre keeps 3 off 3%.
                    CasoRipara{"SulConfine",
                               {"8|1*|0.000|0.000|", "8|2*|0.000|100.000|", "8|3*|100.001|100.000|",
                                "8|4*|50.000|0.000|", "7|5|3*|4*|1*|2*|3*|RC|35+|35|7500|"},
                               {"8|3*|100.001|100.000|", "8|4*|50.000|0.000|", "6|Portico|", "7|2|1*|2*|RT|",
                                "7|5|3*|4*|RC|35+|35|7500|", "7|0|1%|2%|NC|", "7|0|3*|RC|"},
                               {"8|3*|100.001|100.000|", "8|4*|50.000|0.000|", "6|Portico|", "7|2|1*|2*|RT|",
                                "7|5|3*|4*|RC|35+|35|7500|", "7|0|1%|2%|NC|", "7|0|3*|RC|", Contorno, "7|2|3*|4*|RC|",
                                "7|2|4*|1%|RC|", "7|2|1%|2%|NC|", "7|2|2%|3*|RC|", Mappale}},
                    CasoRipara{
                        "DueContorniSeparatiEUnNc",
                        {"8|5*|1.000|1.000|", "8|6*|2.000|2.000|", "8|7*|3.000|3.000|", "6|Contorno Cartografico|",
                         "7|2|5*|6*|NC|", "7|2|5*|6*|RC|+||0|", "7|2|6*|7*|RC|+||0|"},
                        {"8|5*|1.000|1.000|", "8|6*|2.000|2.000|", "8|7*|3.000|3.000|", "6|Portico|", "7|2|1*|2*|RT|",
                         "6|Contorno Cartografico|", "7|2|5*|6*|NC|", "7|2|6*|7*|RC|+||0|", "7|2|5*|6*|RC|+||0|"},
                        {"8|5*|1.000|1.000|", "8|6*|2.000|2.000|", "8|7*|3.000|3.000|", "6|Portico|", "7|2|1*|2*|RT|",
                         "6|Contorno Cartografico|", "7|2|5*|6*|NC|", Contorno, "7|2|6*|7*|RC|", Contorno,
                         "7|2|5*|6*|RC|", Mappale}}),
    [](const auto& caso) { return caso.param.nome; });

// Repaired again, a proposal stays what it is: what was unfolded comes back folded with the codes it had.
TEST(Ripara, EsplosaERichiusaEUguale) {
  for (const int nomi : {3, 9, 10, 11, 35}) {
    std::string testo = "8|90*|0.000|0.000|\r\n8|91*|0.000|100.000|\r\n7|";
    testo += std::to_string(nomi + 3) + "|" + Nomi(1, nomi, "*") + "90*|91*|1*|RC|35+|35|12|\r\n";
    const std::string una = SistemaProposta(testo, Quadrato, {});
    EXPECT_EQ(SistemaProposta(una, Quadrato, {}), una);
    EXPECT_NE(una.find("|1%|2%|NC|"), std::string::npos) << una;
    for (const auto riga : RigheDi(una)) EXPECT_LE(QuanteParti(riga, '|'), 17U) << riga;
  }
}

} // namespace
} // namespace lirmeto
