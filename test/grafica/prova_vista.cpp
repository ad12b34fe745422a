#include "con_grafica.h"

#include <base/numeri.h>

#include <gtest/gtest.h>

#include <cmath>

namespace lirmeto::prova {
namespace {

using Vista = ConGrafica;

TEST_F(Vista, VuotaSeiMetriAttornoAllOrigine) {
  grafica.KR_AggiungiPuntoGraf(Punto("1%", 1000, 2000));
  grafica.KR_Clear();
  const VistaGrafica& v = grafica.Vista();
  EXPECT_TRUE(v.Xmin == -3 && v.Xmax == 3 && v.Ymin == -3 && v.Ymax == 3 && v.Zoom == 6 && v.Xc == 0 && v.Yc == 0);
  EXPECT_EQ(superficie.disegni, 1);
}

TEST_F(Vista, SoloIPuntiFannoLEstensioneEIToponimiSeSiVedono) {
  for (auto& punto : {Punto("1%", 100, 200), Punto("2%", 140, 210), Punto("VIAT", 500, 900), Punto(" 12", 90, 200)})
    grafica.KR_AggiungiPuntoGraf(punto);
  grafica.KR_AggiungiLineaGraf({-9000, 0, 0, 9000, 0, 0, 1, 0, 0});
  grafica.KR_ZoomTutto();
  EXPECT_TRUE(grafica.Vista().dX == 416 && grafica.Vista().dY == 706 && grafica.Vista().Zoom == 706);
  grafica.Vista().Check3 = true; // the value of " 12" is 12: it takes part
  grafica.KR_ZoomTutto();
  EXPECT_TRUE(grafica.Vista().dX == 56 && grafica.Vista().dY == 16 && grafica.Vista().Zoom == 56);
  EXPECT_TRUE(grafica.Vista().Xc == 115 && grafica.Vista().Yc == 205);
}

TEST_F(Vista, PassiDiZoomESpostamento) {
  grafica.Vista().Zoom = 100;
  for (int i = 0; i < 10; ++i) grafica.Toolbar(10);
  EXPECT_NEAR(grafica.Vista().Zoom, 34.867844, 1e-6);
  grafica.Toolbar(11);
  EXPECT_NEAR(grafica.Vista().Zoom, 38.354628, 1e-6);
  grafica.Vista() = {};
  grafica.Vista().Zoom = 100;
  grafica.Toolbar(6);
  EXPECT_EQ(grafica.Vista().Xc, 10);
  grafica.Toolbar(7);
  EXPECT_EQ(grafica.Vista().Yc, -10);
  grafica.Toolbar(9);
  grafica.Toolbar(8);
  EXPECT_TRUE(grafica.Vista().Xc == 0 && grafica.Vista().Yc == 0);
  EXPECT_EQ(superficie.disegni, 15);
}

TEST_F(Vista, UnAltezzaCheNonEAltezzaDiventa640) {
  for (const double zoom : {0.0, -1.0, std::nan(""), HUGE_VAL}) {
    grafica.Vista().Zoom = zoom;
    const OpScala scala = grafica.Dipingi(2).scala;
    EXPECT_TRUE(scala.sinistra == -640 && scala.alto == 320 && scala.destra == 640 && scala.basso == -320) << zoom;
  }
}

TEST_F(Vista, CoordinateSmisurateNonRompono) {
  grafica.KR_AggiungiPuntoGraf(Punto("1%", 1e308, -1e308));
  grafica.KR_AggiungiPuntoGraf(Punto("2%", -1.7e308, 1.7e308));
  grafica.KR_ZoomTutto();
  EXPECT_TRUE(std::isfinite(grafica.Vista().Xc) && std::isfinite(grafica.Vista().Zoom));
  EXPECT_EQ(grafica.Dipingi(1).cerchi.size(), 2U);
  EXPECT_EQ(StrumentiMouse(disegno).PiuVicino({1e308, -1e308}), 0U);
}

// Which operations come out, in order, for each of the flags: "c" and "t" with their point.
std::string Elenco(const Operazioni& lista) {
  std::string testo;
  for (const OpCerchio& cerchio : lista.cerchi) testo += "c" + TestoPieno(cerchio.x) + " ";
  for (const OpTesto& scritta : lista.testi)
    testo += "t" + TestoPieno(scritta.x) + "=" + std::string(scritta.testo) + ";";
  return testo;
}

TEST_F(Vista, OrdineDellePitture) {
  grafica.KR_AggiungiPuntoGraf(Punto(" A", 1, 0));
  grafica.KR_AggiungiPuntoGraf(Punto("B%", 2, 0));
  grafica.KR_AggiungiPuntoGraf(Punto("7T", 3, 0, 2, "VIA"));
  grafica.KR_AggiungiPuntoGraf(Punto("", 4, 0));
  grafica.KR_AggiungiPuntoGraf(Punto(" ZT", 5, 0, 0, "FOSSO"));
  grafica.KR_ZoomTutto();
  grafica.KR_AggiungiPuntoGraf(Punto("fuori%", 100, 0)); // outside the extent: a name, no mark
  grafica.Vista().Xc = 0;
  EXPECT_EQ(Elenco(grafica.Dipingi(1)), "c2 c4 t3=VIA;t5=FOSSO;t2=B%;t4=;t100=fuori%;t1= A;t5= ZT;");
  grafica.Vista().Check2 = true;
  EXPECT_EQ(Elenco(grafica.Dipingi(1)), "c2 c4 t3=VIA;t5=FOSSO;t1= A;t5= ZT;");
  grafica.Vista().Check3 = true;
  EXPECT_EQ(Elenco(grafica.Dipingi(1)), "c2 c4 t1= A;t5= ZT;");
}

TEST_F(Vista, LineeESegniDalCentroDellaVista) {
  grafica.KR_AggiungiPuntoGraf(Punto("1%", 10, 20, 9));
  grafica.KR_AggiungiPuntoGraf(Punto("2%", 30, 40));
  grafica.KR_AggiungiPuntoGraf(Punto("1%", 99, 99));
  grafica.KR_AggiungiLineaGraf2Punti("1%", "2%", {12, 2, 1});
  grafica.KR_AggiungiLineaGraf2Punti("1%", "manca", {12, 2, 1});
  grafica.KR_ZoomTutto();
  const Operazioni lista = grafica.Dipingi(1.5);
  const VistaGrafica& v = grafica.Vista();
  EXPECT_EQ(lista.linee, (std::vector<OpLinea>{{10 - v.Xc, 20 - v.Yc, 30 - v.Xc, 40 - v.Yc, 2, 12, 1}}));
  EXPECT_EQ(lista.cerchi[0], (OpCerchio{10 - v.Xc, 20 - v.Yc, v.Zoom / 400, 9}));
}

TEST_F(Vista, AngoliInDecimiInteri) {
  const std::pair<double, int> casi[] = {{90, 900}, {12.39, 123}, {-12.39, -123}, {450, 900}, {NAN, 0}};
  for (const auto& [gradi, decimi] : casi) {
    grafica.KR_Clear();
    PuntoGrafica punto = Punto("1T", 0, 0);
    punto.Angolo = gradi;
    grafica.KR_AggiungiPuntoGraf(punto);
    EXPECT_EQ(grafica.Dipingi(1).testi.at(0).decimi, decimi) << gradi;
  }
}

TEST(Flag, SiLeggonoAllInizioESiTengonoAllaFine) {
  Banco banco;
  banco.impostazioni.valori = {{"CONFIGURA_GRAFICA1/NOMISINO", "1"}, {"CONFIGURA_GRAFICA1/PFSINO", "x"}};
  {
    DisegnoDellUtente disegno(banco.ambiente);
    EXPECT_TRUE(disegno.vista.Check2 && !disegno.vista.Check1 && !disegno.vista.Check3 && !disegno.vista.Check4);
    disegno.vista.Check1 = disegno.vista.Check4 = true;
    disegno.vista.Check2 = false;
  }
  EXPECT_EQ(banco.impostazioni.valori, (std::map<std::string, std::string>{{"CONFIGURA_GRAFICA1/NOMISINO", "0"},
                                                                           {"CONFIGURA_GRAFICA1/NOMISOVRAPPOSTI", "0"},
                                                                           {"CONFIGURA_GRAFICA1/PFSINO", "1"},
                                                                           {"CONFIGURA_GRAFICA1/PROPOSTASINO", "1"},
                                                                           {"CONFIGURA_GRAFICA1/TOPONIMISINO", "0"}}));
}

} // namespace
} // namespace lirmeto::prova
