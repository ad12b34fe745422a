#pragma once
// The row list of the main window: the editable view of the open libretto.

#include <core/lista_righe.h>

#include <functional>
#include <span>
#include <string_view>
#include <vector>

namespace lirmeto {

// Rows with their selection and the current index. Indices count from 0; one
// that does not exist is error 9. `Versione` grows with every change of the
// rows, `VersioneSelezione` with every change of the selection, so that a
// window knows when to refresh.
class ElencoRighe {
public:
  [[nodiscard]] std::size_t Quante() const { return righe_.size(); }
  [[nodiscard]] bool Vuoto() const { return righe_.empty(); }
  [[nodiscard]] std::string_view Riga(std::size_t indice) const { return righe_[indice]; }
  [[nodiscard]] const ListaRighe& Righe() const { return righe_; }

  // Empties the list; the current index becomes -1.
  void Svuota();
  void Aggiungi(std::string_view riga);
  void Inserisci(std::size_t indice, std::string_view riga);
  // Rows of a text that the list keeps, all at once: they are selected and no others, and the first is the current one.
  void InserisciTratto(std::size_t indice, TestoCondiviso testo, std::span<const std::string_view> righe);
  void Cambia(std::size_t indice, std::string_view riga);
  void Togli(std::size_t indice);

  // All rows at once; nothing is selected afterwards.
  void Riempi(ListaRighe righe);

  [[nodiscard]] bool Selezionata(std::size_t indice) const { return selezionate_[Controlla(indice)]; }
  void Seleziona(std::size_t indice, bool si);
  void SelezionaIntervallo(std::size_t primo, std::size_t ultimo, bool si);
  // Selects the rows that satisfy the test and no others.
  void SelezionaSe(const std::function<bool(std::string_view)>& vale);
  [[nodiscard]] std::size_t QuanteSelezionate() const;
  // Places of the selected rows from `primo` on, in order.
  [[nodiscard]] std::vector<std::size_t> Selezionate(std::size_t primo = 0) const;

  // Removes the selected rows from `primo` on; the answer is how many went.
  std::size_t TogliSelezionate(std::size_t primo);

  // Removes each row that is equal, in any case, to the one before it; the
  // first of a run stays.
  std::size_t TogliRipetute();

  // Index of the row under the cursor, -1 for none. It stays with its row when rows before it come or go; when its own
  // row goes, the next one has it.
  [[nodiscard]] long Indice() const { return indice_; }
  void Indice(long indice);

  [[nodiscard]] unsigned long Versione() const { return versione_; }
  [[nodiscard]] unsigned long VersioneSelezione() const { return versioneSelezione_; }

private:
  [[nodiscard]] std::size_t Controlla(std::size_t indice) const;
  std::size_t TogliSe(std::size_t primo, const std::function<bool(std::size_t)>& via);

  ListaRighe righe_;
  std::vector<bool> selezionate_;
  long indice_ = -1;
  unsigned long versione_ = 0;
  unsigned long versioneSelezione_ = 0;
};

} // namespace lirmeto
