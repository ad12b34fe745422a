#include <core/lista_righe.h>

#include <algorithm>

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

void ListaRighe::Inserisci(std::size_t indice, std::string_view riga) {
  if (indice > righe_.size()) throw Errore(errore::IndiceFuoriIntervallo);
  righe_.insert(righe_.begin() + static_cast<std::ptrdiff_t>(indice), Copiata(riga));
}

void ListaRighe::Togli(std::size_t indice) {
  righe_.erase(righe_.begin() + static_cast<std::ptrdiff_t>(Controlla(indice)));
}

} // namespace lirmeto
