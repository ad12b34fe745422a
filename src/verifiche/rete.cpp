#include <verifiche/rete.h>

#include <verifiche/piano_gnss.h>

#include <base/gon.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

namespace lirmeto {

namespace {

bool DiMisura(const RigaLetta& letta) {
  return letta.sezione == SezioneAtto::Misure;
}

// The middle one of several, coordinate by coordinate; the mean of two. A single wrong one of three does not move it.
double Mediana(std::vector<double>& valori) {
  const auto mezzo = valori.begin() + static_cast<std::ptrdiff_t>(valori.size() / 2);
  std::nth_element(valori.begin(), mezzo, valori.end());
  if (valori.size() % 2 == 1) return *mezzo;
  return std::midpoint(*std::max_element(valori.begin(), mezzo), *mezzo);
}

} // namespace

const Stazionamento& Rete::StazioneDi(std::size_t stima) const {
  const auto dietro = std::upper_bound(stazioni_.begin(), stazioni_.end(), stima,
                                       [](std::size_t i, const Stazionamento& s) { return i < s.dopo; });
  return *dietro;
}

const Stima* Rete::Battuta(Punto da, Punto a) const {
  if (da + 1 >= inizi_.size()) return nullptr;
  for (std::size_t i = inizi_[da]; i < inizi_[da + 1]; ++i) {
    const Stazionamento& stazione = stazioni_[vedono_[i]];
    if (stazione.punto != da || stazione.gps) continue;
    for (std::size_t k = stazione.prima; k < stazione.dopo; ++k)
      if (stime_[k].punto == a) return &stime_[k];
  }
  return nullptr;
}

void Rete::Raccogli(const RigheLette& righe) {
  stazioni_.clear();
  stime_.clear();
  coordinate_.clear();
  for (std::size_t i = 0; i < righe.Quante(); ++i) {
    const RigaLetta& letta = righe[i];
    if (!DiMisura(letta)) continue;
    const auto& n = letta.numeri;
    if (letta.forma == FormaRiga::Stazione) {
      stazioni_.push_back({i, letta.nome, false, stime_.size(), stime_.size(), false, {}, 0, 0});
    } else if (letta.forma == FormaRiga::Battuta && !stazioni_.empty()) {
      const double lettura = Radianti(Gon(n[2])); // a direction alone leads a metre along it
      const PuntoPiano locale =
          letta.haDistanza ? PuntoPiano{n[0], n[1]} : PuntoPiano{std::sin(lettura), std::cos(lettura)};
      stime_.push_back({i, letta.nome, locale, {}, n[3], letta.haDistanza, false});
      stazioni_.back().dopo = stime_.size();
    } else if (letta.forma == FormaRiga::Coordinate) {
      coordinate_.push_back({i, letta.nome, {n[1], n[0]}, {}, 0, true, false});
    }
  }
  RaccogliGps(righe);
}

void Rete::RaccogliGps(const RigheLette& righe) {
  std::optional<PianoGnss> piano;
  Geocentrica base;
  for (std::size_t i = 0; i < righe.Quante(); ++i) {
    const RigaLetta& letta = righe[i];
    if (!DiMisura(letta) || (letta.forma != FormaRiga::BaseGps && letta.forma != FormaRiga::VettoreGps)) continue;
    const Geocentrica valori{letta.numeri[0], letta.numeri[1], letta.numeri[2]};
    if (letta.forma == FormaRiga::BaseGps) {
      base = valori;
      if (!piano) {
        piano.emplace(base);
        stazioni_.push_back({i, letta.nome, true, stime_.size(), stime_.size(), false, {}, 0, 0});
      }
    }
    if (!piano || (letta.forma == FormaRiga::VettoreGps && !letta.haDistanza)) continue;
    const PuntoPiano locale = piano->Su(letta.forma == FormaRiga::BaseGps ? base : base + valori);
    if (letta.forma == FormaRiga::BaseGps && stazioni_.back().punto == letta.nome) continue;
    const double distanza = letta.forma == FormaRiga::VettoreGps ? valori.Lunghezza() : 0;
    stime_.push_back({i, letta.nome, locale, {}, distanza, true, false});
    stazioni_.back().dopo = stime_.size();
  }
}

void Rete::Collega() {
  inizi_.assign(punti_.size() + 1, 0);
  const auto ogni = [&](const auto& azione) {
    for (std::size_t s = 0; s < stazioni_.size(); ++s) {
      azione(stazioni_[s].punto, s);
      for (std::size_t i = stazioni_[s].prima; i < stazioni_[s].dopo; ++i) azione(stime_[i].punto, s);
    }
  };
  ogni([&](Punto punto, std::size_t) { ++inizi_[punto + 1]; });
  std::partial_sum(inizi_.begin(), inizi_.end(), inizi_.begin());
  vedono_.resize(inizi_.back());
  std::vector<std::size_t> qui(inizi_.begin(), inizi_.end() - 1);
  ogni([&](Punto punto, std::size_t s) { vedono_[qui[punto]++] = s; });
}

void Rete::Avvisa(std::size_t stazione) {
  constexpr std::size_t bastano = 2;
  Stazionamento& s = stazioni_[stazione];
  if (!s.posto && ++s.noti >= bastano) coda_.push_back(stazione);
}

void Rete::Scopri(Punto punto, const PuntoPiano& posto, std::size_t riga, Origine origine) {
  if (Nota(punto)) return;
  punti_[punto] = {origine, posto, riga, false};
  for (std::size_t i = inizi_[punto]; i < inizi_[punto + 1]; ++i) Avvisa(vedono_[i]);
}

bool Rete::Orienta(Stazionamento& stazione) const {
  std::vector<Coppia> coppie;
  if (Nota(stazione.punto)) coppie.push_back({{}, Dove(stazione.punto)});
  for (std::size_t i = stazione.prima; i < stazione.dopo; ++i)
    if (stime_[i].haDistanza && Nota(stime_[i].punto)) coppie.push_back({stime_[i].locale, Dove(stime_[i].punto)});
  stazione.appoggi = coppie.size();
  if (const auto frame = Adatta(std::move(coppie))) {
    stazione.frame = *frame;
    return true;
  }
  return OrientaSuDirezione(stazione);
}

// A known station that sees a known point without its distance.
bool Rete::OrientaSuDirezione(Stazionamento& stazione) const {
  if (!Nota(stazione.punto)) return false;
  const PuntoPiano& qui = Dove(stazione.punto);
  for (std::size_t i = stazione.prima; i < stazione.dopo; ++i) {
    const Stima& stima = stime_[i];
    if (stima.haDistanza || !Nota(stima.punto) || DistanzaPiana(qui, Dove(stima.punto)) == 0) continue;
    const PuntoPiano& la = Dove(stima.punto);
    const double giro =
        std::atan2(la.nord - qui.nord, la.est - qui.est) - std::atan2(stima.locale.nord, stima.locale.est);
    stazione.frame = {std::cos(giro), std::sin(giro), qui.est, qui.nord};
    return true;
  }
  return false;
}

void Rete::Radia(Stazionamento& stazione) {
  stazione.posto = true;
  Scopri(stazione.punto, stazione.frame.Applica({}), stazione.riga, Origine::Misure);
  constexpr std::size_t sovrabbondanti = 3;
  if (stazione.appoggi >= sovrabbondanti && !stazione.gps) {
    punti_[stazione.punto].posto = stazione.frame.Applica({});
    punti_[stazione.punto].propria = true;
  }
  for (std::size_t i = stazione.prima; i < stazione.dopo; ++i) {
    Stima& stima = stime_[i];
    if (!stima.haDistanza) continue;
    stima.posto = stazione.frame.Applica(stima.locale);
    stima.posta = true;
    Scopri(stima.punto, stima.posto, stima.riga, Origine::Misure);
  }
}

void Rete::Svolgi() {
  while (!coda_.empty()) {
    Stazionamento& stazione = stazioni_[coda_.front()];
    coda_.pop_front();
    if (!stazione.posto && Orienta(stazione)) Radia(stazione);
  }
}

// The rows 8 as known points, in the frame of what was computed; where nothing was, in their own.
void Rete::IncludiCoordinate() {
  std::vector<Coppia> coppie;
  for (const Stima& c : coordinate_)
    if (Nota(c.punto)) coppie.push_back({c.locale, Dove(c.punto)});
  auto frame = Adatta(std::move(coppie));
  if (!frame && stazioni_.empty()) frame.emplace();
  if (!frame) return;
  for (const Stima& c : coordinate_) Scopri(c.punto, frame->Applica(c.locale), c.riga, Origine::Coordinate);
}

std::span<const std::size_t> Rete::StimeDi(Punto punto) const {
  if (punto + 1 >= iniziStime_.size()) return {};
  return std::span(perPunto_).subspan(iniziStime_[punto], iniziStime_[punto + 1] - iniziStime_[punto]);
}

void Rete::Raggruppa() {
  iniziStime_.assign(punti_.size() + 1, 0);
  for (const Stima& stima : stime_)
    if (stima.posta) ++iniziStime_[stima.punto + 1];
  std::partial_sum(iniziStime_.begin(), iniziStime_.end(), iniziStime_.begin());
  perPunto_.resize(iniziStime_.back());
  std::vector<std::size_t> qui(iniziStime_.begin(), iniziStime_.end() - 1);
  for (std::size_t i = 0; i < stime_.size(); ++i)
    if (stime_[i].posta) perPunto_[qui[stime_[i].punto]++] = i;
}

// Points that several estimates give: the middle of them.
void Rete::Media() {
  std::vector<double> x;
  std::vector<double> y;
  for (Punto punto = 0; punto < punti_.size(); ++punto) {
    const auto stime = StimeDi(punto);
    if (stime.size() < 2 || punti_[punto].propria) continue;
    x.clear();
    y.clear();
    for (const std::size_t i : stime) {
      x.push_back(stime_[i].posto.est);
      y.push_back(stime_[i].posto.nord);
    }
    punti_[punto].posto = {Mediana(x), Mediana(y)};
  }
}

void Rete::Squadri(const RigheLette& righe) {
  primoOffset_ = stime_.size();
  const RigaLetta* base = nullptr;
  for (std::size_t i = 0; i < righe.Quante(); ++i) {
    const RigaLetta& letta = righe[i];
    if (!DiMisura(letta)) continue;
    if (letta.genere == 4) base = letta.forma == FormaRiga::Squadro ? &letta : nullptr;
    if (letta.forma != FormaRiga::Offset || base == nullptr) continue;
    if (!Nota(base->punti[0]) || !Nota(base->punti[1])) continue;
    const PuntoPiano& a = Dove(base->punti[0]);
    const PuntoPiano& b = Dove(base->punti[1]);
    const double lunga = DistanzaPiana(a, b);
    if (!(lunga > 0)) continue;
    const double ascissa = letta.numeri[0];
    const double ordinata = ascissa < 0 ? -letta.numeri[1] : letta.numeri[1];
    const double ux = (b.est - a.est) / lunga;
    const double uy = (b.nord - a.nord) / lunga;
    const PuntoPiano posto{a.est + ux * ascissa + uy * ordinata, a.nord + uy * ascissa - ux * ordinata};
    stime_.push_back({i, letta.nome, posto, posto, std::hypot(ascissa, ordinata), true, true});
    if (!Nota(letta.nome)) punti_[letta.nome] = {Origine::Squadro, posto, i, false};
  }
}

void Rete::PortaSullaMappa() {
  std::vector<Coppia> coppie;
  for (const Stima& c : coordinate_)
    if (Nota(c.punto) && punti_[c.punto].origine != Origine::Coordinate) coppie.push_back({Dove(c.punto), c.locale});
  const auto frame = Adatta(std::move(coppie));
  sullaMappa_ = frame.has_value() || (stazioni_.empty() && !coordinate_.empty());
  if (!frame) return;
  for (PuntoRete& punto : punti_)
    if (punto.origine != Origine::Ignota) punto.posto = frame->Applica(punto.posto);
  for (Stima& stima : stime_)
    if (stima.posta) stima.posto = frame->Applica(stima.posto);
  for (Stazionamento& stazione : stazioni_) {
    const PuntoPiano qui = frame->Applica(stazione.frame.Applica({}));
    const double coseno = frame->coseno * stazione.frame.coseno - frame->seno * stazione.frame.seno;
    const double seno = frame->seno * stazione.frame.coseno + frame->coseno * stazione.frame.seno;
    stazione.frame = {coseno, seno, qui.est, qui.nord};
  }
  for (const Stima& c : coordinate_)
    if (!Nota(c.punto)) punti_[c.punto] = {Origine::Coordinate, c.locale, c.riga, false};
}

void Rete::Calcola(const RigheLette& righe) {
  coda_.clear();
  punti_.assign(righe.Nomi().Quanti(), {});
  Raccogli(righe);
  Collega();
  if (!stazioni_.empty()) {
    Radia(stazioni_.front());
    punti_[stazioni_.front().punto].propria = !stazioni_.front().gps;
  }
  Svolgi();
  const auto posto = [](const Stazionamento& s) { return s.posto; };
  if (!std::all_of(stazioni_.begin(), stazioni_.end(), posto) || stazioni_.empty()) {
    IncludiCoordinate();
    Svolgi();
  }
  Raggruppa();
  Media();
  Squadri(righe);
  PortaSullaMappa();
  Raggruppa(); // the rows 5 too
}

} // namespace lirmeto
