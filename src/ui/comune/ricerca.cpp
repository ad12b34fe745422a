#include <ui/comune/ricerca.h>

#include <base/testo.h>

#include <algorithm>
#include <functional>

namespace lirmeto::ui {

namespace {

struct Uguali {
  bool operator()(char a, char b) const { return Maiuscolo(a) == Maiuscolo(b); }
};

struct Impronta {
  std::size_t operator()(char lettera) const { return static_cast<unsigned char>(Maiuscolo(lettera)); }
};

using Cercatore = std::boyer_moore_horspool_searcher<std::string_view::const_iterator, Impronta, Uguali>;

} // namespace

std::vector<std::size_t> RigheCheContengono(const ListaRighe& righe, std::string_view testo) {
  std::vector<std::size_t> trovate;
  if (testo.empty()) return trovate;
  const Cercatore cercatore(testo.begin(), testo.end());
  for (std::size_t i = 0; i < righe.size(); ++i) {
    const std::string_view riga = righe[i];
    if (std::search(riga.begin(), riga.end(), cercatore) != riga.end()) trovate.push_back(i);
  }
  return trovate;
}

std::vector<std::pair<std::size_t, std::size_t>> PostiNellaRiga(std::string_view riga, std::string_view testo) {
  std::vector<std::pair<std::size_t, std::size_t>> posti;
  if (testo.empty()) return posti;
  const Cercatore cercatore(testo.begin(), testo.end());
  const auto inizio = riga.begin();
  for (auto da = std::search(inizio, riga.end(), cercatore); da != riga.end();) {
    posti.emplace_back(static_cast<std::size_t>(da - inizio), testo.size());
    da = std::search(da + static_cast<std::ptrdiff_t>(testo.size()), riga.end(), cercatore);
  }
  return posti;
}

std::size_t TrovataDopo(const std::vector<std::size_t>& trovate, long daRiga) {
  const auto dopo =
      daRiga < 0 ? trovate.begin() : std::upper_bound(trovate.begin(), trovate.end(), static_cast<std::size_t>(daRiga));
  return dopo == trovate.end() ? 0 : static_cast<std::size_t>(dopo - trovate.begin());
}

std::size_t TrovataPrima(const std::vector<std::size_t>& trovate, long daRiga) {
  const auto da =
      daRiga < 0 ? trovate.begin() : std::lower_bound(trovate.begin(), trovate.end(), static_cast<std::size_t>(daRiga));
  return da == trovate.begin() ? trovate.size() - 1 : static_cast<std::size_t>(da - trovate.begin()) - 1;
}

} // namespace lirmeto::ui
