// Extracts joined to one, and extracts made auto-assembled.
#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/numeri.h>
#include <base/piano.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/autoallestito.h>
#include <estratti/kr_estratto.h>
#include <estratti/unione_estratti.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Autoallestito = "0|AUTOALLESTITO|0|0|0|0|0|0|0|0|";
const std::string ZeroEstratto = "0|12062026|PD0041877/2026|G224|00123|35,36|PD|PUB|RSSMTN|10000000000017|";
const Righe Dieci = {"7|12|1%|2%|3%|4%|5%|6%|7%|8%|9%|10%|NC|9|9|1|", "7|0|11%|1%|NC|"};

Righe Insieme(const std::vector<Righe>& pezzi) {
  Righe righe;
  for (const auto& pezzo : pezzi) righe.insert(righe.end(), pezzo.begin(), pezzo.end());
  return righe;
}

struct CasoTrasforma {
  std::string nome;
  Righe file;
  Righe tenute; // behind row 0
};

class Trasforma : public testing::TestWithParam<CasoTrasforma> {};

TEST_P(Trasforma, TieneVerticiParticelleEInquadramento) {
  const Righe attese = Insieme({{Autoallestito}, GetParam().tenute});
  EXPECT_EQ(TrasformaInAutoallestito(Testo(GetParam().file)), Testo(attese));
  EXPECT_EQ(TrasformaInAutoallestito(Testo(attese)), Testo(attese)) << "what is so already stays";
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Trasforma,
    testing::Values(CasoTrasforma{"Vuoto", {}, {}}, CasoTrasforma{"SoloRigaZero", {"8|1%|0|0|"}, {}},
                    CasoTrasforma{"PuntiLineeToponimi",
                                  {ZeroEstratto, "8|1%|0|0|", "8|2T|0|0|0|VIA|", "8|3L|1|1|", "8|PF01/1|1|1|",
                                   "7|2|3L|3L|NR|", "7|3|1%|1%|1%|NC|35|35|4|"},
                                  {"8|1%|0|0|", "7|3|1%|1%|1%|NC|35|35|4|"}},
                    CasoTrasforma{"ParticelleConLettera",
                                  {ZeroEstratto, "7|3|1%|1%|1%|NC|P1|P1|4|", "7|3|1%|1%|1%|NC|1l|1l|4|",
                                   "7|3|1%|1%|1%|NC|A|A|4|"},
                                  {"7|3|1%|1%|1%|NC|A|A|4|"}},
                    CasoTrasforma{"LAnelloConLeSueContinuazioni",
                                  {ZeroEstratto, "7|11|1%|1%|1%|1%|1%|1%|1%|1%|1%|1%|NC|P1|P1|4|", "7|0|1%|NC|",
                                   Dieci[0], Dieci[1], "7|3|1%|1%|1%|NC|8|8|4|", "7|0|1%|NT|"},
                                  Dieci},
                    CasoTrasforma{"AltreRighe",
                                  {ZeroEstratto, "6|DISTORSIONE|1.5|", "6|PARTICELLA|35|", "", "6|INQUADRAMENTO|1|2|",
                                   "x INQUADRAMENTO"},
                                  {"6|INQUADRAMENTO|1|2|", "x INQUADRAMENTO"}}),
    [](const auto& caso) { return caso.param.nome; });

// Two squares of ten metres that share a side.
const Righe PuntiA = {"8|1%|0|0|", "8|2%|10|0|", "8|3%|10|10|", "8|4%|0|10|"};
const std::string AnelloA = "7|5|1%|2%|3%|4%|1%|NC|35|35|100|";
const Righe PuntiB = {"8|1%|0|20|", "8|2%|0.0004|10|", "8|3%|10|10.0004|", "8|4%|10|20|"};
const std::string AnelloB = "7|5|1%|2%|3%|4%|1%|NC|36|36|100|";

const Righe Undici = {"8|1%|0|0|", "8|2%|1|0|", "8|3%|2|0|", "8|4%|3|0|",  "8|5%|4|0|", "8|6%|5|0|",
                      "8|7%|6|0|", "8|8%|7|0|", "8|9%|8|0|", "8|10%|9|0|", "8|11%|9|9|"};

struct CasoSomma {
  std::string nome;
  Righe primo;
  Righe secondo;
  Righe somma; // behind row 0
};

class Somma : public testing::TestWithParam<CasoSomma> {};

TEST_P(Somma, UnaSolaNumerazione) {
  const CasoSomma& caso = GetParam();
  EXPECT_EQ(UnisciEstratti(Testo(caso.primo), Testo(caso.secondo)), Testo(Insieme({{Autoallestito}, caso.somma})));
}

