#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <grafica/esportazioni.h>
#include <grafica/grafica.h>
#include <grafica/pittura.h>
#include <grafica/svg.h>

#include <gtest/gtest.h>

#include <limits>
#include <utility>
#include <vector>

namespace lirmeto::prova {
namespace {

struct Esportazioni : testing::Test {
  Esportazioni() {
    disegno.vista.Xc = 10;
    disegno.vista.Yc = 20;
    disegno.vista.Zoom = 300;
  }

  void Punto(const std::string& nome, double x, double y, std::int16_t colore = 0, const std::string& testo = {}) {
    grafica.KR_AggiungiPuntoGraf({nome, x, y, 0.5, colore, testo, 0, "Courier New", 8});
  }
  void Linea(std::int16_t colore, std::int16_t stile) {
    grafica.KR_AggiungiLineaGraf({1, 2, 0, 3.5, -4, 7, 2, colore, stile});
  }

  // A file of the disk with "~" for its line ends.
  [[nodiscard]] std::string File(const std::string& percorso) const {
    return Sostituisci(banco.disco.Contenuto(percorso), FineRiga, "~");
  }

  Banco banco;
  DisegnoCondiviso disegno;
  Grafica grafica{banco.ambiente, disegno};
  std::string programma = banco.sessione.CartellaProgramma;
};

TEST_F(Esportazioni, IlDxfRigaPerRiga) {
  EXPECT_THROW((void)grafica.KR_SalvaDXF(), Errore) << "an empty store has no DXF";
  Punto("7%", 100.5, -0.25, 12);
  std::string attesa = " 0~SECTION~ 2~ENTITIES~";
  for (const char* strato : {"LINEE_SCHEMA", "LINEE_TRIANGOLO", "LINEE_ESTRATTO", "LINEE_RC", "LINEE_RT", "LINEE_RP",
                             "LINEE_NC", "LINEE_NP", "LINEE_NT", "PUNTI_Q", "PUNTI_D", "PUNTI_HPS"})
    attesa += std::string(" 0~POINT~ 8~") + strato + "~ 10~100.5~ 20~-0.25~";
  const std::string fine = "  0~ENDSEC~  0~EOF~";
  EXPECT_EQ(File(grafica.KR_SalvaDXF()), attesa + fine);
  Punto(" 12\r\n", 3, 1e-7, 9);
  Linea(9, 1);
  const std::string linea = "~ 10~1~ 20~2~ 11~3.5~ 21~-4~";
  const std::string etichetta =
      " 0~POINT~ 8~PUNTI_S~ 62~9~ 10~3~ 20~1E-07~ 0~TEXT~ 8~PUNTI_N~ 10~3~ 20~1E-07~ 62~9~ 40~1~ 1~12~";
  EXPECT_EQ(File(grafica.KR_SalvaDXF()), attesa + etichetta + " 0~LINE~ 8~LINEE_BT~ 62~9" + linea + fine);
  grafica.Vista().Check2 = true;
  EXPECT_TRUE(Contiene(File(programma + "\\GraficaPF.DXF"), "~12~"));
  EXPECT_TRUE(Contiene(File(grafica.KR_SalvaDXF()), " 40~1~ 1~7%~")) << "names go out while they are off the screen";
}

TEST(Strati, ColoreEStileUnoDopoLAltro) {
  StratoLinee strato("LINEE_");
  std::string nomi;
  for (const auto& [colore, stile] :
       std::vector<std::pair<std::int16_t, std::int16_t>>{{2, 0}, {0, 0}, {0, 7}, {9, 1}, {2, 1}, {7, 2}, {12, 2}})
    nomi += strato.Di({.Spessore = 1, .Colore = colore, .Stile = stile}) + " ";
  EXPECT_EQ(nomi, "C LINEE_NC LINEE_N LINEE_BT LINEE_BT LINEE_BP LINEE_RP ");
}

TEST_F(Esportazioni, LaPaginaConISuoiNomi) {
  Punto("1%", 10, 20);
  Punto(" 35", 11, 19.5);
  Punto("VIAT", 10, 20);
  Punto("", 13, 20);
  Punto("o'</script>\\", 10, 20);
  Linea(12, 1);
  const std::string pagina = File(grafica.GeneraHTML5_CANVAS());
  const std::string segno =
      ",2, 0, 2*Math.PI, false);~context.fillStyle = '#333';~context.fill();~context.beginPath();~";
  EXPECT_TRUE(
      Contiene(pagina, "    context.strokeStyle = \"red\";~    context.strokeStyle = \"green\";~context.beginPath();~"
                       "context.arc(500.000,500.000" +
                           segno + "context.arc(509.000,500.000" + segno + "context.arc(500.000,500.000,2"));
  EXPECT_TRUE(Contiene(pagina,
                       "      context.moveTo(473.000, 554.000);~      context.lineTo(480.500, 572.000);~"
                       " context.lineWidth  = 2;~    context.strokeStyle = \"red\";~context.setLineDash([5]);~"
                       "     context.stroke();~     context.beginPath();~context.font = '14px Courier New';~"
                       "context.fillStyle = 'red';~context.fillText('1%',500.000,500.000);~"
                       "context.fillText(' 35',503.000,501.500);~context.fillText('VIAT',500.000,500.000);~"
                       "context.fillText('o\\'\\x3c/script>\\\\',500.000,500.000);~   </script>~ </body>~</html>~"));
  EXPECT_EQ(banco.processi.aperti, std::vector<std::string>{programma + "\\Stampe.HTML"});
  grafica.Vista().Zoom = 1500; // the whole-number scale is 0: all falls together
  EXPECT_TRUE(Contiene(File(grafica.GeneraHTML5_CANVAS()), "context.lineTo(500.000, 500.000);"));
}

TEST_F(Esportazioni, GliOrdiniDiStampa) {
  Punto("1,5\r%", 10, 20.25, 13);
  Linea(0, 2);
  EXPECT_EQ(File(grafica.GeneraStampa()), "L,-9.000,-18.000,-6.500,-24.000,0,2,.01~C,0.000,0.250,13,.01~"
                                          "T,1.5 %,0.000,0.250,Courier New,8,13~");
}

TEST_F(Esportazioni, IlFileDiScambio) {
  Punto("1%", 0.5, -20, 3, "VIA \"A\", 1");
  Linea(0, 2);
  Linea(7, 0);
  const std::string attesa = "\"P\",\"1%\",0.5,-20,0.5,\"PUNTI\",-1.5,\"VIA \"\"A\"\", 1\"~"
                             "\"L\",1,2,0,3.5,-4,7,0,3,\"NP\"~\"L\",1,2,0,3.5,-4,7,7,1,\"NC\"~";
  EXPECT_EQ(File(grafica.KR_CopiaInFile()), attesa);
  EXPECT_FALSE(banco.sessione.FineScambio);
  EXPECT_EQ(File(programma + "\\temp\\CopiaInFile.TXT"), attesa);
  banco.disco.Metti(programma + "\\Forvale.exe", "");
  banco.disco.Metti(programma + "\\temp\\IncollaDaFileSiNo.TXT", "");
  banco.disco.CreaCartella(banco.sessione.CartellaDocumenti + "\\Forvale");
  banco.disco.CreaCartella(banco.sessione.CartellaDocumenti + "\\Forvale\\temp");
  EXPECT_EQ(File(grafica.KR_CopiaInFile()), attesa);
  EXPECT_EQ(File(banco.sessione.CartellaDocumenti + "\\Forvale\\temp\\CopiaInFile.TXT"), attesa);
  EXPECT_TRUE(banco.sessione.FineScambio);
}

TEST(Pittura, ICorpiDaUnoATrecentoPunti) {
  const std::vector<std::pair<double, double>> casi = {{0.2, 4}, {1, 4}, {1.5, 6}, {300, 1200}, {900, 1200}};
  for (const auto& [punti, pixel] : casi) EXPECT_DOUBLE_EQ(pittura::PixelTesto(punti, 3), pixel) << punti;
}

TEST(Svg, CioCheSiVedeInPixel) {
  Operazioni lista;
  lista.scala = {-20, 10, 20, -10};
  lista.linee = {{-10, 5, 10, 5, 2, 4, 0}, {-1000, 0, 0, 0, 1, 0, stile::Tratteggiato}, {50, 50, 60, 60, 1, 0, 0}};
  lista.cerchi = {{0, 0, 1, 12}, {500, 0, 1, 12}};
  lista.testi = {{-5, 0, "A<\"&\x01\xE0", "", 12, 450, 0}};
  const std::string svg = DisegnoSvg(lista, 400, 200);
  EXPECT_TRUE(svg.starts_with("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg "));
  EXPECT_EQ(
      svg.substr(svg.find("<path")),
      "<path d=\"M100.0 50.0L300.0 50.0\" stroke=\"rgb(128,0,0)\" stroke-width=\"2.0\" stroke-linecap=\"square\"/>\n"
      "<path d=\"M-64.0 100.0L200.0 100.0\" stroke=\"rgb(0,0,0)\" stroke-width=\"1.0\" stroke-dasharray=\"6.0 4.0\" "
      "stroke-dashoffset=\"9736.0\"/>\n"
      "<circle cx=\"200.0\" cy=\"100.0\" r=\"10.0\" stroke=\"rgb(255,0,0)\"/>\n"
      "<text xml:space=\"preserve\" transform=\"translate(150.0,100.0) rotate(-45.0)\" y=\"13.28\" "
      "font-family=\"Courier New, monospace\" font-size=\"16.0\" fill=\"rgb(0,0,0)\">A&lt;&quot;&amp; \xC3\xA0</text>\n"
      "</g>\n</svg>\n");
}

TEST_F(Esportazioni, NumeriSenzaFineNonEsconoElFileResta) {
  Punto("1%", std::numeric_limits<double>::max(), 0);
  Punto(" 2", -std::numeric_limits<double>::max(), std::numeric_limits<double>::infinity());
  banco.disco.Metti(programma + "\\GraficaPF.DXF", "prima");
  EXPECT_THROW((void)grafica.KR_SalvaDXF(), Errore);
  EXPECT_THROW((void)grafica.GeneraHTML5_CANVAS(), Errore);
  EXPECT_THROW((void)grafica.GeneraStampa(), Errore);
  EXPECT_THROW((void)grafica.KR_CopiaInFile(), Errore);
  EXPECT_EQ(File(programma + "\\GraficaPF.DXF"), "prima");
}

} // namespace
} // namespace lirmeto::prova
