// Listings and DXF files of CAD programs, and what the form makes of them.
#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <generazione/polilinee_dxf.h>
#include <generazione/tipol10.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

struct Form {
  explicit Form(const std::string& codice = "1000") {
    banco.sessione.TipologiaCorrente = codice;
    banco.disco.cartelle.push_back(Maiuscolo(banco.sessione.CartellaDocumenti));
  }

  // Rows made of what the clipboard holds.
  Righe Da(const std::string& elenco) {
    banco.appunti.testo = elenco;
    form.GeneraLibrettoDaList();
    return prova::Copia(form.List1);
  }

  Banco banco;
  DisegnoCondiviso disegno;
  Tipol10 form{banco.ambiente, disegno};
};

std::string V(const std::string& x, const std::string& y) {
  return "          al punto  X=" + x + "  Y=" + y + "  Z=   0.0000";
}

struct CasoElenco {
  std::string nome;
  Righe elenco;
  Righe righe; // none: nothing found
};

class Elenco : public testing::TestWithParam<CasoElenco> {};

TEST_P(Elenco, DiventaRighe) {
  Form form;
  EXPECT_EQ(form.Da(Testo(GetParam().elenco)), GetParam().righe);
  EXPECT_EQ(form.banco.dialoghi.UltimoTesto(), GetParam().righe.empty() ? "Nessun dato trovato in memoria!" : "");
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Elenco,
    testing::Values(
        CasoElenco{
            "QuattroStratiEPuntiInComune",
            {"LWPOLYLINE  Layer: \"RC\"", V("10.0004", "1"), V("20", "-.5"),
             "Premere INVIO per continuare:", V("10.0001", "1"), "  layer RT", "at point  X= 20  Y= -0.5  Z= 0",
             "Locazione:  X=7,25  Y=8", "LAYER NC", V("1", "1"), V("2", "2"), "LAYER RP", V("1", "1"), V("3", "3")},
            {"8|1*|1.000|10.000|", "8|2*|-.500|20.000|", "8|1*|1.000|10.000|", "8|2*|-.500|20.000|",
             "8|3*|8.000|7.250|", "8|4*|1.000|1.000|", "8|5*|2.000|2.000|", "8|4*|1.000|1.000|", "8|6*|3.000|3.000|",
             "6|Portico|", "7|2|2*|3*|RT|", "6|Cantina|", "7|2|4*|6*|RP|", "6|Contorno Cartografico|", "7|2|4*|5*|NC|",
             "6|Contorno fabbricato|", "7|2|1*|2*|RC|", "7|2|2*|1*|RC|"}},
        CasoElenco{"VerticeRipetutoEdUnPuntoSolo", {"LAYER RC", V("1", "2"), V("1", "2")}, {"8|1*|2.000|1.000|"}},
        CasoElenco{"ContornoDisegnatoSenzaStrato",
                   {" ", V("1", "2"), V("3", "4")},
                   {"8|1*|2.000|1.000|", "8|2*|4.000|3.000|", "6|Contorno fabbricato|", "7|2|1*|2*|RC|"}},
        CasoElenco{"StratiEstranei", {"LAYER PARTICELLE", V("1", "2"), V("3", "4"), "LAYER XRC", V("1", "2")}, {}},
        CasoElenco{"SenzaCoordinate", {"LAYER RC", "al punto", "al punto X=1", "at point Y=2"}, {}},
        CasoElenco{"AltroElenco", {"CERCHIO Layer: \"0\"", "centro X=1 Y=2", "raggio 3"}, {}},
        CasoElenco{"Vuoto", {}, {}}, CasoElenco{"Bianco", {"   "}, {}}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Elenco, UndiciNomiDiPorticoInDueRighe) {
  Righe elenco = {"LAYER RT"};
  for (int i = 1; i <= 11; ++i) elenco.push_back(V(std::to_string(i), "0"));
  Form form;
  const Righe righe = form.Da(Testo(elenco));
  ASSERT_EQ(righe.size(), 14U);
  EXPECT_EQ(righe[12], "7|11|1*|2*|3*|4*|5*|6*|7*|8*|9*|10*|RT|");
  EXPECT_EQ(righe[13], "7|0|11*|RT|");
}

TEST(Elenco, EstrattoProvvisorio) {
  Form form;
  Righe elenco = {"LAYER NC"};
  for (int i = 1; i <= 11; ++i) elenco.push_back(V(std::to_string(i), "5"));
  elenco.insert(elenco.end(), {"LAYER RC", V("1", "5"), V("9", "9")});
  static_cast<void>(form.Da(Testo(elenco)));
  const std::string scritto = form.banco.disco.Contenuto("C:\\pregeo\\ESTRATTI\\ESTRATTOPROVVISORIO.EMP");
  EXPECT_EQ(scritto,
            form.banco.disco.Contenuto(form.banco.sessione.CartellaProgramma + "\\TEMP\\EstrattoProvvisorio.EMP"));
  const std::string atteso = "0|AUTOALLESTITO||||||||\r\n8|1%|5.000|1.000|Punto per inquadramento cartografico|\r\n";
  EXPECT_EQ(scritto.substr(0, atteso.size()), atteso);
  const std::string coda =
      Testo({"8|1%|5.000|1.000|SF|", "8|12%|9.000|9.000|SF|", "7|11|1%|2%|3%|4%|5%|6%|7%|8%|9%|10%|NC|X1|X1|1|",
             "7|0|11%|NC|", "7|2|1%|12%|NC|X2|X2|1|", "6|INQUADRAMENTO|1.000|5.000|0|0|0|0|"});
  EXPECT_TRUE(scritto.ends_with(coda)) << scritto;
  EXPECT_EQ(form.banco.disco.Contenuto("C:\\pregeo\\ESTRATTI\\ESTRATTOPROVVISORIO.PNG").substr(0, 30),
            "8|1|-12571.845|-5882.526|SF|\r\n");
}

// --- DXF

// Pairs as lines of a file.
std::string Dxf(const std::string& coppie, const std::string& fineRiga = "\r\n") {
  std::string testo =
      Sostituisci("  0 SECTION  2 HEADER  9 $X 70 1  0 ENDSEC  0 SECTION  2 ENTITIES " + coppie, " ", "\n");
  testo = Sostituisci(Sostituisci(testo, "\n\n\n", "\n"), "\n\n", "\n");
  return Sostituisci(testo.substr(1), "\n", fineRiga);
}

struct CasoDxf {
  std::string nome;
  std::string coppie;
  Righe elenco;
};

class PolilineeDxf : public testing::TestWithParam<CasoDxf> {};

TEST_P(PolilineeDxf, DiventanoUnElenco) {
  Banco banco;
  for (const std::string fine : {"\r\n", "\n", "\r"})
    EXPECT_EQ(ElencoDaDxf(banco.dialoghi, Dxf(GetParam().coppie, fine)), Testo(GetParam().elenco));
}

std::string P(const std::string& x, const std::string& y) {
  return "al punto  X=" + x + "  Y=" + y + "  Z=   0";
}

INSTANTIATE_TEST_SUITE_P(
    Casi, PolilineeDxf,
    testing::Values(
        CasoDxf{"LeggeraChiusaPrimaDellaFine",
                "0 LWPOLYLINE 8 FABBRICATI 90 2 70 129 10 1 20 2 42 0.5 10 3 20 4 0 ENDSEC 0 EOF",
                {"LAYER RC", P("1.000", "2.000"), P("3.000", "4.000"), P("1.000", "2.000"), " ", " "}},
        CasoDxf{
            "VecchiaConTestaEVertici",
            "0 POLYLINE 8 PARTICELLE 66 1 10 0 20 0 70 1 0 VERTEX 8 0 10 .5 20 2 70 1 0 VERTEX 8 0 10 3 20 4 0 SEQEND "
            "0 LINE 8 RC 10 9 20 9 0 ENDSEC",
            {"LAYER NC", P(".500", "2.000"), P("3.000", "4.000"), P(".500", "2.000"), " ", " "}},
        CasoDxf{"ApertaEStratiEstranei",
                "0 LWPOLYLINE 8 rc 70 1 10 1 20 1 0 LWPOLYLINE 8 RP 70 128 10 1 20 1 10 2 20 2 0 VERTEX 10 7 20 7 "
                "0 ENDSEC",
                {"LAYER RP", P("1.000", "1.000"), P("2.000", "2.000"), " ", " "}},
        CasoDxf{
            "RetiETelai",
            "0 POLYLINE 8 RC 70 64 0 VERTEX 10 1 20 1 0 SEQEND 0 POLYLINE 8 RC 70 4 0 VERTEX 10 1 20 1 70 16 0 VERTEX "
            "10 2 20 2 70 8 0 SEQEND 0 ENDSEC",
            {"LAYER RC", " ", " ", "LAYER RC", P("2.000", "2.000"), " ", " "}},
        CasoDxf{"Nessuna", "0 CIRCLE 8 RC 10 1 20 1 40 5 0 ENDSEC", {}}),
    [](const auto& caso) { return caso.param.nome; });

TEST(PolilineeDxf, SenzaNomeDelloStratoNonSonoContorni) {
  Banco banco;
  EXPECT_EQ(ElencoDaDxf(banco.dialoghi,
                        "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n8\n\n70\n1\n10\n1\n20\n1\n10\n2\n20\n2\n"
                        "0\nENDSEC\n0\nEOF\n"),
            "");
}

struct CasoDxfGuasto {
  std::string byte;
  int numero;
};

class DxfGuasto : public testing::TestWithParam<CasoDxfGuasto> {};

// Refused with a report, and neither the clipboard nor the rows change.
TEST_P(DxfGuasto, LasciaTuttoComEra) {
  Form form;
  const Righe prima = form.Da(Testo({"LAYER RC", V("1", "2"), V("3", "4")}));
  const std::string appunti = form.banco.appunti.testo;
  form.banco.disco.Metti("C:\\A.DXF", GetParam().byte);
  form.banco.dialoghi.fileScelto = "C:\\A.DXF";
  form.form.GeneraLibrettoDaPoliLineeDXF();
  EXPECT_EQ(form.banco.sessione.NumeroErrore, GetParam().numero);
  EXPECT_EQ(prova::Copia(form.form.List1), prima);
  EXPECT_TRUE(GetParam().numero == 0 || form.banco.appunti.testo == appunti);
}

INSTANTIATE_TEST_SUITE_P(
    Casi, DxfGuasto,
    testing::Values(CasoDxfGuasto{"", errore::ArgomentoNonValido}, CasoDxfGuasto{"ciao", errore::ArgomentoNonValido},
                    CasoDxfGuasto{std::string("0\nSECTION\n2\nENTITIES\n\0", 22), errore::ArgomentoNonValido},
                    CasoDxfGuasto{Dxf("0 LWPOLYLINE 8 RC 10 1 20 1"), errore::OltreLaFine},
                    CasoDxfGuasto{Dxf("0 LWPOLYLINE 8 RC 10 1 20"), errore::OltreLaFine},
                    CasoDxfGuasto{"0\nSECTION\n2\nENTITIES\n10\n1e300\n0\nENDSEC", 0}));

// A coordinate that no map has is told with its row, and the rows stay.
TEST(Elenco, UnaCoordinataFuoriMisura) {
  Form form;
  const Righe prima = form.Da(Testo({"LAYER RC", V("1", "2"), V("3", "4")}));
  for (const std::string enorme : {"1e300", "-1e11", "1e999"})
    EXPECT_EQ(form.Da(Testo({"LAYER RC", V(enorme, "2"), V("3", "4")})), prima);
  EXPECT_NE(form.banco.dialoghi.UltimoTesto().find("Coordinata fuori misura: \"al punto  X=1e999"), std::string::npos);
}

TEST(Tipol10, SenzaFileSceltoLoDice) {
  Form form;
  form.banco.dialoghi.fileScelto = "*";
  form.form.GeneraLibrettoDaPoliLineeDXF();
  EXPECT_EQ(form.banco.dialoghi.detti.at(1).titolo + "/" + form.banco.dialoghi.detti.at(1).testo,
            "Seleziona Editor/Nessuna File selezionato!");
}

// --- the form

// An extract of one parcel, a square of 100 metres.
void MettiEstratto(Banco& banco) {
  banco.sessione.EstrattoAssociato = "E.EMP";
  banco.disco.Metti("C:\\PREGEO\\ESTRATTI\\E.EMP",
                    Testo({"0|12032018|1|G224|00042|35|PD|PUB|A|1|", "8|1%|10.000|10.000|", "8|2%|10.000|110.000|",
                           "8|3%|110.000|110.000|", "8|4%|110.000|10.000|", "7|5|1%|2%|3%|4%|1%|NC|35|35|10000|",
                           "6|PARTICELLA|35|  |SEMINATIVO  |10000|    | | |"}));
}

TEST(Tipol10, IlTestoTornaPerLaStessaTipologiaEResto) {
  Form form("07");
  MettiEstratto(form.banco);
  const std::string temp = form.banco.sessione.CartellaProgramma + "\\TEMP\\";
  form.banco.disco.Metti(temp + "VECCHIO.CEN", "x");
  form.form.Text1 = "nota";
  form.form.ButtonPlus1(0);
  EXPECT_TRUE(form.form.Chiusa);
  Tipol10 altra(form.banco.ambiente, form.disegno);
  altra.AlCaricamento();
  EXPECT_EQ(altra.Titolo + altra.Text1, "Tipologia 07nota");
  EXPECT_EQ(form.banco.sessione.EsitoForm, EsitoAnnullato);
  EXPECT_EQ(form.banco.disco.Contenuto(temp + "VECCHIO.CEN"), "(manca)");
  EXPECT_EQ(altra.Grafica1.Archivio().Linee().size(), 4U);
  form.banco.sessione.TipologiaCorrente = "08";
  Tipol10 diversa(form.banco.ambiente, form.disegno);
  diversa.AlCaricamento();
  EXPECT_EQ(diversa.Text1, "");
}

// The building drawn with the tools on the extract's own points becomes rows, with its area.
TEST(Tipol10, ContornoDisegnatoSulEstratto) {
  Form form("07");
  MettiEstratto(form.banco);
  std::erase(form.banco.disco.cartelle, Maiuscolo(form.banco.sessione.CartellaProgramma + "\\TEMP")); // as at first
  form.banco.sessione.ParticelleScelte = "35";
  form.form.AlCaricamento();
  const VistaGrafica vista = form.disegno.vista;
  const auto prendi = [&](const std::vector<std::pair<double, double>>& posti) {
    for (const auto& [est, nord] : posti)
      form.form.Grafica1.MouseDown({est - vista.Xc, nord - vista.Yc}, TastoMouse::Sinistro);
  };
  form.form.ButtonPlus2(5);
  prendi({{10, 10}, {110, 110}}); // their middle
  form.form.ButtonPlus2(3);
  form.form.ButtonPlus2(1);
  prendi({{10, 10}, {110, 10}, {61, 61}, {10, 10}});
  EXPECT_EQ(form.form.Grafica1.Archivio().Linee().size(), 7U); // each pick is seen at once
  form.form.ButtonPlus2(4);
  EXPECT_EQ(prova::Copia(form.form.List1),
            (Righe{"8|3*|60.000|60.000|", "7|4|1%|2%|NC|35+|35|2500|", "7|0|3*|1%|RC|", "6|Contorno fabbricato|",
                   "7|2|1%|2%|NC|", "7|2|2%|3*|RC|", "7|2|3*|1%|RC|", "7|5|1%|2%|3%|4%|1%|NC|35|35|10000|"}));
  EXPECT_EQ(form.form.Grafica1.Archivio().Linee().size(), 4U + 3U + 3U + 4U);
}

TEST(Tipol10, INomiDeiPuntiNuovi) {
  Form form;
  MettiEstratto(form.banco);
  form.form.Text2 = "10";
  form.form.Text3 = "5";
  form.form.ButtonPlus2(0);
  EXPECT_EQ(form.form.Grafica1.NomeNuovoPunto + " " + form.form.Text2, "15* 15*");
  form.form.Grafica1.KR_AggiungiPuntoGraf({.Nome = "a", .Testo = {}, .Font = {}});
  form.form.Grafica1.MouseDown({0, 0}, TastoMouse::Sinistro);
  form.form.DopoIlClick();
  EXPECT_EQ(form.form.Grafica1.NomeNuovoPunto + " " + form.form.Text2, "20* 20*");
  form.form.ButtonPlus2(3);
  EXPECT_EQ(form.form.Grafica1.Strumento, "");
}

} // namespace
} // namespace lirmeto
