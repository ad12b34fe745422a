#include "censuario.h"

#include <base/testo.h>
#include <proposte/kr_fraziona.h>
#include <proposte/kr_stralcio.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace lirmeto {
namespace {

using prova::BancoCensuario;
using prova::Batti;
using prova::Cento;
using prova::Conteggio;
using prova::Copia;
using prova::Testo;
using Righe = std::vector<std::string>;
using Grid = GrigliaProposta;

struct CasoDerivate {
  std::string nome;
  bool stralcio;
  bool mantieni;
  std::string particella; // its row
  std::string memo;
  std::string modello;
  Righe aree;
  std::string dati; // columns 3 to 52 of the rows behind the count, a line each
  std::string conteggio;
};

std::string DatiDi(const ListaRighe& righe) {
  std::string dati;
  for (std::size_t i = 2; i < righe.size(); ++i) dati += std::string(righe[i].substr(2, 50)) + "\n";
  return dati;
}

template <typename Form>
void Confronta(const CasoDerivate& caso) {
  BancoCensuario banco;
  banco.sessione.ModoEditor = caso.mantieni ? ModoMantiene : ModoSopprime;
  Form form(banco.ambiente, banco.Particella(caso.particella, caso.modello));
  form.Apri({{}, caso.modello, caso.memo, {}});
  if (caso.mantieni) form.Check1 = true;
  Batti(form, caso.aree);
  EXPECT_EQ(form.List1[0], prova::TestataCensuaria);
  EXPECT_EQ(form.List1[1], Conteggio(caso.stralcio ? "3SPC " : "51FTP", caso.conteggio));
  EXPECT_EQ(DatiDi(form.List1), caso.dati);
}

class Derivate : public testing::TestWithParam<CasoDerivate> {};

TEST_P(Derivate, RigheComposte) {
  GetParam().stralcio ? Confronta<KR_Stralcio>(GetParam()) : Confronta<KR_Fraziona>(GetParam());
}

const std::string Origine = "O|35   |000|  |     |000000100|SN|  |     |001|1 |\n";
const std::string Soppressa = "S|35   |000|  |     |000000000|  |  |     |000|  |\n";

INSTANTIATE_TEST_SUITE_P(
    Casi, Derivate,
    testing::Values(CasoDerivate{"tre parti uguali: le righe tengono 33",
                                 false,
                                 false,
                                 Cento,
                                 "",
                                 "",
                                 {"33", "33", "33"},
                                 Origine + Soppressa +
                                     "C|     |000|a |AAA  |000000033|SN|  |     |000|  |\n"
                                     "C|     |000|b |AAB  |000000033|SN|  |     |000|  |\n"
                                     "C|     |000|c |AAC  |000000033|SN|  |     |000|  |\n",
                                 "005"},
                    CasoDerivate{"il numero resta: conteggio di uno di troppo",
                                 false,
                                 true,
                                 Cento,
                                 "",
                                 "",
                                 {"100"},
                                 Origine + "V|35   |000|  |     |000000100|SN|  |     |000|  |\n",
                                 "003"},
                    CasoDerivate{"fissa e reale, il resto in proporzione",
                                 false,
                                 true,
                                 Cento,
                                 "",
                                 "",
                                 {"40:fr", "1", "2:Rn"},
                                 Origine + "V|35   |000|  |     |000000040|SR|  |     |000|  |\n"
                                           "C|     |000|a |AAA  |000000020|SN|  |     |000|  |\n"
                                           "C|     |000|b |AAB  |000000040|SN|  |     |000|  |\n",
                                 "005"},
                    CasoDerivate{"seconda particella dell'atto, una col numero della proposta",
                                 false,
                                 false,
                                 Cento,
                                 Testo({"6|C|     |000|b |AAB  |corta"}),
                                 "35 = 100_X = 1\r\n35 = 100_102 = 60\r\n36 = 1_7 = 1\r\n"
                                 "35 = 100_35 = 100\r\n",
                                 {"1", "1"},
                                 Origine + Soppressa +
                                     "C|     |000|a |X    |000000050|SN|  |     |000|  |\n"
                                     "C|     |000|b |102  |000000050|SN|  |     |000|  |\n",
                                 "004"},
                    CasoDerivate{"la lettera segue il posto, non i nomi presi",
                                 false,
                                 false,
                                 Cento,
                                 Testo({"6|C|     |000|b |AAB  |corta"}),
                                 "35 = 1_X = 1\r\n",
                                 {"1"},
                                 Origine + Soppressa + "C|     |000|a |X    |000000100|SN|  |     |000|  |\n",
                                 "003"},
                    CasoDerivate{"dopo AAB viene AAC",
                                 false,
                                 false,
                                 Cento,
                                 Testo({"6|C|     |000|b |AAB  |corta"}),
                                 "",
                                 {"1", "1"},
                                 Origine + Soppressa +
                                     "C|     |000|a |AAC  |000000050|SN|  |     |000|  |\n"
                                     "C|     |000|b |AAD  |000000050|SN|  |     |000|  |\n",
                                 "004"},
                    CasoDerivate{"una prima derivata col numero mantiene",
                                 false,
                                 false,
                                 Cento,
                                 "",
                                 "35 = 1_101 = 1\r\n",
                                 {"1"},
                                 Origine + "V|35   |000|  |     |000000100|SN|  |     |000|  |\n",
                                 "003"},
                    CasoDerivate{"nome e area troppo lunghi, qualita' ignota",
                                 false,
                                 false,
                                 "6|PARTICELLA|1234567|10|ROVO|98765432109876|1|1|1|SN|",
                                 "",
                                 "",
                                 {"5"},
                                 "O|12345|000|  |     |432109876|SN|  |     |ROV|10|\n"
                                 "S|12345|000|  |     |000000000|  |  |     |000|  |\n"
                                 "C|     |000|a |AAA  |432109876|SN|  |     |000|  |\n",
                                 "003"},
                    CasoDerivate{"una qualita' oltre 129 non ha classe in un frazionamento",
                                 false,
                                 false,
                                 "6|PARTICELLA|35|01|RELIT ACQUE |100|1|1|1|SN|",
                                 "",
                                 "",
                                 {"5"},
                                 "O|35   |000|  |     |000000100|SN|  |     |271|  |\n" + Soppressa +
                                     "C|     |000|a |AAA  |000000100|SN|  |     |000|  |\n",
                                 "003"},
                    CasoDerivate{"in uno stralcio invece si', e passa alle derivate",
                                 true,
                                 false,
                                 "6|PARTICELLA|35|01|RELIT ACQUE |100|1|1|1|SN|",
                                 "",
                                 "35 = 1_X = 1\r\n",
                                 {"5"},
                                 "O|35   |000|  |     |000000100|SN|  |     |271|1 |\n" + Soppressa +
                                     "C|     |000|a |AAA  |000000100|SN|  |     |271|1 |\n",
                                 "003"},
                    CasoDerivate{"fabbricato rurale: nessuna classe, nemmeno nelle derivate",
                                 true,
                                 true,
                                 "6|PARTICELLA|35|01|FABB RURALE |100|1|1|1|SN|",
                                 "",
                                 "",
                                 {"50", "50"},
                                 "O|35   |000|  |     |000000100|SN|  |     |279|  |\n"
                                 "V|35   |000|  |     |000000050|SN|  |     |000|  |\n"
                                 "C|     |000|a |AAA  |000000050|SN|  |     |279|  |\n",
                                 "004"}),
    [](const auto& caso) { return "caso" + std::to_string(caso.index); });

TEST(Frazionamento, GrigliaRedditiEColori) {
  BancoCensuario banco;
  banco.sessione.ModoEditor = ModoSopprime;
  KR_Fraziona form(banco.ambiente, banco.Particella(Cento));
  form.Apri({});
  EXPECT_EQ(form.Titolo, "Fraziona Particella 35");
  Batti(form, {"33", "33", "33"});
  EXPECT_EQ(form.Label2, "Area Propoprzionale Particella 35 - a"); // from the last row back to the first
  const Grid& griglia = form.MSFlexGrid1;
  EXPECT_EQ(griglia.Cella(1, Grid::PropAree), "99");
  EXPECT_EQ(griglia.Cella(3, Grid::Area), "34"); // the correction reaches the grid alone
  EXPECT_EQ(griglia.Cella(4, Grid::Area) + " " + griglia.Cella(4, Grid::RA) + " " + griglia.Cella(4, Grid::RD),
            "33 0.66 0.33");
  EXPECT_EQ(griglia.Colore(1, Grid::Area), ColoreCella::Giallo);
  EXPECT_EQ(griglia.Colore(1, Grid::RA), ColoreCella::Giallo); // 0.66 three times is 1.98
  EXPECT_EQ(form.DifferenzaAree(), -1);                        // that of the rows
  Batti(form, {"50", "50"});
  EXPECT_EQ(griglia.Colore(1, Grid::Area), ColoreCella::Bianco);
  EXPECT_EQ(griglia.Colore(1, Grid::RA), ColoreCella::Bianco);
  EXPECT_EQ(form.Rilievi(), std::vector<Segnalazione>{});
}

TEST(Frazionamento, DoppioClickSullaGriglia) {
  BancoCensuario banco;
  banco.sessione.ModoEditor = ModoMantiene;
  KR_Fraziona form(banco.ambiente, banco.Particella(Cento));
  form.Apri({});
  Batti(form, {"50", "50"});
  const auto celle = [&](std::size_t riga) {
    return form.MSFlexGrid1.Cella(riga, Grid::SrSn) + form.MSFlexGrid1.Cella(riga, Grid::Fissa);
  };
  const auto clic = [&](std::size_t riga, Grid::Colonna colonna) {
    form.DoppioClick(riga, colonna);
    return celle(riga);
  };
  EXPECT_EQ(clic(3, Grid::SrSn), "SN"); // a varied parcel does not answer
  EXPECT_EQ(clic(4, Grid::SrSn), "SRFISSA");
  EXPECT_EQ(clic(4, Grid::Fissa), "SRFISSA"); // real areas stay fixed
  EXPECT_EQ(form.List1[4].substr(33, 2), "SR");
  EXPECT_EQ(form.MSFlexGrid1.Colore(4, Grid::SrSn), ColoreCella::Rosso);
  EXPECT_EQ(clic(4, Grid::SrSn), "SNFISSA");
  EXPECT_EQ(clic(4, Grid::Fissa), "SN");
  EXPECT_EQ(clic(4, Grid::Fissa), "SNFISSA");
  EXPECT_EQ(clic(1, Grid::Fissa), "SN");
  EXPECT_EQ(clic(1, Grid::SrSn), "SR"); // the original, and its row with it
  EXPECT_EQ(form.List1[2].substr(33, 2), "SR");
  EXPECT_EQ(clic(4, Grid::Area), "SNFISSA");
  form.DoppioClick(99, Grid::SrSn);
}

// What stops the composition is told, and the rows composed before stay.
TEST(Frazionamento, ErroriAssorbiti) {
  BancoCensuario banco;
  banco.sessione.ModoEditor = ModoSopprime;
  const std::string modello = "35 = 1_A = 1\r\n35 = 1_B = 1\r\n";
  KR_Fraziona form(banco.ambiente, banco.Particella(Cento, modello));
  form.Apri({{}, modello, {}, {}});
  form.PropostaAutomatica();
  const Righe prima = Copia(form.List1);
  EXPECT_EQ(prima.size(), 6U);
  Batti(form, {"1"}); // fewer parcels than derivations
  EXPECT_EQ(Copia(form.List1), prima);
  EXPECT_EQ(Testo(form.Rilievi().front()), "Le righe non sono ricomposte: Indice non incluso nell'intervallo "
                                           "(ComponiFrazionamento)");
  Batti(form, {"100:F", "0"}); // a division by zero
  EXPECT_NE(Testo(form.Rilievi().front()).find("Divisione per zero"), std::string::npos)
      << Testo(form.Rilievi().front());
  form.VaiARiga(4);
  form.CambiaText2("1");
  EXPECT_EQ(form.Rilievi().size(), 0U);
  EXPECT_TRUE(banco.dialoghi.detti.empty());
  form.CambiaText1("-1");
  form.LasciaText1();
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Inserire un valore > 0");
}

TEST(Frazionamento, PropostaAutomaticaEAreeScelte) {
  BancoCensuario banco;
  banco.processi.avviati.clear();
  banco.disco.Metti(prova::Temp + "Aree Per Censuario.txt", "6|ESTRATTO DI MAPPA AGGIORNATO|\r\nX = 70\r\nY = 31\r\n");
  banco.disco.Metti(prova::Temp + "Modello Censuario.TXT", "35 = 100_X = 70\r\n35 = 100_Y = 31\r\n");
  banco.sessione.ModoEditor = ModoSopprime;
  KR_Fraziona form(banco.ambiente, banco.Particella(Cento));
  form.Form_Load();
  EXPECT_EQ(form.Combo1, (Righe{"X = 70", "Y = 31"}));
  form.Premi(9);
  EXPECT_EQ(form.RigaCorrente, 3U);
  EXPECT_EQ(form.ParticellaCorrente(), "X");
  EXPECT_EQ(form.List1[4].substr(23, 9), "000000069"); // 70 of 101
  form.ScegliArea(1);
  EXPECT_EQ(form.RigaCorrente, 4U);
  EXPECT_EQ(form.List1[4].substr(23, 9), "000000050");
  form.CambiaCheck1(true);
  EXPECT_EQ(form.List1[3].substr(0, 10), "6|V|35   |");
  form.List3.clear();
  form.CambiaCheck1(false); // nothing to propose: the number of parcels stays
  EXPECT_EQ(form.MSFlexGrid1.Cella(4, Grid::Particella), "b");
}

TEST(Frazionamento, SenzaPropostaLoDice) {
  BancoCensuario banco;
  KR_Fraziona form(banco.ambiente, banco.Particella(Cento));
  form.Form_Load();
  EXPECT_EQ(banco.dialoghi.detti.back().titolo + "/" + banco.dialoghi.UltimoTesto(),
            "Impossibile continuare/Proposta Assente!");
}

// Whatever proposal and keys, the rows keep their columns; without fixed areas they add up within half a metre a row.
void FrazionaACaso(BancoCensuario& banco, std::mt19937& caso, std::size_t giro) {
  const auto numero = [&](unsigned massimo) { return std::to_string(1 + caso() % massimo); };
  const std::size_t quante = 1 + caso() % (giro % 100 == 0 ? 60 : 6);
  const std::string catastale = numero(90000);
  std::string modello;
  for (std::size_t i = 0; i < quante; ++i)
    modello += "35 = 1_" + std::string(caso() % 8, "A1|\xE0"[i % 4]) + " = " + numero(5000) + "\r\n";
  const ParticellaScelta scelta =
      banco.Particella("6|PARTICELLA|35|" + numero(9) + "|PRATO|" + catastale + "||1|2|SN|", modello);
  std::unique_ptr<PropostaDerivate> form;
  if (giro % 5 == 0)
    form = std::make_unique<KR_Stralcio>(banco.ambiente, scelta);
  else
    form = std::make_unique<KR_Fraziona>(banco.ambiente, scelta);
  form->Apri({{}, modello, {}, {}});
  form->Check1 = giro % 2 == 0;
  form->PropostaAutomatica();
  if (giro % 3 == 0) form->CambiaText2(form->Text2 + (giro % 2 == 0 ? "F" : "|R"));
  double somma = 0;
  for (const std::string_view riga : form->List1) {
    ASSERT_EQ(riga.size(), 70U) << riga;
    if (riga == prova::TestataCensuaria || ApreSezione(riga)) continue;
    for (const std::size_t colonna : BarreCensuarie) ASSERT_EQ(riga[colonna - 1], '|') << riga;
    if (riga[2] == 'C' || riga[2] == 'V') somma += std::stod(std::string(riga.substr(23, 9)));
  }
  if (giro % 3 != 0) {
    ASSERT_LE(std::abs(somma - std::stod(catastale)), static_cast<double>(quante) * 0.5) << modello;
  }
}

TEST(Derivate, DiecimilaFrazionamentiACaso) {
  std::mt19937 caso(7);
  BancoCensuario banco;
  for (std::size_t giro = 0; giro < 10000 && !testing::Test::HasFatalFailure(); ++giro)
    FrazionaACaso(banco, caso, giro);
}

} // namespace
} // namespace lirmeto
