#include <verifiche/atto_base.h>

#include <verifiche/adattamento.h>
#include <verifiche/disegno_rilievo.h>
#include <verifiche/figura_rilievo.h>
#include <verifiche/incroci.h>
#include <verifiche/piano_gnss.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <random>

namespace lirmeto::prova {

namespace {

bool SiIncrociano(const Tratto& s, const Tratto& t) {
  const auto incrocio = PrimoIncrocio({s, t});
  return incrocio.has_value();
}

// Segments between the vertices of a random walk, numbered as a contour numbers them.
std::vector<Tratto> Passeggiata(unsigned seme, std::size_t quanti) {
  std::mt19937 caso(seme);
  std::uniform_real_distribution<double> piano(-100, 100);
  std::vector<Tratto> tratti;
  PuntoPiano prima{piano(caso), piano(caso)};
  for (std::size_t i = 0; i < quanti; ++i) {
    const PuntoPiano dopo{prima.est + piano(caso) / 5, prima.nord + piano(caso) / 5};
    tratti.push_back({prima, dopo, i, i + 1});
    prima = dopo;
  }
  return tratti;
}

// Lines of the store in a colour.
std::size_t Linee(const ArchivioGrafica& archivio, std::int16_t colore) {
  const auto& linee = archivio.Linee();
  return static_cast<std::size_t>(
      std::count_if(linee.begin(), linee.end(), [colore](const LineaGrafica& l) { return l.Colore == colore; }));
}

// Metres of all that are not dashed.
double Lunghezza(const ArchivioGrafica& archivio, std::int16_t colore) {
  double lunga = 0;
  for (const LineaGrafica& l : archivio.Linee())
    if (l.Colore == colore && l.Stile == stile::Continuo) lunga += std::hypot(l.X2 - l.X1, l.Y2 - l.Y1);
  return lunga;
}

} // namespace

TEST(Geometria, IPianiSiPosanoSenzaLaCoppiaSbagliata) {
  std::mt19937 caso(3);
  std::uniform_real_distribution<double> piano(-200, 200);
  for (int giro = 0; giro < 30; ++giro) {
    const double angolo = piano(caso);
    const Rototraslazione vera{std::cos(angolo), std::sin(angolo), piano(caso), piano(caso)};
    std::vector<Coppia> coppie;
    for (int i = 0; i < 4 + giro % 9; ++i) {
      const PuntoPiano p{piano(caso), piano(caso)};
      coppie.push_back({p, vera.Applica(p)});
    }
    coppie[static_cast<std::size_t>(giro) % coppie.size()].a.est += giro % 2 == 0 ? 30 : 0.9;
    const auto trovata = Adatta(coppie);
    ASSERT_TRUE(trovata);
    const PuntoPiano prova{50, -70};
    EXPECT_LT(DistanzaPiana(trovata->Applica(prova), vera.Applica(prova)), 1e-6) << giro;
  }
  // The pair that errs lies far away, turns the others and is itself not the worst.
  const auto senza = Adatta({{{0, 0}, {0, 0}}, {{10, 0}, {10, 0}}, {{0, 10}, {0, 10}}, {{100, 0}, {100, 20}}});
  ASSERT_TRUE(senza);
  EXPECT_LT(DistanzaPiana(senza->Applica({50, 50}), {50, 50}), 1e-9);
  EXPECT_FALSE(Adatta({}));
  EXPECT_FALSE(Adatta({{{1, 2}, {3, 4}}}));
  EXPECT_FALSE(Adatta({{{1, 2}, {3, 4}}, {{1, 2}, {3, 4}}})); // one place: no direction
}

TEST(Geometria, GliIncrociSonoQuelliDiOgniCoppia) {
  for (unsigned seme = 0; seme < 60; ++seme) {
    const auto tratti = Passeggiata(seme, 2 + seme % 12);
    bool qualcuno = false;
    for (std::size_t i = 0; i < tratti.size(); ++i)
      for (std::size_t k = i + 1; k < tratti.size(); ++k) qualcuno = qualcuno || SiIncrociano(tratti[i], tratti[k]);
    EXPECT_EQ(PrimoIncrocio(tratti).has_value(), qualcuno) << seme;
  }
  EXPECT_TRUE(SiIncrociano({{0, 0}, {2, 2}, 1, 2}, {{0, 2}, {2, 0}, 3, 4}));
  EXPECT_FALSE(SiIncrociano({{0, 0}, {2, 2}, 1, 2}, {{0, 2}, {2, 0}, 2, 4})); // they share an end by its name
  EXPECT_FALSE(SiIncrociano({{0, 0}, {2, 0}, 1, 2}, {{1, 0}, {1, 5}, 3, 4})); // one ends on the other
  EXPECT_DOUBLE_EQ(DistanzaDaTratto({3, 4}, {0, 0}, {10, 0}), 4);
  EXPECT_DOUBLE_EQ(DistanzaDaTratto({13, 4}, {0, 0}, {10, 0}), 5);
  EXPECT_DOUBLE_EQ(DistanzaDaTratto({3, 4}, {0, 0}, {0, 0}), 5);
}

// A kilometre to the east and one to the north, from the axes of the ellipsoid itself.
TEST(Geometria, IlPianoGnssHaEstENord) {
  constexpr double raggio = 6378137;
  const PianoGnss equatore({raggio, 0, 0});
  const PuntoPiano est = equatore.Su({raggio, 1000, 0});
  EXPECT_NEAR(est.est, 1000, 1e-6);
  EXPECT_NEAR(est.nord, 0, 1e-6);
  EXPECT_NEAR(equatore.Su({raggio, 0, 1000}).nord, 1000, 1e-6);
  const PianoGnss novanta({0, raggio, 0});
  EXPECT_NEAR(novanta.Su({-1000, raggio, 0}).est, 1000, 1e-6);
  EXPECT_DOUBLE_EQ((Geocentrica{2, 3, 6}.Lunghezza()), 7);
}

TEST(Figura, DisegnaCioCheLeRigheDicono) {
  ConAtto c;
  c.ApriCon({});
  ArchivioGrafica archivio;
  DisegnaRilievo({c.verificatore.Righe(), c.verificatore.Posti(), c.verificatore.Archivi()}, archivio);
  EXPECT_EQ(Linee(archivio, colore::RossoChiaro), 1U);         // the red contour
  EXPECT_EQ(Linee(archivio, colore::Nero), 6U);                // the black one
  EXPECT_EQ(Linee(archivio, colore::BluChiaro), 3U);           // the traverse
  EXPECT_EQ(Linee(archivio, colore::MagentaChiaro), 3U);       // the triangle
  EXPECT_EQ(Linee(archivio, colore::Verde), 4U);               // two offsets, each with its foot
  EXPECT_NEAR(Lunghezza(archivio, colore::Grigio), 200, 1e-6); // round the parcel of the extract
  EXPECT_NEAR(Lunghezza(archivio, colore::Nero), 120, 0.01);
  EXPECT_EQ(archivio.Punti()[archivio.PrimoDiNome("300").value()].Colore, colore::Blu);
  EXPECT_EQ(archivio.Punti()[archivio.PrimoDiNome("101").value()].Colore, colore::Nero);
  EXPECT_TRUE(archivio.PrimoDiNome("10000"));
  for (const PuntoGrafica& punto : archivio.Punti()) EXPECT_EQ(punto.Angolo, 0) << punto.Nome << " reads level";
  ConAtto lontano;
  lontano.ApriCon({"41 |RC|>|VC|", "31 -170.775>-12170.775", "32 -190.115>-12190.115", "33 -218.765>-12218.765",
                   "34 -181.867>-12181.867"});
  ArchivioGrafica vicino;
  DisegnaRilievo({lontano.verificatore.Righe(), lontano.verificatore.Posti(), lontano.verificatore.Archivi()}, vicino);
  EXPECT_EQ(Linee(vicino, colore::Verde), 5U) << "the contour too";
  EXPECT_FALSE(vicino.PrimoDiNome("10000")) << "the picture would be a speck in a corner";
  for (const auto& [nome, x, y] :
       {std::tuple{"103", 1165.0, 1125.0}, {"105", 1140.0, 1090.0}, {"300", 1150.0, 1140.0}}) {
    const auto posto = archivio.PrimoDiNome(nome);
    ASSERT_TRUE(posto) << nome;
    EXPECT_LT(DistanzaPiana(archivio.Punti()[*posto].Posto(), {x, y}), 0.01) << nome;
  }
}

TEST(Figura, OgniRigaHaIlSuoPuntoEOgniPuntoLaSuaRiga) {
  ConAtto c;
  c.ApriCon({});
  FiguraRilievo figura(c.ambiente, c.verificatore);
  figura.Aggiorna();
  const double largo = figura.Grafica1.Vista().Zoom;
  EXPECT_GT(largo, 200);      // all of it is seen
  figura.ScegliRiga(9, true); // the sight to 101
  ASSERT_TRUE(figura.Grafica1.Evidenza);
  EXPECT_NEAR(figura.Grafica1.Evidenza->X1, 1120, 0.01); // from the station
  EXPECT_NEAR(figura.Grafica1.Vista().Xc, 1130, 0.01);
  EXPECT_NEAR(figura.Grafica1.Vista().Yc, 1100, 0.01);
  EXPECT_EQ(figura.RigaVicina({1130.3, 1100}, 0.5), 9U);
  EXPECT_EQ(figura.RigaVicina({1131, 1100}, 0.5), std::nullopt);
  figura.ScegliRiga(2, true); // a comment has no point
  EXPECT_FALSE(figura.Grafica1.Evidenza);
  // A changed row moves its point and not the view.
  c.sessione.List1.Cambia(9, "2|101|66.5167|100.4300|25.000|1.500|X|");
  c.sessione.List1.Cambia(1, "9|12|10|20|1150|10.00-G,APAG 2.12|FR|ALTRO|");
  c.verificatore.Aggiorna();
  figura.Aggiorna();
  EXPECT_NEAR(figura.Grafica1.Vista().Xc, 1130, 0.01);
  EXPECT_EQ(figura.RigaVicina({1130, 1100}, 0.5), std::nullopt);
  c.sessione.List1.Svuota(); // as between two acts
  c.verificatore.Aggiorna();
  figura.Aggiorna();
  EXPECT_EQ(figura.RigaVicina({1120, 1100}, 50), std::nullopt);
}

} // namespace lirmeto::prova
