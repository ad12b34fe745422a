// Costs of a map extract over its number of points. The last lines of each family give the fitted growth.
#include "sostituti/banco.h"

#include <estratti/kr_estratto.h>
#include <estratti/modifiche_estratto.h>

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
BENCHMARK(Pulisci)->RangeMultiplier(10)->Range(PochiPunti, MoltiPunti)->Complexity()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lirmeto
