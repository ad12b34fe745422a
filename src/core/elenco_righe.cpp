#include <core/elenco_righe.h>

#include <base/testo.h>

#include <algorithm>
#include <utility>

namespace lirmeto {

std::size_t ElencoRighe::Controlla(std::size_t indice) const {
  if (indice >= righe_.size()) throw Errore(errore::IndiceFuoriIntervallo);
  return indice;
}

void ElencoRighe::Svuota() {
  Riempi({});
}

void ElencoRighe::Riempi(ListaRighe righe) {
  righe_ = std::move(righe);
  selezionate_.assign(righe_.size(), false);
  indice_ = -1;
  ++versione_;
  ++versioneSelezione_;
}

void ElencoRighe::Aggiungi(std::string_view riga) {
  righe_.Aggiungi(riga);
  selezionate_.push_back(false);
  ++versione_;
}

void ElencoRighe::Inserisci(std::size_t indice, std::string_view riga) {
  righe_.Inserisci(indice, riga);
  selezionate_.insert(selezionate_.begin() + static_cast<std::ptrdiff_t>(indice), false);
  if (indice_ >= static_cast<long>(indice)) ++indice_;
  ++versione_;
}

void ElencoRighe::InserisciTratto(std::size_t indice, TestoCondiviso testo, std::span<const std::string_view> righe) {
  righe_.Tieni(std::move(testo));
  righe_.CambiaTratto(indice, 0, righe);
  selezionate_.assign(selezionate_.size(), false);
  selezionate_.insert(selezionate_.begin() + static_cast<std::ptrdiff_t>(indice), righe.size(), true);
  Indice(static_cast<long>(indice));
  ++versione_;
  ++versioneSelezione_;
}

void ElencoRighe::Cambia(std::size_t indice, std::string_view riga) {
  righe_.Cambia(indice, riga);
  ++versione_;
}

void ElencoRighe::Togli(std::size_t indice) {
  righe_.Togli(indice);
  selezionate_.erase(selezionate_.begin() + static_cast<std::ptrdiff_t>(indice));
  if (indice_ > static_cast<long>(indice)) --indice_;
  Indice(indice_);
  ++versione_;
}

void ElencoRighe::Seleziona(std::size_t indice, bool si) {
  selezionate_[Controlla(indice)] = si;
  ++versioneSelezione_;
}

void ElencoRighe::SelezionaIntervallo(std::size_t primo, std::size_t ultimo, bool si) {
  std::fill(selezionate_.begin() + static_cast<std::ptrdiff_t>(Controlla(primo)),
            selezionate_.begin() + static_cast<std::ptrdiff_t>(Controlla(ultimo)) + 1, si);
  ++versioneSelezione_;
}

void ElencoRighe::SelezionaSe(const std::function<bool(std::string_view)>& vale) {
  for (std::size_t i = 0; i < righe_.size(); ++i) selezionate_[i] = vale(righe_[i]);
  ++versioneSelezione_;
}

std::size_t ElencoRighe::QuanteSelezionate() const {
  return static_cast<std::size_t>(std::count(selezionate_.begin(), selezionate_.end(), true));
}

std::vector<std::size_t> ElencoRighe::Selezionate(std::size_t primo) const {
  std::vector<std::size_t> quali;
  for (std::size_t i = primo; i < selezionate_.size(); ++i)
    if (selezionate_[i]) quali.push_back(i);
  return quali;
}

std::size_t ElencoRighe::TogliSelezionate(std::size_t primo) {
  return TogliSe(primo, [this](std::size_t i) { return selezionate_[i]; });
}

std::size_t ElencoRighe::TogliRipetute() {
  // Equal to the one before it is equal to the first of the run, so that the
  // rows as they stand tell all.
  return TogliSe(1, [this](std::size_t i) { return UgualiSenzaCaso(righe_[i], righe_[i - 1]); });
}

std::size_t ElencoRighe::TogliSe(std::size_t primo, const std::function<bool(std::size_t)>& via) {
  std::vector<std::size_t> tolte;
  for (std::size_t i = primo; i < righe_.size(); ++i)
    if (via(i)) tolte.push_back(i);
  if (tolte.empty()) return 0;
  righe_.TogliPosti(tolte);
  std::size_t nuovo = tolte.front();
  auto prossima = tolte.begin();
  for (std::size_t i = tolte.front(); i < selezionate_.size(); ++i) {
    if (prossima != tolte.end() && *prossima == i)
      ++prossima;
    else
      selezionate_[nuovo++] = selezionate_[i];
  }
  selezionate_.resize(nuovo);
  const auto sopra = std::lower_bound(tolte.begin(), tolte.end(), static_cast<std::size_t>(std::max(indice_, 0L)));
  Indice(indice_ - static_cast<long>(sopra - tolte.begin()));
  ++versione_;
  ++versioneSelezione_;
  return tolte.size();
}

void ElencoRighe::Indice(long indice) {
  indice_ = std::clamp(indice, -1L, static_cast<long>(righe_.size()) - 1);
}

} // namespace lirmeto
