// Costs of the open libretto over its number of rows. The last lines of each family give the fitted growth: N or N log
// N.
#include "sostituti/banco.h"

#include <core/apertura.h>
#include <core/libretto_in_classi.h>
#include <core/riga.h>
#include <core/salvataggio.h>

#include <benchmark/benchmark.h>

#include <random>

namespace lirmeto {
namespace {

constexpr std::int64_t PocheRighe = 1'000;
constexpr std::int64_t MolteRighe = 1'000'000;

std::string Numero(std::mt19937& caso, unsigned interi, unsigned decimali) {
  return std::to_string(caso() % interi) + "." + std::to_string(caso() % decimali);
}

// A station for every thirty sightings, contours and coordinates between them, some notes empty.
std::string LibrettoDi(std::int64_t righe) {
  std::mt19937 caso(1);
  std::string testo =
      "0|01022024|7|G224|0010|1|ROSSI MARIO|GEOMETRA|PADOVA|\r\n9|12|10|20|0|VER|FR|STAZIONE TOTALE|\r\n";
  for (std::int64_t i = 2; i < righe; ++i) {
    if (i % 32 == 2)
      testo += "1|" + std::to_string(i) + "|1.543|CHIODO SU ASFALTO|\r\n";
    else if (i % 32 == 0)
      testo += "7|4|101|102|103|101|NC|\r\n";
    else if (i % 32 == 1)
      testo += "8|PF01/0010/G224|" + Numero(caso, 9000, 999) + "|" + Numero(caso, 9000, 999) + "|11|SPIGOLO|\r\n";
    else
      testo += "2|" + std::to_string(caso() % 100000) + "|" + Numero(caso, 400, 9999) + "|100.1234|" +
               Numero(caso, 90, 999) + "|1.500|" + (caso() % 5 == 0 ? "" : "SPIGOLO FABBRICATO") + "|\r\n";
  }
  return testo;
}

void Split(benchmark::State& stato) {
  const std::string testo = LibrettoDi(stato.range(0));
  const auto righe = RigheDi(testo);
  for (auto _ : stato)
    for (const auto riga : righe) benchmark::DoNotOptimize(SplitRiga(riga).UltimoCampo);
  stato.SetComplexityN(stato.range(0));
}

void ApriEdElenca(benchmark::State& stato) {
  prova::Banco banco;
  banco.disco.Metti("C:\\LIBRETTO.DAT", LibrettoDi(stato.range(0)));
  for (auto _ : stato) {
    ApriLibretto(banco.ambiente, "C:\\LIBRETTO.DAT");
    CaricaLibrettoInList1(banco.ambiente);
  }
  stato.SetComplexityN(stato.range(0));
}

void AggiornaESalva(benchmark::State& stato) {
  prova::Banco banco;
  banco.Apri(LibrettoDi(stato.range(0)));
  for (auto _ : stato) {
    AggiornaLibrettoMisure(banco.ambiente);
    benchmark::DoNotOptimize(TestoDaSalvare(banco.sessione));
  }
  stato.SetComplexityN(stato.range(0));
}

void Riordina(benchmark::State& stato) {
  prova::Banco banco;
  const std::string testo = LibrettoDi(stato.range(0));
  for (auto _ : stato) {
    banco.sessione.Libretto = testo;
    RicomponiLibretto(banco.ambiente, EsplodiLibretto(banco.ambiente));
  }
  stato.SetComplexityN(stato.range(0));
}

BENCHMARK(Split)->RangeMultiplier(10)->Range(PocheRighe, MolteRighe)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(ApriEdElenca)
    ->RangeMultiplier(10)
    ->Range(PocheRighe, MolteRighe)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(AggiornaESalva)
    ->RangeMultiplier(10)
    ->Range(PocheRighe, MolteRighe)
    ->Complexity()
    ->Unit(benchmark::kMillisecond);
BENCHMARK(Riordina)->RangeMultiplier(10)->Range(PocheRighe, MolteRighe)->Complexity()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lirmeto
