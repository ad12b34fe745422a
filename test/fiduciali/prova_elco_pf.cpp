#include "grafica/con_grafica.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/cartelle.h>
#include <fiduciali/elco_pf.h>
#include <fiduciali/elco_pf_file.h>
#include <fiduciali/elco_pf_grafica.h>
#include <fiduciali/elco_pf_griglia.h>
#include <supporto/imputa.h>
#include <supporto/stampa_generale.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Dati = "C:\\fiducial\\DATI\\";
const std::string Programma = "C:\\users\\prova\\Documents\\LIRMETO";
const std::string Temp = Programma + "\\temp\\";
const std::string Forvale = "C:\\users\\prova\\Documents\\Forvale\\TEMP\\";

RecordTaf Punto(const std::string& nome, double est, double nord, const std::string& posto = {}) {
  RecordTaf taf;
  taf.nome = nome;
  taf.x = est;
  taf.y = nord;
  taf.est = std::to_string(static_cast<int>(est)) + ".0";
  taf.nord = std::to_string(static_cast<int>(nord)) + ".0";
  taf.riferimentoPlanimetrico = posto;
  return taf;
}

// Four points on three sheets.
TabellaPF Quattro() {
  return {"G224",
          "PADOVA",
          "PD",
          {Punto("PF01/0010/G224", 0, 0, "Ex Pf 3"), Punto("PF02/0010/G224", 1000, 0),
           Punto("PF01/0020/G224", 0, 200, "angolo nuovo"), Punto("PF01/0000/G225", 2000000, 5000000)}};
}

struct Vista : testing::Test {
  Vista() {
    CreaCartelle(banco.ambiente);
    form.AlCaricamento();
  }
  [[nodiscard]] std::string Scelti() const {
    std::string scelti;
    for (const PuntoPF& punto : form.Punti)
      scelti += punto.selezionato == 0 ? "S" : punto.selezionato == -1 ? "-" : "?";
    return scelti;
  }
  Banco banco;
  TabellaPF tabella = Quattro();
  prova::SuperficieDiProva superficie;
  KR_ElcoPFGrafica form{banco.ambiente, tabella};
};

TEST_F(Vista, SiSelezionaInSetteModi) {
  EXPECT_EQ(Scelti(), "----");
  form.Seleziona(SelezionePF::FuoriUso);
  EXPECT_EQ(Scelti(), "S-S-");
  form.Seleziona(SelezionePF::Inverti);
  EXPECT_EQ(Scelti(), "-S-S");
  form.Seleziona(SelezionePF::Nessuno);
  form.Seleziona(SelezionePF::GaussBoaga);
  EXPECT_EQ(Scelti(), "---S");
  form.Clic({10, 10});
  EXPECT_EQ(Scelti(), "---S") << "no tool is armed";
  form.Seleziona(SelezionePF::Foglio);
  form.Clic({900, 10});
  EXPECT_EQ(Scelti(), "SS-S");
  form.Seleziona(SelezionePF::Nessuno);
  banco.finestre.utente = [&](Modello& modello) {
    EXPECT_EQ(banco.sessione.ModoEditor, 601);
    dynamic_cast<Imputa&>(modello).Text1 = "200,5";
    dynamic_cast<Imputa&>(modello).Conferma();
  };
  form.Seleziona(SelezionePF::Intorno);
  form.Clic({0, 0});
  EXPECT_EQ(Scelti(), "S-S-");
  form.Seleziona(SelezionePF::Tutti);
  EXPECT_EQ(Scelti(), "SSSS");
  banco.finestre.utente = nullptr;
  form.Seleziona(SelezionePF::Intorno);
  EXPECT_EQ(form.Strumento(), StrumentoPF::Nessuno) << "no radius was given";
}

TEST_F(Vista, UnFoglioNonSiScegliePiuLontanoDellaVista) {
  form.MettiLarghezza(50);
  form.SelezionaFoglio({60, 0});
  EXPECT_EQ(Scelti(), "----");
}

