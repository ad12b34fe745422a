#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/comandi_righe.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Nove;
using prova::Testo;
using prova::Zero;
using Righe = std::vector<std::string>;

const std::string Base = "1|100|4410603.370,653928.450,4545947.070|0.000|";
std::string Gps(const std::string& nome, const std::string& nota) {
  return "2|" + nome + "|1.0,2.0,3.0|0.1,0.2|PDOP=2|0.000|" + nota + "|";
}

struct CasoVrs {
  std::string nome;
  std::vector<std::string> righe; // from the third on
  long indice;                    // -1: ELIMINA, else the row that is assigned
  std::vector<std::string> dopo;  // empty: as before
  std::string detto;
};

class Vrs : public testing::TestWithParam<CasoVrs> {};

TEST_P(Vrs, SullaQuintaRiga) {
  const CasoVrs& caso = GetParam();
  Banco banco;
  Righe prima = {Zero, Nove};
  prima.insert(prima.end(), caso.righe.begin(), caso.righe.end());
  banco.Apri(Testo(prima));
  banco.sessione.List1.Indice(caso.indice);
  if (caso.indice >= 0) banco.sessione.List1.Seleziona(static_cast<std::size_t>(caso.indice), true);
  caso.indice < 0 ? EliminaVrs(banco.ambiente) : AssegnaVrs(banco.ambiente);
  Righe attese = {Zero, Nove};
  attese.insert(attese.end(), caso.dopo.begin(), caso.dopo.end());
  EXPECT_EQ(banco.Righe(), caso.dopo.empty() ? prima : attese);
  EXPECT_EQ(banco.sessione.Libretto, Testo(banco.Righe()));
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), caso.detto);
}

const std::string NonGps = "\r\nNon \xE8 una riga GPS";

INSTANTIATE_TEST_SUITE_P(
    Casi, Vrs,
    testing::Values(
        CasoVrs{"toglie", {Base, "6|L1|", Gps("1", "MR [VRS]")}, -1, {Base, "6|L1|", Gps("1", "MR")}, ""},
        CasoVrs{"senzaMarca", {Base, "6|L1|", Gps("1", " MR ")}, -1, {Base, "6|L1|", Gps("1", "MR")}, ""},
        CasoVrs{"poche", {Base, "6|L1|"}, -1, {}, "Il libretto contiene meno di 5 righe"},
        CasoVrs{"nonGps", {Base, "6|L1|", "8|1|2|3|"}, -1, {}, "8|1|2|3|" + NonGps},
        CasoVrs{"assegnaScambia",
                {Base, "6|L1|", Gps("1", "A [VRS]"), Gps("2", "B"), Gps("3", "C")},
                6,
                {Base, "6|L1|", Gps("3", "C [VRS]"), Gps("2", "B"), Gps("1", "A ")},
                ""},
        CasoVrs{"laQuintaStessa", {Base, "6|L1|", Gps("1", "A[VRS]")}, 4, {Base, "6|L1|", Gps("1", "A [VRS]")}, ""},
        CasoVrs{"primaDellaQuinta", {Base, "6|L1|", Gps("1", "A")}, 2, {Base, "6|L1|", Gps("1", "A [VRS]")}, ""},
        CasoVrs{"sceltaNonGps", {Base, "6|L1|", Gps("1", "A"), "8|1|2|3|"}, 5, {}, "8|1|2|3|" + NonGps},
        CasoVrs{"quintaNonGps", {Base, "6|L1|", "8|1|2|3|", Gps("1", "A")}, 5, {}, "8|1|2|3|" + NonGps},
        CasoVrs{"quintaMancante", {Base, "6|L1|"}, 2, {}, NonGps}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Vrs, DueSelezionateENotaMancante) {
  Banco banco;
  const Righe righe = {Zero, Nove, Base, "6|L1|", Base, Gps("1", "A")};
  banco.Apri(Testo(righe));
  banco.sessione.List1.SelezionaIntervallo(4, 5, true);
  AssegnaVrs(banco.ambiente);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Selezionare una riga solamente!");
  EXPECT_THROW(EliminaVrs(banco.ambiente), Errore);
  banco.sessione.List1.Seleziona(4, false);
  banco.sessione.List1.Indice(4);
  EXPECT_THROW(AssegnaVrs(banco.ambiente), Errore);
  EXPECT_EQ(banco.Righe(), righe);
}

TEST(Selezioni, OgnunaLeSueRighe) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "1|1|1.5|N|", "2|pf01/0010/G224|1|", "8|PF01/0010/G224|1|2|", "4|1|2|", "5|1|",
                    "7|1|2|", "11|x|", "1 |y|"}));
  const auto quali = [&](void (*comando)(Ambiente&)) {
    comando(banco.ambiente);
    std::string testo;
    for (std::size_t i = 0; i < banco.sessione.List1.Quante(); ++i)
      testo += banco.sessione.List1.Selezionata(i) ? 'X' : '.';
    return testo;
  };
  EXPECT_EQ(quali(SelezionaRighe1), "..X.......");
  EXPECT_EQ(quali(InvertiSelezione), "XX.XXXXXXX");
  EXPECT_EQ(quali(SelezionaPuntiFiduciali), "...XX.....");
  EXPECT_EQ(quali(Seleziona_Stazioni), "..X......X");
  EXPECT_EQ(quali(Seleziona_Squadri), ".....XX...");
  EXPECT_EQ(quali(Seleziona_Contorni), ".......X..");
}

