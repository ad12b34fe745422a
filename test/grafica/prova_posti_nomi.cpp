#include <grafica/posti_nomi.h>

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>

namespace lirmeto::prova {
namespace {

constexpr double Larga = 40;
constexpr double Alta = 12;

Scritta Nome(double x, double y, std::string_view testo = "101", int decimi = 0) {
  return {x, y, Larga, Alta, decimi, testo};
}

// Whether two unturned texts cover each other where they were put.
bool SiCoprono(const Scritta& a, const Scarto& dovA, const Scritta& b, const Scarto& dovB) {
  return std::abs(a.x + dovA.x - b.x - dovB.x) < Larga && std::abs(a.y + dovA.y - b.y - dovB.y) < Alta;
}

TEST(PostiNomi, IlPrimoCheScegliePrendeIlPostoDetto) {
  const std::vector<Scritta> tre = {Nome(0, 0), Nome(100, 0, "102"), Nome(1, 1, "103")};
  const auto posti = DisponiScritte(tre);
  EXPECT_EQ(posti[0], Scarto{});
  EXPECT_EQ(posti[1], Scarto{});
  ASSERT_TRUE(posti[2]);
  EXPECT_FALSE(SiCoprono(tre[0], *posti[0], tre[2], *posti[2]));
  const auto unPunto = DisponiScritte(std::vector<Scritta>{Nome(0, 0, "A"), Nome(0, 0, "B"), Nome(0, 0, "C")});
  ASSERT_TRUE(unPunto[0] && unPunto[2]);
  EXPECT_EQ(unPunto[0]->y, unPunto[2]->y) << "on both sides of a point they stand on one line";
  // The place does not depend on where the view is.
  std::vector<Scritta> altrove = tre;
  for (Scritta& una : altrove) una.x += 1280;
  EXPECT_EQ(DisponiScritte(altrove), posti);
}

TEST(PostiNomi, TestiStraniNonHannoPostoENonFermanoGliAltri) {
  const std::string lungo(1 << 20, 'x');
  const auto posti = DisponiScritte(std::vector<Scritta>{Nome(NAN, 0),
                                                         Nome(0, 1e300),
                                                         Nome(0, 0, ""),
                                                         {0, 0, 1e7, Alta, 0, lungo},
                                                         Nome(5, 40),
                                                         Nome(20, 60, "VIA", 900),
                                                         Nome(20, 55, "VICOLO", 900)});
  EXPECT_FALSE(posti[0] || posti[1] || posti[2]);
  EXPECT_TRUE(posti[3] && posti[4]);
  EXPECT_EQ(posti[5], std::nullopt) << "turned upwards it crosses the name, and has no other place";
}

// A heap of names: none covers another or its own point, one that is left out could stand at none of its places, and a name that stands
// twice at one point stands there twice.
TEST(PostiNomi, NelMucchioNessunoCopreUnAltro) {
  std::mt19937 caso(77);
  std::uniform_real_distribution<double> da(0, 600);
  std::vector<std::string> nomi;
  std::vector<Scritta> scritte;
  for (int i = 0; i < 400; ++i) nomi.push_back(std::to_string(i) + "%");
  for (const std::string& nome : nomi) scritte.push_back(Nome(da(caso), da(caso), nome));
  for (std::size_t i = 0; i < nomi.size(); ++i) scritte.push_back(scritte[i]);
  const auto posti = DisponiScritte(scritte);
  std::size_t visti = 0;
  std::size_t spostati = 0;
  for (std::size_t i = 0; i < nomi.size(); ++i) {
    EXPECT_EQ(posti[i], posti[i + nomi.size()]) << nomi[i];
    if (!posti[i]) continue;
    ++visti;
    spostati += *posti[i] != Scarto{} ? 1 : 0;
    const auto& [x, y] = *posti[i];
    EXPECT_FALSE(x < 0 && x + Larga > 0 && y < 0 && y + Alta > 0) << nomi[i] << " on its mark";
    for (std::size_t k = 0; k < i; ++k)
      if (posti[k]) {
        EXPECT_FALSE(SiCoprono(scritte[i], *posti[i], scritte[k], *posti[k])) << nomi[i] << ' ' << nomi[k];
      }
  }
  EXPECT_GT(visti, 200U);
  EXPECT_LT(visti, nomi.size());
  EXPECT_GT(spostati, visti / 4);
}

} // namespace
} // namespace lirmeto::prova