TEST_F(Vista, ISegniSonoVerdiORossiEICerchiSeguonoLaLarghezza) {
  form.Punti[1].selezionato = selezione::Si;
  form.Segmenti = {{0, 1}};
  form.RiDisegnaPF();
  form.MettiRapporto(2);
  form.MettiLarghezza(800);
  const Operazioni prima = form.Grafica1().Dipingi(2);
  ASSERT_EQ(prima.cerchi.size(), 4U);
  EXPECT_EQ(prima.cerchi[0].colore, colore::RossoChiaro);
  EXPECT_EQ(prima.cerchi[1].colore, colore::Verde);
  EXPECT_EQ(prima.testi[1].colore, colore::Nero);
  EXPECT_EQ(prima.testi[1].font, "Arial");
  EXPECT_EQ(prima.linee.at(0).colore, colore::Grigio);
  const Operazioni stretta = form.Grafica1().Dipingi(0.5);
  EXPECT_DOUBLE_EQ(prima.cerchi[0].raggio, 2);
  EXPECT_DOUBLE_EQ(stretta.cerchi[0].raggio, 2);
  EXPECT_DOUBLE_EQ(stretta.scala.alto - stretta.scala.basso, 1600) << "the width stays";
  EXPECT_TRUE(form.Check1());
  form.CambiaCheck1(false);
  EXPECT_FALSE(form.Check1());
  EXPECT_TRUE(form.Grafica1().Dipingi(1).testi.empty());
  form.MettiLarghezza(-1);
  EXPECT_DOUBLE_EQ(form.Larghezza(), 640);
}

struct CasoEstensione {
  std::vector<RecordTaf> punti;
  double xc, yc;
  double entro; // the width is at most this
};

class Estensioni : public testing::TestWithParam<CasoEstensione> {};

TEST_P(Estensioni, DalTerzoPunto) {
  Banco banco;
  const TabellaPF tabella{"G224", "", "", GetParam().punti};
  KR_ElcoPFGrafica form(banco.ambiente, tabella);
  form.AlCaricamento();
  EXPECT_DOUBLE_EQ(form.Grafica1().Vista().Xc, GetParam().xc);
  EXPECT_DOUBLE_EQ(form.Grafica1().Vista().Yc, GetParam().yc);
  EXPECT_GT(form.Larghezza(), 0);
  EXPECT_LE(form.Larghezza(), GetParam().entro);
  for (const int comando : {1, 2, 3, 4, 5, 9, 10}) form.Esegui(comando);
  (void)form.Grafica1().Dipingi(1.5);
  (void)form.Leggenda({0, 0});
  EXPECT_TRUE(banco.dialoghi.detti.empty());
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Estensioni,
    testing::Values(CasoEstensione{{}, 0, 0, 640}, CasoEstensione{{Punto("a", 1000, 500)}, 500, 250, 1201},
                    CasoEstensione{{Punto("a", 1000, 500), Punto("b", 1000, 500)}, 500, 250, 1201},
                    CasoEstensione{{Punto("a", 10, 5), Punto("b", 30, 5), Punto("c", 20, 5)}, 20, 5, 25},
                    CasoEstensione{{Punto("a", 7, 5), Punto("b", 7, 5), Punto("c", 7, 5)}, 7, 5, 640}));

