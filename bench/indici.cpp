// What each index brings over the plain way of finding the same, and what huge pages bring to large texts.
#include <estratti/rinumerazione.h>
#include <grafica/archivio_grafica.h>
#include <grafica/indice_nomi.h>
#include <grafica/indice_punti.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <new>
#include <random>
#include <string>
#include <unordered_map>
#include <vector>

namespace lirmeto {
namespace {

constexpr std::int64_t Pochi = 1'000;
constexpr std::int64_t Molti = 100'000;

ArchivioGrafica Archivio(std::int64_t quanti) {
  std::mt19937 caso(7);
  std::uniform_real_distribution<double> da(-5000, 5000);
  ArchivioGrafica archivio;
  for (std::int64_t i = 0; i < quanti; ++i) {
    PuntoGrafica punto;
    punto.Nome = std::to_string(i) + "%";
    punto.X = da(caso);
    punto.Y = da(caso);
    archivio.Aggiungi(std::move(punto));
  }
  return archivio;
}

std::vector<std::string> Nomi(std::int64_t quanti) {
  std::vector<std::string> nomi;
  for (std::int64_t i = 0; i < quanti; ++i) nomi.push_back(std::to_string((i * 7919) % quanti) + "%");
  return nomi;
}

// A mouse that wanders over the drawing.
class Mouse {
public:
  PuntoPiano Muovi() {
    constexpr double mezzoLato = 4000;
    passo_ += 0.37;
    return {mezzoLato * std::sin(passo_), mezzoLato * std::cos(passo_ * 1.7)};
  }

private:
  double passo_ = 0;
};

// The point under the mouse.
void VicinoConIndice(benchmark::State& stato) {
  const ArchivioGrafica archivio = Archivio(stato.range(0));
  IndicePunti indice;
  Mouse mouse;
  for (auto _ : stato) {
    indice.Segui(archivio);
    benchmark::DoNotOptimize(indice.PiuVicino(archivio.Punti(), mouse.Muovi(), 100'000));
  }
}

void VicinoCamminando(benchmark::State& stato) {
  const ArchivioGrafica archivio = Archivio(stato.range(0));
  Mouse mouse;
  for (auto _ : stato) {
    const PuntoPiano da = mouse.Muovi();
    double minima = 100'000;
    for (const PuntoGrafica& punto : archivio.Punti()) minima = std::min(minima, DistanzaPiana(punto.Posto(), da));
    benchmark::DoNotOptimize(minima);
  }
}

// Points taken in one by one, and each of them found by name.
template <typename Indice>
void PuntiPerNome(benchmark::State& stato) {
  const std::vector<std::string> nomi = Nomi(stato.range(0));
  const ArchivioGrafica archivio = Archivio(stato.range(0));
  for (auto _ : stato) {
    Indice indice;
    std::vector<PuntoGrafica> punti;
    punti.reserve(nomi.size());
    for (const PuntoGrafica& punto : archivio.Punti()) {
      punti.push_back(punto);
      indice.Aggiungi(punti);
    }
    for (const std::string& nome : nomi) benchmark::DoNotOptimize(indice.Primo(punti, nome));
  }
}

// The same with the library's table, which has to keep the names: the points may move.
class TabellaNomi {
public:
  void Aggiungi(const std::vector<PuntoGrafica>& punti) { primi_.try_emplace(punti.back().Nome, punti.size() - 1); }
  [[nodiscard]] std::size_t Primo(const std::vector<PuntoGrafica>& /*punti*/, const std::string& nome) const {
    return primi_.find(nome)->second;
  }

private:
  std::unordered_map<std::string, std::size_t> primi_;
};

// The identifiers of an extract, filled and found.
void IdentificativiConIndice(benchmark::State& stato) {
  const std::vector<std::string> nomi = Nomi(stato.range(0));
  for (auto _ : stato) {
    IndiceIdentificativi indice(nomi.size(), '%');
    for (std::size_t i = 0; i < nomi.size(); ++i) indice.Aggiungi(nomi[i], static_cast<std::uint32_t>(i));
    for (const std::string& nome : nomi) benchmark::DoNotOptimize(indice.Cerca(nome));
  }
}

void IdentificativiConTabella(benchmark::State& stato) {
  const std::vector<std::string> nomi = Nomi(stato.range(0));
  for (auto _ : stato) {
    std::unordered_map<std::string_view, std::uint32_t> indice;
    for (std::size_t i = 0; i < nomi.size(); ++i) indice.try_emplace(nomi[i], static_cast<std::uint32_t>(i));
    for (const std::string& nome : nomi) benchmark::DoNotOptimize(indice.find(nome));
  }
}

// A text of so many megabytes, made and thrown away: as the command line allocates it, and as the library does.
template <void* (*Prendi)(std::size_t), void (*Lascia)(void*)>
void TestoGrande(benchmark::State& stato) {
  const auto byte = static_cast<std::size_t>(stato.range(0)) << 20U;
  for (auto _ : stato) {
    void* blocco = Prendi(byte);
    std::memset(blocco, 'x', byte);
    benchmark::DoNotOptimize(blocco);
    Lascia(blocco);
  }
}

void* Nuovo(std::size_t byte) {
  return ::operator new(byte);
}
void Cancella(void* blocco) {
  ::operator delete(blocco);
}

BENCHMARK(VicinoConIndice)->RangeMultiplier(10)->Range(Pochi, Molti)->Unit(benchmark::kMicrosecond);
BENCHMARK(VicinoCamminando)->RangeMultiplier(10)->Range(Pochi, Molti)->Unit(benchmark::kMicrosecond);
BENCHMARK(PuntiPerNome<IndiceNomi>)->RangeMultiplier(10)->Range(Pochi, Molti)->Unit(benchmark::kMillisecond);
BENCHMARK(PuntiPerNome<TabellaNomi>)->RangeMultiplier(10)->Range(Pochi, Molti)->Unit(benchmark::kMillisecond);
BENCHMARK(IdentificativiConIndice)->RangeMultiplier(10)->Range(Pochi, Molti)->Unit(benchmark::kMillisecond);
BENCHMARK(IdentificativiConTabella)->RangeMultiplier(10)->Range(Pochi, Molti)->Unit(benchmark::kMillisecond);
BENCHMARK(TestoGrande<Nuovo, Cancella>)->Name("TestoGrandeInPagineGrandi")->Arg(100)->Unit(benchmark::kMillisecond);
BENCHMARK(TestoGrande<std::malloc, std::free>)->Name("TestoGrande")->Arg(100)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace lirmeto
