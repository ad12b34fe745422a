#include <estratti/rinumerazione.h>

#include <base/numeri.h>

#include <numeric>
#include <utility>

namespace lirmeto {

IndiceIdentificativi::IndiceIdentificativi(std::size_t attesi, char classe)
    : classe_(classe), numerati_(attesi * 2 + 64, Nessuno) {}

std::size_t IndiceIdentificativi::Numero(std::string_view identificativo) const {
  if (identificativo.size() < 2 || identificativo.back() != classe_ || identificativo.front() == '0') return 0;
  std::size_t numero = 0;
  for (const char c : identificativo.substr(0, identificativo.size() - 1)) {
    if (c < '0' || c > '9') return 0;
    numero = numero * 10 + static_cast<std::size_t>(c - '0');
    if (numero >= numerati_.size()) return 0;
  }
  return numero;
}

std::uint32_t IndiceIdentificativi::Aggiungi(std::string_view identificativo, std::uint32_t posto) {
  const std::size_t numero = Numero(identificativo);
  if (numero == 0) return altri_.try_emplace(identificativo, posto).first->second;
  if (numerati_[numero] == Nessuno) numerati_[numero] = posto;
  return numerati_[numero];
}

std::uint32_t IndiceIdentificativi::Cerca(std::string_view identificativo) const {
  if (const std::size_t numero = Numero(identificativo); numero != 0) return numerati_[numero];
  const auto trovato = altri_.find(identificativo);
  return trovato == altri_.end() ? Nessuno : trovato->second;
}

std::uint32_t IndiceIdentificativi::CercaNumero(std::size_t numero) const {
  return numero < numerati_.size() ? numerati_[numero] : Cerca(TestoIntero(static_cast<long long>(numero)) + classe_);
}

Rinumerazione::Rinumerazione(const std::vector<std::string_view>& vecchi, char classe)
    : classe_(classe), indice_(vecchi.size(), classe), gruppi_(vecchi.size()), padri_(vecchi.size()),
      nuovi_(vecchi.size()) {
  primi_.reserve(vecchi.size());
  for (const auto vecchio : vecchi)
    primi_.push_back(indice_.Aggiungi(vecchio, static_cast<std::uint32_t>(primi_.size())));
  std::iota(gruppi_.begin(), gruppi_.end(), 0U);
  std::iota(padri_.begin(), padri_.end(), 0U);
}

void Rinumerazione::Sostituisci(std::size_t punto, std::size_t numero) {
  const std::uint32_t gruppo = std::exchange(gruppi_[primi_[punto]], IndiceIdentificativi::Nessuno);
  if (gruppo == IndiceIdentificativi::Nessuno) return; // no field reads so any more
  nuovi_[gruppo] = static_cast<std::uint32_t>(numero);
  const std::uint32_t omonimo = indice_.CercaNumero(numero);
  if (omonimo == IndiceIdentificativi::Nessuno) return;
  if (gruppi_[omonimo] != IndiceIdentificativi::Nessuno) padri_[gruppi_[omonimo]] = gruppo;
  gruppi_[omonimo] = gruppo;
}

std::uint32_t Rinumerazione::Radice(std::uint32_t posto) {
  while (padri_[posto] != posto) {
    padri_[posto] = padri_[padri_[posto]];
    posto = padri_[posto];
  }
  return posto;
}

void Rinumerazione::Aggiungi(std::string& testo, std::string_view riga) {
  std::size_t copiato = 0; // of the row
  std::size_t campo = 0;
  for (std::size_t i = 0; i < riga.size(); ++i) {
    if (riga[i] != '|') continue;
    const std::uint32_t posto =
        campo == 0 ? IndiceIdentificativi::Nessuno : indice_.Cerca(riga.substr(campo, i - campo));
    if (posto != IndiceIdentificativi::Nessuno) {
      testo += riga.substr(copiato, campo - copiato);
      testo += TestoIntero(nuovi_[Radice(posto)]);
      testo += classe_;
      copiato = i;
    }
    campo = i + 1;
  }
  testo += riga.substr(copiato);
}

} // namespace lirmeto
