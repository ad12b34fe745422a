#pragma once
// Progress of a loop over many rows.

#include <base/dialoghi.h>

#include <algorithm>

namespace lirmeto {

// Tells how far a loop is, a hundred times at most and not at all when it is
// short, and that it has ended.
class Avanzamento {
public:
  Avanzamento(Dialoghi& dialoghi, std::string_view lavoro, std::size_t totale)
      : dialoghi_(dialoghi), lavoro_(lavoro), totale_(totale) {}
  Avanzamento(const Avanzamento&) = delete;
  Avanzamento& operator=(const Avanzamento&) = delete;
  ~Avanzamento() {
    if (mostrato_) dialoghi_.Avanzamento(lavoro_, totale_, totale_);
  }

  void Fatto(std::size_t passi) {
    constexpr std::size_t pochi = 1U << 15U;
    if (passi < prossimo_) return;
    mostrato_ = prossimo_ > 0;
    prossimo_ = passi + std::max(pochi, totale_ / 100);
    if (mostrato_) dialoghi_.Avanzamento(lavoro_, passi, totale_);
  }

private:
  Dialoghi& dialoghi_;
  std::string_view lavoro_;
  std::size_t totale_;
  std::size_t prossimo_ = 0;
  bool mostrato_ = false;
};

} // namespace lirmeto
