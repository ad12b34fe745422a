// Cost of the checks and of the survey's picture over the number of rows: all of it at first, then after one row has
// changed.
#include "sostituti/banco.h"

#include <verifiche/disegno_rilievo.h>
#include <verifiche/verificatore.h>

#include <base/numeri.h>

#include <benchmark/benchmark.h>

#include <cmath>
#include <string>
#include <vector>

namespace lirmeto {
namespace {

std::string Intero(std::size_t numero) {
  return TestoIntero(static_cast<long long>(numero));
}

// Stations on a line, a hundred rows each: the stations before and behind, points of its own of which every tenth is
// seen from the station before too, a contour for every five points. Readings as azimuths.
std::string Atto(std::size_t quante) {
  std::vector<std::string> righe = {"0|21112026|1|G224|0010|12|ROSSI ADA|GEOMETRA|PADOVA|",
                                    "9|12|10|20|1150|10.00-G|FR|STAZIONE TOTALE|"};
  std::vector<std::string> contorni;
  for (std::size_t s = 1; righe.size() + contorni.size() < quante; ++s) {
    const std::string nome = "S" + Intero(s);
    righe.push_back("1|" + nome + "|1.550|CHIODO|");
    if (s > 1) righe.push_back("2|S" + Intero(s - 1) + "|300.0000|100.0000|100.000|1.500|CHIODO|");
    righe.push_back("2|S" + Intero(s + 1) + "|100.0000|100.0000|100.000|1.500|CHIODO|");
    for (std::size_t p = 1; p <= 80; ++p) {
      const std::string angolo = Formatta(4.9 * static_cast<double>(p), "0.0000");
      righe.push_back("2|" + Intero(s * 100 + p) + "|" + angolo + "|100.0000|35.000|1.500|SPIGOLO|");
      if (p % 5 == 0)
        contorni.push_back("7|5|" + Intero(s * 100 + p - 4) + "|" + Intero(s * 100 + p - 3) + "|" +
                           Intero(s * 100 + p - 2) + "|" + Intero(s * 100 + p - 1) + "|" + Intero(s * 100 + p - 4) +
                           (p % 10 == 0 ? "|RC|" : "|NC|"));
    }
  }
  righe.insert(righe.end(), contorni.begin(), contorni.end());
  return prova::Testo(righe);
}

void Tutto(benchmark::State& stato) {
  prova::Banco banco;
  banco.Apri(Atto(static_cast<std::size_t>(stato.range(0))));
  for (auto _ : stato) {
    Verificatore verificatore(banco.ambiente);
    verificatore.Aggiorna();
    benchmark::DoNotOptimize(verificatore.Quante());
  }
  stato.counters["righe"] = static_cast<double>(banco.sessione.List1.Quante());
}

void UnaRiga(benchmark::State& stato) {
  prova::Banco banco;
  banco.Apri(Atto(static_cast<std::size_t>(stato.range(0))));
  Verificatore verificatore(banco.ambiente);
  verificatore.Aggiorna();
  const std::string buona(banco.sessione.List1.Riga(50));
  bool cambiata = false;
  for (auto _ : stato) {
    banco.sessione.List1.Cambia(50, cambiata ? buona : "2|148|1.0000|100.0000|36.000|1.500||");
    cambiata = !cambiata;
    verificatore.Aggiorna();
    benchmark::DoNotOptimize(verificatore.Quante());
  }
}

// With the picture: what the pane beside the rows does.
void Figura(benchmark::State& stato, bool daCapo) {
  prova::Banco banco;
  banco.Apri(Atto(static_cast<std::size_t>(stato.range(0))));
  Verificatore verificatore(banco.ambiente);
  verificatore.Aggiorna();
  ArchivioGrafica archivio;
  const std::string buona(banco.sessione.List1.Riga(50));
  bool cambiata = false;
  for (auto _ : stato) {
    banco.sessione.List1.Cambia(50, cambiata ? buona : "2|148|1.0000|100.0000|36.000|1.500|X|");
    cambiata = !cambiata;
    Verificatore nuovo(banco.ambiente);
    Verificatore& usato = daCapo ? nuovo : verificatore;
    usato.Aggiorna();
    DisegnaRilievo({usato.Righe(), usato.Posti(), usato.Archivi()}, archivio);
    benchmark::DoNotOptimize(archivio.Punti().size());
  }
}

BENCHMARK(Tutto)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK(UnaRiga)->Arg(1000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Figura, prima, true)->Arg(20000)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Figura, modifica, false)->Arg(20000)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lirmeto
