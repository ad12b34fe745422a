// Rows 3.

#include <generazione/generazione.h>
#include <generazione/righe_mantenute.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

namespace lirmeto {

namespace {

constexpr std::size_t NomiPerRiga = 10;
constexpr std::size_t LunghezzaInizioSeguito = 4; // "3|0|": a row of nothing else says nothing

void MettiPoligonale(Generazione& g, std::string_view punti) {
  const auto nomi = Elementi(punti);
  std::string riga = "3|" + TestoIntero(static_cast<long long>(nomi.size())) + "|";
  std::size_t messi = 0;
  for (const auto nome : nomi) {
    riga += nome;
    riga += '|';
    if (++messi % NomiPerRiga != 0) continue;
    g.righe.push_back(riga);
    riga = "3|0|";
  }
  if (riga.size() > LunghezzaInizioSeguito) g.righe.push_back(riga);
}

} // namespace

void MantieniConCommenti(Generazione& g, Genere genere) {
  std::vector<std::string_view> tenuti;
  for (const auto riga : g.vecchie) {
    const Genere questo = GenereDi(riga);
    if (questo == Genere::Libera && riga.size() < LunghezzaMinimaNonCommento) tenuti.push_back(riga);
    if (questo != genere) continue;
    for (const auto commento : tenuti) g.righe.emplace_back(commento);
    tenuti.clear();
    g.righe.emplace_back(riga);
  }
}

void MettiPoligonali(Generazione& g) {
  if (g.opzioni.Mantieni37) {
    g.rapporto.emplace_back("Mantiene Poligonali del Libretto");
    MantieniConCommenti(g, Genere::Poligonale);
    return;
  }
  g.rapporto.emplace_back("Carica Poligonali da Contorni 3");
  for (const ContornoDisegno& contorno : g.tabelle.Contorni)
    if (contorno.Tipo == "POLIGONALE") MettiPoligonale(g, contorno.Punti);
}

} // namespace lirmeto
