#pragma once
// The form that shows the fiducial points of a comune as a table.

#include <base/dialoghi.h>
#include <fiduciali/tabella_pf.h>

#include <cstddef>
#include <string>
#include <vector>

namespace lirmeto {

class KR_ElcoPfGriglia : public Modello {
public:
  KR_ElcoPfGriglia(Ambiente& ambiente, TabellaPF tabella);

  std::vector<std::size_t> Viste; // rows shown, as indices of the table's points, in their order
  std::string Text1;              // what is looked for in them
  bool Chiusa = false;
  bool TuttoChiuso = false; // the points were handed over: the form before this one closes too

  [[nodiscard]] const TabellaPF& Tabella() const { return tabella_; }
  [[nodiscard]] const std::string& Cella(std::size_t vista, std::size_t colonna) const {
    return tabella_.punti[Viste[vista]].*ColonnePF[colonna].cella;
  }
  // "Provincia di PD", "Comune di PADOVA", "PF Totali 10".
  [[nodiscard]] std::string Label1() const;
  [[nodiscard]] std::string Label2() const;
  [[nodiscard]] std::string Label3() const;

  // Reads the TAF again.
  void Carica();

  // Shows the rows of which a cell holds the text, in either case; all for an empty text.
  void Filtra(std::string_view testo);
  // Orders the rows by a column; by the same one again, the other way round.
  void Ordina(std::size_t colonna);
  [[nodiscard]] bool Crescente() const { return crescente_; }

  // The rows shown from one to another, either of which may be the lower. Without a selection all rows shown count.
  void Seleziona(std::size_t una, std::size_t altra);
  void SelezionaNessuna() { selezionate_ = {}; }

  // Writes the selected rows to \temp\Stampa_TAF.CSV and .TXT and shows the print form; nothing without points.
  void Stampa();
  // The selected rows into the clipboard.
  void Copia();
  // Shows the points on the plane.
  void Grafica();
  // Fetches archives, then reads the TAF again.
  void Monografie();

private:
  struct Tratto { // of rows shown, from the first to before the last
    std::size_t primo = 0;
    std::size_t ultimo = 0;
  };
  [[nodiscard]] Tratto Selezionate() const;
  void Disponi();

  Ambiente& ambiente_;
  TabellaPF tabella_;
  std::size_t colonna_ = ColonnePF.size();
  bool crescente_ = true;
  Tratto selezionate_;
};

} // namespace lirmeto
