#pragma once
// Mouse and key rules of a list with extended selection, over the row list's
// own selection: there is no second copy of it.

#include <core/elenco_righe.h>

#include <cstddef>

namespace lirmeto::ui {

class SelezioneEstesa {
public:
  explicit SelezioneEstesa(ElencoRighe& elenco) : elenco_(elenco) {}

  // Indices beyond the list are taken as its last row; on an empty list nothing
  // happens.
  void Semplice(std::size_t riga); // click: this row alone
  void Alterna(std::size_t riga);  // Ctrl+click
  void Estendi(std::size_t riga,
               bool mantieni);   // Shift+click, drag: from the anchor to this
                                 // row; `mantieni` keeps the rest
  void Sposta(std::size_t riga); // Ctrl+arrow: the cursor alone
  void Tutte();

private:
  [[nodiscard]] std::size_t Entro(std::size_t riga) const;
  void Nessuna();

  ElencoRighe& elenco_;
  std::size_t ancora_ = 0;
};

} // namespace lirmeto::ui
