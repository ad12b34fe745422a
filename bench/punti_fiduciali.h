#pragma once
// A province of fiducial points, invented by the number of its points.

#include <base/testo.h>
#include <fiduciali/tabella_pf.h>

#include <string>

namespace lirmeto::misura {

inline std::string NomePF(std::size_t indice) {
  constexpr std::size_t numeri = 90;
  return "PF" + std::to_string(10 + indice % numeri) + "/" + std::to_string(1000 + indice / numeri) + "/G224";
}

inline TabellaPF Provincia(std::size_t quanti) {
  TabellaPF tabella{"G224", "PADOVA", "PD", {}};
  constexpr std::size_t colonne = 150;
  for (std::size_t i = 0; i < quanti; ++i) {
    RecordTaf punto;
    punto.nome = NomePF(i);
    punto.x = static_cast<double>(i % colonne) * 270;
    punto.y = static_cast<double>(i / colonne) * 310;
    tabella.punti.push_back(punto);
  }
  return tabella;
}

// Each point with some of those behind it.
inline std::string Archivio(std::size_t punti, std::size_t righe) {
  std::string testo;
  for (std::size_t i = 0; i < righe; ++i) {
    const std::string coppia = NomePF(i % punti) + " - " + NomePF((i + 1 + i / punti) % punti);
    testo.append(coppia).append("       575.975    0.020     2010 230571 ").append(FineRiga);
  }
  return testo;
}

} // namespace lirmeto::misura
