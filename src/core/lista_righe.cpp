#include <core/lista_righe.h>

#include <algorithm>
#include <functional>

namespace lirmeto {

ListaRighe::ListaRighe(std::initializer_list<std::string_view> righe) {
  for (const auto riga : righe) Aggiungi(riga);
}

std::size_t ListaRighe::Controlla(std::size_t indice) const {
  if (indice >= righe_.size()) throw Errore(errore::IndiceFuoriIntervallo);
  return indice;
}

std::string_view ListaRighe::Copiata(std::string_view riga) {
  constexpr std::size_t lunghezzaBlocco = 1U << 16U;
  if (!copie_) copie_ = std::make_shared<std::deque<std::string>>();
  if (copie_->empty() || copie_->back().capacity() - copie_->back().size() < riga.size())
    copie_->emplace_back().reserve(std::max(lunghezzaBlocco, riga.size()));
  std::string& blocco = copie_->back();
  const std::size_t posto = blocco.size();
  blocco += riga; // within its capacity: what is there stays where it is
  return std::string_view(blocco).substr(posto);
}

void ListaRighe::clear() {
  righe_.clear();
  testi_.clear();
  copie_.reset();
}

void ListaRighe::AggiungiViste(std::span<const std::string_view> righe) {
  righe_.insert(righe_.end(), righe.begin(), righe.end());
}

void ListaRighe::Inserisci(std::size_t indice, std::string_view riga) {
  if (indice > righe_.size()) throw Errore(errore::IndiceFuoriIntervallo);
  righe_.insert(righe_.begin() + static_cast<std::ptrdiff_t>(indice), Copiata(riga));
}

void ListaRighe::Togli(std::size_t indice) {
  righe_.erase(righe_.begin() + static_cast<std::ptrdiff_t>(Controlla(indice)));
}

void ListaRighe::TogliPosti(std::span<const std::size_t> posti) {
  auto prossimo = posti.begin();
  std::size_t posto = 0;
  TogliSe([&](std::string_view /*riga*/) {
    const bool via = prossimo != posti.end() && *prossimo == posto++;
    if (via) ++prossimo;
    return via;
  });
}

void ListaRighe::CambiaTratto(std::size_t inizio, std::size_t quante, std::span<const std::string_view> righe) {
  if (inizio > righe_.size() || quante > righe_.size() - inizio) throw Errore(errore::IndiceFuoriIntervallo);
  const auto da = righe_.begin() + static_cast<std::ptrdiff_t>(inizio);
  const auto posto = righe_.erase(da, da + static_cast<std::ptrdiff_t>(quante));
  righe_.insert(posto, righe.begin(), righe.end());
}

ListaRighe ListaRighe::Compatta() const {
  ListaRighe compatta;
  for (const auto riga : righe_) compatta.Aggiungi(riga);
  return compatta;
}

std::size_t ListaRighe::NumeroDiRiga(std::size_t indice) const {
  const std::string_view riga = righe_[Controlla(indice)];
  for (const TestoCondiviso& testo : testi_) {
    const char* const inizio = testo->data();
    const bool dentro = !std::less<>{}(riga.data(), inizio) && std::less<>{}(riga.data(), inizio + testo->size());
    if (!dentro || (riga.data() != inizio && riga.data()[-1] != '\n')) continue;
    return static_cast<std::size_t>(std::count(inizio, riga.data(), '\n')) + 1;
  }
  return indice + 1;
}

} // namespace lirmeto
