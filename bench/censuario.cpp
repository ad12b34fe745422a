// Costs of the census forms: a key in a split over its derived parcels, the workbench over the files of its archive.
#include "sostituti/banco.h"

#include <piattaforma/disco_dischi.h>
#include <proposte/kr_edm.h>
#include <proposte/kr_fraziona.h>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

namespace lirmeto {
namespace {

const std::string Riga = "6|PARTICELLA|35|01|SEMINATIVO  |3016000|3016000|15.20|21.80|SN|";

// What a key does: areas, incomes, rows and findings anew.
void Tasto(benchmark::State& stato) {
  prova::Banco banco;
  banco.sessione.ModoEditor = ModoSopprime;
  KR_Fraziona form(banco.ambiente, ScegliParticella(banco.sessione, Riga, {}));
  form.Apri({});
  form.CambiaText1(std::to_string(stato.range(0)));
  std::size_t giro = 0;
  for (auto _ : stato) {
    form.CambiaText2(std::to_string(1 + giro++ % 900));
    benchmark::DoNotOptimize(form.RilieviList1());
  }
  stato.SetComplexityN(stato.range(0));
}
BENCHMARK(Tasto)->RangeMultiplier(10)->Range(10, 10'000)->Unit(benchmark::kMillisecond)->Complexity();

// The workbench opened on a folder of the machine's disk.
void Apertura(benchmark::State& stato) {
  namespace fs = std::filesystem;
  const fs::path radice = fs::temp_directory_path() / "misura_censuario";
  fs::remove_all(radice);
  fs::create_directories(radice / "c" / "FIDUCIAL" / "PARTICELLE");
  for (std::int64_t i = 0; i < stato.range(0); ++i)
    std::ofstream(radice / "c" / "FIDUCIAL" / "PARTICELLE" / ("G224_00010_" + std::to_string(i) + ".MAP")) << Riga;
  {
    DiscoDischi disco(radice);
    prova::Banco banco;
    banco.Apri("0|01022024|7|G224|0010|35,36,37|ROSSI|G|PD|\r\n9|12|10|20|0|V|FR|T|\r\n");
    Ambiente ambiente{banco.sessione,     disco,         banco.dialoghi, banco.finestre, banco.processi,
                      banco.impostazioni, banco.appunti, banco.orologio};
    for (auto _ : stato) {
      KR_EDM form(ambiente);
      form.AlCaricamento();
      benchmark::DoNotOptimize(form.File1);
    }
  }
  fs::remove_all(radice);
  stato.SetComplexityN(stato.range(0));
}
BENCHMARK(Apertura)->RangeMultiplier(10)->Range(100, 10'000)->Unit(benchmark::kMillisecond)->Complexity();

} // namespace
} // namespace lirmeto