TEST(Appunti, CopiaTutteLeRighe) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "8|1|2|3|"}));
  CopiaNegliAppunti(banco.ambiente);
  const std::string testo = Testo({Zero, Nove, "8|1|2|3|"});
  EXPECT_EQ(banco.appunti.testo, testo);
  EXPECT_EQ(banco.sessione.UltimaTag, testo);
  EXPECT_EQ(banco.disco.Contenuto("C:\\users\\prova\\Documents\\LIRMETO\\temp\\TagUno.tag"), testo + "\r\n");
  EXPECT_EQ(banco.dialoghi.detti.back().titolo + "/" + banco.dialoghi.UltimoTesto(),
            "Copia Libretto/Il Libretto \xE8 stato copiato!");
}

struct CasoAppunti {
  void (*comando)(Ambiente&);
  std::string appunti;
  Righe nuove;
  std::string marcatore;
};

class DaExcel : public testing::TestWithParam<CasoAppunti> {};

TEST_P(DaExcel, SiAggiungonoInFondo) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "8|1|2|3|"}));
  banco.appunti.testo = GetParam().appunti;
  GetParam().comando(banco.ambiente);
  Righe attese = {Zero, Nove, "8|1|2|3|"};
  attese.insert(attese.end(), GetParam().nuove.begin(), GetParam().nuove.end());
  EXPECT_EQ(banco.Righe(), attese);
  EXPECT_EQ(banco.sessione.Libretto, Testo(attese));
  EXPECT_EQ(banco.sessione.PuntoErrore, GetParam().marcatore);
}

INSTANTIATE_TEST_SUITE_P(Casi, DaExcel,
                         testing::Values(CasoAppunti{ImportaRighe8DaExcel,
                                                     "A\t1,5\t2.25\r\nB\t3\t4",
                                                     {"2|A|1.5|2.25|", "2|B|3|4|"},
                                                     "Decozero_133"},
                                         CasoAppunti{ImportaRighe8DaExcel, "", {}, "Decozero_133"},
                                         CasoAppunti{ImportaRighe8NomeAutoDaExcel,
                                                     "1,5\t2\r\n\r\n3\t4\r\n",
                                                     {"2|1|1.5|2|", "2|2||", "2|3|3|4|"},
                                                     "Decozero_134"},
                                         CasoAppunti{ImportaRigheCompleteDaExcel,
                                                     "7\t2\t\t\t\tRC\t\r\n8\tP\t1,0\t2\r\n",
                                                     {"7|2|RC|", "8|P|1.0|2|"},
                                                     "Decozero_135"}));

TEST(DaExcel, UnaRigaApertaNonSiFondeConLaNuova) {
  Banco banco;
  banco.sessione.Libretto = Testo({Zero, Nove}) + "8|1|2|3|";
  banco.appunti.testo = "8\tA\t1\t2\r\n";
  ImportaRigheCompleteDaExcel(banco.ambiente);
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "8|1|2|3|", "8|A|1|2|"}));
}

TEST(DaElaborazione, SoloLeRigheDeiPunti) {
  Banco banco;
  banco.Apri(Testo({Zero, Nove, "1|1|1.5|N|"}));
  banco.appunti.testo = "  COORDINATE COMPENSATE\r\n 101   5029871.220  +/-0.010 1724410.300 +/-0.011 12.00 +/-0.02\r\n"
                        "102 1 +/-0 2 +/-0 3\r\nx +/-\r\nPF01 1 +/-0 2 +/-0 3 +/-0 ";
  LibrettoDaElaborazionePregeo(banco.ambiente);
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove, "8|101|5029871.220|1724410.300|", "8|PF01|1|2|"}));
  banco.appunti.testo = "niente";
  LibrettoDaElaborazionePregeo(banco.ambiente);
  EXPECT_EQ(banco.Righe(), (Righe{Zero, Nove}));
}

} // namespace
} // namespace lirmeto