INSTANTIATE_TEST_SUITE_P(
    Casi, Somma,
    testing::Values(
        CasoSomma{"LatoInComune", Insieme({{ZeroEstratto}, PuntiA, {AnelloA}}),
                  Insieme({{ZeroEstratto}, PuntiB, {AnelloB}}),
                  Insieme({PuntiA, {"8|5%|0|20|", "8|6%|10|20|", AnelloA, "7|5|5%|4%|3%|6%|5%|NC|36|36|100|"}})},
        CasoSomma{"DueMillimetriDuePunti",
                  {ZeroEstratto, "8|1%|0|0|"},
                  {ZeroEstratto, "8|1%|0|0.002|", "8|2%|0.0009|0|"},
                  {"8|1%|0|0|", "8|2%|0|0.002|"}},
        CasoSomma{"UnMillimetroEsattoDuePunti",
                  {ZeroEstratto, "8|1%|0|0|"},
                  {ZeroEstratto, "8|1%|0|0.001|"},
                  {"8|1%|0|0|", "8|2%|0|0.001|"}},
        CasoSomma{"ConSeStesso", Insieme({{ZeroEstratto}, Undici, {AnelloA}, Dieci}),
                  Insieme({{ZeroEstratto}, Undici, {AnelloA}, Dieci}), Insieme({Undici, {AnelloA}, Dieci})},
        CasoSomma{"UgualiSoloConLeContinuazioni", Insieme({Undici, Dieci}),
                  Insieme({Undici, {Dieci[0], "7|0|2%|1%|NC|"}}),
                  Insieme({Undici, Dieci, {Dieci[0], "7|0|2%|1%|NC|"}})},
        CasoSomma{"SuperficieDiversaAltroAnello", Insieme({PuntiA, {AnelloA}}),
                  Insieme({PuntiA, {"7|5|1%|2%|3%|4%|1%|NC|35|35|99|"}}),
                  Insieme({PuntiA, {AnelloA, "7|5|1%|2%|3%|4%|1%|NC|35|35|99|"}})},
        CasoSomma{"LAltroNonSopravvive",
                  {ZeroEstratto, "8|1%|0|0|", "8|2T|1|1|0|SCONTO 50%|", "8|PF01|2|2|", "7|2|1%|1%|NC|T|T|1|",
                   "6|DISTORSIONE|1|"},
                  {ZeroEstratto, "8|3L|1|1|", "7|2|3L|3L|NR|", "7|11|1%|NC|P|P|1|", "7|0|1%|NC|", "7|1|1%|NC|t|t|1|"},
                  {"8|1%|0|0|", "7|1|2%|NC|t|t|1|"}},
        CasoSomma{"IlGenereNonSiRinumera",
                  {ZeroEstratto, "8|1%|0|0|"},
                  {ZeroEstratto, "8|1%|5|5|", "7%|1|1%|NC|1|1|1|"},
                  {"8|1%|0|0|", "8|2%|5|5|", "7%|1|2%|NC|1|1|1|"}},
        CasoSomma{"SenzaPunti", {}, {ZeroEstratto, "7|2|1%|9%|NC|1|1|1|"}, {"7|2|1%|9%|NC|1|1|1|"}},
        CasoSomma{"NumeriConBuchi",
                  {"8|5%|0|0|", "8|9%|5|5|", "7|2|5%|9%|NC|1|1|1|"},
                  {"8|2%|5|5|", "8|7%|8|8|", "7|2|2%|7%|NC|2|2|1|"},
                  {"8|1%|0|0|", "8|2%|5|5|", "8|3%|8|8|", "7|2|1%|2%|NC|1|1|1|", "7|2|2%|3%|NC|2|2|1|"}}),
    [](const auto& caso) { return caso.param.nome; });

TEST(Somma, UnVerticeSenzaCoordinateSiRifiuta) {
  EXPECT_THROW((void)UnisciEstratti("8|1%|5\r\n", ""), Errore);
  EXPECT_THROW((void)UnisciEstratti("", "8|1%|\r\n"), Errore);
}

// --- extracts made by chance against the sum as it is told, row by row, at any cost

void TraBarre(std::string& riga, const std::string& vecchio, const std::string& nuovo) {
  std::vector<std::string_view> campi = Dividi(riga, "|");
  for (std::size_t i = 1; i + 1 < campi.size(); ++i)
    if (campi[i] == vecchio) campi[i] = nuovo;
  riga = Unisci(campi, "|");
}

struct Liste {
  Righe otto;
  Righe sette; // one row a ring here
};

Liste Leggi(const Righe& righe) {
  Liste liste;
  for (const auto& riga : righe) {
    if (riga.starts_with("8|") && riga.find('%') != std::string::npos) liste.otto.push_back(riga);
    if (riga.starts_with("7|") && riga.find_first_of("TLP") == std::string::npos) liste.sette.push_back(riga);
  }
  return liste;
}