TEST_F(Vista, IComandiSpostanoEIngrandiscono) {
  form.Grafica1().Picture1 = &superficie;
  form.MettiLarghezza(100);
  const double xc = form.Grafica1().Vista().Xc;
  form.Esegui(1);
  form.Esegui(1);
  form.Esegui(2);
  EXPECT_DOUBLE_EQ(form.Grafica1().Vista().Xc, xc - 20);
  form.Esegui(3);
  EXPECT_DOUBLE_EQ(form.Larghezza(), 80);
  form.Esegui(4);
  EXPECT_DOUBLE_EQ(form.Larghezza(), 96);
  form.Grafica1().PuntatoreEntra(host::KR_ElcoPFGrafica);
  form.Grafica1().Rotola(true, {});
  EXPECT_DOUBLE_EQ(form.Larghezza(), 96 * 0.8);
  EXPECT_EQ(banco.sessione.HostGrafica, 1);
  form.Esegui(11);
  EXPECT_EQ(form.Strumento(), StrumentoPF::ZoomFinestra);
  const int prima = superficie.disegni;
  form.ZoomFinestra({30, 10}, {10, 20});
  EXPECT_GT(superficie.disegni, prima);
  EXPECT_DOUBLE_EQ(form.Larghezza(), 20);
  EXPECT_DOUBLE_EQ(form.Grafica1().Vista().Yc, 15);
  form.LarghezzaFoglio = 0.2;
  EXPECT_EQ(form.Leggenda({1000.04, 0.1}), "1000.040 0.100 Scala : 1:100 PF02/0010/G224 - 0.000 / 1000.000 / ");
  EXPECT_EQ(form.Leggenda({1001, 0}), "1001.000 0.000 Scala : 1:100");
  EXPECT_EQ(form.Leggenda({2000000, 5000000}), "2000000.000 5000000.000 Scala : 1:100") << "/0000/";
}

// One line in its two spellings, the points in the other order, a pair of which one is not there, a name cut; one that
// differs from a line before it in the last letter of the comune alone is that line again.
TEST_F(Vista, LeDistanzeMisurateSonoSegmenti) {
  form.Esegui(6);
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Manca la Provincia PD.DDD\r\nInstallare PD.DDD");
  banco.disco.Metti(Dati + "PD2024.DDD", "PF02/0010/G224 - PF01/0020/G224        1.0\r\n"
                                         "PF02/0010/G224 - PF01/0020/G224        2.0\r\n"
                                         "PF01/0010/G224 - PF02/0010/G224        2.0\r\n"
                                         "PF01/0010/G224 - PF02/0010/G225        2.0\r\n"
                                         "PF02/0010/G224 - PF01/0000/G224        2.0\r\n"
                                         "PF02/0010/G224 - PF01/0000/G225        2.0\r\n"
                                         "PF01/0010/G224 - PF09/0010/G224        2.0\r\n"
                                         "PF01/0010/G224 - PF01/0010/G224        2.0\r\n"
                                         "PF01/0010/G224 - PF01/0020/G22\r\nG224\r\n\r\n");
  form.Esegui(6);
  EXPECT_EQ(form.Segmenti, (std::vector<SegmentoPF>{{0, 1}, {1, 2}}));
  banco.disco.Metti(Dati + "PD.DDD", "PF01/0010/G224 - PF01/0020/G224");
  form.Esegui(6);
  EXPECT_EQ(form.Segmenti, (std::vector<SegmentoPF>{{0, 2}})) << "the province's own file comes first";
}

class Molti : public testing::TestWithParam<std::size_t> {};

TEST_P(Molti, OltreIlMassimoSiDice) {
  Banco banco;
  TabellaPF tabella{"G224", "", "PD", {}};
  const auto nome = [](std::size_t i) {
    return "PF" + std::to_string(10 + i % 90) + "/" + std::to_string(1000 + i / 90) + "/G224";
  };
  std::string archivio;
  for (std::size_t i = 0; i <= GetParam(); ++i) tabella.punti.push_back(Punto(nome(i), static_cast<double>(i), 0));
  for (std::size_t i = 0; i < GetParam(); ++i) archivio += nome(i) + " - " + nome(i + 1) + "     1.0\r\n";
  banco.disco.Metti(Dati + "PD.DDD", archivio);
  KR_ElcoPFGrafica form(banco.ambiente, tabella);
  form.AlCaricamento();
  form.Esegui(6);
  EXPECT_EQ(form.Segmenti.size(), std::min<std::size_t>(GetParam(), 10001));
  EXPECT_EQ(banco.dialoghi.detti.size(), GetParam() > 10001 ? 1U : 0U);
}

