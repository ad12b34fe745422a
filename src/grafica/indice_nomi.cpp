#include <grafica/indice_nomi.h>

#include <base/errore.h>
#include <base/testo.h>
#include <grafica/archivio_grafica.h>

#include <algorithm>
#include <bit>
#include <functional>
#include <limits>

namespace lirmeto {

namespace {

constexpr std::size_t PostiVicini = 16; // two lines of the processor's cache
constexpr std::size_t PostiMinimi = 1024;

// Where the last digit of "123%" or "123" stands; the name's length when it ends otherwise.
std::size_t UltimaCifra(std::string_view nome) {
  const std::size_t lungo = nome.size();
  if (lungo > 0 && Cifra(nome[lungo - 1])) return lungo - 1;
  if (lungo > 1 && Cifra(nome[lungo - 2])) return lungo - 2;
  return lungo;
}

} // namespace

IndiceNomi::Posto IndiceNomi::PostoDi(std::string_view nome) const {
  constexpr std::uint64_t dispari = 0x9E3779B97F4A7C15U;
  const std::size_t cifra = UltimaCifra(nome);
  const std::size_t vicino = cifra < nome.size() ? static_cast<std::size_t>(nome[cifra] - '0') : PostiVicini - 1;
  const std::uint64_t classe = cifra + 1 < nome.size() ? static_cast<unsigned char>(nome.back()) : 0U;
  const std::uint64_t gruppo = (std::hash<std::string_view>{}(nome.substr(0, cifra)) ^ classe) * dispari;
  return {static_cast<std::uint32_t>(gruppo >> 32U), (gruppo * PostiVicini + vicino) & (prima_.size() - 1)};
}

// Number of the point of that name; 0 when there is none.
std::uint32_t IndiceNomi::Cerca(const std::vector<PuntoGrafica>& punti, std::string_view nome,
                                const Posto& posto) const {
  Maglia maglia = prima_[posto.indice];
  while (maglia.numero != 0 && (maglia.impronta != posto.impronta || punti[maglia.numero - 1].Nome != nome))
    maglia = poi_[maglia.numero - 1];
  return maglia.numero;
}

void IndiceNomi::Prendi(const std::vector<PuntoGrafica>& punti, std::uint32_t numero) {
  const std::string_view nome = punti[numero - 1].Nome;
  const Posto posto = PostoDi(nome);
  if (Cerca(punti, nome, posto) != 0) return;
  poi_[numero - 1] = prima_[posto.indice];
  prima_[posto.indice] = {posto.impronta, numero};
}

void IndiceNomi::Allarga(const std::vector<PuntoGrafica>& punti, std::size_t posti) {
  prima_.assign(std::bit_ceil(std::max(posti, PostiMinimi)), {});
  poi_.assign(poi_.size(), {});
  for (std::size_t i = 0; i < poi_.size(); ++i) Prendi(punti, static_cast<std::uint32_t>(i + 1));
}

void IndiceNomi::Aggiungi(const std::vector<PuntoGrafica>& punti) {
  if (punti.size() >= std::numeric_limits<std::uint32_t>::max()) throw Errore(errore::MemoriaEsaurita);
  if (punti.size() > prima_.size() / 2) Allarga(punti, punti.size() * 4);
  poi_.resize(punti.size());
  Prendi(punti, static_cast<std::uint32_t>(punti.size()));
}

std::optional<std::size_t> IndiceNomi::Primo(const std::vector<PuntoGrafica>& punti, std::string_view nome) const {
  const std::uint32_t numero = prima_.empty() ? 0 : Cerca(punti, nome, PostoDi(nome));
  if (numero == 0) return std::nullopt;
  return numero - 1;
}

void IndiceNomi::Svuota() {
  prima_.clear();
  poi_.clear();
}

void IndiceNomi::Riserva(const std::vector<PuntoGrafica>& punti, std::size_t quanti) {
  poi_.reserve(quanti);
  if (quanti > prima_.size() / 2) Allarga(punti, quanti * 2);
}

} // namespace lirmeto
