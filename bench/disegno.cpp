// Costs of the drawing over its number of points or lines. The last lines of each family give the fitted growth.
#include "sostituti/banco.h"

#include <grafica/esportazioni.h>
#include <grafica/grafica.h>
#include <grafica/scambio.h>

#include <benchmark/benchmark.h>

#include <random>

namespace lirmeto {
namespace {

constexpr std::int64_t Pochi = 1'000;
constexpr std::int64_t Molti = 1'000'000;

std::string Coordinata(std::mt19937& caso) {
  return std::to_string(caso() % 9000) + "." + std::to_string(caso() % 10'000'000'000 + 1'000'000'000);
}

// Parcels of eight vertices, the last of each repeated.
std::string EstrattoDi(std::int64_t punti) {
  std::mt19937 caso(1);
  std::string testo = "0|12032018|PD0012345/2018|G224|00042|101|PD|PUB|ROSMRA|10000000000017|\r\n";
  for (std::int64_t i = 1; i <= punti; ++i)
    testo += "8|" + std::to_string(i) + "%|-" + Coordinata(caso) + "|" + Coordinata(caso) + "|\r\n";
  for (std::int64_t i = 1; i + 7 <= punti; i += 8) {
    testo += "7|9|";
    for (std::int64_t k = i; k < i + 8; ++k) testo += std::to_string(k) + "%|";
    const std::string nome = std::to_string(i);
    testo += std::to_string(i) + "%|NC|" + nome + "|" + nome + "|500|\r\n";
  }
  return testo;
}

std::string LineeDi(std::int64_t linee) {
  std::mt19937 caso(1);
  std::string testo = "P,1,0,0,0,,0\r\n";
  for (std::int64_t i = 0; i < linee; ++i)
    testo += "L," + Coordinata(caso) + "," + Coordinata(caso) + ",0," + Coordinata(caso) + "," + Coordinata(caso) +
             ",0,12,1,0\r\n";
  return testo;
}

// A drawing loaded from a file in memory.
struct Disegno {
  Disegno(const std::string& nome, std::string testo) : percorso("C:\\" + nome) {
    banco.disco.Metti(percorso, std::move(testo));
    grafica.CaricaDisegno(percorso);
  }
  prova::Banco banco;
  DisegnoCondiviso condiviso;
  Grafica grafica{banco.ambiente, condiviso};
  std::string percorso;
};

void CaricaEstratto(benchmark::State& stato) {
  Disegno disegno("A.EMP", EstrattoDi(stato.range(0)));
  for (auto _ : stato) disegno.grafica.CaricaDisegno(disegno.percorso);
  stato.SetComplexityN(stato.range(0));
}

void CaricaCsv(benchmark::State& stato) {
  Disegno disegno("A.CSV", LineeDi(stato.range(0)));
  for (auto _ : stato) disegno.grafica.CaricaDisegno(disegno.percorso);
  stato.SetComplexityN(stato.range(0));
}

void Dxf(benchmark::State& stato) {
  const Disegno disegno("A.CSV", LineeDi(stato.range(0)));
  for (auto _ : stato) benchmark::DoNotOptimize(TestoDXF(disegno.condiviso.archivio, true));
  stato.SetComplexityN(stato.range(0));
}

void PaginaOrdiniEScambio(benchmark::State& stato) {
  const Disegno disegno("A.EMP", EstrattoDi(stato.range(0)));
  const auto& [archivio, vista, gancio] = disegno.condiviso;
  for (auto _ : stato) {
    benchmark::DoNotOptimize(TestoPagina(archivio, vista));
    benchmark::DoNotOptimize(TestoOrdiniStampa(archivio, vista));
    benchmark::DoNotOptimize(TestoScambio(archivio));
  }
  stato.SetComplexityN(stato.range(0));
}

BENCHMARK(CaricaEstratto)->RangeMultiplier(10)->Range(Pochi, Molti)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(CaricaCsv)->RangeMultiplier(10)->Range(Pochi, Molti)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(Dxf)->RangeMultiplier(10)->Range(Pochi, Molti)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(PaginaOrdiniEScambio)->RangeMultiplier(10)->Range(Pochi, Molti)->Complexity()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lirmeto
