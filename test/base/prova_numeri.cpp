#include <base/errore.h>
#include <base/numeri.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lirmeto {
namespace {

struct CasoValore {
  const char* testo;
  double valore;
  bool numero; // the whole text is one
};

class ValoreDiTesto : public testing::TestWithParam<CasoValore> {};

TEST_P(ValoreDiTesto, PrefissoPiuLungo) {
  const auto& caso = GetParam();
  EXPECT_DOUBLE_EQ(Valore(caso.testo), caso.valore) << caso.testo;
  EXPECT_EQ(ENumero(caso.testo), caso.numero) << caso.testo;
}

INSTANTIATE_TEST_SUITE_P(
    Grammatica, ValoreDiTesto,
    testing::Values(CasoValore{"", 0, false}, CasoValore{"   ", 0, false}, CasoValore{"8|PF01/0010/G224|", 8, false},
                    CasoValore{"12", 12, true}, CasoValore{"  12  ", 12, true}, CasoValore{"1 2 3", 123, true},
                    CasoValore{"1\t2", 12, true}, CasoValore{" - 4 . 5 ", -4.5, true}, CasoValore{"+7", 7, true},
                    CasoValore{"+-7", 0, false}, CasoValore{".5", 0.5, true}, CasoValore{"5.", 5, true},
                    CasoValore{".", 0, false}, CasoValore{"-", 0, false}, CasoValore{"1.2.3", 1.2, false},
                    CasoValore{"1,5", 1, false}, CasoValore{"1E3", 1000, true}, CasoValore{"1e3", 1000, true},
                    CasoValore{"1D3", 1000, true}, CasoValore{"1d-2", 0.01, true}, CasoValore{"1 E + 2", 100, true},
                    CasoValore{"12E", 12, false}, CasoValore{"12E+", 12, false}, CasoValore{"E5", 0, false},
                    CasoValore{"3EX", 3, false}, CasoValore{"2E1F", 20, false}, CasoValore{"x8", 0, false},
                    CasoValore{"0x10", 0, false}, CasoValore{"inf", 0, false}, CasoValore{"nan", 0, false},
                    CasoValore{"007", 7, true}, CasoValore{"89000=00012", 89000, false}, CasoValore{"1E-400", 0, true},
                    CasoValore{"123456789012345678", 123456789012345678.0, true}));

TEST(Valore, MaiInfinito) {
  EXPECT_EQ(Valore("1E999"), std::numeric_limits<double>::max());
  EXPECT_EQ(Valore("-1E999"), -std::numeric_limits<double>::max());
  EXPECT_EQ(Valore("0." + std::string(400, '0') + "1E5"), 0);
  EXPECT_EQ(Valore(std::string(400, '9') + "E-5"), std::numeric_limits<double>::max());
  EXPECT_EQ(Valore("1E-99999999999999999999"), 0);
  EXPECT_EQ(Valore("0." + std::string(500, '0') + "1"), 0);
  EXPECT_EQ(Valore(std::string(500, '9')), std::numeric_limits<double>::max());
}

struct CasoFormato {
  double valore;
  const char* formato;
  const char* testo;
};

class FormatoImmagine : public testing::TestWithParam<CasoFormato> {};

TEST_P(FormatoImmagine, ScriveCifreRichieste) {
  const auto& caso = GetParam();
  EXPECT_EQ(Formatta(caso.valore, caso.formato), caso.testo) << caso.valore << " in " << caso.formato;
}

INSTANTIATE_TEST_SUITE_P(
    Regole, FormatoImmagine,
    testing::Values(
        // required and optional digits on both sides of the point
        CasoFormato{1.5, "##0.#0#", "1.50"}, CasoFormato{1.505, "##0.#0#", "1.505"}, CasoFormato{1, "##0.#0#", "1.00"},
        CasoFormato{0.5, "####.00", ".50"}, CasoFormato{0, "####.00", ".00"}, CasoFormato{12, "0000", "0012"},
        CasoFormato{5, "0##", "005"}, CasoFormato{0, "##########0", "0"}, CasoFormato{0, "#########", ""},
        CasoFormato{0.4, "#########", ""}, CasoFormato{5, "#.##", "5."}, CasoFormato{12345, "0", "12345"},
        CasoFormato{38.944, "#########0.##0", "38.944"}, CasoFormato{38.9, "#########0.##0", "38.900"},
        // halves away from zero, on the decimal that the surveyor reads and not
        // on the binary below it
        CasoFormato{2.5, "0", "3"}, CasoFormato{3.5, "0", "4"}, CasoFormato{-2.5, "0", "-3"},
        CasoFormato{1.005, "0.00", "1.01"}, CasoFormato{2.675, "0.00", "2.68"}, CasoFormato{0.285, "0.00", "0.29"},
        CasoFormato{-1.005, "0.00", "-1.01"}, CasoFormato{1.0049999, "0.00", "1.00"},
        CasoFormato{999.9995, "0.000", "1000.000"}, CasoFormato{0.1 + 0.2, "0.################", "0.3"},
        CasoFormato{9.5, "#", "10"},
        // no minus sign on a zero
        CasoFormato{-0.001, "0.00", "0.00"}, CasoFormato{-0.0, "0", "0"}, CasoFormato{-0.004, "#.##", "."},
        CasoFormato{-0.005, "0.00", "-0.01"},
        // magnitudes
        CasoFormato{1e15, "0.0", "1000000000000000.0"}, CasoFormato{1e-20, "0.000", "0.000"},
        CasoFormato{123456789.987654321, "#########0.##0", "123456789.988"},
        CasoFormato{4545947.07, "0.000", "4545947.070"}));

TEST(Formatta, RifiutaCioCheNonEUnNumero) {
  for (const double valore : {std::nan(""), HUGE_VAL, -HUGE_VAL}) {
    try {
      (void)Formatta(valore, "0");
      ADD_FAILURE();
    } catch (const Errore& errore) {
      EXPECT_EQ(errore.Numero(), errore::Overflow);
    }
  }
  for (const char* formato : {"0,0", "0.0.0", "x"}) EXPECT_THROW((void)Formatta(1, formato), Errore) << formato;
  EXPECT_EQ(Formatta(1e300, "0").size(), 301U);
}

class TestoDiDouble : public testing::TestWithParam<std::pair<double, const char*>> {};

TEST_P(TestoDiDouble, QuindiciCifre) {
  EXPECT_EQ(TestoPieno(GetParam().first), GetParam().second);
}

INSTANTIATE_TEST_SUITE_P(Forme, TestoDiDouble,
                         testing::Values(std::pair{0.0, "0"}, std::pair{-0.0, "0"}, std::pair{0.5, "0.5"},
                                         std::pair{-0.5, "-0.5"}, std::pair{12.0, "12"}, std::pair{1200.0, "1200"},
                                         std::pair{0.1 + 0.2, "0.3"}, std::pair{1.0 / 3, "0.333333333333333"},
                                         std::pair{2.0 / 3, "0.666666666666667"}, std::pair{1e15, "1000000000000000"},
                                         std::pair{2e15, "2E+15"}, std::pair{1.5e16, "1.5E+16"},
                                         std::pair{1e-5, "0.00001"}, std::pair{2.5e-5, "0.000025"},
                                         std::pair{9e-6, "9E-06"}, std::pair{1.25e-100, "1.25E-100"},
                                         std::pair{-13989.8207246795, "-13989.8207246795"}));

TEST(Valore, RileggeCioCheScriveTestoPieno) {
  for (double valore = 1.234567890123e-12; valore < 1e20; valore *= -37.3) {
    const double riletto = Valore(TestoPieno(valore));
    EXPECT_NEAR(riletto / valore, 1, 1e-14) << TestoPieno(valore);
    if (std::fabs(valore) > 1e18) break;
  }
}

} // namespace
} // namespace lirmeto
