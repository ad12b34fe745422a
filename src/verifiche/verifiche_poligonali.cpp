#include <verifiche/atto.h>

#include <base/gon.h>
#include <base/numeri.h>

#include <cmath>
#include <optional>

namespace lirmeto {

namespace {

constexpr Gon TolleranzaAngolare{0.05}; // by the root of the vertices
constexpr std::size_t PrimoVertice = 2; // field of a row 3

struct Vertice {
  Punto punto;
  std::size_t riga;
  std::size_t campo;
};

using Poligonale = std::vector<Vertice>;

// A row 3 whose count is 0 goes on with the traverse before it.
std::vector<Poligonale> Raccogli(const RigheLette& righe) {
  std::vector<Poligonale> poligonali;
  for (std::size_t i = 0; i < righe.Quante(); ++i) {
    const RigaLetta& letta = righe[i];
    if (letta.forma != FormaRiga::Poligonale || letta.sezione != SezioneAtto::Misure) continue;
    if (letta.conteggio != 0 || poligonali.empty()) poligonali.emplace_back();
    for (std::size_t k = 0; k < letta.punti.size(); ++k)
      poligonali.back().push_back({letta.punti[k], i, PrimoVertice + k});
  }
  return poligonali;
}

void VerificaVertici(const Atto& atto, const Poligonale& poligonale, const std::vector<bool>& definiti,
                     Raccolta& raccolta) {
  for (const Vertice& v : poligonale)
    if (!definiti[v.punto]) raccolta.Riga(RegolaDi("R008"), v.riga, v.campo, {atto.righe.Nomi().Nome(v.punto)});
}

// Whether both come from GNSS vectors: the baseline between them ties them.
bool DaGnss(const Rete& rete, Punto punto) {
  for (const std::size_t i : rete.StimeDi(punto))
    if (i < rete.PrimoOffset() && rete.StazioneDi(i).gps) return true;
  return false;
}

void VerificaLegami(const Atto& atto, const Poligonale& poligonale, const std::vector<bool>& definiti,
                    Raccolta& raccolta) {
  const Rete& rete = atto.rete;
  for (std::size_t i = 1; i < poligonale.size(); ++i) {
    const Punto da = poligonale[i - 1].punto;
    const Vertice& v = poligonale[i];
    if (!definiti[da] || !definiti[v.punto] || da == v.punto) continue;
    if (rete.Battuta(da, v.punto) != nullptr || rete.Battuta(v.punto, da) != nullptr) continue;
    if (DaGnss(rete, da) && DaGnss(rete, v.punto)) continue;
    const NomiPunti& nomi = atto.righe.Nomi();
    raccolta.Riga(RegolaDi("R007"), v.riga, v.campo, {nomi.Nome(da), nomi.Nome(v.punto)});
  }
}

Gon Lettura(const Atto& atto, const Stima& stima) {
  return Gon(atto.righe[stima.riga].numeri[2]);
}

// Angle from the vertex before to the one behind.
std::optional<Gon> AngoloAl(const Atto& atto, Punto prima, Punto qui, Punto dopo) {
  const Stima* indietro = atto.rete.Battuta(qui, prima);
  const Stima* avanti = atto.rete.Battuta(qui, dopo);
  if (indietro == nullptr || avanti == nullptr) return std::nullopt;
  return Lettura(atto, *avanti) - Lettura(atto, *indietro);
}

// Mean of the distances measured both ways, or the one there is.
std::optional<double> Lunghezza(const Rete& rete, Punto da, Punto a) {
  const Stima* andata = rete.Battuta(da, a);
  const Stima* ritorno = rete.Battuta(a, da);
  const bool conAndata = andata != nullptr && andata->haDistanza;
  const bool conRitorno = ritorno != nullptr && ritorno->haDistanza;
  if (!conAndata && !conRitorno) return std::nullopt;
  const double prima = conAndata ? andata->distanza : ritorno->distanza;
  const double dopo = conRitorno ? ritorno->distanza : prima;
  return (prima + dopo) / 2;
}

struct Chiusura {
  Gon angolo; // from -200 to 200
  double lineare = 0;
  double perimetro = 0; // metres
};

// Round a closed traverse, its last vertex being its first; none where a distance or an angle was not measured. The
// angle at the first vertex is the last to be used: only the angular closure depends on it.
std::optional<Chiusura> Percorri(const Atto& atto, const Poligonale& p) {
  Chiusura chiusura;
  PuntoPiano qui;
  Gon azimut;
  for (std::size_t i = 0; i + 1 < p.size(); ++i) {
    const auto lungo = Lunghezza(atto.rete, p[i].punto, p[i + 1].punto);
    const Punto dopo = i + 2 < p.size() ? p[i + 2].punto : p[1].punto;
    const auto angolo = AngoloAl(atto, p[i].punto, p[i + 1].punto, dopo);
    if (!lungo || !angolo) return std::nullopt;
    const double direzione = Radianti(azimut);
    qui = {qui.est + *lungo * std::sin(direzione), qui.nord + *lungo * std::cos(direzione)};
    chiusura.perimetro += *lungo;
    azimut = azimut + Retto + Retto + *angolo;
  }
  chiusura.lineare = DistanzaPiana(qui, {});
  chiusura.angolo = Gon(std::remainder(azimut.Valore(), Giro.Valore()));
  return chiusura;
}

void VerificaChiusura(const Atto& atto, const Poligonale& poligonale, Raccolta& raccolta) {
  constexpr std::size_t triangolo = 4; // three vertices and the first again
  if (poligonale.size() < triangolo || poligonale.front().punto != poligonale.back().punto) return;
  const auto chiusura = Percorri(atto, poligonale);
  if (!chiusura) return;
  const std::size_t riga = poligonale.front().riga;
  const double vertici = static_cast<double>(poligonale.size() - 1);
  if (std::fabs(chiusura->angolo.Valore()) > TolleranzaAngolare.Valore() * std::sqrt(vertici))
    raccolta.Riga(RegolaDi("R009"), riga, 0, {Formatta(chiusura->angolo.Valore(), "0.0000")});
  if (chiusura->lineare > TolleranzaStretta(chiusura->perimetro))
    raccolta.Riga(RegolaDi("R010"), riga, 0, {Metri(chiusura->lineare), Metri(chiusura->perimetro)});
}

} // namespace

std::vector<bool> Definiti(const RigheLette& righe) {
  std::vector<bool> definiti(righe.Nomi().Quanti());
  for (std::size_t i = 0; i < righe.Quante(); ++i) {
    const RigaLetta& letta = righe[i];
    const bool da = letta.genere == 1 || letta.genere == 2 || letta.genere == 5 || letta.genere == 8;
    if (da && letta.sezione == SezioneAtto::Misure) definiti[letta.nome] = true;
  }
  return definiti;
}

void VerificaPoligonali(const Atto& atto, Raccolta& raccolta) {
  const auto poligonali = Raccogli(atto.righe);
  if (poligonali.empty()) return;
  const auto definiti = Definiti(atto.righe);
  for (const Poligonale& poligonale : poligonali) {
    VerificaVertici(atto, poligonale, definiti, raccolta);
    VerificaLegami(atto, poligonale, definiti, raccolta);
    VerificaChiusura(atto, poligonale, raccolta);
  }
}

// The base of a row 4, and the point of a levelling.
void VerificaSquadri(const Atto& atto, Raccolta& raccolta) {
  const auto definiti = Definiti(atto.righe);
  for (std::size_t i = 0; i < atto.righe.Quante(); ++i) {
    const RigaLetta& letta = atto.righe[i];
    if (letta.genere != 4 || letta.sezione != SezioneAtto::Misure) continue;
    const auto punti = letta.punti.empty() ? std::vector<Punto>{letta.nome} : letta.punti;
    for (std::size_t k = 0; k < punti.size(); ++k)
      if (!definiti[punti[k]]) raccolta.Riga(RegolaDi("R017"), i, 1 + k, {atto.righe.Nomi().Nome(punti[k])});
  }
}

} // namespace lirmeto
