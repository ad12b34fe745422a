#include <verifiche/incroci.h>

#include <algorithm>
#include <numeric>

namespace lirmeto {

namespace {

double Verso(const Posto& a, const Posto& b, const Posto& c) {
  return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

bool Opposti(double x, double y) {
  return (x > 0 && y < 0) || (x < 0 && y > 0);
}

bool Incrociano(const Tratto& s, const Tratto& t) {
  if (s.primo == t.primo || s.primo == t.secondo || s.secondo == t.primo || s.secondo == t.secondo) return false;
  if (std::max(s.a.y, s.b.y) < std::min(t.a.y, t.b.y) || std::max(t.a.y, t.b.y) < std::min(s.a.y, s.b.y)) return false;
  return Opposti(Verso(s.a, s.b, t.a), Verso(s.a, s.b, t.b)) && Opposti(Verso(t.a, t.b, s.a), Verso(t.a, t.b, s.b));
}

} // namespace

std::optional<std::pair<std::size_t, std::size_t>> PrimoIncrocio(const std::vector<Tratto>& tratti) {
  const auto ovest = [&](std::size_t i) { return std::min(tratti[i].a.x, tratti[i].b.x); };
  const auto est = [&](std::size_t i) { return std::max(tratti[i].a.x, tratti[i].b.x); };
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

double DistanzaDaTratto(const Posto& p, const Posto& a, const Posto& b) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double quadrato = dx * dx + dy * dy;
  if (quadrato == 0) return Distanza(p, a);
  const double t = std::clamp(((p.x - a.x) * dx + (p.y - a.y) * dy) / quadrato, 0.0, 1.0);
  return Distanza(p, {a.x + t * dx, a.y + t * dy});
}

} // namespace lirmeto
