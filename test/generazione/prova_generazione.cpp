#include <generazione/disegno.h>

#include <generazione/angoli.h>
#include <generazione/squadri.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <random>

namespace lirmeto::prova {

namespace {

using Righe = std::vector<std::string>;

// Two stations, one hundred metres apart along +Y, and two points of the first.
const Righe Base = {"P,100,0,0,10,CHIODO,1.5", "P,200,0,100,12,PICCHETTO,1.6", "P,101,50,50,11,SPIGOLO,1.7",
                    "P,102,50,0,10,,-1", "L,0,0,0,0,100,0"};

Righe ConBase(const Righe& altre) {
  Righe righe = Base;
  righe.insert(righe.end(), altre.begin(), altre.end());
  return righe;
}

// Rows whose kind stands first: "7|", "6|...".
Righe CheIniziano(const Righe& righe, std::string_view inizio) {
  Righe trovate;
  std::copy_if(righe.begin(), righe.end(), std::back_inserter(trovate),
               [&](const std::string& riga) { return riga.starts_with(inizio); });
  return trovate;
}

std::string Nomi(int quanti) {
  std::string punti = "|";
  for (int i = 1; i <= quanti; ++i) punti += TestoIntero(i) + "|";
  return punti;
}

} // namespace

TEST(LibrettoDaDisegno, UnDisegnoDiventaUnLibrettoSuDisco) {
  Disegno d;
  EXPECT_EQ(Corpo(d.Genera(Base)),
            (Righe{"1|100|1.50|CHIODO|", "2|200|0.000|98.6633|100.022|1.60|PICCHETTO|",
                   "2|101|50.000|98.9197|70.721|1.70|SPIGOLO|", "2|102|100.000|100.6366|0.000|Note:|",
                   "1|200|1.60|PICCHETTO|", "2|100|0.000|101.3367|100.022|1.50|CHIODO|"}));
  EXPECT_TRUE(d.finita);
  EXPECT_EQ(d.sessione.NomeFileLibretto, "C:\\RILIEVO.TXT");
  EXPECT_TRUE(d.disco.Contenuto("C:\\RILIEVO.TXT").starts_with(Testata[0]));
  ASSERT_EQ(d.dialoghi.detti.size(), 1U); // with "|TM|" nobody asks for red lines
  EXPECT_EQ(d.dialoghi.detti[0].titolo, "Note o Descrizioni mancanti");
}

TEST(LibrettoDaDisegno, IlQuadroMostraRaggiLineeEContorni) {
  Disegno d;
  d.Genera(ConBase({"7,|101|102|RC|200|NC|,DIVIDENTE,"}));
  std::map<int, int> perColore;
  for (const LineaGrafica& linea : d.condiviso.archivio.Linee()) ++perColore[linea.Colore];
  EXPECT_EQ(perColore, (std::map<int, int>{{0, 1}, {7, 2}, {9, 1}, {12, 1}}));
}

TEST(LibrettoDaDisegno, LeRigheUgualiVicineSonoUnaEIlRapportoDiceTutto) {
  Disegno d;
  const Righe dueVolte = ConBase({"7,|101|102|RC|,A,", "7,|101|102|RC|,A,"});
  EXPECT_EQ(CheIniziano(d.Genera(dueVolte, {"COMMENTI_DUPLICATI=1"}), "7|"), Righe{"7|2|101|102|RC|"});
  EXPECT_EQ(d.rapporto, (Righe{"Azzera su Stazione Precedente", "Carica Poligonali da Contorni 3", "Stazione : 100",
                               "Stazione : 200", "Carica Squadri dal Disegno", "Carica Righe 7 dal Disegno",
                               "Mantiene Censuario Esistente", "Carica Righe 8 dal Disegno"}));
  d.Genera(dueVolte, {"MANTIENI_3_7=1", "ORIENTA_AZIMUT=1", "ELIMINA_PUNTI_NOTE=1", "METTI_CS=1"}, {"6|nota|"});
  EXPECT_EQ(d.rapporto, (Righe{"Calcola Tutti Azimut", "Mantiene Poligonali del Libretto", "Stazione : 100",
                               "Stazione : 200", "Carica Squadri dal Disegno", "Mantiene Righe 7 del Disegno",
                               "Mantiene Censuario Esistente", "Carica Righe 8 dal Disegno",
                               "Eliminati punti da descrizioni", "Mette CS su righe 2 sequenzialmente duplicate"}));
}

TEST(LibrettoDaDisegno, SenzaOrientamentoOConUnGuastoNienteCambia) {
  Disegno d;
  const Righe vecchie = {"1|100|CHIODO|", "2|101|0.000|70.721|SPIGOLO|"};
  Righe attese = Testata;
  attese.insert(attese.end(), vecchie.begin(), vecchie.end());
  EXPECT_EQ(d.Genera(Base, {"ORIENTA_PRECEDENTE=0"}, vecchie), attese);
  EXPECT_EQ(d.dialoghi.UltimoTesto(), "Selezionare una modalit\xE0 di Orientamento delle stazioni!");
  EXPECT_FALSE(d.finita);
  for (const std::string guasto :
       {"7,|100|999|,LIVELLAZIONE RAGGIANTE,", "7,|100|999|,LIVELLAZIONE DAL MEZZO,", "P,103,1e300,0,0,X,1"}) {
    Disegno d2;
    EXPECT_EQ(d2.Genera(ConBase({guasto}), {}, vecchie), attese) << guasto;
    EXPECT_EQ(d2.dialoghi.detti.back().titolo, "Rilevato errore") << guasto;
    EXPECT_FALSE(d2.finita || d2.disco.Esiste("C:\\RILIEVO.TXT"));
  }
  EXPECT_FALSE(d.disco.Esiste("C:\\RILIEVO.TXT"));
}

TEST(LibrettoDaDisegno, DisegniStraniNonFermano) {
  const std::vector<Righe> disegni = {{},
                                      {"P,100"},
                                      {"niente", "Q,1,2", ",,,,"},
                                      {"L,0,0,0,0,100,0"},
                                      {"P,1,x,y,z", "L,a,b"},
                                      {"7,,,"},
                                      {"7,|||,X,Y"},
                                      {"7,|a|RC|RC|b|,T,C", "7,|,SQUADRO,", "7,,COGO,", "7,|1|,PV,"}};
  for (const auto& disegno : disegni) {
    Disegno d;
    EXPECT_EQ(d.Genera(disegno)[0], Testata[0]);
    EXPECT_TRUE(d.finita);
  }
}

// Each row: points and lines, what the first station sights.
TEST(Stazioni, BattonoPerLineaEPerNome) {
  struct Caso {
    Righe disegno;
    Righe opzioni;
    Righe attese; // names of rows 1 and 2, in order
  };
  const std::vector<Caso> casi = {
      // The name of the last line's other end is not sighted again; 201 only by a line; <EL> by none.
      {{"P,100,0,0", "P,101,1,1", "P,201,2,2", "P,103,3,3,0,<el>", "P,104,4,4", "L,0,0,0,2,2,0"},
       {},
       {"1|100|", "2|201|", "2|101|", "2|104|"}},
      // 1000 sees 1100, which sees 1101 and not 1000 but for the line.
      {{"P,1000,0,0", "P,1100,9,0", "P,1101,9,1", "P,1001,0,1", "L,0,0,0,9,0,0"},
       {},
       {"1|1000|", "2|1100|", "2|1001|", "2|1101|", "1|1100|", "2|1000|", "2|1101|"}},
      {{"P,1000,0,0", "P,1100,9,0", "L,0,0,0,9,0,0"}, {"INCREMENTO_MILLESIMALE=1"}, {"1|1000|", "2|1100|"}},
      // A fiducial point is no station; two lines of one pair are one; 0.005 m is too far, 0.0049 is not.
      {{"P,100,0,0", "P,PF01/0010/G200,5,5", "L,0,0,0,5,5,0", "L,5,5,0,0,0.0049,0"},
       {},
       {"1|100|", "2|PF01/0010/G200|"}},
      {{"P,100,0,0", "P,200,5,5", "L,0,0,0,5,5.0051,0"}, {}, {}},
  };
  for (const auto& caso : casi) {
    Disegno d;
    Righe nomi;
    for (const auto& riga : Corpo(d.Genera(caso.disegno, caso.opzioni)))
      nomi.push_back(riga.substr(0, riga.find('|', 2) + 1));
    EXPECT_EQ(nomi, caso.attese) << caso.disegno.back();
  }
}

TEST(Misure, OrientamentoMarcheEArrotondamento) {
  struct Caso {
    Righe altre;
    Righe opzioni;
    std::string attesa; // a row that must be there
  };
  const std::vector<Caso> casi = {
      {{}, {"ORIENTA_AZIMUT=1"}, "2|100|200.000|101.3367|100.022|1.50|CHIODO|"},
      {{}, {"PRECISIONE_ANGOLARE=5"}, "2|101|50.000|98.920|70.721|1.70|SPIGOLO|"},
      {{"P,103,-0.0001,100,10,A,1"}, {"PRECISIONE_ANGOLARE=3"}, "2|103|0.000|100.318|100.001|1.00|A|"},
      {{"P,103,0,60,10,PIANO<p!>,1"}, {}, "2|103|0.000|60.000|PIANO<p!>|"},
      {{"P,103,0,60,10,ZERO<00>,1"}, {}, "2|103|0.000|100.5305|0.000|1.00|ZERO|"},
      {{"P,103,0,60,10.0019,VICINO,1"}, {"PUNTO_PLANIMETRICO=1"}, "2|103|0.000|60.000|VICINO|"},
      {{"P,103,0,60,10.003,LONTANO,1"}, {"PUNTO_PLANIMETRICO=1"}, "2|103|0.000|100.5273|60.002|1.00|LONTANO|"},
      {{"P,103,0,0,10,UGUALE,1"}, {}, "2|103|0.000|0.000|1.00|UGUALE|"},
      {{"P,103,0,60,10,CHIODO,-1", "P,104,0,61,10,CHIODO,-1"}, {"METTI_CS=1"}, "2|104|0.000|100.5218|0.000|CS|"},
      {{"P,103,0,60,10,S. A. MARIA,-1"}, {"ELIMINA_PUNTI_NOTE=1"}, "2|103|0.000|100.5305|0.000|S  A  MARIA|"},
  };
  for (const auto& caso : casi) {
    Disegno d;
    const Righe righe = d.Genera(ConBase(caso.altre), caso.opzioni);
    EXPECT_NE(std::find(righe.begin(), righe.end(), caso.attesa), righe.end()) << caso.attesa << "\n" << Testo(righe);
    const bool avvisa = std::any_of(d.dialoghi.detti.begin(), d.dialoghi.detti.end(), [](const auto& detto) {
      return detto.titolo == "Punti Coincidenti" && detto.testo.starts_with("Il punto 103 ");
    });
    EXPECT_EQ(avvisa, Contiene(caso.attesa, "UGUALE")) << caso.attesa;
  }
}

TEST(Angoli, LaLetturaRestaSottoIlGiro) {
  struct Caso {
    double lettura; // to the north
    PuntoPiano punto;
    double attesa;
  };
  for (const auto& [lettura, punto, attesa] :
       {Caso{0, {0, 5}, 0}, Caso{0, {5, 0}, 100}, Caso{0, {0, -5}, 200}, Caso{0, {-5, 0}, 300}, Caso{300, {5, 0}, 0},
        Caso{200, {0, -5}, 0}, Caso{399, {5, 0}, 99}, Caso{-100, {5, 0}, 0}, Caso{-150, {5, 0}, 350}}) {
    const Lettura letta = AngoloDaOrientamento({{0, 0}, {0, 1}, Gon(lettura)}, punto);
    EXPECT_DOUBLE_EQ(letta.angolo.Valore(), attesa) << lettura << " " << punto.est << " " << punto.nord;
    EXPECT_EQ(letta.distanza, 5);
  }
}

TEST(Disegno, CioCheNonSiLeggeSiDiceNelRapporto) {
  Disegno d;
  d.Genera({"P,100,0,0,10,A,1", "nota a mano", "", "Q,1,2", "P,101,9,9,10,B,1", "L,0,0,0,9,9,0"}, {"MOSTRA_REPORT=1"});
  EXPECT_EQ(std::count(d.rapporto.begin(), d.rapporto.end(), "Riga del disegno non letta: nota a mano") +
                std::count(d.rapporto.begin(), d.rapporto.end(), "Riga del disegno non letta: Q,1,2"),
            2);
}

TEST(Misure, OrientamentoDelLibrettoEsistente) {
  Disegno d;
  const Righe vecchie = {"1|100|CHIODO|",      "2|200|33.5|100|X|", "1|100|CHIODO|", "2|999|0|1|X|",
                         "2|200|44.25|100|X|", "1|200|X|",          "1|300|X|"};
  const Righe righe = d.Genera(Base, {"ORIENTA_LIBRETTO=1"}, vecchie);
  EXPECT_EQ(righe[3], "2|200|44.250|98.6633|100.022|1.60|PICCHETTO|");
  EXPECT_EQ(righe[7], "2|100|44.250|101.3367|100.022|1.50|CHIODO|"); // keeps the value of the station before
  EXPECT_EQ(d.dialoghi.detti.front().testo, "L'Orientamento della stazione 1|200|\r\n2|100| Non Trovato!");
}

// From the generated rows the coordinates come back, within the rounding of angle and distance.
TEST(Misure, LeCoordinateRitornano) {
  std::mt19937 caso(20261121);
  std::uniform_real_distribution<double> piano(-400, 400);
  std::uniform_real_distribution<double> quota(90, 110);
  for (const auto& [precisione, passo] : {std::pair<std::string, double>{"0", 0.0001}, {"2", 0.0005}, {"5", 0.005}}) {
    Righe disegno;
    std::map<std::string, std::array<double, 3>> veri;
    const auto metti = [&](const std::string& nome) {
      veri[nome] = {piano(caso), piano(caso), quota(caso)};
      disegno.push_back("P," + nome + "," + TestoPieno(veri[nome][0]) + "," + TestoPieno(veri[nome][1]) + "," +
                        TestoPieno(veri[nome][2]) + ",NOTA,1.5");
    };
    for (const std::string stazione : {"100", "200", "300"}) {
      metti(stazione);
      for (int i = 1; i < 20; ++i) metti(TestoIntero(static_cast<long long>(Valore(stazione)) + i));
    }
    for (const auto& [a, b] : {std::pair{"100", "200"}, std::pair{"200", "300"}})
      disegno.push_back("L," + TestoPieno(veri[a][0]) + "," + TestoPieno(veri[a][1]) + ",0," + TestoPieno(veri[b][0]) +
                        "," + TestoPieno(veri[b][1]) + ",0");
    Disegno d;
    std::array<double, 3> stazione{};
    int confrontate = 0;
    for (const auto& riga : Corpo(d.Genera(disegno, {"ORIENTA_AZIMUT=1", "PRECISIONE_ANGOLARE=" + precisione}))) {
      const auto nome = std::string(Parte(riga, '|', 1));
      if (riga.starts_with("1|")) stazione = veri.at(nome);
      if (!riga.starts_with("2|")) continue;
      const double g = std::numbers::pi / 200;
      const double hz = Valore(Parte(riga, '|', 2)) * g;
      const double zenit = Valore(Parte(riga, '|', 3)) * g;
      const double inclinata = Valore(Parte(riga, '|', 4));
      const double orizzontale = inclinata * std::sin(zenit);
      const double tolleranza = 0.001 + 1200 * g * passo / 2;
      EXPECT_NEAR(stazione[0] + orizzontale * std::sin(hz), veri.at(nome)[0], tolleranza) << riga;
      EXPECT_NEAR(stazione[1] + orizzontale * std::cos(hz), veri.at(nome)[1], tolleranza) << riga;
      EXPECT_NEAR(stazione[2] + inclinata * std::cos(zenit), veri.at(nome)[2], tolleranza) << riga;
      ++confrontate;
    }
    EXPECT_EQ(confrontate, 61);
  }
}

TEST(Squadri, RigheQuattroECinque) {
  const Righe punti = {"P,1,0,0,10,UNO,1.5", "P,2,0,20,11,DUE,1.6", "P,3,5,8,12,TRE,1.7", "P,4,-5,-3,10,,0"};
  struct Caso {
    std::string contorno;
    Righe attese;
  };
  const std::vector<Caso> casi = {
      {"7,|1|2|3|9|4|,SQUADRO, da_casa ",
       {"4|1|2|0.00|dacasa UNO|", "5|2|20.000|0.000|DUE|", "5|3|8.000|5.000|TRE|", "5|4|-3.000|5.000|Note: |"}},
      {"7,|1|2|3|,SQUADRO,*V*", {"4|1|2|0.00|*V* UNO|", "5|2|20.00|0.00|DUE|", "5|3|8.00|5.00|TRE|"}},
      {"7,|1|2|3|,COGO,",
       {"4|1|2|50|UNO|", "5|3|9.434|0|TRE|", "4|2|1|-50|TRE|", "5|3|13.000|0|TRE|", "4|1|0.00|", "5|3|2.000|"}},
      {"7,|1|2|3|4|,LIVELLAZIONE DAL MEZZO,",
       {"4|1|2|1.200|0.200|Liv dal Mezzo|", "4|2|3|1.200|0.200|Liv dal Mezzo|", "4|3|4|0.200|2.200|Liv dal Mezzo|"}},
      {"7,|1|4|,LIVELLAZIONE DAL MEZZO,", {"4|1|4|1.523|1.523|Liv dal Mezzo|"}},
      {"7,|1|2|3|,LIVELLAZIONE RAGGIANTE,", {"4|1|1.500|UNO|", "5|2|0.600|DUE|", "5|3|-0.300|TRE|"}},
  };
  for (const auto& caso : casi) {
    Disegno d;
    Righe disegno = punti;
    disegno.push_back(caso.contorno);
    EXPECT_EQ(Corpo(d.Genera(disegno, {"NOTE_MANCANTI=0"})), caso.attese) << caso.contorno;
  }
  Disegno d;
  EXPECT_EQ(Corpo(d.Genera({"7,|1|2|,SQUADRO,"}, {"MANTIENI_RIGHE4=1"}, {"4|7|8|0.00|X|", "1|7|X|", "5|9|1|2|Y|"})),
            (Righe{"4|7|8|0.00|X|", "5|9|1|2|Y|"}));
}

TEST(Contorni, RigheSetteEVertici) {
  struct Caso {
    Righe contorni;
    Righe opzioni;
    Righe attese;
  };
  const std::vector<Caso> casi = {
      {{"7,|1|2|RC|,FABBRICATO,"}, {}, {"6|FABBRICATO|", "7|2|1|2|RC|"}},
      {{"7," + Nomi(10) + "RC|,T,C_M"}, {}, {"6|T|", "7|10|1|2|3|4|5|6|7|8|9|10|RC|C|M|"}},
      {{"7," + Nomi(25) + "NC|,T,"},
       {},
       {"6|T|", "7|25|1|2|3|4|5|6|7|8|9|10|NC|", "7|0|11|12|13|14|15|16|17|18|19|20|NC|", "7|0|21|22|23|24|25|NC|"}},
      {{"7," + Nomi(12) + "RC|,T,COMM"}, {}, {"6|T|", "7|12|1|2|3|4|5|6|7|8|9|10|RC|COMM|", "7|0|11|12|RC|"}},
      {{"7,|1|2|RC|3|4|RT|5|,T,"}, {}, {"6|T|", "7|5|1|2|RC|", "7|0|3|4|RT|", "7|0|5|"}},
      {{"7,|1|2|MAPPALE 12 500|,T,"}, {}, {"6|T|", "7|2|1|2|MAPPALE 12 500|"}},
      {{"7,|1|2|NC|MAPPALE 12 500|,T,"}, {}, {"6|T|", "7|2|1|2|NC|12|500|"}},
      {{"7,|1|2|,T,", "7,|3|4|,T ,", "7,|5|6|,U,"}, {}, {"6|T|", "7|2|1|2|", "7|2|3|4|", "6|U|", "7|2|5|6|"}},
      {{"7,|1|2|,T,", "7,|3|4|,T,"}, {"COMMENTI_DUPLICATI=0"}, {"6|T|", "7|2|1|2|", "6|T|", "7|2|3|4|"}},
      {{"P,5,0,0,0,X<pv>", "P,6,0,0,0,Y<PD>", "P,pf05/0010/G224,0,0,0,Z<PV>", "7,|1|,PV,"},
       {},
       {"6|PUNTI VERTICE|", "7|1|5|PV|", "7|1|6|PD|", "7|1|1|PV|"}},
      {{"7,|1|2|,T,"}, {"MANTIENI_3_7=1"}, {"3|2|100|200|", "6|CASA|", "7|2|8|9|RC|"}},
  };
  for (const auto& caso : casi) {
    Disegno d;
    const Righe vecchie = {"3|2|100|200|", "6|CASA|", "1|100|X|", "7|2|8|9|RC|", "6|CODA|"};
    EXPECT_EQ(Corpo(d.Genera(caso.contorni, caso.opzioni, vecchie)), caso.attese) << caso.contorni.back();
  }
  Disegno d;
  EXPECT_EQ(Corpo(d.Genera({"7," + Nomi(12) + ",POLIGONALE,"})), (Righe{"3|12|1|2|3|4|5|6|7|8|9|10|", "3|0|11|12|"}));
}

// More names than a row can be split into: lines of the drawing have any length.
TEST(Contorni, LineeDiMilleNomi) {
  Disegno d;
  const auto righe = Corpo(d.Genera({"7," + Nomi(1000) + "RC|,CASA,", "7," + Nomi(1000) + ",POLIGONALE,"}));
  EXPECT_EQ(CheIniziano(righe, "7|").size(), 100U);
  EXPECT_EQ(CheIniziano(righe, "3|").size(), 100U);
  EXPECT_EQ(CheIniziano(righe, "7|0|991|992|993|994|995|996|997|998|999|1000|RC|").size(), 1U);
}

TEST(Coordinate, FiducialiMarcheERigaNove) {
  Disegno d;
  std::string taf(251, ' ');
  const auto scrivi = [&](std::size_t colonna, std::string_view testo) {
    taf.replace(colonna - 1, testo.size(), testo);
  };
  scrivi(1, "G224");
  scrivi(6, "  001");
  scrivi(12, "0");
  scrivi(14, "  01");
  scrivi(30, "SPIGOLO \"NORD\"");
  scrivi(102, "   -1000.500");
  scrivi(115, "    2000.250");
  scrivi(128, "05");
  scrivi(165, "piano <quota> strada");
  d.disco.Metti("C:\\FIDUCIAL\\DATI\\G224.TAF", taf + "\r\n" + taf.substr(0, 40) + "\r\n");
  const Righe disegno = ConBase({"P,PF01/0010/G224,30,30,5,,1", "L,0,0,0,30,30,0", "P,7,1,2,3,a<8=>,0",
                                 "P,8,1,2,3,<8P>,0", "P,9,1,2,3,appoggio [p.a.]<8P>,0", "P,123456,1,2,3,q<8Q><8=>,0"});
  const Righe righe = d.Genera(disegno);
  EXPECT_EQ(
      CheIniziano(righe, "8|"),
      (Righe{"8|PF01/0010/G224|-1000.500|2000.250|05|SPIGOLO 'NORD'|", "8|PF01/0010/G224|9999|04|BASE MANUFATTO-SUOLO|",
             "8|9|2.000|1.000|APPOGGIO[P.A.]|", "8|8|2.000|1.000|Note:|", "8|9|2.000|1.000|appoggio [p.a.]|",
             "8|7|2.000|1.000|12|89000=00007|", "8|123456|2.000|1.000|12|89000=123456|", "8|123456|3.000|04|q|"}));
  EXPECT_EQ(righe[1], "9|20|10|20|1001|V|TM|Geodimetro|"); // mean of 1 and 2000.25
  EXPECT_EQ(CheIniziano(d.Genera(disegno, {"PF_DA_ESTRATTO=1"}), "8|PF").size(), 0U);
  EXPECT_EQ(CheIniziano(d.Genera({"P,1,0,0"}, {"MANTIENI_8=1"}, {"8|K|1|2|X|"}), "8|"), (Righe{"8|K|1|2|X|"}));
}

TEST(RigheGps, EntranoConLeNoteDelDisegno) {
  const Righe vecchie = {"1|1000|4410603.370,653928.450,4545947.070|0.000|BASE|",
                         "6|L1|10052018-13:32|10052018-14:44|RTK|PDOP=1|",
                         "2|101|1,2,3|0.1,1,1,1,1,1|PDOP=2|0.000|VECCHIA|", "2|999|1,2,3|0.1|PDOP=2|0.000|VIA|"};
  Disegno d;
  const Righe righe = d.Genera(Base, {}, vecchie);
  EXPECT_EQ(Righe(righe.begin() + 2, righe.begin() + 5),
            (Righe{vecchie[0], vecchie[1], "2|101|1,2,3|0.1,1,1,1,1,1|PDOP=2|0.000|SPIGOLO|"}));
  EXPECT_EQ(CheIniziano(d.Genera(Base, {"MANTIENI_GPS=0"}, vecchie), "2|999|").size(), 1U);
  d.Genera(Base, {}, {vecchie[0], vecchie[1], "1|100|1,2|"});
  EXPECT_EQ(d.dialoghi.detti.back().titolo, "Rilevato errore"); // a row too short for its note
}

TEST(LibrettoDaDisegno, ITipiSenzaRossePossonoDiventareTm) {
  Disegno d;
  const auto con = [&](const std::string& tipologia, const Righe& altre, Risposta risposta) {
    d.dialoghi.risposte = {risposta};
    d.Apri(Testo({Testata[0], "9|20|10|20|5|V|" + tipologia + "|G|"}), "C:\\R.LXC");
    d.disco.Metti("C:\\R.LXC", Testo(ConBase(altre)));
    LibrettoDaDisegno form(d.ambiente, d.condiviso);
    form.Form_Load();
    EXPECT_TRUE(form.GeneraLibrettoMisureAutomatico());
    return d.Righe()[1];
  };
  EXPECT_EQ(con("FR", {}, Risposta::Si), "9|20|10|20|5|V|TM|G|");
  EXPECT_EQ(con("FR", {}, Risposta::No), "9|20|10|20|5|V|FR|G|");
  EXPECT_EQ(con("FR", {"7,|100|101|rc|,T,"}, Risposta::Si), "9|20|10|20|5|V|FR|G|");
  EXPECT_EQ(con("FR", {"7,|100|101|nc|,T,"}, Risposta::Si), "9|20|10|20|5|V|TM|G|");
}

} // namespace lirmeto::prova
