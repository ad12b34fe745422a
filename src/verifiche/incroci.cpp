#include <verifiche/incroci.h>

#include <algorithm>
#include <numeric>

namespace lirmeto {

namespace {

double Verso(const PuntoPiano& a, const PuntoPiano& b, const PuntoPiano& c) {
  return (b.est - a.est) * (c.nord - a.nord) - (b.nord - a.nord) * (c.est - a.est);
}

bool Opposti(double x, double y) {
  return (x > 0 && y < 0) || (x < 0 && y > 0);
}

bool Incrociano(const Tratto& s, const Tratto& t) {
  if (s.primo == t.primo || s.primo == t.secondo || s.secondo == t.primo || s.secondo == t.secondo) return false;
  if (std::max(s.a.nord, s.b.nord) < std::min(t.a.nord, t.b.nord) ||
      std::max(t.a.nord, t.b.nord) < std::min(s.a.nord, s.b.nord))
    return false;
  return Opposti(Verso(s.a, s.b, t.a), Verso(s.a, s.b, t.b)) && Opposti(Verso(t.a, t.b, s.a), Verso(t.a, t.b, s.b));
}

} // namespace

std::optional<std::pair<std::size_t, std::size_t>> PrimoIncrocio(const std::vector<Tratto>& tratti) {
  const auto ovest = [&](std::size_t i) { return std::min(tratti[i].a.est, tratti[i].b.est); };
  const auto est = [&](std::size_t i) { return std::max(tratti[i].a.est, tratti[i].b.est); };
  std::vector<std::size_t> ordine(tratti.size());
  std::iota(ordine.begin(), ordine.end(), 0);
  std::sort(ordine.begin(), ordine.end(), [&](auto i, auto k) { return ovest(i) < ovest(k); });
  std::vector<std::size_t> aperti; // those that reach as far east as the one looked at
  for (const std::size_t i : ordine) {
    std::erase_if(aperti, [&](std::size_t k) { return est(k) < ovest(i); });
    for (const std::size_t k : aperti)
      if (Incrociano(tratti[i], tratti[k])) return std::minmax(i, k);
    aperti.push_back(i);
  }
  return std::nullopt;
}

double DistanzaDaTratto(const PuntoPiano& p, const PuntoPiano& a, const PuntoPiano& b) {
  const double dx = b.est - a.est;
  const double dy = b.nord - a.nord;
  const double quadrato = dx * dx + dy * dy;
  if (quadrato == 0) return DistanzaPiana(p, a);
  const double t = std::clamp(((p.est - a.est) * dx + (p.nord - a.nord) * dy) / quadrato, 0.0, 1.0);
  return DistanzaPiana(p, {a.est + t * dx, a.nord + t * dy});
}

} // namespace lirmeto