INSTANTIATE_TEST_SUITE_P(Casi, Molti, testing::Values(10001, 10002));

TEST_F(Vista, EsceNeiFileDegliAltriProgrammi) {
  form.Segmenti = {{0, 1}, {1, 2}};
  form.Punti[0].selezionato = form.Punti[1].selezionato = selezione::Si;
  form.Esegui(9);
  banco.dialoghi.risposte = {Risposta::Si};
  form.Esegui(14);
  const std::string dxf = banco.disco.Contenuto(Programma + "\\GraficaPF.DXF");
  EXPECT_TRUE(
      dxf.starts_with(" 0\r\nSECTION\r\n 2\r\nENTITIES\r\n 0\r\nPOINT\r\n 8\r\nPunti\r\n 10\r\n0\r\n 20\r\n0\r\n"
                      " 0\r\nTEXT\r\n 8\r\nNomi\r\n 10\r\n0\r\n 20\r\n0\r\n 40\r\n1\r\n 1\r\nPF01/0010/G224\r\n"))
      << dxf;
  EXPECT_TRUE(dxf.ends_with(" 0\r\nLINE\r\n 8\r\nLinee\r\n 10\r\n1000\r\n 20\r\n0\r\n 11\r\n0\r\n 21\r\n200\r\n"
                            " 0\r\nENDSEC\r\n 0\r\nEOF\r\n"));
  EXPECT_EQ(banco.dialoghi.detti[0].titolo + "/" + banco.dialoghi.detti[0].testo,
            "Salva in DXF/Salvato il file " + Programma + "\\GraficaPF.DXF");
  EXPECT_EQ(banco.processi.aperti, Righe{Programma + "\\GraficaPF.DXF"});
  form.Esegui(15);
  EXPECT_EQ(banco.processi.avviati, (Righe{Programma + "\\print.exe"}));
  EXPECT_TRUE(banco.disco.Contenuto(Programma + "\\Stampe.TXT").starts_with("L,"));
  form.Esegui(7);
  EXPECT_TRUE(form.Chiusa && form.TuttoChiuso);
  EXPECT_EQ(banco.disco.Contenuto(Forvale + "EseguiIncollaDaFile.TXT"), "EseguiIncolaDaFile\r\n");
  const std::string scambio = banco.disco.Contenuto(Forvale + "CopiaInFile.txt");
  EXPECT_TRUE(scambio.starts_with("\"P\",\"PF01/0010/G224\",0,0,0,\"TAF\",-1.5,\"Courier New\"\r\n")) << scambio;
  EXPECT_TRUE(scambio.ends_with("-1.5,\"Courier New\"\r\n\"L\",0,0,0,1000,0,0,7,1,\"MISURATE\"\r\n")) << scambio;
}

TEST_F(Vista, SiStampanoISelezionati) {
  form.Punti[1].selezionato = selezione::Si;
  EXPECT_EQ(TestoStampaPF(std::span(form.Punti).first(1), tabella), TestoStampaPF({}, tabella)) << "of one not chosen";
  form.Punti[1].selezionato = selezione::No;
  form.Punti[2].selezionato = selezione::Si;
  std::string mostrata;
  banco.finestre.utente = [&](Modello& modello) {
    for (const auto riga : dynamic_cast<KR_StampaGenerale&>(modello).List1) mostrata += riga;
    EXPECT_EQ(banco.sessione.NomeBaseStampa, Temp + "Stampa_Fiduciali");
  };
  form.Esegui(8);
  EXPECT_EQ(banco.disco.Contenuto(Temp + "Stampa_Fiduciali.CSV"),
            "Punto Fiduciale\tMappale\tAtt.Planim.\tNord\tEst\tRif.Planim.\tAtt.Altim.\tQuota\tRif. Altim.\r\n"
            "PF01/0020/G224\t\t\t200.0\t0.0\tangolo nuovo\t\t\t\r\n");
  EXPECT_EQ(mostrata, "PF01/0020/G224  " + std::string(8 + 3 + 7, ' ') + "200.0         0.0" + std::string(53, ' ') +
                          "angolo nuovo" + std::string(3 + 12 + 65, ' '));
  EXPECT_EQ(banco.disco.Contenuto(Temp + "Stampa_Fiduciali.TXT"), mostrata + "\r\n");
  form.Seleziona(SelezionePF::Tutti);
  form.Esegui(8);
  const std::string tutti = banco.disco.Contenuto(Temp + "Stampa_Fiduciali.CSV");
  EXPECT_EQ(QuanteParti(tutti, '\n'), 2 + form.Punti.size());
}

