// Costs of a map extract over its number of points. The last lines of each family give the fitted growth.
#include "sostituti/banco.h"

#include <estratti/da_cxf.h>
#include <estratti/estratti_di_mappa.h>
#include <estratti/kr_estratto.h>
#include <estratti/modifiche_estratto.h>
#include <estratti/unione_estratti.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <random>

namespace lirmeto {
namespace {

constexpr std::int64_t PochiPunti = 1'000;
constexpr std::int64_t MoltiPunti = 1'000'000;
const std::string Percorso = "C:\\pregeo\\estratti\\X.EMP";

// Parcels of five vertices that share two with the next, a line and a toponym for every ten; in order as a save leaves
// them, or shuffled.
std::string EstrattoDi(std::int64_t punti, bool mescolati) {
  std::mt19937 caso(1);
  std::vector<std::string> righe;
  for (std::int64_t i = 1; i <= punti; ++i)
    righe.push_back("8|" + std::to_string(i) + "%|-" + std::to_string(caso() % 9000) + ".0654129576|-" +
                    std::to_string(caso() % 9000) + ".7901700704|\r\n");
  if (mescolati) std::shuffle(righe.begin(), righe.end(), caso);
  std::string testo = "0|12032018|PD0012345/2018|G224|00042|101,102,103|PD|PUB|ROSMRA|10000000000017|\r\n";
  for (const auto& riga : righe) testo += riga;
  for (std::int64_t i = 1; i + 5 <= punti; i += 3) {
    testo += "7|6|";
    for (const std::int64_t j : {i, i + 1, i + 2, i + 3, i + 4, i}) testo += std::to_string(j) + "%|";
    testo += "NC|" + std::to_string(i) + "|" + std::to_string(i) + "|1376.6562654372|\r\n";
    if (i % 30 == 1) {
      const std::string nome = std::to_string(punti + i) + "L|";
      testo += "8|" + nome + "1.5|2.5|\r\n7|2|" + nome + nome + "NT|\r\n8|" + std::to_string(i) + "T|1|2|0|VIA|\r\n";
    }
  }
  return testo;
}

void Esplodi(benchmark::State& stato) {
  prova::Banco banco;
  banco.disco.Metti(Percorso, EstrattoDi(stato.range(0), false));
  for (auto _ : stato) {
    KR_Estratto estratto;
    benchmark::DoNotOptimize(EsplodiEstratto(banco.ambiente, estratto, "X.EMP"));
  }
  stato.SetComplexityN(stato.range(0));
}

void EsplodiESalva(benchmark::State& stato, bool mescolati) {
  prova::Banco banco;
  banco.disco.Metti(Percorso, EstrattoDi(stato.range(0), mescolati));
  for (auto _ : stato) {
    KR_Estratto estratto;
    EsplodiEstratto(banco.ambiente, estratto, "X.EMP");
    benchmark::DoNotOptimize(TestoEstratto(banco.ambiente, estratto));
  }
  stato.SetComplexityN(stato.range(0));
}

void Pulisci(benchmark::State& stato) {
  prova::Banco banco;
  banco.disco.Metti(Percorso, EstrattoDi(stato.range(0), false));
  for (auto _ : stato) benchmark::DoNotOptimize(PulisciEstratto(banco.ambiente, "X.EMP"));
  stato.SetComplexityN(stato.range(0));
}

// What takes a parcel away: load, edit, the text of the save.
void Elimina(benchmark::State& stato) {
  prova::Banco banco;
  banco.disco.Metti(Percorso, EstrattoDi(stato.range(0), false));
  for (auto _ : stato) {
    KR_Estratto estratto;
    EsplodiEstratto(banco.ambiente, estratto, "X.EMP");
    EliminaParticellaEstratto(estratto, "4");
    benchmark::DoNotOptimize(TestoEstratto(banco.ambiente, estratto));
  }
  stato.SetComplexityN(stato.range(0));
}

// The same city sheet again and again: borders of eighteen vertices, right-aligned as in real files.
std::string FoglioDi(std::int64_t bordi) {
  constexpr std::int64_t diversi = 500;
  std::mt19937 caso(1);
  std::string foglio = "MAPPA\r\nG224_001200\r\n2000\r\n";
  std::vector<std::string> vertici;
  for (std::int64_t i = 0; i < diversi * 18; ++i)
    vertici.push_back("    -" + std::to_string(1000 + caso() % 9000) + ".123\r\n    -" +
                      std::to_string(1000 + caso() % 9000) + ".456\r\n");
  for (std::int64_t b = 0; b < bordi; ++b) {
    foglio += "BORDO\r\n" + std::to_string(b) + "\r\n  10\r\n";
    for (int i = 0; i < 5; ++i) foglio += "       0.000\r\n";
    foglio += "   0\r\n  18\r\n";
    for (std::int64_t i = 0; i < 18; ++i) foglio += vertici[static_cast<std::size_t>(b % diversi * 18 + i)];
  }
  return foglio + "EOF\r\n";
}

// 10,000 borders are a city sheet twenty times over.
void Cxf(benchmark::State& stato) {
  prova::Banco banco;
  const std::string percorso = "C:\\pregeo\\estratti\\F.CXF";
  banco.disco.Metti(percorso, FoglioDi(stato.range(0)));
  std::string superfici = "F 20240101\r\n";
  for (std::int64_t b = 0; b < stato.range(0); ++b)
    superfici += std::to_string(b) + std::string(12, ' ') + std::to_string(b + 1) + "\r\n";
  banco.disco.Metti("C:\\pregeo\\estratti\\F.SUP", superfici);
  for (auto _ : stato) benchmark::DoNotOptimize(EmpDaCxf(banco.ambiente, percorso));
  stato.SetComplexityN(stato.range(0));
}

// Two extracts of as many points, half of which the two have in common.
void Somma(benchmark::State& stato) {
  const std::string primo = EstrattoDi(stato.range(0), false);
  std::string secondo = EstrattoDi(stato.range(0), true);
  std::size_t quanti = 0;
  for (std::size_t i = secondo.find(".0654129576"); i != std::string::npos; i = secondo.find(".0654129576", i + 1))
    if (++quanti % 2 == 0) secondo[i + 1] = '5';
  for (auto _ : stato) benchmark::DoNotOptimize(UnisciEstratti(primo, secondo));
  stato.SetComplexityN(stato.range(0));
}

// The manager as it opens, with the start of the associated extract, and then with its drawing: 650,000 points are 50 MB.
void Gestore(benchmark::State& stato, bool conDisegno) {
  prova::Banco banco;
  banco.disco.Metti(Percorso, EstrattoDi(stato.range(0), false));
  banco.sessione.EstrattoAssociato = "X.EMP";
  for (auto _ : stato) {
    KR_EstrattiDiMappa1 form(banco.ambiente);
    form.AlCaricamento();
    if (conDisegno) form.AnteprimaEstratto3();
    benchmark::DoNotOptimize(form.TestoFile.size());
  }
}

BENCHMARK(Esplodi)->RangeMultiplier(10)->Range(PochiPunti, MoltiPunti)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(EsplodiESalva, ordinati, false)
    ->RangeMultiplier(10)
    ->Range(PochiPunti, MoltiPunti)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(EsplodiESalva, mescolati, true)
    ->RangeMultiplier(10)
    ->Range(PochiPunti, MoltiPunti)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Elimina)->Arg(125'000)->Arg(1'250'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Pulisci)->Arg(125'000)->Arg(1'250'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Gestore, aperto, false)->Arg(65'000)->Arg(650'000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Gestore, disegnato, true)->Arg(65'000)->Arg(650'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Cxf)->RangeMultiplier(10)->Range(100, 100'000)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(Somma)->RangeMultiplier(10)->Range(1'000, 1'000'000)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(Pulisci)->RangeMultiplier(10)->Range(PochiPunti, MoltiPunti)->Complexity()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lirmeto
