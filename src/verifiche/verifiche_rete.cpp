#include <verifiche/atto.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <cmath>
#include <tuple>

namespace lirmeto {

namespace {

constexpr double NomiDiversi = 10;      // metres: so far apart no error of measure leads
constexpr double DiscordanzaMappa = 3;  // metres: what the TAF itself is trusted to
constexpr std::size_t CampoLettura = 2; // hz of a row 2, east of a row 8
constexpr std::size_t CampoNome = 1;

// Two places of one point, and how far the way between them is.
struct Doppia {
  const Stima& stima;
  std::size_t altraRiga;
  Punto altraStazione; // SenzaPunto: a row 5
  double scarto;
  double percorso; // metres, for the tolerance
};

void DiDoppia(const Atto& atto, const Doppia& d, Raccolta& raccolta) {
  const NomiPunti& nomi = atto.righe.Nomi();
  const std::string_view nome = nomi.Nome(d.stima.punto);
  const std::string riga = TestoRiga(d.altraRiga);
  const std::string scarto = Metri(d.scarto);
  if (d.scarto > NomiDiversi) return raccolta.Riga(RegolaDi("R012"), d.stima.riga, CampoNome, {nome, scarto, riga});
  if (d.scarto <= TolleranzaStretta(d.percorso)) return;
  const Regola& regola = d.scarto > TolleranzaLarga(d.percorso) ? RegolaDi("R001") : RegolaDi("R002");
  const std::string_view da = d.altraStazione == SenzaPunto ? "un allineamento" : nomi.Nome(d.altraStazione);
  raccolta.Riga(regola, d.stima.riga, CampoLettura, {nome, da, riga, scarto});
}

Punto StazioneOSquadro(const Rete& rete, std::size_t stima) {
  return stima < rete.PrimoOffset() ? rete.StazioneDi(stima).punto : SenzaPunto;
}

// The way from one place of a point to the other: both sights, and from station to station.
double Percorso(const Rete& rete, std::size_t una, std::size_t altra) {
  const double viste = std::max(rete.Stime()[una].distanza, rete.Stime()[altra].distanza);
  const Punto da = StazioneOSquadro(rete, una);
  const Punto a = StazioneOSquadro(rete, altra);
  if (da == SenzaPunto || a == SenzaPunto || !rete.Nota(da) || !rete.Nota(a)) return viste;
  return viste + DistanzaPiana(rete.Dove(da), rete.Dove(a));
}

void ConfrontaDue(const Atto& atto, std::size_t una, std::size_t altra, Raccolta& raccolta) {
  const auto& stime = atto.rete.Stime();
  const double scarto = DistanzaPiana(stime[una].posto, stime[altra].posto);
  const double percorso = Percorso(atto.rete, una, altra);
  DiDoppia(atto, {stime[una], stime[altra].riga, StazioneOSquadro(atto.rete, altra), scarto, percorso}, raccolta);
}

// Of three places or more the one that differs from where most are is the wrong one; a good one is named beside it.
void ConfrontaMolte(const Atto& atto, std::span<const std::size_t> gruppo, Raccolta& raccolta) {
  const auto& stime = atto.rete.Stime();
  const PuntoPiano& centro = atto.rete.Dove(stime[gruppo.front()].punto);
  const auto scarto = [&](std::size_t i) { return DistanzaPiana(stime[i].posto, centro); };
  const std::size_t buona =
      *std::min_element(gruppo.begin(), gruppo.end(), [&](auto a, auto b) { return scarto(a) < scarto(b); });
  for (const std::size_t i : gruppo)
    if (i != buona)
      DiDoppia(
          atto,
          {stime[i], stime[buona].riga, StazioneOSquadro(atto.rete, buona), scarto(i), Percorso(atto.rete, i, buona)},
          raccolta);
}

// Sights of a station that has found its place by itself.
void ConfrontaConPropria(const Atto& atto, std::span<const std::size_t> gruppo, Raccolta& raccolta) {
  const auto& stime = atto.rete.Stime();
  for (const std::size_t i : gruppo) {
    const PuntoPiano& propria = atto.rete.Dove(stime[i].punto);
    const double scarto = DistanzaPiana(stime[i].posto, propria);
    if (scarto <= TolleranzaStretta(stime[i].distanza)) continue;
    const auto& stazioni = atto.rete.Stazioni();
    const auto sua = std::find_if(stazioni.begin(), stazioni.end(),
                                  [&](const Stazionamento& s) { return s.punto == stime[i].punto; });
    DiDoppia(atto, {stime[i], sua->riga, sua->punto, scarto, stime[i].distanza}, raccolta);
  }
}

void VerificaDoppi(const Atto& atto, Raccolta& raccolta) {
  const auto& punti = atto.rete.Punti();
  for (Punto punto = 0; punto < punti.size(); ++punto) {
    const auto gruppo = atto.rete.StimeDi(punto);
    if (punti[punto].propria) {
      ConfrontaConPropria(atto, gruppo, raccolta);
    } else if (gruppo.size() == 2) {
      ConfrontaDue(atto, gruppo[0], gruppo[1], raccolta);
      ConfrontaDue(atto, gruppo[1], gruppo[0], raccolta);
    } else if (gruppo.size() > 2) {
      ConfrontaMolte(atto, gruppo, raccolta);
    }
  }
}

// A distance measured from one station to another.
struct Lato {
  Punto da;
  Punto a;
  std::size_t stima;
};

bool Prima(const Lato& x, const Lato& y) {
  return std::tie(x.da, x.a, x.stima) < std::tie(y.da, y.a, y.stima);
}

std::vector<bool> StazioniPerPunto(const Rete& rete) {
  std::vector<bool> stazione(rete.Punti().size());
  for (const Stazionamento& s : rete.Stazioni()) stazione[s.punto] = true;
  return stazione;
}

std::vector<Lato> LatiTraStazioni(const Rete& rete, const std::vector<bool>& stazione) {
  std::vector<Lato> lati;
  for (const Stazionamento& s : rete.Stazioni()) {
    if (s.gps) continue;
    for (std::size_t i = s.prima; i < s.dopo; ++i)
      if (rete.Stime()[i].haDistanza && stazione[rete.Stime()[i].punto])
        lati.push_back({s.punto, rete.Stime()[i].punto, i});
  }
  std::sort(lati.begin(), lati.end(), Prima);
  return lati;
}

void VerificaReciproche(const Atto& atto, const std::vector<bool>& stazione, Raccolta& raccolta) {
  const auto lati = LatiTraStazioni(atto.rete, stazione);
  const auto& stime = atto.rete.Stime();
  for (const Lato& ritorno : lati) {
    const auto andata = std::lower_bound(lati.begin(), lati.end(), Lato{ritorno.a, ritorno.da, 0}, Prima);
    const bool trovata = andata != lati.end() && andata->da == ritorno.a && andata->a == ritorno.da;
    if (!trovata || stime[andata->stima].riga > stime[ritorno.stima].riga) continue;
    const double prima = stime[andata->stima].distanza;
    const double poi = stime[ritorno.stima].distanza;
    if (std::fabs(prima - poi) <= TolleranzaStretta(prima)) continue;
    const Regola& regola = std::fabs(prima - poi) > TolleranzaLarga(prima) ? RegolaDi("R003") : RegolaDi("R004");
    const NomiPunti& nomi = atto.righe.Nomi();
    const std::size_t riga = stime[ritorno.stima].riga;
    raccolta.Riga(
        regola, riga, atto.righe[riga].haZenit ? 4 : 3,
        {nomi.Nome(andata->da), nomi.Nome(andata->a), Metri(prima), Metri(poi), TestoRiga(stime[andata->stima].riga)});
  }
}

void VerificaStazioni(const Atto& atto, Raccolta& raccolta) {
  const auto& stazioni = atto.rete.Stazioni();
  std::vector<bool> vista(atto.rete.Punti().size());
  for (const Stima& stima : atto.rete.Stime()) vista[stima.punto] = true;
  for (std::size_t i = 0; i < stazioni.size(); ++i) {
    const Stazionamento& s = stazioni[i];
    const std::string_view nome = atto.righe.Nomi().Nome(s.punto);
    if (!s.posto) raccolta.Riga(RegolaDi("R011"), s.riga, CampoNome, {nome});
    if (i > 0 && !s.gps && !vista[s.punto]) raccolta.Riga(RegolaDi("R005"), s.riga, CampoNome, {nome});
    // The height of the instrument, where a zenith was read with it.
    const auto zenit = [&](std::size_t k) { return atto.righe[atto.rete.Stime()[k].riga].haZenit; };
    bool serve = false;
    for (std::size_t k = s.prima; k < s.dopo && !serve && !s.gps; ++k) serve = zenit(k);
    if (serve && !atto.righe[s.riga].haZenit) raccolta.Riga(RegolaDi("L010"), s.riga, CampoLettura);
  }
}

bool NomeDiStazione(std::string_view nome) {
  return nome.size() > 2 && nome.ends_with("00") && ENumero(nome);
}

void VerificaMaiStazione(const Atto& atto, const std::vector<bool>& stazione, Raccolta& raccolta) {
  std::vector<bool> detta(atto.rete.Punti().size());
  for (std::size_t i = 0; i < atto.rete.PrimoOffset(); ++i) {
    const Stima& stima = atto.rete.Stime()[i];
    const std::string_view nome = atto.righe.Nomi().Nome(stima.punto);
    if (stazione[stima.punto] || detta[stima.punto] || !NomeDiStazione(nome)) continue;
    if (atto.rete.StazioneDi(i).gps) continue;
    detta[stima.punto] = true;
    raccolta.Riga(RegolaDi("R006"), stima.riga, CampoNome, {nome});
  }
}

// Rows 2 and 5 that stand before what they belong to.
void VerificaOrfane(const Atto& atto, Raccolta& raccolta) {
  bool stazione = false;
  bool base = false;
  for (std::size_t i = 0; i < atto.righe.Quante(); ++i) {
    const RigaLetta& letta = atto.righe[i];
    if (letta.sezione != SezioneAtto::Misure) continue;
    stazione = stazione || letta.forma == FormaRiga::Stazione;
    base = base || letta.genere == 4;
    if (letta.forma == FormaRiga::Battuta && !stazione) raccolta.Riga(RegolaDi("R015"), i, 0);
    if (letta.genere == 5 && !base) raccolta.Riga(RegolaDi("R016"), i, 0);
  }
}

void VerificaCoordinate(const Atto& atto, Raccolta& raccolta) {
  if (!atto.rete.SullaMappa()) return;
  for (const Stima& c : atto.rete.Coordinate()) {
    if (atto.righe.Nomi().Fiduciale(c.punto) || !atto.rete.Nota(c.punto)) continue;
    const double scarto = DistanzaPiana(c.locale, atto.rete.Dove(c.punto));
    if (scarto > DiscordanzaMappa)
      raccolta.Riga(RegolaDi("R013"), c.riga, CampoLettura, {atto.righe.Nomi().Nome(c.punto), Metri(scarto)});
  }
}

// Points that a contour, a traverse, a base or a station uses.
std::vector<bool> Usati(const Atto& atto, std::vector<bool> usato) {
  for (std::size_t i = 0; i < atto.righe.Quante(); ++i)
    for (const Punto punto : atto.righe[i].punti) usato[punto] = true;
  return usato;
}

void VerificaIsolati(const Atto& atto, const std::vector<bool>& stazione, Raccolta& raccolta) {
  const auto usato = Usati(atto, stazione);
  for (const Stima& stima : atto.rete.Stime()) {
    if (usato[stima.punto] || !atto.righe[stima.riga].senzaNota || atto.righe.Nomi().Fiduciale(stima.punto)) continue;
    if (atto.rete.StimeDi(stima.punto).size() > 1) continue;
    raccolta.Riga(RegolaDi("R014"), stima.riga, CampoNome, {atto.righe.Nomi().Nome(stima.punto)});
  }
}

void VerificaConsecutive(const Atto& atto, Raccolta& raccolta) {
  for (std::size_t i = 1; i < atto.righe.Quante(); ++i)
    if (atto.righe.Testo(i).size() == atto.righe.Testo(i - 1).size() &&
        UgualiSenzaCaso(atto.righe.Testo(i), atto.righe.Testo(i - 1)))
      raccolta.Riga(RegolaDi("L017"), i, 0, {TestoRiga(i - 1)});
}

// The same sighting twice under a station, other rows between.
void VerificaRipetute(const Atto& atto, Raccolta& raccolta) {
  const auto& stime = atto.rete.Stime();
  const auto impronta = [&](std::size_t stima) { return atto.righe[stime[stima].riga].impronta; };
  for (Punto punto = 0; punto < atto.rete.Punti().size(); ++punto) {
    const auto gruppo = atto.rete.StimeDi(punto);
    for (std::size_t k = 1; k < gruppo.size(); ++k) {
      const bool uguali = impronta(gruppo[k]) == impronta(gruppo[k - 1]);
      if (!uguali || stime[gruppo[k]].riga == stime[gruppo[k - 1]].riga + 1) continue;
      if (StazioneOSquadro(atto.rete, gruppo[k]) == StazioneOSquadro(atto.rete, gruppo[k - 1]))
        raccolta.Riga(RegolaDi("L017"), stime[gruppo[k]].riga, 0, {TestoRiga(stime[gruppo[k - 1]].riga)});
    }
  }
}

} // namespace

std::string Metri(double valore) {
  return Formatta(valore, "0.00");
}

std::string TestoRiga(std::size_t riga) {
  return TestoIntero(static_cast<long long>(riga));
}

void VerificaRete(const Atto& atto, Raccolta& raccolta) {
  const auto stazione = StazioniPerPunto(atto.rete);
  VerificaDoppi(atto, raccolta);
  VerificaReciproche(atto, stazione, raccolta);
  VerificaStazioni(atto, raccolta);
  VerificaMaiStazione(atto, stazione, raccolta);
  VerificaOrfane(atto, raccolta);
  VerificaCoordinate(atto, raccolta);
  VerificaIsolati(atto, stazione, raccolta);
  VerificaConsecutive(atto, raccolta);
  VerificaRipetute(atto, raccolta);
}

} // namespace lirmeto
