#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/testo.h>
#include <core/riga.h>
#include <fiduciali/misurate_pf.h>
#include <fiduciali/relazioni_pf.h>

#include <gtest/gtest.h>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Dati = "C:\\fiducial\\DATI\\";
const std::string Testata = "PF1              PF2                  Distanza     SQM     Anno Prot.       Diff.";

std::string LineaTaf(const std::string& numero, const std::string& nord, const std::string& est) {
  std::string linea(130, ' ');
  linea.replace(0, 4, "G224").replace(7, 3, "001").replace(11, 1, "0").replace(15, 2, numero);
  return linea.replace(102, nord.size(), nord).replace(115, est.size(), est);
}

struct ConArchivi {
  ConArchivi() {
    banco.disco.Metti(Dati + "G224.taf", LineaTaf("01", "0", "0") + "\r\n" + LineaTaf("02", "3", "4") + "\r\n" +
                                             LineaTaf("02", "9", "9") + "\r\n");
    banco.disco.Metti(Dati + "PD2024.DDD", "");
  }
  [[nodiscard]] std::string DelLibretto(const Righe& nomi) {
    banco.sessione.Libretto = "0|8|\r\n8\r\n2|PF09/0010/G224|1|\r\n";
    for (const std::string& nome : nomi) banco.sessione.Libretto += "8|" + nome + "|1|2|\r\n";
    return MisurateDelLibretto(banco.ambiente).value_or("-");
  }
  Banco banco;
};

struct Misurate : testing::Test, ConArchivi {};

TEST_F(Misurate, DelDisegnoCoppiaPerCoppia) {
  banco.disco.Metti(Dati + "PD2024.DDD",
                    "PF02/0010/G224 - PF01/0010/G224         5.020, 0,01      2019 12\r\n" // in the other order
                    "PF01/0010/G224 - PF03/0010/G224       7\r\n"
                    "PF01/0010/G224 PF02/0010/G224\r\n" // shorter than the pair that takes its place
                    "xPF01/0010/G224yPF02/0010/G224z        4.000 km");
  const std::vector<PuntoMisurato> punti = {
      {"PF02/0010/G224", 4.01, 3}, {"PF01/0010/G22", 8, 8}, {"pf01/0010/g224", 0, 0},
      {"PF01/0010/G224", 7, 7},    {"100", 1, 1},           {"pf01/0010/Padova", 1, 1},
      {"PF03/0010/G224", 0, -2}};
  const std::string uno = "PF01/0010/G224 - PF02/0010/G224 ";
  EXPECT_EQ(
      MisurateDelDisegno(banco.ambiente, punti).value_or(""),
      Testo({"Elenco Distanze Misurate Trovate", " ", Testata, uno + "        5.008               (REALE)",
             uno + "        5.000               ( TAF )         0.008",
             uno + "        5.020. 0.01      2019 12    -0.012", uno + "     5.008", uno + "       4.000 km     1.008",
             std::string(32, ' ') + "        3.007               ( Media )    ", " ", Testata,
             "PF01/0010/G224 - PF03/0010/G224         2.000               (REALE)",
             "PF01/0010/G224 - PF03/0010/G224       7    -5.000",
             std::string(32, ' ') + "        7.000               ( Media )    ", " ", Testata,
             "PF02/0010/G224 - PF03/0010/G224         6.409               (REALE)"}));
  ASSERT_EQ(banco.dialoghi.detti.size(), 2U);
  EXPECT_EQ(banco.dialoghi.detti[0].testo, "Trovato PF con C.F. Catastale \r\nSCARTATO!\r\nPF01/0010/PADOVA");
  EXPECT_EQ(banco.dialoghi.detti[1].titolo, "PF Non trovato");
  EXPECT_EQ(banco.dialoghi.detti[1].testo, "Il PF03/0010/G224\r\n Non \xE8 stato trovato nella TAF!");
}