double Metri(const std::string& riga, std::size_t campo) {
  return Valore(Parte(riga, '|', campo));
}

void SpostaRiga(std::string& riga, double n) {
  Righe nuovi;
  std::vector<std::string_view> campi = Dividi(riga, "|");
  nuovi.reserve(campi.size());
  for (auto& campo : campi)
    if (campo.ends_with('%')) campo = nuovi.emplace_back(TestoPieno(Valore(campo) + n) + "%");
  riga = Unisci(campi, "|");
}

std::string ComeSiRacconta(const Righe& primo, const Righe& secondo) {
  Liste uno = Leggi(primo);
  Liste due = Leggi(secondo);
  const double n = uno.otto.empty() ? 0 : Valore(uno.otto.back().substr(2));
  for (auto* lista : {&due.otto, &due.sette})
    for (auto& riga : *lista) SpostaRiga(riga, n);
  for (const auto& a : uno.otto)
    for (auto& b : due.otto) {
      if (b.empty() || DistanzaPiana({Metri(a, 3), Metri(a, 2)}, {Metri(b, 3), Metri(b, 2)}) >= 0.001) continue;
      for (auto& riga : due.sette) TraBarre(riga, std::string(Parte(b, '|', 1)), std::string(Parte(a, '|', 1)));
      b.clear();
    }
  for (const auto& b : due.otto)
    if (!b.empty()) uno.otto.push_back(b);
  const Righe prima = uno.sette;
  for (const auto& riga : due.sette)
    if (std::find(prima.begin(), prima.end(), riga) == prima.end()) uno.sette.push_back(riga);
  for (std::size_t i = 0; i < uno.otto.size(); ++i) {
    const std::string vecchio(Parte(uno.otto[i], '|', 1));
    for (auto& riga : uno.sette) TraBarre(riga, vecchio, std::to_string(i + 1) + "%");
    uno.otto[i] = "8|" + std::to_string(i + 1) + "%" + uno.otto[i].substr(2 + vecchio.size());
  }
  return Testo(Insieme({{Autoallestito}, uno.otto, uno.sette}));
}

// Few places a fraction of a millimetre apart, names out of order or missing, repeated too.
Righe EstrattoCasuale(std::mt19937& caso, bool inOrdine) {
  Righe righe = {ZeroEstratto};
  const std::size_t punti = caso() % 12;
  for (std::size_t i = 1; i <= punti; ++i)
    righe.push_back("8|" + std::to_string(inOrdine ? i : 1 + caso() % 15) + "%|" + std::to_string(caso() % 3) + ".000" +
                    std::to_string(caso() % 10) + "|" + std::to_string(caso() % 2) + "|");
  for (unsigned i = 0; i < caso() % 6; ++i) {
    std::string riga = "7|3";
    for (int k = 0; k < 3; ++k) riga += "|" + std::to_string(1 + caso() % 15) + "%";
    righe.push_back(riga + "|NC|" + std::to_string(caso() % 3) + "|1|1|");
  }
  return righe;
}

TEST(SommaGenerata, ComeRigaPerRiga) {
  std::mt19937 caso(3);
  for (int giro = 0; giro < 400; ++giro) {
    const Righe primo = EstrattoCasuale(caso, giro % 2 == 0);
    const Righe secondo = EstrattoCasuale(caso, giro % 3 == 0);
    ASSERT_EQ(UnisciEstratti(Testo(primo), Testo(secondo)), ComeSiRacconta(primo, secondo))
        << Testo(primo) << Testo(secondo);
  }
}

std::multiset<std::string> Posti(const std::string& somma) {
  std::multiset<std::string> posti;
  for (const auto riga : RigheDi(somma))
    if (riga.starts_with("8|")) posti.emplace(riga.substr(riga.find('|', 2)));
  return posti;
}

TEST(SommaGenerata, NeiDueVersiGliStessiPunti) {
  std::mt19937 caso(5);
  for (int giro = 0; giro < 50; ++giro) {
    Righe a = {ZeroEstratto};
    Righe b = {ZeroEstratto};
    for (unsigned i = 1; i < 30; ++i) { // a metre apart at least: what is common is the very same
      a.push_back("8|" + std::to_string(i) + "%|" + std::to_string(i) + "|" + std::to_string(caso() % 4) + "|");
      b.push_back("8|" + std::to_string(i) + "%|" + std::to_string(i) + "|" + std::to_string(caso() % 4) + "|");
    }
    EXPECT_EQ(Posti(UnisciEstratti(Testo(a), Testo(b))), Posti(UnisciEstratti(Testo(b), Testo(a))));
  }
}

} // namespace
} // namespace lirmeto
