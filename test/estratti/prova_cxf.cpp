// Whole sheets: what their extract says, and what is refused.
#include "sostituti/banco.h"

#include <base/errore.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/da_cxf.h>
#include <estratti/kr_estratto.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace lirmeto {
namespace {

using prova::Banco;
using prova::Testo;
using Righe = std::vector<std::string>;

const std::string Foglio = "C:\\pregeo\\estratti\\G224_001200.CXF";
const std::string Testata = "0|12032018|PD0012345/2018|G224|00042|101,102,103|PD|PUB|ROSMRA|10000000000017|";

// A border in a line for its head; a vertex is "E N".
std::string Bordo(const std::string& codice, const std::string& conteggi, const Righe& vertici) {
  std::string testo = "BORDO\r\n" + codice + ",10,0.0,1,2,3,4," + conteggi + "\r\n";
  for (const auto& vertice : vertici) testo += Sostituisci(vertice, " ", "\r\n") + "\r\n";
  return testo;
}

std::string Mappa(const std::string& bordi) {
  return "MAPPA\r\nG224_001200\r\n2000\r\n" + bordi + "EOF\r\n";
}

const std::string Quadrato = Bordo("272", "0,5", {"0 0", "0 10", "10 10", "10 0", "0 0"});

struct CasoFoglio {
  std::string nome;
  std::string foglio;
  std::string sup;
  Righe punti;
  Righe anelli;
  std::string ultimo; // east and north of the framing
};

class DaCxf : public testing::TestWithParam<CasoFoglio> {};

TEST_P(DaCxf, ScriveLEstratto) {
  const CasoFoglio& caso = GetParam();
  Banco banco;
  banco.disco.Metti(Foglio, caso.foglio);
  if (!caso.sup.empty()) banco.disco.Metti("C:\\pregeo\\estratti\\G224_001200.sup", caso.sup);
  Righe attese = {Testata};
  attese.insert(attese.end(), caso.punti.begin(), caso.punti.end());
  attese.insert(attese.end(), caso.anelli.begin(), caso.anelli.end());
  for (const std::string& riga : {std::string("6|DISTORSIONE|1.5|"), std::string("6|SCALAORIGINARIA|2000|"),
                                  "6|INQUADRAMENTO|" + caso.ultimo + "|0.1693333333|0|0|0|"})
    attese.push_back(riga);
  EXPECT_EQ(EmpDaCxf(banco.ambiente, Foglio), Testo(attese));
  EXPECT_EQ(banco.dialoghi.detti.empty(), !caso.sup.empty());
}

const Righe PuntiQuadrato = {"8|1%|0|0|", "8|2%|10|0|", "8|3%|0|10|", "8|4%|10|10|"};
const std::string AnelloQuadrato = "7|5|1%|2%|4%|3%|1%|NC|";

INSTANTIATE_TEST_SUITE_P(
    Casi, DaCxf,
    testing::Values(
        CasoFoglio{"SenzaSup", Mappa(Quadrato), "", PuntiQuadrato, {AnelloQuadrato + "272|272|20|"}, "10|10"},
        CasoFoglio{"ConSup",
                   Mappa(Quadrato),
                   "T\r\n272        12\r\n",
                   PuntiQuadrato,
                   {AnelloQuadrato + "272|272|12|"},
                   "10|10"},
        CasoFoglio{"LaPrimaRigaCheCominciaCosi",
                   Mappa(Quadrato),
                   "272      1\n2720     77\n272      12\n",
                   PuntiQuadrato,
                   {AnelloQuadrato + "272|272|77|"},
                   "10|10"},
        CasoFoglio{"SupCorteEZeri",
                   Mappa(Quadrato + Bordo("A", "0,1", {"0 0"})),
                   "T\r\n272\r\nA         0\r\n",
                   PuntiQuadrato,
                   {AnelloQuadrato + "272|272|20|", "7|1|1%|NC|A|A|20|"},
                   "10|10"},
        CasoFoglio{"NessunaSuperficieDalPrecedente",
                   Mappa(Quadrato + Bordo("B", "0,1", {"0 0"})),
                   "T\n272      500\n",
                   PuntiQuadrato,
                   {AnelloQuadrato + "272|272|500|", "7|1|1%|NC|B|B|20|"},
                   "10|10"},
        CasoFoglio{"RigheLfEBianchiDavanti",
                   Sostituisci(Mappa("BORDO\r\n  272\r\n\r\n\r\n0\r\n0\r\n\"a,b\"x\r\n0\r\n"
                                     "   0\r\n   2\r\n  1.50\r\n -2\r\n1.50\r\n -2\r\n"),
                               "\r", ""),
                   "T",
                   {"8|1%| -2|  1.50|", "8|2%| -2|1.50|"},
                   {"7|2|1%|2%|NC|272|272|20|"},
                   "1.50| -2"},
        CasoFoglio{"ZeriInFondoDuePunti",
                   Mappa(Bordo("9", "0,2", {"1.0 1", "1.00 1"})),
                   "T",
                   {"8|1%|1|1.00|", "8|2%|1|1.0|"},
                   {"7|2|2%|1%|NC|9|9|20|"},
                   "1.0|1"},
        CasoFoglio{"IsoleConIlConteggioAttaccato",
                   Mappa(Bordo("7", "2,6,2\r\n1", {"1 1", "2 2", "3 3", "1 1", "5 5", "4 4"})),
                   "T",
                   {"8|1%|1|1|", "8|2%|2|2|", "8|3%|3|3|", "8|4%|4|4|", "8|5%|5|5|"},
                   {"7|3|1%|2%|3%2|1%|5%1|4%|NC|7|7|20|"},
                   "5|5"},
        CasoFoglio{
            "AltreSezioniEUnBordoTraVirgolette",
            Mappa("TESTO\r\nBORDO VIA\r\n10\r\nLINEA\r\n1,2\r\nSIMBOLO,\"BORDO\",X,1,0,0,0,0,0,0,1\r\n1\r\n1\r\n"),
            "T",
            {"8|1%|1|1|"},
            {"7|1|1%|NC|X|X|20|"},
            "1|1"}),
    [](const auto& caso) { return caso.param.nome; });

struct CasoRotto {
  std::string foglio;
  int errore;
  std::string detto; // part of the description
};

class CxfRifiutato : public testing::TestWithParam<CasoRotto> {};

TEST_P(CxfRifiutato, EIlDiscoRestaComEra) {
  const CasoRotto& caso = GetParam();
  Banco banco;
  banco.disco.Metti(Foglio, caso.foglio);
  banco.disco.Metti("C:\\pregeo\\estratti\\G224_001200.EMP", "lavoro");
  banco.dialoghi.fileScelto = Foglio;
  DaCXFaEMP(banco.ambiente);
  EXPECT_EQ(banco.sessione.NumeroErrore, caso.errore);
  EXPECT_TRUE(Contiene(banco.dialoghi.UltimoTesto(), caso.detto)) << banco.dialoghi.UltimoTesto();
  EXPECT_EQ(banco.disco.Contenuto("C:\\pregeo\\estratti\\G224_001200.EMP"), "lavoro");
  EXPECT_FALSE(banco.disco.Esiste("C:\\pregeo\\estratti\\G224_001200.PNG"));
}

INSTANTIATE_TEST_SUITE_P(
    Casi, CxfRifiutato,
    testing::Values(CasoRotto{"", errore::OltreLaFine, "troppo presto"},
                    CasoRotto{"MAPPA\r\nX\r\n", errore::OltreLaFine, "troppo presto"},
                    CasoRotto{Mappa(""), errore::TipoNonCorrispondente, "alcun BORDO"},
                    CasoRotto{"A\nB\nC\n" + Quadrato.substr(0, Quadrato.size() - 9), errore::OltreLaFine, "troppo"},
                    CasoRotto{Mappa(Bordo("", "0,1", {"1 1"})), errore::TipoNonCorrispondente, "codice"},
                    CasoRotto{Mappa(Bordo("1|2", "0,1", {"1 1"})), errore::TipoNonCorrispondente, "Riga 5 "},
                    CasoRotto{Mappa(Bordo("1", "-1,1", {"1 1"})), errore::TipoNonCorrispondente, "\"-1\""},
                    CasoRotto{Mappa(Bordo("1", "0,-5", {"1 1"})), errore::TipoNonCorrispondente, "\"-5\""},
                    CasoRotto{Mappa(Bordo("1", "0,0", {"1 1"})), errore::TipoNonCorrispondente, "conteggio"},
                    CasoRotto{Mappa(Bordo("1", "0,due", {"1 1"})), errore::TipoNonCorrispondente, "\"due\""},
                    CasoRotto{Mappa(Bordo("1", "0,1000000000", {"1 1"})), errore::TipoNonCorrispondente, "\"EOF\""},
                    CasoRotto{"A\nB\nC\nBORDO\n1,0,0,0,0,0,0,1000000000,3", errore::OltreLaFine, "troppo presto"},
                    CasoRotto{Mappa(Bordo("1", "1,3,3", {"1 1", "1 1", "1 1"})), errore::TipoNonCorrispondente,
                              "isole"},
                    CasoRotto{Mappa(Bordo("1", "1,90000,40000", {"1 1"})), errore::TipoNonCorrispondente, "40000"},
                    CasoRotto{Mappa(Bordo("1", "0,1", {"1 x|2"})), errore::TipoNonCorrispondente, "coordinata"}));

TEST(DaCxfAEmp, IlComandoScriveAccantoENonToccaUnRasterVero) {
  for (const bool conRaster : {false, true}) {
    Banco banco;
    banco.disco.cartelle.emplace_back("C:\\DATI");
    banco.disco.Metti("C:\\dati\\foglio.cxf", Mappa(Quadrato));
    if (conRaster) banco.disco.Metti("C:\\dati\\foglio.png", "vero");
    banco.dialoghi.fileScelto = "C:\\dati\\foglio.cxf";
    DaCXFaEMP(banco.ambiente);
    EXPECT_TRUE(banco.disco.Contenuto("C:\\DATI\\FOGLIO.EMP").starts_with(Testata));
    EXPECT_EQ(banco.disco.Contenuto("C:\\DATI\\FOGLIO.PNG"), conRaster ? "vero" : "filevuoto");
    ASSERT_EQ(banco.dialoghi.detti.size(), 3U) << "the choice of the file first";
    EXPECT_EQ(AUtf8(banco.dialoghi.detti[1].testo), "FILE C:\\DATI\\FOGLIO.SUP\r\n\r\nNON TROVATO!\r\n\r\n"
                                                    " Sarà impossibile attribuire le superfici alle particelle!");
    EXPECT_EQ(banco.dialoghi.UltimoTesto(), "Creato!\r\nC:\\DATI\\FOGLIO.EMP");
  }
}

TEST(DaCxfAEmp, SplittaSetteADieciADieci) {
  const auto identificativi = [](int quanti) {
    std::string testo = "7|" + std::to_string(quanti);
    for (int i = 1; i <= quanti; ++i) testo += "|" + std::to_string(i) + "%";
    return testo;
  };
  const std::string dieci = "7|10|1%|2%|3%|4%|5%|6%|7%|8%|9%|10%|NC|A|A|5|";
  const std::string secondi = "7|0|11%|12%|13%|14%|15%|16%|17%|18%|19%|20%|NC|";
  const auto capo = [&](const std::string& quanti) { return "7|" + quanti + dieci.substr(4); };
  EXPECT_EQ(SplittaSette(identificativi(2), "A|A|5|"), "7|2|1%|2%|NC|A|A|5|");
  EXPECT_EQ(SplittaSette(identificativi(10), "A|A|5|"), dieci);
  EXPECT_EQ(SplittaSette(identificativi(11), "A|A|5|"), capo("11") + "\r\n7|0|11%|NC|");
  EXPECT_EQ(SplittaSette(identificativi(20), "A|A|5|"), capo("20") + "\r\n" + secondi);
  EXPECT_EQ(SplittaSette(identificativi(21), "A|A|5|"), capo("21") + "\r\n" + secondi + "\r\n7|0|21%|NC|");
}

// --- sheets made by chance against the conversion as it is told, list after list, at any cost

struct FoglioCasuale {
  std::string testo;
  Righe List1; // ">" and code, counts, "|east|north|"
};

FoglioCasuale Casuale(std::mt19937& caso) {
  FoglioCasuale foglio;
  for (unsigned bordo = 0; bordo < 1 + caso() % 8; ++bordo) {
    const std::size_t isole = caso() % 3;
    std::vector<std::size_t> anelli = {1 + caso() % 25};
    std::size_t tutti = anelli[0];
    for (std::size_t i = 0; i < isole; ++i) tutti += anelli.emplace_back(1 + caso() % 12);
    std::string conteggi = std::to_string(isole) + "," + std::to_string(tutti);
    for (std::size_t i = 1; i < anelli.size(); ++i) conteggi += "\r\n  " + std::to_string(anelli[i]);
    foglio.List1.push_back(">" + std::to_string(bordo));
    Righe vertici;
    for (const std::size_t quanti : anelli) {
      foglio.List1.push_back(std::to_string(quanti));
      for (std::size_t i = 0; i < quanti; ++i) {
        const std::string est = std::to_string(static_cast<int>(caso() % 21) - 10);
        const std::string nord = std::to_string(caso() % 12) + (caso() % 4 == 0 ? ".0" : "");
        vertici.push_back(est + " " + nord);
        foglio.List1.push_back("|" + est + "|" + nord + "|");
      }
    }
    foglio.testo += Bordo(std::to_string(bordo), conteggi, vertici);
  }
  foglio.testo = Mappa(foglio.testo);
  return foglio;
}

std::string ComeSiRacconta(Righe list1) {
  Righe ordinato;
  for (const auto& riga : list1)
    if (riga.starts_with('|')) ordinato.push_back(riga);
  std::sort(ordinato.begin(), ordinato.end());
  for (std::size_t i = ordinato.size() - 1; i > 0; --i)
    if (ordinato[i] == ordinato[i - 1]) ordinato.erase(ordinato.begin() + static_cast<std::ptrdiff_t>(i));
  for (std::size_t i = 0; i < ordinato.size(); ++i) ordinato[i] = std::to_string(i + 1) + "%" + ordinato[i];
  for (auto& riga : list1) {
    if (!riga.starts_with('|')) continue;
    for (const auto& vertice : ordinato) {
      if (vertice.find(riga) == std::string::npos) continue;
      riga = vertice.substr(0, vertice.find('|'));
      break;
    }
  }
  std::string uscita = Testata + "\r\n";
  for (const auto& vertice : ordinato)
    uscita.append("8|")
        .append(Parte(vertice, '|', 0))
        .append("|")
        .append(Parte(vertice, '|', 2))
        .append("|")
        .append(Parte(vertice, '|', 1)) += "|\r\n";
  std::string nome = list1[0].substr(1);
  std::string testo = "7|" + list1[1];
  const auto fuori = [&] { uscita += SplittaSette(testo, nome + "|" + nome + "|20|") + "\r\n"; };
  for (std::size_t i = 2; i < list1.size(); ++i) {
    if (list1[i].find('%') != std::string::npos) {
      testo += "|" + list1[i];
    } else if (list1[i].find('>') != std::string::npos) {
      fuori();
      testo = "7|";
      nome = list1[i].substr(1);
    } else {
      testo += list1[i];
    }
  }
  fuori();
  const std::string& ultimo = ordinato.back();
  return uscita + "6|DISTORSIONE|1.5|\r\n6|SCALAORIGINARIA|2000|\r\n6|INQUADRAMENTO|" +
         std::string(Parte(ultimo, '|', 1)) + "|" + std::string(Parte(ultimo, '|', 2)) + "|0.1693333333|0|0|0|\r\n";
}

TEST(DaCxfAEmp, ComeLaRicercaRigaPerRiga) {
  std::mt19937 caso(7);
  for (int giro = 0; giro < 60; ++giro) {
    const FoglioCasuale foglio = Casuale(caso);
    Banco banco;
    banco.disco.Metti(Foglio, foglio.testo);
    ASSERT_EQ(EmpDaCxf(banco.ambiente, Foglio), ComeSiRacconta(foglio.List1)) << foglio.testo;
  }
}

} // namespace
} // namespace lirmeto
