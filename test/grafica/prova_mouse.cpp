#include "con_grafica.h"

#include <base/testo.h>
#include <grafica/comandi_grafica.h>

#include <algorithm>
#include <random>
#include <span>
#include <tuple>

namespace lirmeto::prova {
namespace {

// What the index answers is what a walk over all points says.
std::size_t PiuVicinoCamminando(std::span<const PuntoGrafica> punti, const PuntoPiano& da) {
  double minima = 100'000;
  std::size_t indice = 0;
  for (std::size_t i = 0; i < punti.size(); ++i)
    if (const double distanza = DistanzaPiana(punti[i].Posto(), da); distanza < minima) {
      minima = distanza;
      indice = i;
    }
  return indice;
}

std::string CoincidentiCamminando(std::span<const PuntoGrafica> punti) {
  std::string testo;
  for (std::size_t i = 0; i < punti.size(); ++i)
    for (std::size_t j = i + 1; j < punti.size(); ++j)
      if (DistanzaPiana(punti[i].Posto(), punti[j].Posto()) < 0.01) testo += punti[i].Nome + " " + punti[j].Nome + " ";
  return testo;
}

// Points scattered so that many share a place, a coordinate or a distance.
struct Sparsi {
  const char* nome;
  double lato;  // metres
  double passo; // they stand on multiples of it
};

class Vicinanza : public ConGrafica, public testing::WithParamInterface<Sparsi> {};

TEST_P(Vicinanza, ComeCamminandoAncheMentreCrescono) {
  std::mt19937 caso(4821);
  std::uniform_real_distribution<double> da(-GetParam().lato, GetParam().lato);
  const auto coordinata = [&] { return std::round(da(caso) / GetParam().passo) * GetParam().passo; };
  StrumentiMouse mouse(disegno);
  for (int giro = 0; giro < 600; ++giro) {
    if (giro == 400) grafica.KR_Clear();
    grafica.KR_AggiungiPuntoGraf(Punto(std::to_string(giro) + "%", coordinata(), coordinata()));
    for (int k = 0; k < 4; ++k) {
      const double x = k % 2 == 0 ? coordinata() : da(caso) * 3;
      const double y = k % 2 == 0 ? coordinata() : da(caso) * 3;
      ASSERT_EQ(mouse.PiuVicino({x, y}), PiuVicinoCamminando(disegno.archivio.Punti(), {x, y}));
    }
  }
  grafica.KR_PuntiCoincidenti();
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), CoincidentiCamminando(disegno.archivio.Punti()));
}

