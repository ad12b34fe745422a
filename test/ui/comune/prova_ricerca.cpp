#include <ui/comune/ricerca.h>

#include <gtest/gtest.h>

namespace lirmeto::ui {
namespace {

using Indici = std::vector<std::size_t>;

const ListaRighe righe = {"0|PF01|", "2|pf02|Citt\xE0|", "", "7|CITT\xC0|pfPFpf|"};

struct Caso {
  std::string testo;
  Indici attese;
};

class Ricerca : public testing::TestWithParam<Caso> {};

TEST_P(Ricerca, RigheCheContengono) {
  EXPECT_EQ(RigheCheContengono(righe, GetParam().testo), GetParam().attese);
}

INSTANTIATE_TEST_SUITE_P(Testi, Ricerca,
                         testing::Values(Caso{"pf", {0, 1, 3}}, Caso{"CITT\xC0", {1, 3}}, Caso{"|", {0, 1, 3}},
                                         Caso{"PF03", {}}, Caso{"", {}}, Caso{"pfPFpf| ", {}}));

TEST(Ricerca, PostiNonSovrapposti) {
  using Posti = std::vector<std::pair<std::size_t, std::size_t>>;
  EXPECT_EQ(PostiNellaRiga(righe[3], "pf"), (Posti{{8, 2}, {10, 2}, {12, 2}}));
  EXPECT_EQ(PostiNellaRiga("aaaaa", "AA"), (Posti{{0, 2}, {2, 2}}));
  EXPECT_TRUE(PostiNellaRiga("aaa", "").empty());
}

struct Giro {
  long daRiga;
  std::size_t dopo; // position among the hits 3, 5, 9
  std::size_t prima;
};

class GiroDelleTrovate : public testing::TestWithParam<Giro> {};

TEST_P(GiroDelleTrovate, RicominciaDaCapo) {
  const Indici trovate = {3, 5, 9};
  EXPECT_EQ(TrovataDopo(trovate, GetParam().daRiga), GetParam().dopo);
  EXPECT_EQ(TrovataPrima(trovate, GetParam().daRiga), GetParam().prima);
}

INSTANTIATE_TEST_SUITE_P(Posti, GiroDelleTrovate,
                         testing::Values(Giro{-1, 0, 2}, Giro{0, 0, 2}, Giro{3, 1, 2}, Giro{4, 1, 0}, Giro{5, 2, 0},
                                         Giro{9, 0, 1}, Giro{100, 0, 2}));

} // namespace
} // namespace lirmeto::ui
