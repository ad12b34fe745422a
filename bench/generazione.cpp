// Cost of the libretto from a drawing over its number of points, a station for each hundred; and beside it the same
// work by plain scans of the tables, as the yardstick: its rows 1 and 2 must be the same.
#include "generazione/disegno_casuale.h"
#include "sostituti/banco.h"

#include <generazione/angoli.h>
#include <generazione/generazione.h>
#include <generazione/libretto_da_disegno.h>

#include <base/numeri.h>
#include <base/piano.h>
#include <base/testo.h>
#include <core/riga.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdlib>
#include <set>

namespace lirmeto {
namespace {

// The lists of lines, stations and sightings told as scans.
namespace scansioni {

const PuntoDisegno* Vicino(const TabelleDisegno& t, const PuntoPiano& posto) {
  for (const auto& punto : t.Punti())
    if (DistanzaPiana(punto.Posto(), posto) < 0.005) return &punto;
  return nullptr;
}

const PuntoDisegno* Trova(const TabelleDisegno& t, std::string_view nome) {
  for (const auto& punto : t.Punti())
    if (punto.Nome == nome) return &punto;
  return nullptr;
}

std::vector<std::string> Linee(const TabelleDisegno& t) {
  std::set<std::pair<std::string, std::string>> coppie;
  for (const auto& linea : t.Linee()) {
    const PuntoDisegno* a = Vicino(t, {linea.X1, linea.Y1});
    const PuntoDisegno* b = Vicino(t, {linea.X2, linea.Y2});
    if (a == nullptr || b == nullptr) continue;
    const std::string primo = AllineaDestra(a->Nome, 15);
    const std::string secondo = AllineaDestra(b->Nome, 15);
    coppie.insert(std::minmax(primo, secondo));
  }
  std::vector<std::string> linee;
  for (const auto& [a, b] : coppie) linee.push_back(std::string(Taglia(a)) + " - " + std::string(Taglia(b)));
  return linee;
}

std::pair<std::string, std::string> Lati(const std::string& linea) {
  const auto parti = Dividi(linea, "-");
  return {std::string(Taglia(parti[0])), std::string(Taglia(parti[1]))};
}

bool Battuto(std::string_view p, std::string_view s) {
  if (p.size() != s.size()) return false;
  if (p.size() == 3) return p[0] == s[0];
  if (p.size() == 4 && !s.ends_with("000")) return p.substr(0, 2) == s.substr(0, 2);
  return p.size() >= 4 && p.substr(0, p.size() - 3) == s.substr(0, s.size() - 3);
}

std::vector<std::string> Nomi(const TabelleDisegno& t) {
  const auto linee = Linee(t);
  std::set<std::string> stazioni;
  for (const std::string& linea : linee) {
    const auto [a, b] = Lati(linea);
    for (const std::string& nome : {a, b})
      if (nome.ends_with("00")) stazioni.insert(AllineaDestra(nome, 15));
  }
  std::vector<std::string> righe;
  for (const std::string& allineata : stazioni) {
    const std::string s(Taglia(allineata));
    righe.push_back("1|" + s + "|");
    std::string ultimo;
    for (const bool stazione : {true, false})
      for (const std::string& linea : linee) {
        const auto [a, b] = Lati(linea);
        if (a != s && b != s) continue;
        ultimo = a == s ? b : a;
        if (ultimo.ends_with("00") == stazione) righe.push_back("2|" + ultimo + "|");
      }
    for (const auto& punto : t.Punti())
      if (punto.Nome != s && punto.Nome != ultimo && !HaMarca(punto.Nota, "<EL>") && Battuto(punto.Nome, s))
        righe.push_back("2|" + punto.Nome + "|");
  }
  righe.erase(std::unique(righe.begin(), righe.end()), righe.end());
  return righe;
}

// Rows 1 and 2 of a flat survey: without heights, zeroed on the first sight.
std::vector<std::string> Righe(const TabelleDisegno& t) {
  std::vector<std::string> righe = Nomi(t);
  PuntoDisegno stazione;
  PuntoDisegno battuta;
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const PuntoDisegno* punto = Trova(t, Parte(righe[i], '|', 1));
    if (righe[i].starts_with("1|")) {
      stazione = *punto;
      if (i + 1 < righe.size()) battuta = *Trova(t, Parte(righe[i + 1], '|', 1));
      righe[i] += punto->Nota + "|";
      continue;
    }
    const Lettura lettura = AngoloDaOrientamento({stazione.Posto(), battuta.Posto(), Gon{}}, punto->Posto());
    const std::string hz = Formatta(ArrotondaAngolo(lettura.angolo, Gon(0.0001)).Valore(), FormatoAngolo);
    righe[i] += (Valore(hz) >= 400 ? "0.000" : hz) + "|" + Formatta(lettura.distanza, FormatoDistanza) + "|" +
                punto->Nota + "|";
  }
  return righe;
}

} // namespace scansioni

struct Prova : prova::Banco {
  DisegnoCondiviso condiviso;
  explicit Prova(std::int64_t punti) {
    disco.Metti("C:\\RILIEVO.LXC", prova::DisegnoCasuale(static_cast<std::size_t>(punti)));
    sessione.RigaZero = "0|21112026|1|G224|0010|12|ROSSI ADA|GEOMETRA|PADOVA|";
    sessione.RigaNove = "9|20|10|20|0|V|TM|S|";
  }
};

// Rows 1 and 2 as the phases make them, before the reorder sorts them.
std::vector<std::string> RigheDelleFasi(Prova& p) {
  TabelleDisegno tabelle = LeggiDisegno(p.disco.Contenuto("C:\\RILIEVO.LXC"));
  const OpzioniLibretto opzioni;
  const std::vector<std::string> linee = ElencoLinee(tabelle);
  const std::vector<std::string_view> vecchie;
  Generazione g{p.ambiente, opzioni, tabelle, linee, vecchie, {}, {}, {}};
  MettiStazioni(g);
  TogliUgualiVicine(g);
  CalcolaMisure(g, Gon(0.0001));
  return g.righe;
}

void Genera(benchmark::State& stato) {
  Prova p(stato.range(0));
  for (auto _ : stato) {
    stato.PauseTiming();
    p.sessione.Libretto.clear();
    p.sessione.List1.Svuota();
    p.sessione.NomeFileLibretto = "C:\\RILIEVO.LXC";
    stato.ResumeTiming();
    LibrettoDaDisegno form(p.ambiente, p.condiviso);
    form.Form_Load();
    benchmark::DoNotOptimize(form.GeneraLibrettoMisureAutomatico());
  }
  stato.SetComplexityN(stato.range(0));
}

void Fasi(benchmark::State& stato) {
  Prova p(stato.range(0));
  for (auto _ : stato) benchmark::DoNotOptimize(RigheDelleFasi(p));
}

void Scansioni(benchmark::State& stato) {
  Prova p(stato.range(0));
  const TabelleDisegno tabelle = LeggiDisegno(p.disco.Contenuto("C:\\RILIEVO.LXC"));
  if (scansioni::Righe(tabelle) != RigheDelleFasi(p)) stato.SkipWithError("the rows differ");
  for (auto _ : stato) benchmark::DoNotOptimize(scansioni::Righe(tabelle));
}

BENCHMARK(Genera)->RangeMultiplier(10)->Range(1'000, 100'000)->Unit(benchmark::kMillisecond)->Complexity();
BENCHMARK(Fasi)->Arg(20'000)->Unit(benchmark::kMillisecond);
BENCHMARK(Scansioni)->Arg(20'000)->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
} // namespace lirmeto