// The extract manager, where the user associates an extract or none.
struct ConEstratti : prova::FinestreDiProva {
  explicit ConEstratti(Sessione& sessione) : sessione_(sessione) { disponibili = {"KR_EstrattiDiMappa1"}; }
  void Apri(std::string_view) override {
    if (!scelto.empty()) sessione_.EstrattoAssociato = scelto;
  }
  std::string scelto;

private:
  Sessione& sessione_;
};

TEST(PianoConEstratto, HaAnchePuntiSuoi) {
  Banco banco;
  CreaCartelle(banco.ambiente);
  ConEstratti finestre(banco.sessione);
  Ambiente ambiente{banco.sessione, banco.disco,        banco.dialoghi, finestre,
                    banco.processi, banco.impostazioni, banco.appunti,  banco.orologio};
  banco.disco.Metti("C:\\pregeo\\estratti\\X.EMP",
                    "0|1|2|G224|00010|5|PD|\r\n8|1%|0|0|\r\n8|PF05/0010/G224|-3.5|8|\r\n");
  banco.disco.Metti("C:\\pregeo\\estratti\\ROTTO.EMP", "0|1\r\n8|PF05\r\n");
  banco.sessione.EstrattoAssociato = "MIO.EMP";
  const TabellaPF tabella = Quattro();
  KR_ElcoPFGrafica form(ambiente, tabella);
  form.AlCaricamento();
  form.Esegui(13);
  EXPECT_EQ(form.Punti.size(), 4U) << "none was chosen";
  finestre.scelto = "ROTTO.EMP";
  form.Esegui(13);
  EXPECT_EQ(form.Punti.size(), 4U);
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Rilevato errore");
  finestre.scelto = "X.EMP";
  form.Esegui(13);
  ASSERT_EQ(form.Punti.size(), 5U);
  EXPECT_EQ(form.Punti[4].nome, "PF05/0010/G224");
  EXPECT_TRUE(form.Punti[4].est == 8 && form.Punti[4].nord == -3.5 && !form.Punti[4].Selezionato());
  form.Seleziona(SelezionePF::Tutti);
  form.Esegui(8);
  EXPECT_TRUE(
      Contiene(banco.disco.Contenuto(Temp + "Stampa_Fiduciali.CSV"), "PF05/0010/G224\t\t\t-3.5\t8\t\t\t\t\r\n"));
  EXPECT_EQ(banco.sessione.EstrattoAssociato, "MIO.EMP") << "the libretto keeps its own";
}

// --- the table and the choice

struct Tabella : testing::Test {
  Tabella() {
    banco.disco.Metti(Dati + "g224.TAF", "G224   001 0    2 12\r\n\r\nG224   001 0    1 9\r\nG224   002 0    1 100");
    griglia.Carica();
  }
  [[nodiscard]] std::string Mappali() const {
    std::string mappali;
    for (std::size_t i = 0; i < griglia.Viste.size(); ++i) mappali += griglia.Cella(i, 1) + " ";
    return mappali;
  }
  Banco banco;
  KR_ElcoPfGriglia griglia{banco.ambiente, {"G224B", "PADOVA", "PD", {}}};
};

