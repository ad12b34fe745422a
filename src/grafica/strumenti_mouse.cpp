#include <grafica/strumenti_mouse.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <utility>

namespace lirmeto {

namespace {

constexpr double LimiteVicino = 100'000;      // metres: farther points are not looked for
constexpr double StessoPosto = 0.01;          // metres: points closer than this stand on each other
constexpr std::size_t TestoMassimo = 1 << 20; // bytes of names; a box shows a few thousand of them

std::string CoordinataContorno(double valore, std::string_view formato) {
  return Sostituisci(Formatta(valore, formato), ",", ".");
}

} // namespace

std::size_t StrumentiMouse::PiuVicino(const PuntoPiano& posto) {
  indice_.Segui(disegno_.archivio);
  return indice_.PiuVicino(disegno_.archivio.Punti(), posto, LimiteVicino);
}

PuntoPiano StrumentiMouse::NellaMappa(const PuntoPiano& daCentro) const {
  return {daCentro.est + disegno_.vista.Xc, daCentro.nord + disegno_.vista.Yc};
}

// An empty store has a point without a name at the origin.
PuntoPreso StrumentiMouse::Vicino(const PuntoPiano& posto) {
  const auto& punti = disegno_.archivio.Punti();
  if (punti.empty()) return {};
  const PuntoGrafica& vicino = punti[PiuVicino(posto)];
  return {vicino.Nome, vicino.Posto()};
}

// Pairs in the order of their first point, then of the second. A heap of points at one place has more pairs than any
// box can show: the text ends where nobody reads on.
std::string StrumentiMouse::Coincidenti() {
  indice_.Segui(disegno_.archivio);
  const auto& punti = disegno_.archivio.Punti();
  std::string testo;
  for (std::size_t i = 0; i < punti.size() && testo.size() < TestoMassimo; ++i)
    for (const std::size_t j : indice_.Vicini(punti, punti[i].Posto(), StessoPosto)) {
      if (j <= i) continue;
      testo += punti[i].Nome + " " + punti[j].Nome + " ";
      if (testo.size() >= TestoMassimo) break;
    }
  return testo;
}

// Of points that stand on each other all names are read, and the last one is the point under the mouse.
bool StrumentiMouse::Muovi(const PuntoPiano& daCentro, TastoMouse tasto) {
  ultimo_ = Vicino(NellaMappa(daCentro));
  const PuntoPiano posto = ultimo_.posto;
  const auto& punti = disegno_.archivio.Punti();
  std::string nomi;
  for (const std::size_t indice : indice_.Vicini(punti, posto, StessoPosto)) {
    nomi += punti[indice].Nome + " ";
    ultimo_ = {punti[indice].Nome, punti[indice].Posto()};
  }
  etichetta_ = {std::string(Taglia(nomi)), posto, true};
  sposta_ = tasto == TastoMouse::Centrale;
  if (sposta_)
    disegno_.vista.MettiCentro({presa_.centro.est - (daCentro.est - presa_.mouse.est),
                                presa_.centro.nord - (daCentro.nord - presa_.mouse.nord)});
  return sposta_;
}

void StrumentiMouse::Afferra(const PuntoPiano& daCentro) {
  presa_ = {daCentro, disegno_.vista.Centro()};
}

EsitoClic StrumentiMouse::Clicca(const PuntoPiano& daCentro, std::string_view strumento) {
  const std::string nome = Maiuscolo(strumento);
  const bool rosso = nome == "CONTORNOROSSO";
  const bool nuovo = nome == "NUOVOPUNTO";
  const bool medio = nome == "PUNTOMEDIO" || nome == "PUNTOBILATERA";
  if (!rosso && !nuovo && !medio && nome != "CONTORNONERO") return {};
  ultimo_ = Vicino(NellaMappa(daCentro));
  if (nuovo) return {ultimo_.posto, {}};
  if (medio) return {PrendiMedio(), {}};
  PrendiContorno(rosso ? colore::RossoChiaro : colore::Nero);
  return {{}, ultimo_.posto};
}

// A chain: each pick is joined to the one before and becomes the next one's beginning.
void StrumentiMouse::PrendiContorno(std::int16_t colore) {
  if (prima_) disegno_.archivio.AggiungiTra(prima_->nome, ultimo_.nome, {.Colore = colore});
  prima_ = ultimo_;
}

std::optional<PuntoPiano> StrumentiMouse::PrendiMedio() {
  const std::optional<PuntoPreso> prima = std::exchange(prima_, prima_ ? std::nullopt : std::optional(ultimo_));
  if (!prima) return {};
  return PuntoMedio(prima->posto, ultimo_.posto);
}

void ScriviContorno(Ambiente& ambiente, const PuntoPiano& vertice) {
  const std::string file = ambiente.sessione.CartellaProgramma + "\\TEMP\\CONTORNO.TXT";
  std::string testo = ambiente.disco.Esiste(file) ? ambiente.disco.Leggi(file) : std::string();
  testo += "al punto  X=" + CoordinataContorno(vertice.est, "###########.000");
  testo += "  Y=" + CoordinataContorno(vertice.nord, "##########.000");
  testo += "  Z=   0" + std::string(FineRiga);
  ambiente.disco.Scrivi(file, testo);
}

} // namespace lirmeto
