// Repainting the plane of the fiducial points: 20,000 points with their names, 10,000 segments.

#include <punti_fiduciali.h>

#include <ui/comune/aspetto.h>
#include <ui/disegno/grafica_superficie.h>
#include <ui/fiduciali/finestra_elco_pf_grafica.h>

#include <sostituti/banco.h>

#include <QApplication>

#include <benchmark/benchmark.h>

using namespace lirmeto;

namespace {

struct Piano {
  Piano() {
    banco.disco.Metti("C:\\fiducial\\DATI\\PD.DDD", misura::Archivio(tabella.punti.size(), 10'000));
    form.AlCaricamento();
    form.Esegui(6);
    finestra.resize(1240, 720);
    finestra.show();
    QApplication::processEvents();
  }
  prova::Banco banco;
  TabellaPF tabella = misura::Provincia(20'000);
  KR_ElcoPFGrafica form{banco.ambiente, tabella};
  ui::FinestraElcoPfGrafica finestra{form};
};

void Spostare(benchmark::State& stato) {
  Piano piano;
  int verso = 0;
  for (auto _ : stato) {
    piano.form.Esegui(1 + (verso ^= 1));
    piano.finestra.Superficie().repaint();
  }
}

void Selezionare(benchmark::State& stato) {
  Piano piano;
  for (auto _ : stato) {
    piano.form.Seleziona(SelezionePF::Inverti);
    piano.finestra.Superficie().repaint();
  }
}

void Ingrandire(benchmark::State& stato) {
  Piano piano;
  int verso = 0;
  for (auto _ : stato) {
    piano.form.subZoomElcoPF(1 + (verso ^= 1));
    piano.finestra.Superficie().repaint();
  }
}

BENCHMARK(Spostare)->Unit(benchmark::kMillisecond);
BENCHMARK(Selezionare)->Unit(benchmark::kMillisecond);
BENCHMARK(Ingrandire)->Unit(benchmark::kMillisecond);

} // namespace

int main(int argc, char** argv) {
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication applicazione(argc, argv);
  ui::VestiApplicazione(applicazione);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
