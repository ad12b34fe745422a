#include <verifiche/figura_rilievo.h>

#include <verifiche/disegno_rilievo.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <limits>

namespace lirmeto {

namespace {

LineaGrafica Luce(const PuntoPiano& da, const PuntoPiano& a) {
  return {da.est, da.nord, 0, a.est, a.nord, 0, 1, 0, 0};
}

} // namespace

void FiguraRilievo::Aggiorna() {
  if (esito_.Versione() == versione_) return;
  versione_ = esito_.Versione();
  DisegnaRilievo({esito_.Righe(), esito_.Posti(), esito_.Archivi()}, disegno_.archivio);
  const std::string zero(esito_.Righe().Quante() == 0 ? std::string_view{} : esito_.Righe().Testo(0));
  const bool nuova = zero != zero_ || punti_ == 0;
  zero_ = zero;
  punti_ = disegno_.archivio.Punti().size();
  Grafica1.Evidenza.reset();
  nuova ? Grafica1.KR_ZoomTutto() : Grafica1.KR_RidisegnaGrafica();
}

// A sight is lit along its whole way; anything else at its point.
std::optional<LineaGrafica> FiguraRilievo::LuceDi(std::size_t riga) const {
  const Rete& rete = esito_.Posti();
  const auto& stime = rete.Stime();
  const auto stima =
      std::find_if(stime.begin(), stime.end(), [riga](const Stima& s) { return s.riga == riga && s.posta; });
  if (stima != stime.end()) {
    const auto indice = static_cast<std::size_t>(stima - stime.begin());
    const bool battuta = indice < rete.PrimoOffset() && !rete.StazioneDi(indice).gps;
    return Luce(battuta ? rete.StazioneDi(indice).frame.Applica({}) : stima->posto, stima->posto);
  }
  if (riga >= esito_.Righe().Quante()) return std::nullopt;
  const RigaLetta& letta = esito_.Righe()[riga];
  const Punto punto = letta.nome != SenzaPunto || letta.punti.empty() ? letta.nome : letta.punti.front();
  if (punto == SenzaPunto || !rete.Nota(punto)) return std::nullopt;
  return Luce(rete.Dove(punto), rete.Dove(punto));
}

void FiguraRilievo::ScegliRiga(std::size_t riga, bool centra) {
  Grafica1.Evidenza = LuceDi(riga);
  if (Grafica1.Evidenza && centra) {
    Grafica1.Vista().Xc = Grafica1.Evidenza->X2;
    Grafica1.Vista().Yc = Grafica1.Evidenza->Y2;
  }
  Grafica1.KR_RidisegnaGrafica();
}

std::optional<std::size_t> FiguraRilievo::RigaVicina(const PuntoPiano& posto, double entro) const {
  const Rete& rete = esito_.Posti();
  std::optional<std::size_t> riga;
  for (Punto punto = 0; punto < rete.Punti().size(); ++punto) {
    if (!rete.Nota(punto)) continue;
    const double lontano = DistanzaPiana(rete.Dove(punto), posto);
    if (lontano > entro) continue;
    entro = lontano;
    riga = rete.Punti()[punto].riga;
  }
  return riga;
}

std::string FiguraRilievo::Avviso() const {
  const auto& stazioni = esito_.Posti().Stazioni();
  const auto sciolte = std::count_if(stazioni.begin(), stazioni.end(), [](const Stazionamento& s) { return !s.posto; });
  std::string testo = "Figura di controllo calcolata dalle righe: non ";
  testo += "è una compensazione"_w;
  if (!esito_.Posti().SullaMappa()) testo += "; senza righe 8 la posizione sulla mappa non si conosce";
  if (sciolte > 0) testo += "; stazioni non orientate: " + TestoIntero(sciolte);
  return testo;
}

} // namespace lirmeto
