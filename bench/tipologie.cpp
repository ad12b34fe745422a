// Costs of listings, DXF files and proposals over their number of vertices. The last lines of each family give the
// fitted growth.
#include "sostituti/banco.h"

#include <base/testo.h>
#include <generazione/polilinee_dxf.h>
#include <generazione/ripara_proposta.h>
#include <generazione/tipol10.h>

#include <benchmark/benchmark.h>

namespace lirmeto {
namespace {

constexpr std::int64_t Pochi = 1'000;
constexpr std::int64_t Molti = 100'000;

// Closed polylines of nineteen vertices, each on two of the layers, so that half of the points are met again.
std::string DxfDi(std::int64_t vertici) {
  constexpr std::int64_t lati = 19;
  std::string testo = "0\nSECTION\n2\nENTITIES\n";
  for (std::int64_t primo = 0; primo < vertici; primo += 2 * lati)
    for (const std::string strato : {"FABBRICATI", "RT"}) {
      testo += "0\nLWPOLYLINE\n8\n" + strato + "\n70\n1\n";
      for (std::int64_t i = 0; i < lati; ++i)
        testo += "10\n" + std::to_string(primo % 977 + i * 3) + "." + std::to_string(primo % 1000) + "\n20\n" +
                 std::to_string(primo / 977 + i % 7) + ".5\n";
    }
  return testo + "0\nENDSEC\n0\nEOF\n";
}

void Polilinee(benchmark::State& stato) {
  prova::Banco banco;
  const std::string dxf = DxfDi(stato.range(0));
  for (auto _ : stato) benchmark::DoNotOptimize(ElencoDaDxf(banco.dialoghi, dxf));
  stato.SetComplexityN(stato.range(0));
}

// The whole of it: rows, provisional extract, picture.
void Elenco(benchmark::State& stato) {
  prova::Banco banco;
  banco.sessione.TipologiaCorrente = TipologiaSenzaEstratto;
  banco.appunti.testo = ElencoDaDxf(banco.dialoghi, DxfDi(stato.range(0)));
  for (auto _ : stato) {
    DisegnoCondiviso disegno;
    Tipol10 form(banco.ambiente, disegno);
    form.GeneraLibrettoDaList();
    benchmark::DoNotOptimize(form.List1.size());
  }
  stato.SetComplexityN(stato.range(0));
}

// One contour against a parcel of as many points, every other one of which stands on it.
void Ripara(benchmark::State& stato) {
  ContornoMappale mappale;
  std::string anello;
  std::string contorno;
  std::string punti;
  for (std::int64_t i = 0; i < stato.range(0); ++i) {
    const std::string n = std::to_string(i);
    mappale.punti.push_back("8|" + n + "%|" + n + ".5|7.25|");
    anello += n + "%|";
    punti += "8|" + n + "*|" + n + (i % 2 == 0 ? ".5" : ".6") + "|7.25|\r\n";
    contorno += n + "*|";
  }
  mappale.riga = "7|" + std::to_string(stato.range(0)) + "|" + anello + "NC|35|35|1|";
  const std::string testo = punti + "7|" + std::to_string(stato.range(0)) + "|" + contorno + "RC|35+|35|1|\r\n";
  for (auto _ : stato) benchmark::DoNotOptimize(SistemaModestaEntita(SistemaProposta(testo, mappale, {}), mappale));
  stato.SetComplexityN(stato.range(0));
}

BENCHMARK(Polilinee)->RangeMultiplier(10)->Range(Pochi, Molti)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(Elenco)->RangeMultiplier(10)->Range(Pochi, Molti)->Complexity()->Unit(benchmark::kMillisecond);
BENCHMARK(Ripara)->RangeMultiplier(10)->Range(Pochi, Molti)->Complexity()->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lirmeto
