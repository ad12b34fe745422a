#include <grafica/indice_punti.h>

#include <grafica/archivio_grafica.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace lirmeto {

namespace {

// So many points are walked as quickly as a tree is asked.
constexpr std::size_t Pochi = 64;

// The best of the points seen so far.
struct Migliore {
  PuntoPiano da;
  double entro; // distance of the best one; at first the limit
  std::size_t indice = 0;
  bool trovato = false;

  void Prova(const PuntoPiano& dove, std::size_t chi) {
    const double distanza = DistanzaPiana(dove, da);
    if (distanza > entro || (distanza == entro && (!trovato || chi > indice))) return;
    entro = distanza;
    indice = chi;
    trovato = true;
  }
};

} // namespace

void IndicePunti::Segui(const ArchivioGrafica& archivio) {
  if (generazione_ != archivio.Generazione()) {
    posti_.clear();
    ordine_.clear();
    generazione_ = archivio.Generazione();
  }
  const auto& punti = archivio.Punti();
  if (punti.size() > ordine_.size() + Pochi + ordine_.size() / 8) Costruisci(punti);
}

void IndicePunti::Costruisci(std::span<const PuntoGrafica> punti) {
  ordine_.resize(punti.size());
  std::iota(ordine_.begin(), ordine_.end(), 0U);
  std::sort(ordine_.begin(), ordine_.end(), [&](std::uint32_t a, std::uint32_t b) {
    if (punti[a].X != punti[b].X) return punti[a].X < punti[b].X;
    if (punti[a].Y != punti[b].Y) return punti[a].Y < punti[b].Y;
    return a < b;
  });
  posti_.clear();
  for (std::uint32_t i = 0; i < ordine_.size(); ++i) {
    const PuntoGrafica& punto = punti[ordine_[i]];
    if (posti_.empty() || posti_.back().dove != punto.Posto()) posti_.push_back({punto.Posto(), i, 0});
    ++posti_.back().quanti;
  }
  Dimezza(0, posti_.size(), true);
}

void IndicePunti::Dimezza(std::size_t da, std::size_t a, bool perX) {
  if (a - da < 2) return;
  const std::size_t mezzo = da + (a - da) / 2;
  const auto inizio = posti_.begin();
  const auto posto = [&](std::size_t i) { return inizio + static_cast<std::ptrdiff_t>(i); };
  std::nth_element(posto(da), posto(mezzo), posto(a), [perX](const Posto& p, const Posto& q) {
    return perX ? p.dove.est < q.dove.est : p.dove.nord < q.dove.nord;
  });
  Dimezza(da, mezzo, !perX);
  Dimezza(mezzo + 1, a, !perX);
}

// Visits the places that can be within visita.entro, the nearer half first.
template <typename Visita>
void IndicePunti::Scendi(std::size_t da, std::size_t a, bool perX, Visita& visita) const {
  if (da >= a) return;
  const std::size_t mezzo = da + (a - da) / 2;
  const Posto& posto = posti_[mezzo];
  visita(posto);
  const double scarto = perX ? visita.Da().est - posto.dove.est : visita.Da().nord - posto.dove.nord;
  const bool prima = scarto < 0;
  const auto scendi = [&](bool giu) { giu ? Scendi(da, mezzo, !perX, visita) : Scendi(mezzo + 1, a, !perX, visita); };
  scendi(prima);
  if (std::abs(scarto) <= visita.Entro()) scendi(!prima);
}

std::size_t IndicePunti::PiuVicino(std::span<const PuntoGrafica> punti, const PuntoPiano& posto, double entro) const {
  struct {
    Migliore migliore;
    const std::vector<std::uint32_t>& ordine;
    [[nodiscard]] const PuntoPiano& Da() const { return migliore.da; }
    [[nodiscard]] double Entro() const { return migliore.entro; }
    void operator()(const Posto& visto) { migliore.Prova(visto.dove, ordine[visto.primo]); }
  } visita{{posto, entro}, ordine_};
  Scendi(0, posti_.size(), true, visita);
  for (std::size_t i = ordine_.size(); i < punti.size(); ++i) visita.migliore.Prova(punti[i].Posto(), i);
  return visita.migliore.indice;
}

std::vector<std::size_t> IndicePunti::Vicini(std::span<const PuntoGrafica> punti, const PuntoPiano& posto,
                                             double entro) const {
  struct {
    PuntoPiano da;
    double entro;
    const std::vector<std::uint32_t>& ordine;
    std::vector<std::size_t> trovati;
    [[nodiscard]] const PuntoPiano& Da() const { return da; }
    [[nodiscard]] double Entro() const { return entro; }
    void operator()(const Posto& visto) {
      if (!(DistanzaPiana(visto.dove, da) < entro)) return;
      const auto primo = ordine.begin() + static_cast<std::ptrdiff_t>(visto.primo);
      trovati.insert(trovati.end(), primo, primo + static_cast<std::ptrdiff_t>(visto.quanti));
    }
  } visita{posto, entro, ordine_, {}};
  Scendi(0, posti_.size(), true, visita);
  for (std::size_t i = ordine_.size(); i < punti.size(); ++i)
    if (DistanzaPiana(punti[i].Posto(), posto) < entro) visita.trovati.push_back(i);
  std::sort(visita.trovati.begin(), visita.trovati.end());
  return std::move(visita.trovati);
}

} // namespace lirmeto
