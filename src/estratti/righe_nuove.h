#pragma once
// The rows of a list while they are written anew: one text for all of them, and not one for each.

#include <base/testo.h>
#include <core/lista_righe.h>

#include <cstddef>
#include <memory>
#include <numeric>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lirmeto {

// Of the rows of a list with their line ends.
[[nodiscard]] inline std::size_t Lunghezza(const ListaRighe& lista) {
  return std::accumulate(lista.begin(), lista.end(), std::size_t{0}, [](std::size_t somma, std::string_view riga) {
    return somma + riga.size() + FineRiga.size();
  });
}

// Room for a text of that length whose rows change by a few characters each.
[[nodiscard]] constexpr std::size_t ConMargine(std::size_t lunghezza) {
  return lunghezza + lunghezza / 16 + 64;
}

// The rows of a list as they are written one after the other.
class RigheNuove {
public:
  // In place of those of a list.
  explicit RigheNuove(const ListaRighe& vecchie) {
    testo_.reserve(ConMargine(Lunghezza(vecchie)));
    fini_.reserve(vecchie.size());
  }

  // The row that is being written: pieces are added to it.
  [[nodiscard]] std::string& Riga() { return testo_; }
  void Chiudi() {
    fini_.push_back(testo_.size());
    testo_ += FineRiga;
  }

  // In place of what the list held.
  void Prendi(ListaRighe& lista) {
    const auto tenuto = std::make_shared<const std::string>(std::move(testo_));
    lista.clear();
    lista.Tieni(tenuto);
    lista.Riserva(fini_.size());
    std::size_t inizio = 0;
    for (const std::size_t fine : fini_) {
      lista.AggiungiVista(std::string_view(*tenuto).substr(inizio, fine - inizio));
      inizio = fine + FineRiga.size();
    }
  }

private:
  std::string testo_;
  std::vector<std::size_t> fini_; // where each row ends
};

} // namespace lirmeto
