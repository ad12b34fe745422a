// The report of measured distances against one reading of its archive; the distances of the viewer.

#include <punti_fiduciali.h>

#include <core/lettura.h>
#include <core/riga.h>
#include <fiduciali/elco_pf_grafica.h>
#include <fiduciali/misurate_pf.h>
#include <sostituti/banco.h>

#include <benchmark/benchmark.h>

using namespace lirmeto;

namespace {

constexpr std::size_t ByteRiga = 73;

prova::Banco& ConArchivio(prova::Banco& banco, std::size_t megabyte) {
  constexpr std::size_t punti = 20'000;
  constexpr std::size_t nomi = 50;
  banco.disco.Metti("C:\\fiducial\\DATI\\PD.DDD", misura::Archivio(punti, megabyte * 1'000'000 / ByteRiga));
  for (std::size_t i = 0; i < nomi; ++i) banco.sessione.Libretto += "8|" + misura::NomePF(i) + "|1|2|\r\n";
  return banco;
}

void Lettura(benchmark::State& stato) {
  prova::Banco banco;
  ConArchivio(banco, static_cast<std::size_t>(stato.range(0)));
  for (auto _ : stato) {
    const std::string testo = CaricaFileIntero(banco.ambiente, "C:\\fiducial\\DATI\\PD.DDD");
    benchmark::DoNotOptimize(RigheDi(testo));
  }
}

void CinquantaPunti(benchmark::State& stato) {
  prova::Banco banco;
  ConArchivio(banco, static_cast<std::size_t>(stato.range(0)));
  for (auto _ : stato) {
    banco.dialoghi.detti.clear();
    benchmark::DoNotOptimize(MisurateDelLibretto(banco.ambiente));
  }
}

void DistanzeDelPiano(benchmark::State& stato) {
  const auto punti = static_cast<std::size_t>(stato.range(0));
  prova::Banco banco;
  banco.disco.Metti("C:\\fiducial\\DATI\\PD.DDD", misura::Archivio(punti, punti * 5));
  const TabellaPF tabella = misura::Provincia(punti);
  KR_ElcoPFGrafica form(banco.ambiente, tabella);
  form.AlCaricamento();
  for (auto _ : stato) form.Esegui(6);
}

BENCHMARK(Lettura)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(CinquantaPunti)->Arg(10)->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(DistanzeDelPiano)->Arg(2'000)->Arg(20'000)->Unit(benchmark::kMillisecond);

} // namespace