// Twice the same, in small letters, trimmed, with "@": one point for the TAF, two for the pairs.
TEST_F(Misurate, DelLibrettoValgonoZero) {
  banco.disco.Metti(Dati + "PD2024.DDD", "PF02/0010/G224@ ,PF02/0010/G224         0.0\r\n");
  EXPECT_EQ(DelLibretto({" pf02/0010/G224 ", "PF02/0010/G224@", "PF02/0010/g224", "P.F.", "100"}),
            Testo({"Elenco Distanze Misurate Trovate", " ", Testata,
                   "PF02/0010/G224 - PF02/0010/G224@        0.000               (REALE)",
                   "PF02/0010/G224 - PF02/0010/G224@        0.000               ( TAF )         0.000",
                   "PF02/0010/G224 - PF02/0010/G224@        0.0     0.000"}));
  EXPECT_EQ(DelLibretto({"PF01/0010/G224"}), "Elenco Distanze Misurate Trovate\r\n");
  EXPECT_TRUE(banco.dialoghi.detti.empty());
}

// Lines of an archive as they may come, and what the pair PF01 - PF02 shows of each: the TAF's distance is 5.
struct CasoRiga {
  std::string riga;
  std::string mostrata; // behind the pair; empty: the line is none of the pair's
  std::string media;    // empty: none
};

class RigheDellArchivio : public testing::TestWithParam<CasoRiga> {};

TEST_P(RigheDellArchivio, SiMostranoConLaDifferenza) {
  ConArchivi con;
  con.banco.disco.Metti(Dati + "PD2024.DDD", GetParam().riga);
  const std::string testo = con.DelLibretto({"PF01/0010/G224", "PF02/0010/G224"});
  const std::string dopoTaf = testo.substr(testo.find("( TAF )"));
  std::string attesa = "( TAF )        -5.000\r\n";
  if (!GetParam().mostrata.empty()) attesa += "PF01/0010/G224 - PF02/0010/G224 " + GetParam().mostrata + "\r\n";
  if (!GetParam().media.empty()) attesa += std::string(32, ' ') + GetParam().media + "               ( Media )    \r\n";
  EXPECT_EQ(dopoTaf, attesa);
}

const std::string Coppia = "PF01/0010/G224 - PF02/0010/G224 ";
const std::string Stelle(33 - Coppia.size(), '*'); // up to column 33

INSTANTIATE_TEST_SUITE_P(
    Casi, RigheDellArchivio,
    testing::Values(CasoRiga{"", "", ""}, CasoRiga{"PF01/0010/G224 - PF03/0010/G224      7.0", "", ""},
                    CasoRiga{Coppia + Stelle + "7.5 x", Stelle + "7.5 x    -7.500", "        7.500"},
                    CasoRiga{Coppia + Stelle + "abc", Stelle + "abc     0.000", ""},
                    CasoRiga{Coppia + Stelle + "-3", Stelle + "-3     3.000", ""},
                    CasoRiga{Coppia + Stelle + "1e3", Stelle + "1e3 -1000.000", "     1000.000"},
                    CasoRiga{Coppia + Stelle + "12345678901", Stelle + "12345678901678901.000", "345678901.000"},
                    CasoRiga{"PF02/0010/G224PF01/0010/G224", "     0.000", ""},
                    CasoRiga{std::string("\0\xFF", 2) + Coppia + "8.25", "4 8.25    -8.250", "        8.250"},
                    CasoRiga{"pf01/0010/g224 - PF02/0010/G224      7.0", "", ""}));

TEST_F(Misurate, UnNomeLungoSiTagliaNelResoconto) {
  const std::string lungo = "PF03/0010/G224/UN NOME DI PIU DI TRENTA";
  EXPECT_TRUE(Contiene(DelLibretto({"PF01/0010/G224", lungo}), "PF01/0010/G224 - PF03/0010/G224/        0.000"));
}

TEST_F(Misurate, SiApronoConIlPostoDegliElenchi) {
  banco.sessione.Libretto = "8|PF01/0010/G224|\r\n";
  CalcolaMisuratePF_DaLibretto(banco.ambiente);
  EXPECT_EQ(banco.processi.aperti, (Righe{"C:\\Program Files (x86)\\Gondella\\temp\\Misurate.TXT"}));
}

struct CasoFermo {
  std::size_t punti;
  std::string primo; // name in front of all others
  std::string detto;
};

class Fermi : public testing::TestWithParam<CasoFermo> {};

