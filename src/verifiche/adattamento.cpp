#include <verifiche/adattamento.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace lirmeto {

namespace {

constexpr double LimiteBreve = 300; // metres: beyond it the tolerance is one number

// Scarto of the worst pair, and which it is.
struct Peggiore {
  double scarto = 0;
  std::size_t indice = 0;
};

std::optional<Rototraslazione> MinimiQuadrati(const std::vector<Coppia>& coppie) {
  if (coppie.size() < 2) return std::nullopt;
  PuntoPiano da;
  PuntoPiano a;
  for (const Coppia& c : coppie) {
    da = {da.est + c.da.est, da.nord + c.da.nord};
    a = {a.est + c.a.est, a.nord + c.a.nord};
  }
  const auto n = static_cast<double>(coppie.size());
  da = {da.est / n, da.nord / n};
  a = {a.est / n, a.nord / n};
  double scalare = 0;
  double vettoriale = 0;
  for (const Coppia& c : coppie) {
    scalare += (c.da.est - da.est) * (c.a.est - a.est) + (c.da.nord - da.nord) * (c.a.nord - a.nord);
    vettoriale += (c.da.est - da.est) * (c.a.nord - a.nord) - (c.da.nord - da.nord) * (c.a.est - a.est);
  }
  const double modulo = std::hypot(scalare, vettoriale);
  if (!(modulo > 0) || !std::isfinite(modulo)) return std::nullopt;
  Rototraslazione t{scalare / modulo, vettoriale / modulo, 0, 0};
  const PuntoPiano girato = t.Applica(da);
  t.dx = a.est - girato.est;
  t.dy = a.nord - girato.nord;
  return t;
}

Peggiore PeggioreDi(const std::vector<Coppia>& coppie, const Rototraslazione& t) {
  Peggiore peggiore;
  for (std::size_t i = 0; i < coppie.size(); ++i) {
    const double scarto = DistanzaPiana(t.Applica(coppie[i].da), coppie[i].a);
    if (scarto > peggiore.scarto) peggiore = {scarto, i};
  }
  return peggiore;
}

std::vector<Coppia> Senza(const std::vector<Coppia>& coppie, std::size_t indice) {
  std::vector<Coppia> altre = coppie;
  altre.erase(altre.begin() + static_cast<std::ptrdiff_t>(indice));
  return altre;
}

// Of few pairs each is tried as the one to leave out; of many the worst goes.
std::size_t DaLasciare(const std::vector<Coppia>& coppie, std::size_t peggiore) {
  constexpr std::size_t poche = 8;
  if (coppie.size() > poche) return peggiore;
  std::size_t scelta = peggiore;
  double minimo = std::numeric_limits<double>::max();
  for (std::size_t i = 0; i < coppie.size(); ++i) {
    const auto altre = Senza(coppie, i);
    const auto t = MinimiQuadrati(altre);
    if (!t) continue;
    const double scarto = PeggioreDi(altre, *t).scarto;
    if (scarto >= minimo) continue;
    minimo = scarto;
    scelta = i;
  }
  return scelta;
}

} // namespace

std::optional<Rototraslazione> Adatta(std::vector<Coppia> coppie) {
  auto t = MinimiQuadrati(coppie);
  for (std::size_t giri = coppie.size() / 2; t && giri > 0 && coppie.size() > 2; --giri) {
    const Peggiore peggiore = PeggioreDi(coppie, *t);
    const double lontana = std::hypot(coppie[peggiore.indice].da.est, coppie[peggiore.indice].da.nord);
    if (peggiore.scarto <= TolleranzaStretta(lontana)) break;
    auto altre = Senza(coppie, DaLasciare(coppie, peggiore.indice));
    const auto migliore = MinimiQuadrati(altre);
    if (!migliore || PeggioreDi(altre, *migliore).scarto >= peggiore.scarto) break;
    t = migliore;
    coppie = std::move(altre);
  }
  return t;
}

double TolleranzaStretta(double distanza) {
  return distanza > LimiteBreve ? 0.45 : 0.05 + 0.0013 * distanza;
}

double TolleranzaLarga(double distanza) {
  return distanza > LimiteBreve ? 0.70 : 0.10 + 0.0020 * distanza;
}

} // namespace lirmeto
