#pragma once
// A drawing on a machine in memory, and a surface that counts what it is asked for.

#include "sostituti/banco.h"

#include <grafica/grafica.h>

#include <gtest/gtest.h>

#include <string>
#include <utility>

namespace lirmeto::prova {

inline PuntoGrafica Punto(std::string nome, double x, double y, std::int16_t colore = 0, std::string testo = {}) {
  return {std::move(nome), x, y, 0, colore, std::move(testo), 0, "Courier New", 8};
}

// A surface that counts what it is asked for.
struct SuperficieDiProva : SuperficieGrafica {
  int disegni = 0;
  int copie = 0;
  int stampe = 0;
  int menu = 0;
  void Ridisegna() override { ++disegni; }
  void CopiaRaster() override { ++copie; }
  void Stampa() override { ++stampe; }
  void MostraMenu() override { ++menu; }
};

struct ConGrafica : testing::Test {
  ConGrafica() { grafica.Picture1 = &superficie; }
  Banco banco;
  DisegnoCondiviso disegno;
  SuperficieDiProva superficie;
  Grafica grafica{banco.ambiente, disegno};
};

} // namespace lirmeto::prova
