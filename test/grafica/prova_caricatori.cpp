#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <grafica/grafica.h>

#include <gtest/gtest.h>

#include <limits>

namespace lirmeto::prova {
namespace {

struct Caricatori : testing::Test {
  Banco banco;
  DisegnoCondiviso disegno;
  Grafica grafica{banco.ambiente, disegno};

  void Carica(const std::string& nome, const std::string& contenuto) {
    banco.disco.Metti("C:\\" + nome, contenuto);
    grafica.CaricaDisegno("C:\\" + nome);
  }

  // Lines as "x1,y1>x2,y2:colour/width/style", coordinates whole.
  [[nodiscard]] std::string Linee() const {
    std::string testo;
    for (const auto& l : disegno.archivio.Linee()) {
      if (!testo.empty()) testo += ' ';
      testo += TestoPieno(l.X1) + "," + TestoPieno(l.Y1) + ">" + TestoPieno(l.X2) + "," + TestoPieno(l.Y2) + ":";
      testo += TestoIntero(l.Colore) + "/" + TestoIntero(l.Spessore) + "/" + TestoIntero(l.Stile);
    }
    return testo;
  }

  [[nodiscard]] std::string Nomi() const {
    std::string testo;
    for (const auto& p : disegno.archivio.Punti()) testo += "[" + p.Nome + "]";
    return testo;
  }
};

// Points 1 to 4 stand at X 1 to 4, Y 0; 10 bears the name of a parcel.
constexpr std::string_view QuattroPunti = "8|1|0|1|\r\n8|2|0|2|\r\n8|3|0|3|\r\n8|4|0|4|\r\n8|10|9|9|\r\n";

struct CasoAnelli {
  const char* righe;
  const char* linee;
  const char* etichette; // names behind those of the five points
};

class AnelliDisegnati : public Caricatori, public testing::WithParamInterface<CasoAnelli> {};

TEST_P(AnelliDisegnati, LineeEdEtichette) {
  Carica("E.SUR", std::string(QuattroPunti) + GetParam().righe);
  EXPECT_EQ(Linee(), GetParam().linee);
  EXPECT_EQ(Nomi(), std::string("[1][2][3][4][10]") + GetParam().etichette);
}

INSTANTIATE_TEST_SUITE_P(
    Righe7, AnelliDisegnati,
    testing::Values(
        CasoAnelli{"7|4|1|2|3|1|NC|10|10|5|\r\n", "3,0>1,0:0/1/0 2,0>3,0:0/1/0 1,0>2,0:0/1/0", "[ 10]"},
        // the colour lags a vertex behind the style, the first token of the walk does not
        CasoAnelli{"7|4|1|2|NC|3|4|RT|\r\n", "3,0>4,0:12/1/1 2,0>3,0:12/1/0 1,0>2,0:0/1/0", ""},
        CasoAnelli{"7|3|1|2|VP|3|XC|NCX|RQ|VT|\r\n", "2,0>3,0:2/1/2 1,0>2,0:2/1/2", ""},
        // both start again at each ring
        CasoAnelli{"7|2|1|2|RP|\r\n7|2|3|4|A|10|10|0|\r\n", "1,0>2,0:12/1/2 3,0>4,0:0/1/0", ""},
        // a further ring is wide
        CasoAnelli{"7|2|1|2|NC|10+|10+|5|\r\n7|2|3|4|NC|10|10|5|\r\n", "1,0>2,0:0/2/0 3,0>4,0:0/1/0", "[ 10+][ 10]"},
        // continuations, their token among the vertices; the closing fields come behind
        CasoAnelli{"7|4|1|2|RC|10|10|7|\r\n7|0|3|4|NC|\r\n", "3,0>4,0:0/1/0 2,0>3,0:0/1/0 1,0>2,0:12/1/0", "[ 10]"},
        // no vertex row, no surface, no bar at the end, a vertex that is no point, a name that is no number
        CasoAnelli{"7|1|1|PV|\r\n7|2|1|2|NC|10|10||\r\n", "1,0>2,0:0/1/0", ""},
        CasoAnelli{"7|2|1|2|RC", "1,0>2,0:12/1/0", ""},
        CasoAnelli{"7|4|1|77|2|3|NC|10|10|8|", "2,0>3,0:0/1/0", "[ 10]"},
        CasoAnelli{"7|3|1|A|2|RC|", "1,0>2,0:12/1/0", ""},
        // short rows give what they have, a continuation must be "0"; a last ring without vertices is none
        CasoAnelli{"7\r\n7|\r\n7|1|2|\r\n7|00|1|2|RC|\r\n7|1|NC|10|10|5|\r\n", "1,0>2,0:12/1/0", ""}));

TEST_F(Caricatori, LEtichettaStaNellaMediaDiOgniVertice) {
  Carica("A.EMP", "0|\n8|1%|0|0|\n8|2%|0|8|\n8|3%|8|8|\n7|4|1%|2%|3%|1%|NT|12|12|32|\n");
  EXPECT_EQ(Linee(), "8,8>0,0:12/1/1 8,0>8,8:12/1/1 0,0>8,0:12/1/1") << "dashed black comes out red";
  EXPECT_EQ(grafica.Archivio().Punti().back(), (PuntoGrafica{" 12", 4, 2, 0, 12, "", 0, "Courier New", 12}));
}

TEST_F(Caricatori, OgniClasseDiPuntoHaIlSuoAspetto) {
  Carica("A.SUR", "8|1%|1|2|\n8|2*|1|2|\n8|3#|1|2|\n8|4@|1|2|\n8|5L|1|2|\n8|6T|1|2|1.5707963268|VIA|\n8|7|x\n8||\n8\n");
  std::string aspetti;
  for (const PuntoGrafica& p : grafica.Archivio().Punti())
    aspetti +=
        p.Nome + ":" + TestoPieno(p.Dimensione) + "/" + TestoIntero(p.Colore) + (p.X == 2 ? p.Font[0] : '-') + " ";
  EXPECT_EQ(aspetti, "1%:8/0C 2*:10/12C 3#:8/13C 4@:8/9C 5L:8/2C 6T:8/2A 7:8/0- :8/0- :8/0- ");
  EXPECT_NEAR(grafica.Archivio().Punti()[5].Angolo, 90, 1e-6);
  EXPECT_EQ(grafica.Archivio().Punti()[5].Testo, "VIA");
}

TEST_F(Caricatori, ToponimiEFiducialiSiLascianoFuori) {
  const std::string estratto = "0|\n8|1%|0|0|\n8|PF01/1/A|0|0|\n8|2T|0|0|0|VIA|\n \n7|2|1%|1%|NC|\n";
  Carica("A.EMP", estratto);
  EXPECT_EQ(Nomi(), "[1%][PF01/1/A][2T]");
  EXPECT_EQ(grafica.Liste().List2[0].size(), 5U) << "blank rows go";
  grafica.Vista().Check3 = true;
  Carica("A.EMP", estratto);
  EXPECT_EQ(Nomi(), "[1%][PF01/1/A]");
  grafica.Vista().Check4 = true;
  Carica("A.EMP", estratto);
  EXPECT_EQ(Nomi(), "[1%]");
  EXPECT_EQ(grafica.Percorso, "C:\\A.EMP");
}

constexpr std::string_view Proposta = "8|9|0|9|\n6|ESTRATTO DI MAPPA|\n8|1%|0|1|\n8|2%|0|2|\n7|2|1%|2%|VT|\n"
                                      "6|ESTRATTO DI MAPPA AGGIORNATO|\n8|1%|0|7|\n8|3%|0|3|\n7|2|1%|3%|RC|\n";

TEST_F(Caricatori, LaPropostaStaSopraLEstratto) {
  for (const char* nome : {"L.DAT", "L.TXT", "L.SUR"}) {
    grafica.Vista().Check1 = false;
    Carica(nome, std::string(Proposta));
    EXPECT_EQ(Linee(), "1,0>2,0:2/1/1") << nome;
    EXPECT_EQ(grafica.Liste().LibrettoOriginale.size(), 4U) << nome;
    grafica.Vista().Check1 = true;
    grafica.GeneraGrafica();
    EXPECT_EQ(Linee(), "1,0>2,0:9/1/1 1,0>3,0:12/1/0") << "the first point of a name wins";
    EXPECT_EQ(Nomi(), "[1%][2%][1%][3%]");
    EXPECT_EQ(grafica.Liste().LibrettoOriginale.size(), 8U);
  }
  Carica("ELAB.SUR", "8|1%|0|1|\n8|2%|0|2|\n7|2|1%|2%|RP|\n");
  EXPECT_EQ(Linee(), "1,0>2,0:9/1/2") << "without sections the file is one";
  Carica("L.DAT", "8|1%|0|1|\n8|2%|0|2|\n");
  EXPECT_EQ(Nomi(), "") << "a libretto without a proposal draws nothing";
}

TEST_F(Caricatori, LAttoInPdf) {
  Carica("A.PDF",
         "%PDF[TAG1000]|0|A|<nr>9|B|[/TAG1000] [TAG2000]|6|ESTRATTO DI MAPPA|<nr>8|1|0|1|<nr>8|2|0|2|<nr>7|2|1|"
         "2|RC|<nr>6|ESTRATTO DI MAPPA AGGIORNATO|<nr>8|5|0|5|<nr>[/TAG2000][TAG3000]|X|Y[/TAG][TAG4000]|9|ADA|"
         "<nr>9|9|EVA[/TAG][TAG5000]|Z[/TAG]");
  EXPECT_EQ(Linee(), "1,0>2,0:12/1/0");
  EXPECT_EQ(Copia(grafica.Liste().List1), (std::vector<std::string>{"0|A|", "9|B|"}));
  EXPECT_EQ(grafica.Liste().List2[0].size(), 4U);
  EXPECT_EQ(Copia(grafica.Liste().List2[1]),
            (std::vector<std::string>{"6|ESTRATTO DI MAPPA AGGIORNATO|", "8|5|0|5|", ""}));
  EXPECT_EQ(Copia(grafica.Liste().List3), (std::vector<std::string>{"X", "Y", "Z"}));
  EXPECT_EQ(Copia(grafica.Liste().List4), (std::vector<std::string>{"ADA|", "EVA"}));
}

TEST_F(Caricatori, ValoriSeparatiDaVirgole) {
  Carica("A.CSV", "P,A,1.5,2,3,nota,9\r\n\r\n\"B \"\"x\",4,5\n   \nL,0,1,77,2,3,77,12,2,1\nP\nL,x,NaN,0,1e308,-1e999,0,"
                  "99999,-40000\n");
  EXPECT_EQ(Nomi(), "[A][B x][]");
  EXPECT_EQ(grafica.Archivio().Punti()[0], (PuntoGrafica{"A", 1.5, 2, 3, 9, "nota", 0, "", 8}));
  EXPECT_EQ(grafica.Archivio().Punti()[1], (PuntoGrafica{"B x", 4, 5, 0, 0, "", 0, "", 8}));
  ASSERT_EQ(grafica.Archivio().Linee().size(), 2U);
  EXPECT_EQ(grafica.Archivio().Linee()[0], (LineaGrafica{0, 1, 0, 2, 3, 0, 2, 12, 1}));
  EXPECT_EQ(grafica.Archivio().Linee()[1],
            (LineaGrafica{0, 0, 0, 1e308, -std::numeric_limits<double>::max(), 0, 0, 0, 0}));
  EXPECT_TRUE(grafica.Liste().List2[0].size() == 5 && grafica.Liste().List1.size() == 3 &&
              grafica.Liste().List3.size() == 2);
}

struct CasoGuasto {
  const char* nome;
  std::string contenuto;
  int errore; // 0: loads
};

class Guasti : public Caricatori, public testing::WithParamInterface<CasoGuasto> {};

TEST_P(Guasti, DannoUnErroreOUnDisegno) {
  int numero = 0;
  try {
    Carica(GetParam().nome, GetParam().contenuto);
  } catch (const Errore& errore) {
    numero = errore.Numero();
  }
  EXPECT_EQ(numero, GetParam().errore);
}

INSTANTIATE_TEST_SUITE_P(
    Disegni, Guasti,
    testing::Values(CasoGuasto{"A.EMP", "", 0}, CasoGuasto{"A.EMP", "8|1%|0|0|\n", 0},
                    CasoGuasto{"A.EMP", "7|3|1%|2%|1%|NC|5|5|100|\n\n8|9%|1|1|\n", errore::DivisionePerZero},
                    CasoGuasto{"A.EMP", "8|1%|a|b|\n7|0|1%|NC|\n7|0|\n7|9|1%|1%|\n", 0},
                    CasoGuasto{"A.EMP", "8|1%|NaN|1e308|\n8|2%|inf|-1e308|\n7|2|1%|2%|NC|5|5|1|\n", 0},
                    CasoGuasto{"A.EMP", "8|1T|1|1|angolo|\n8|2T|1|1|1e400|\n", 0}, CasoGuasto{"A.CSV", "\n\n \n", 0},
                    CasoGuasto{"A.PDF", "2000]|8|1|1|1|", 0}, CasoGuasto{"A.SUR", std::string("8|\0|7||||", 9), 0}));

// The row that began the ring, as it stands in the file: blank rows and those left out count.
TEST_F(Caricatori, LErroreDiceLaRiga) {
  grafica.Vista().Check4 = true;
  try {
    Carica("A.EMP", "0|\n8|PF01/1/A|0|0|\n\n7|2|1%|2%|NC|5|5|100|\n7|0|3%|NC|\n");
    FAIL();
  } catch (const Errore& errore) {
    EXPECT_EQ(errore.Riga(), "4: 7|2|1%|2%|NC|5|5|100|");
  }
}

// Wherever a file is cut it loads, or says why not.
TEST_F(Caricatori, UnFileTagliatoOvunque) {
  const std::string pdf = "%PDF[TAG2000]|8|1|0|1|<nr>8|2|0|2|<nr>7|2|1|2|NC|7|7|4|<nr>7|0|1|2|NC|[/TAG][TAG4000]|9|X";
  for (std::size_t lungo = 0; lungo <= pdf.size(); ++lungo) try {
      Carica("A.PDF", pdf.substr(0, lungo));
    } catch (const Errore& errore) {
      EXPECT_EQ(errore.Numero(), errore::DivisionePerZero) << lungo;
    }
}

TEST_F(Caricatori, UnFileCheNonCELasciaIlDisegno) {
  Carica("A.CSV", "P,A,1,1\n");
  for (const char* nome : {"C:\\B.EMP", "C:\\B.SUR", "C:\\B.CSV", "C:\\B.PDF", "C:\\B.DAT"})
    EXPECT_THROW(grafica.CaricaDisegno(nome), Errore);
  EXPECT_EQ(Nomi(), "[A]");
  EXPECT_EQ(grafica.Percorso, "C:\\A.CSV");
}

} // namespace
} // namespace lirmeto::prova
