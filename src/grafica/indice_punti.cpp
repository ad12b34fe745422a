#include <grafica/indice_punti.h>

#include <core/servizi.h>
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
  double x;
  double y;
  double entro; // distance of the best one; at first the limit
  std::size_t indice = 0;
  bool trovato = false;

  void Prova(double px, double py, std::size_t chi) {
    const double distanza = DistanzaPiana(px, py, x, y);
    if (distanza > entro || (distanza == entro && (!trovato || chi > indice))) return;
    entro = distanza;
    indice = chi;
    trovato = true;
  }
};

} // namespace

void IndicePunti::Svuota() {
  posti_.clear();
  ordine_.clear();
}

void IndicePunti::Segui(std::span<const PuntoGrafica> punti) {
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
    if (posti_.empty() || posti_.back().x != punto.X || posti_.back().y != punto.Y)
      posti_.push_back({punto.X, punto.Y, i, 0});
    ++posti_.back().quanti;
  }
  Dimezza(0, posti_.size(), true);
}

void IndicePunti::Dimezza(std::size_t da, std::size_t a, bool perX) {
  if (a - da < 2) return;
  const std::size_t mezzo = da + (a - da) / 2;
  const auto inizio = posti_.begin();
  const auto posto = [&](std::size_t i) { return inizio + static_cast<std::ptrdiff_t>(i); };
  std::nth_element(posto(da), posto(mezzo), posto(a),
                   [perX](const Posto& p, const Posto& q) { return perX ? p.x < q.x : p.y < q.y; });
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
  const double scarto = perX ? visita.X() - posto.x : visita.Y() - posto.y;
  const bool prima = scarto < 0;
  const auto scendi = [&](bool giu) { giu ? Scendi(da, mezzo, !perX, visita) : Scendi(mezzo + 1, a, !perX, visita); };
  scendi(prima);
  if (std::abs(scarto) <= visita.Entro()) scendi(!prima);
}

std::size_t IndicePunti::PiuVicino(std::span<const PuntoGrafica> punti, double x, double y, double entro) const {
  struct {
    Migliore migliore;
    const std::vector<std::uint32_t>& ordine;
    [[nodiscard]] double X() const { return migliore.x; }
    [[nodiscard]] double Y() const { return migliore.y; }
    [[nodiscard]] double Entro() const { return migliore.entro; }
    void operator()(const Posto& posto) { migliore.Prova(posto.x, posto.y, ordine[posto.primo]); }
  } visita{{x, y, entro}, ordine_};
  Scendi(0, posti_.size(), true, visita);
  for (std::size_t i = ordine_.size(); i < punti.size(); ++i) visita.migliore.Prova(punti[i].X, punti[i].Y, i);
  return visita.migliore.indice;
}

std::vector<std::size_t> IndicePunti::Vicini(std::span<const PuntoGrafica> punti, double x, double y,
                                             double entro) const {
  struct {
    double x;
    double y;
    double entro;
    const std::vector<std::uint32_t>& ordine;
    std::vector<std::size_t> trovati;
    [[nodiscard]] double X() const { return x; }
    [[nodiscard]] double Y() const { return y; }
    [[nodiscard]] double Entro() const { return entro; }
    void operator()(const Posto& posto) {
      if (!(DistanzaPiana(posto.x, posto.y, x, y) < entro)) return;
      const auto primo = ordine.begin() + static_cast<std::ptrdiff_t>(posto.primo);
      trovati.insert(trovati.end(), primo, primo + static_cast<std::ptrdiff_t>(posto.quanti));
    }
  } visita{x, y, entro, ordine_, {}};
  Scendi(0, posti_.size(), true, visita);
  for (std::size_t i = ordine_.size(); i < punti.size(); ++i)
    if (DistanzaPiana(punti[i].X, punti[i].Y, x, y) < entro) visita.trovati.push_back(i);
  std::sort(visita.trovati.begin(), visita.trovati.end());
  return std::move(visita.trovati);
}

} // namespace lirmeto
