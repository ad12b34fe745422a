#include "censuario.h"

#include <base/testo.h>
#include <core/riordino.h>
#include <proposte/kr_fraziona.h>
#include <proposte/kr_stralcio.h>
#include <proposte/lettere.h>
#include <supporto/editor_gen.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace lirmeto {
namespace {

using prova::BancoCensuario;
using prova::Copia;
using prova::Testo;
using Righe = std::vector<std::string>;
using Grid = GrigliaProposta;

const std::string Cento = "6|PARTICELLA|35|01|SEMINATIVO  |100|100|1.00|2.00|SN|";

// Types each area and its keys, as a surveyor would.
void Batti(PropostaDerivate& form, const Righe& aree) {
  form.CambiaText1(std::to_string(aree.size()));
  for (const auto& area : aree) {
    form.CambiaText2(area.substr(0, area.find(':')));
    for (std::size_t i = area.find(':'); i != std::string::npos && ++i < area.size();)
      form.CambiaText2(form.Text2 + area[i]);
    form.Invio();
  }
}

std::string Conteggio(const std::string& sezione, const std::string& cifre) {
  return "6|" + sezione + "|" + cifre + "|" + prova::Bianchi57 + "|";
}

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

// From the memo to the libretto, by the two saves; the second parcel of the act goes on with the letters.
TEST(Frazionamento, MemoELibretto) {
  BancoCensuario banco;
  const std::string altra =
      std::string("6|") + std::string(67, 'x') + "|"; // seventy characters: taken for a census row
  banco.Apri(Testo({"0|01022024|7|G224|0010|35|ROSSI|G|PD|", "9|12|10|20|0|V|FR|T|", altra, "8|1|2|3|"}));
  banco.sessione.ModoEditor = ModoSopprime;
  banco.dialoghi.risposte = {Risposta::No, Risposta::Si};
  {
    KR_Fraziona form(banco.ambiente, banco.Particella(Cento));
    form.Form_Load();
    Batti(form, {"50", "50"});
    form.Premi(2);
    EXPECT_FALSE(form.Chiusa);
    form.Premi(2); // by mistake, and taken away again
    EXPECT_TRUE(form.Chiusa);
    EXPECT_EQ(form.RilieviMemo().size(), 3U); // original and both names twice
    form.List2.SelezionaIntervallo(6, 9, true);
    form.Premi(5);
  }
  KR_Fraziona form(banco.ambiente, banco.Particella("6|PARTICELLA|36|01|SEMINATIVO  |9|9|1|1|SN|"));
  form.Form_Load();
  EXPECT_EQ(form.List2.Riga(1), Conteggio("51FTP", "004"));
  Batti(form, {"9"});
  EXPECT_EQ(form.List1[4].substr(17, 5), "AAC  ");
  form.AggiungiAlMemo();
  EXPECT_EQ(form.List2.Riga(1), Conteggio("51FTP", "007"));
  EXPECT_EQ(form.RilieviMemo(), std::vector<Segnalazione>{});
  EXPECT_EQ(banco.disco.Contenuto(prova::Temp + "51FTP.CEN"), Testo(Copia(form.List2.Righe())));
  form.Premi(10);
  EXPECT_EQ(banco.appunti.testo, Testo(Copia(form.List2.Righe())));
  const std::string prima = banco.sessione.Libretto;
  form.Premi(1);
  EXPECT_EQ(banco.sessione.Libretto, prima + Testo(Copia(form.List2.Righe())));
  form.Premi(8);
  EXPECT_EQ(banco.sessione.Libretto, Sostituisci(prima, altra + "\r\n", "") + Testo(Copia(form.List2.Righe())));
  const std::size_t detti = banco.dialoghi.detti.size();
  subRiordinoRighe(banco.ambiente);
  EXPECT_EQ(banco.dialoghi.detti.size(), detti) << "the count of the block is right";
  form.Premi(3);
  EXPECT_EQ(Copia(form.List2.Righe()), (Righe{prova::TestataCensuaria, Conteggio("51FTP", "000")}));
  EXPECT_FALSE(banco.disco.Esiste(prova::Temp + "51FTP.CEN"));
  const std::string salvato = banco.sessione.Libretto;
  form.Premi(8); // nothing but a heading
  EXPECT_EQ(banco.sessione.Libretto, salvato);
  form.Premi(6);
  EXPECT_EQ(form.List2.Quante(), 9U);
}

TEST(Stralcio, UrbaniEMemo) {
  BancoCensuario banco;
  const std::string modello = "35 = 100_AAA = 60\r\n35 = 100_AAB = 30\r\n35 = 100_AAC = 10\r\n36 = 1_AAD = 1\r\n";
  KR_Stralcio form(banco.ambiente, banco.Particella(Cento, modello));
  form.Apri({{}, modello, {}, "7|3|1%|2%|3%|NC|AAC+|AAC+|10|\r\n"});
  EXPECT_EQ(form.List4.Quante(), 3U);
  EXPECT_TRUE(form.List4.Selezionata(2)) << "the proposal marks it with a plus";
  form.List4.Seleziona(0, true);
  form.PropostaAutomatica();
  const std::string qualita[] = {"001|1 ", "282|  ", "001|1 ", "282|  "};
  for (std::size_t i = 0; i < 4; ++i) EXPECT_EQ(form.List1[i == 0 ? 2 : i + 3].substr(45, 6), qualita[i]) << i;
  // The memo of a separation begins as one of splits, and says so; started again it does not.
  form.AggiungiAlMemo();
  EXPECT_EQ(form.List2.Riga(1), Conteggio("51FTP", "005"));
  EXPECT_EQ(form.Rilievi().size(), 1U);
  form.Premi(3);
  EXPECT_EQ(form.List2.Riga(1), Conteggio("3SPC ", "000"));
  EXPECT_EQ(form.Rilievi().size(), 0U);
}

TEST(Stralcio, LEditorApreIlSuoMemo) {
  BancoCensuario banco;
  KR_Stralcio form(banco.ambiente, banco.Particella(Cento));
  form.Form_Load();
  banco.finestre.utente = [](Modello& modello) {
    auto& editor = dynamic_cast<KR_EditorGen&>(modello);
    editor.Testo += std::string(69, '6') + "\r\n" + std::string(71, '6') + "\r\n6|S|" + std::string(65, ' ') + "|\r\n";
    EXPECT_TRUE(editor.Salva());
  };
  form.Premi(7);
  EXPECT_EQ(form.List2.Quante(), 3U); // rows of another length are passed over
  EXPECT_EQ(form.List2.Riga(1), Conteggio("51FTP", "001"));
}

TEST(Lettere, SerieDeiNomiTemporanei) {
  const std::pair<std::size_t, std::string> casi[] = {{0, ""},      {1, "AAA"},     {26, "AAZ"}, {27, "ABA"},
                                                      {677, "BAA"}, {17576, "ZZZ"}, {17577, ""}};
  for (const auto& [numero, nome] : casi) EXPECT_EQ(NomeTemporaneo(numero), nome);
  const std::pair<std::string, std::size_t> letti[] = {{"AAC  ", 3}, {"101  ", 0}, {"BBB  ", 2}, {"ABA", 27}, {"A", 0}};
  for (const auto& [nome, numero] : letti) EXPECT_EQ(NumeroTemporaneo(nome), numero) << nome;
  EXPECT_EQ(LetteraDerivata(28), "ab");
}

// Whatever proposal and keys, the rows keep their columns; without fixed areas they add up within half a metre a row.
void FrazionaACaso(BancoCensuario& banco, std::mt19937& caso, std::size_t giro) {
  constexpr std::size_t barre[] = {2, 4, 10, 14, 17, 23, 33, 36, 39, 45, 49, 52, 70};
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
    for (const std::size_t colonna : barre) ASSERT_EQ(riga[colonna - 1], '|') << riga;
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