INSTANTIATE_TEST_SUITE_P(Mappe, Vicinanza,
                         testing::Values(Sparsi{"griglia", 10, 1}, Sparsi{"fogli", 1000, 0.001},
                                         Sparsi{"sovrapposti", 0.03, 0.004}, Sparsi{"lontani", 90'000, 7000}),
                         [](const auto& caso) { return caso.param.nome; });

struct Mouse : ConGrafica {
  const StrumentiMouse& mouse = grafica.Mouse();
};

TEST_F(Mouse, ISovrappostiSiLeggonoTutti) {
  grafica.KR_AggiungiPuntoGraf(Punto("1%", 10, 20));
  grafica.KR_AggiungiPuntoGraf(Punto("9%", 11, 20));
  grafica.KR_AggiungiPuntoGraf(Punto("PF01", 10.004, 20.003));
  grafica.KR_AggiungiPuntoGraf(Punto("2%", 10.02, 20));
  grafica.Vista().Xc = 10;
  grafica.Vista().Yc = 20;
  grafica.MouseMove({0.001, 0}, TastoMouse::Nessuno);
  EXPECT_EQ(mouse.Etichetta().testo, "1% PF01");
  EXPECT_TRUE(mouse.Etichetta().visibile && mouse.Etichetta().posto == (PuntoPiano{10, 20}));
  grafica.MouseMove({-200'000, 0}, TastoMouse::Nessuno); // all too far: the first one
  EXPECT_EQ(mouse.Etichetta().testo, "1% PF01");
  grafica.KR_Clear();
  EXPECT_FALSE(disegno.archivio.PrimoDiNome("1%"));
  grafica.MouseMove({5, 5}, TastoMouse::Nessuno);
  EXPECT_EQ(mouse.Etichetta().testo, "");
}

TEST_F(Mouse, IlCentralePortaConSeIlPuntoPreso) {
  grafica.Vista().Xc = 100;
  grafica.Vista().Yc = 200;
  grafica.MouseDown({7, -3}, TastoMouse::Centrale);
  for (const double x : {12.0, 9.0}) {
    grafica.MouseMove({x, 4}, TastoMouse::Centrale);
    EXPECT_TRUE(mouse.Sposta());
    EXPECT_EQ(grafica.Vista().Xc + x, 107); // the grabbed place under the mouse
    EXPECT_EQ(grafica.Vista().Yc + 4, 197);
  }
  EXPECT_EQ(superficie.disegni, 2);
  grafica.MouseMove({0, 0}, TastoMouse::Nessuno);
  EXPECT_FALSE(mouse.Sposta());
  EXPECT_EQ(grafica.Vista().Xc, 98);
  grafica.MouseDown({1, 1}, TastoMouse::Destro);
  EXPECT_EQ(superficie.menu, 1);
}

struct Strumenti : ConGrafica {
  Strumenti() {
    grafica.KR_AggiungiPuntoGraf(Punto("1%", 10.5, 20));
    grafica.KR_AggiungiPuntoGraf(Punto("2%", 30, -0.25));
    PreparaCartelle();
  }
  void PreparaCartelle() {
    banco.sessione.CartellaProgramma = "C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO";
    for (const char* cartella : {"", "\\TEMP"})
      banco.disco.cartelle.push_back(banco.sessione.CartellaProgramma + cartella);
  }
  void Clicca(double x, double y) { grafica.MouseDown({x, y}, TastoMouse::Sinistro); }
  [[nodiscard]] std::string Contorno() const {
    return banco.disco.Contenuto(banco.sessione.CartellaProgramma + "\\TEMP\\CONTORNO.TXT");
  }
};

TEST_F(Strumenti, ContornoACatena) {
  grafica.Strumento = "ContornoRosso";
  Clicca(10, 20);
  EXPECT_TRUE(disegno.archivio.Linee().empty());
  Clicca(30, 0);
  grafica.Strumento = "CONTORNONERO";
  Clicca(31, 0); // the kept one again: a line of no length
  EXPECT_EQ(disegno.archivio.Linee(),
            (std::vector<LineaGrafica>{{10.5, 20, 0, 30, -0.25, 0, 1, 12, 0}, {30, -0.25, 0, 30, -0.25, 0, 1, 0, 0}}));
  EXPECT_EQ(Contorno(), "al punto  X=10.500  Y=20.000  Z=   0\r\n"
                        "al punto  X=30.000  Y=-.250  Z=   0\r\n"
                        "al punto  X=30.000  Y=-.250  Z=   0\r\n");
}

TEST_F(Strumenti, UnFileCheNonSiScriveSiDice) {
  banco.disco.rotti["C:\\USERS\\PROVA\\DOCUMENTS\\LIRMETO\\TEMP\\CONTORNO.TXT"] = 75;
  grafica.Strumento = "CONTORNONERO";
  Clicca(10, 20);
  EXPECT_NE(banco.dialoghi.UltimoTesto().find("sola lettura"), std::string::npos);
}

TEST_F(Strumenti, NuovoPuntoConsumaIlNome) {
  grafica.Strumento = "NuovoPunto";
  grafica.NomeNuovoPunto = "15*";
  Clicca(29, 1);
  const PuntoGrafica& punto = disegno.archivio.Punti().back();
  EXPECT_TRUE(punto.Nome == "15*" && punto.X == 30 && punto.Y == -0.25 && punto.Testo == "SF");
  EXPECT_TRUE(punto.Dimensione == 10 && punto.Font == "Courier New");
  EXPECT_TRUE(grafica.NomeNuovoPunto.empty());
}

TEST_F(Strumenti, PuntoMedioEBilatera) {
  for (const char* strumento : {"puntomedio", "PUNTOBILATERA"}) {
    const std::size_t prima = disegno.archivio.Punti().size();
    grafica.Strumento = strumento;
    grafica.NomeNuovoPunto = "M*";
    Clicca(10, 20);
    EXPECT_EQ(disegno.archivio.Punti().size(), prima);
    Clicca(31, 0);
    ASSERT_EQ(disegno.archivio.Punti().size(), prima + 1);
    EXPECT_EQ(disegno.archivio.Punti().back().Nome, "M*");
    EXPECT_TRUE(disegno.archivio.Punti().back().X == 20.25 && disegno.archivio.Punti().back().Y == 9.875);
    EXPECT_TRUE(grafica.NomeNuovoPunto.empty());
  }
}

TEST_F(Strumenti, SenzaStrumentoSiRidisegnaSoltanto) {
  grafica.Strumento = "altro";
  Clicca(10, 20);
  EXPECT_TRUE(superficie.disegni == 1 && grafica.Vista().Xc == 0 && disegno.archivio.Punti().size() == 2);
}

// The place under the pointer stays under it, near and far; without a hook the wheel does nothing.
TEST_F(Strumenti, LaRotellaIngrandisceDoveStaIlPuntatore) {
  grafica.Vista().Zoom = 200;
  grafica.Rotola(true, {30, -40});
  EXPECT_EQ(grafica.Vista().Zoom, 200);
  grafica.PuntatoreEntra(14);
  for (const bool avanti : {true, false, false}) {
    const VistaGrafica prima = grafica.Vista();
    const double quota = (avanti ? 0.9 : 1.1);
    grafica.Rotola(avanti, {30, -40});
    EXPECT_DOUBLE_EQ(grafica.Vista().Zoom, prima.Zoom * quota);
    EXPECT_NEAR(grafica.Vista().Xc + 30 * quota, prima.Xc + 30, 1e-9);
    EXPECT_NEAR(grafica.Vista().Yc - 40 * quota, prima.Yc - 40, 1e-9);
  }
}

// A square of 30 by 40 metres walked round from its south-west corner, each pick a metre off.
TEST_F(Strumenti, RighelloDistanzaDirezioneEArea) {
  grafica.KR_Clear();
  for (const auto& [nome, est, nord] :
       {std::tuple("A%", 0, 0), std::tuple("B%", 0, 40), std::tuple("C%", 30, 40), std::tuple("D%", 30, 0)})
    grafica.KR_AggiungiPuntoGraf(Punto(nome, est, nord));
  grafica.Vista().MettiCentro({});
  grafica.Strumento = "NUOVOPUNTO"; // waits behind the ruler
  grafica.AccendiMetro(true);
  grafica.TogliVertice(); // there is none yet
  struct Passo {
    double est, nord;
    const char* letto;
  };
  for (const auto& [est, nord, letto] :
       {Passo{1, -1, "Righello: clic su un punto, poi sul successivo/Canc toglie l'ultimo, Esc lascia/"},
        Passo{-1, 41, "Distanza 40.000 m/Direzione 0.0000 gon/"},
        Passo{31, 41, "Distanza 30.000 m/Direzione 100.0000 gon/Totale 70.000 m/Area 600.0 m\xB2/"},
        Passo{31, -1, "Distanza 40.000 m/Direzione 200.0000 gon/Totale 110.000 m/Area 1200.0 m\xB2/"},
        Passo{1, 1, "Distanza 30.000 m/Direzione 300.0000 gon/Totale 140.000 m/Area 1200.0 m\xB2/"}}) {
    grafica.MouseMove({est, nord}, TastoMouse::Nessuno);
    grafica.MouseDown({est, nord}, TastoMouse::Sinistro);
    std::string righe;
    for (const std::string& riga : RigheMisura(grafica.Metro())) righe += riga + "/";
    EXPECT_EQ(righe, letto);
  }
  EXPECT_EQ(disegno.archivio.Punti().size(), 4U);
  grafica.TogliVertice();
  EXPECT_EQ(grafica.Metro().Vertici().size(), 4U);
  grafica.AccendiMetro(false);
  EXPECT_TRUE(grafica.Metro().Vertici().empty());
  grafica.MouseDown({0, 0}, TastoMouse::Sinistro);
  EXPECT_EQ(disegno.archivio.Punti().size(), 5U);
}

TEST_F(Strumenti, UnaRigaAccendeISuoiPunti) {
  banco.disco.Metti("C:\\A.EMP", Testo({"0|12032026|G224|0010|0000|12|6|", "8|1%|0|0|", "8|2%|0|100|", "8|3%|900|100|",
                                        "7|3|1%|2%|3%|1%|NC|12|12|500|", "9|"}));
  grafica.CaricaDisegno("C:\\A.EMP");
  grafica.KR_ZoomPiu();
  const PuntoPiano centro = grafica.Vista().Centro();
  grafica.AccendiRiga(1);
  EXPECT_EQ(grafica.PuntiEvidenza, std::vector<PuntoPiano>{PuntoPiano{}});
  EXPECT_EQ(grafica.Vista().Centro(), PuntoPiano{}) << "out of sight it comes to the middle";
  grafica.Vista().MettiCentro(centro);
  grafica.AccendiRiga(4);
  EXPECT_EQ(grafica.PuntiEvidenza.size(), 4U);
  for (const std::optional<std::size_t> nessuno : {std::optional<std::size_t>(0), std::optional<std::size_t>(99), {}}) {
    grafica.AccendiRiga(nessuno);
    EXPECT_TRUE(grafica.PuntiEvidenza.empty());
  }
}

TEST(Gancio, UnoAllaVolta) {
  GancioGrafica gancio;
  std::string passi;
  gancio.Installa([&](bool avanti) { passi += avanti ? "+" : "-"; });
  gancio.Installa([&](bool) { passi += "altro"; });
  for (const bool avanti : {true, false}) gancio.Rotella(avanti);
  gancio.Togli();
  gancio.Rotella(true);
  EXPECT_EQ(passi, "+-");
}

// Which entry asks the surface, writes a file, or speaks.
TEST_F(Strumenti, VociDellaBarraEDelMenu) {
  grafica.Toolbar(1);
  grafica.mnuZoom1(2);
  EXPECT_EQ(superficie.copie, 2);
  EXPECT_EQ(banco.dialoghi.detti.back().testo + "/" + banco.dialoghi.detti.back().titolo,
            "Immagine Copiata negli Appunti di Windows./Copia Raster");
  grafica.mnuZoom1(3);
  EXPECT_EQ(superficie.stampe, 1);
  banco.dialoghi.risposte = {Risposta::No, Risposta::Si};
  grafica.Toolbar(4);
  EXPECT_TRUE(banco.processi.aperti.empty());
  grafica.mnuZoom1(5);
  const std::string file = banco.sessione.CartellaProgramma + "\\GraficaPF.DXF";
  EXPECT_EQ(banco.processi.aperti, std::vector<std::string>{file});
  EXPECT_EQ(banco.dialoghi.detti[banco.dialoghi.detti.size() - 2].testo, "Salvato il file \r\n" + file);
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Apertura file DXF ");
  grafica.Toolbar(5);
  EXPECT_EQ(banco.processi.avviati, std::vector<std::string>{banco.sessione.CartellaProgramma + "\\print.exe"});
  grafica.KR_Clear();
  grafica.Toolbar(4); // nothing to save
  EXPECT_EQ(banco.dialoghi.detti.back().titolo, "Rilevato errore");
  EXPECT_EQ(VociToolbar().size() + VociMnuZoom1().size(), 19U);
}

} // namespace
} // namespace lirmeto::prova