TEST_F(Tabella, SiOrdinaSiFiltraSiCopia) {
  EXPECT_EQ(griglia.Label1() + "/" + griglia.Label2() + "/" + griglia.Label3(),
            "Provincia di PD/Comune di PADOVA/PF Totali 3");
  EXPECT_EQ(Mappali(), "12 9 100 ");
  griglia.Ordina(1);
  EXPECT_EQ(Mappali(), "9 12 100 ");
  griglia.Ordina(1);
  EXPECT_EQ(Mappali(), "100 12 9 ");
  griglia.Ordina(0);
  EXPECT_EQ(Mappali(), "9 100 12 ");
  griglia.Filtra("/0010/g");
  EXPECT_EQ(Mappali(), "9 12 ");
  griglia.Seleziona(1, 1);
  griglia.Copia();
  EXPECT_EQ(banco.appunti.testo, "PF02/0010/G224\t12\t\t\t\t\t\t\t\t\r\n");
  griglia.Filtra("");
  griglia.Ordina(99);
  EXPECT_EQ(griglia.Viste.size(), 3U);
}

TEST_F(Tabella, SiStampaDallaPiuAltaAllaPiuBassa) {
  griglia.Seleziona(2, 1);
  griglia.Stampa();
  EXPECT_EQ(banco.disco.Contenuto(Temp + "Stampa_TAF.CSV"),
            "PF01/0010/G224\t9\t\t\t\t\t\t\t\t\r\nPF01/0020/G224\t100\t\t\t\t\t\t\t\t\r\n");
  const std::string riga = "PF01/0010/G224 9    ";
  EXPECT_TRUE(banco.disco.Contenuto(Temp + "Stampa_TAF.TXT")
                  .starts_with(riga + std::string(2 + 12 + 12 + 60 + 2 + 8 + 60 + 15, ' ') + "\r\nPF01/0020"));
  banco.disco.file.erase("C:\\FIDUCIAL\\DATI\\G224.TAF");
  griglia.Monografie();
  banco.disco.Metti(Temp + "Stampa_TAF.CSV", "x");
  griglia.Stampa();
  EXPECT_EQ(banco.disco.Contenuto(Temp + "Stampa_TAF.CSV"), "x") << "without points nothing happens";
}

TEST(SceltaComunePF, MostraIPuntiDelComuneScelto) {
  Banco banco;
  CreaCartelle(banco.ambiente);
  banco.disco.Metti(Dati + "g224.taf", "G224   001 0    1\r\n");
  banco.disco.Metti(Dati + "Z999.TAF", "");
  KR_ElcoPf form(banco.ambiente);
  form.AlCaricamento();
  ASSERT_EQ(form.List1.size(), 2U);
  EXPECT_TRUE(form.List1[0].starts_with("PD|G224||") && form.List1[0].ends_with("|PADOVA")) << form.List1[0];
  EXPECT_EQ(form.List1[1], "|Z999|||Z999");
  form.CambiaText1("z9");
  EXPECT_EQ(form.List1.size(), 1U);
  form.CambiaText1("nessuno");
  bool mostrata = false;
  banco.finestre.utente = [&](Modello& modello) {
    mostrata = true;
    if (auto* griglia = dynamic_cast<KR_ElcoPfGriglia*>(&modello)) {
      EXPECT_EQ(griglia->Label1() + griglia->Label2() + griglia->Label3(),
                "Provincia di PDComune di PADOVAPF Totali 1");
      griglia->Grafica();
    } else {
      dynamic_cast<KR_ElcoPFGrafica&>(modello).Esegui(7);
    }
  };
  form.SelezionaComune();
  EXPECT_FALSE(mostrata);
  form.CambiaText1("pad");
  EXPECT_THROW(form.Scegli(1), Errore);
  form.SelezionaComune();
  EXPECT_TRUE(mostrata && form.Chiusa) << "the points handed over, all three close";
  EXPECT_EQ(banco.sessione.CodiceComune, "G224");
  form.CambiaText1("");
  form.CambiaCheck1(false);
  EXPECT_GT(form.List1.size(), 2U);
}

} // namespace
} // namespace lirmeto