TEST_P(Fermi, SiDiceENonSiCalcola) {
  ConArchivi con;
  Righe nomi;
  for (std::size_t i = 0; i < GetParam().punti; ++i) nomi.push_back("PF" + std::to_string(10 + i) + "/0010/G224");
  if (!GetParam().primo.empty()) nomi.push_back(GetParam().primo);
  const bool fermo = con.DelLibretto(nomi) == "-";
  const auto& detti = con.banco.dialoghi.detti;
  EXPECT_EQ(fermo, !GetParam().detto.empty());
  if (fermo) {
    ASSERT_EQ(detti.size(), 1U) << "the only output";
    EXPECT_EQ(detti[0].titolo + "/" + detti[0].testo, GetParam().detto);
  }
  EXPECT_TRUE(con.banco.processi.avviati.empty()) << "the answer was No";
}

const std::string Manca = "Archivio Misurate/Archivio C:\\fiducial\\DATI\\";

INSTANTIATE_TEST_SUITE_P(
    Casi, Fermi,
    testing::Values(CasoFermo{0, "", "MISURATE PF/Nessun PF trovato nel libretto"}, CasoFermo{50, "", ""},
                    CasoFermo{51, "", "Problema !!/Troppi PF da elaborare"}, CasoFermo{2, "PF01/0010/G224@", ""},
                    CasoFermo{2, "PF01/0010/Z999", Manca + "\r\n Non installato. Scaricare Archivio?"},
                    CasoFermo{2, "PF01/0010/L736", Manca + "VE\r\n Non installato. Scaricare Archivio?"}));

TEST_F(Misurate, UnPrimoNomeSenzaComuneEUnErrore) {
  for (const std::string nome : {"PF", "PF0", "PF01/0010"})
    EXPECT_THROW((void)DelLibretto({nome, "PF50/0010/G224"}), Errore) << nome;
}

TEST_F(Misurate, SenzaArchivioSiDiceOSiScarica) {
  const std::vector<PuntoMisurato> punti = {{"PF01/0010/L7360", 0, 0}};
  EXPECT_FALSE(MisurateDelDisegno(banco.ambiente, punti));
  EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Archivio C:\\fiducial\\DATI\\\r\n Non installato. Provvedere e ritentare!");
  banco.dialoghi.risposte = {Risposta::Si};
  EXPECT_EQ(DelLibretto({"PF01/0010/L736"}), "-");
  EXPECT_EQ(banco.processi.avviati.size(), 1U);
}

// What one walk over the archive gives for all pairs is what a search for each pair would.
TEST(RelazioniPF, SonoQuelleDiUnaRicercaPerCoppia) {
  const Righe nomi = {"PF", "PF0", "PF01", "PF01/", "PF01/0010/G224", "PF01/0010/G2245", "PF\xFF\xFF/1", "PFPF01"};
  std::string testo;
  unsigned seme = 7;
  for (int riga = 0; riga < 400; ++riga) {
    for (int pezzo = 0; pezzo < 4; ++pezzo) {
      seme = seme * 1664525U + 1013904223U;
      const std::string& nome = nomi[(seme >> 16U) % nomi.size()];
      testo +=
          nome.substr(0, (seme >> 24U) % 2 == 0 ? nome.size() : nome.size() / 2) + ((seme & 4096U) != 0 ? "P" : " ");
    }
    testo += "\r\n";
  }
  prova::DialoghiDiProva dialoghi;
  const RelazioniPF relazioni(dialoghi, nomi, testo);
  for (std::size_t i = 0; i < nomi.size(); ++i)
    for (std::size_t j = i + 1; j < nomi.size(); ++j) {
      std::vector<std::string_view> attese;
      for (const auto riga : RigheDi(testo))
        if (Contiene(riga, nomi[i]) && Contiene(riga, nomi[j])) attese.push_back(riga);
      EXPECT_EQ(relazioni.Righe(i, j), attese) << nomi[i] << " " << nomi[j];
    }
}

TEST(RelazioniPF, UnArchivioCheRipeteTroppoEUnErrore) {
  Righe nomi;
  for (int i = 10; i < 60; ++i) nomi.push_back("PF" + std::to_string(i));
  std::string riga;
  for (const std::string& nome : nomi) riga += nome;
  std::string testo;
  for (int i = 0; i < 1000; ++i) testo += riga + "\r\n";
  prova::DialoghiDiProva dialoghi;
  EXPECT_THROW(RelazioniPF(dialoghi, nomi, testo), Errore);
}

} // namespace
} // namespace lirmeto
