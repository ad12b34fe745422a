#pragma once
// The form where extracts are joined to the one selected in the manager.

#include <base/dialoghi.h>
#include <core/ambiente.h>
#include <grafica/grafica.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace lirmeto {

class KR_SommaEstratti : public Modello {
public:
  // `primo` is the full path of the first extract.
  KR_SommaEstratti(Ambiente& ambiente, std::string primo)
      : EstrattoSomma(std::move(primo)), grafica_(ambiente, disegno_), ambiente_(ambiente) {}

  // Shown by the window as they stand.
  std::string EstrattoSomma;      // path of the first extract
  std::string EstrattoDaSommare;  // path of the one added last
  std::vector<std::string> File1; // the extracts of the folder
  std::vector<bool> Scelti;       // those of them to add
  std::string NomeSomma;          // box: name of the result, without extension
  std::string Creato;             // file name of the result; empty until it is there
  bool Chiusa = false;

  [[nodiscard]] Ambiente& Dintorni() { return ambiente_; }
  [[nodiscard]] Grafica& Grafica1() { return grafica_; }

  void AlCaricamento();

  // Chooses an extract or leaves it out. Error 9 for an index that is not there.
  void Scegli(std::size_t indice, bool scelto);
  // Draws the sum as it would be; without an extract chosen the first one alone. Errors are reported here.
  void MostraSomma();
  // The button: the sum under its name, and the form closes. Errors are reported here, and nothing is left then.
  void Somma();
  void Chiudi() { Chiusa = true; }

private:
  // The sum of the first and those chosen, in their order, into the temporary file.
  void SommaDiLista();
  // That file into the extracts folder, with the raster of the first.
  void GeneraSommaEstratti(const std::string& nome);
  [[nodiscard]] std::string FileTemporaneo() const;

  DisegnoCondiviso disegno_;
  Grafica grafica_;
  Ambiente& ambiente_;
};

} // namespace lirmeto
