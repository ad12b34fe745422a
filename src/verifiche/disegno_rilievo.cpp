#include <verifiche/disegno_rilievo.h>

#include <verifiche/contorni_letti.h>

#include <algorithm>
#include <limits>

namespace lirmeto {

namespace {

constexpr std::int16_t GrigioScuro = 8;
constexpr std::int16_t Larga = 3;
constexpr std::string_view FontNomi = "Courier New";
constexpr double DimensioneNomi = 8; // points

void Linea(ArchivioGrafica& archivio, const PuntoPiano& da, const PuntoPiano& a, const PennaGrafica& penna) {
  archivio.Aggiungi({da.est, da.nord, 0, a.est, a.nord, 0, penna.Spessore, penna.Colore, penna.Stile});
}

void Spezzata(ArchivioGrafica& archivio, const std::vector<PuntoPiano>& vertici, const PennaGrafica& penna) {
  for (std::size_t i = 1; i < vertici.size(); ++i) Linea(archivio, vertici[i - 1], vertici[i], penna);
}

void DisegnaEstratto(const Atto& atto, ArchivioGrafica& archivio) {
  const auto& estratto = atto.intorno.estratto;
  if (!estratto || !atto.rete.SullaMappa()) return;
  for (const AnelloLetto& anello : estratto->anelli)
    Spezzata(archivio, estratto->punti.Di(anello), {colore::Grigio, 1, stile::Continuo});
  for (const auto& linea : estratto->linee) Spezzata(archivio, linea, {colore::Grigio, 1, stile::Punteggiato});
}

// From the westmost to the eastmost sighted point, metres.
double Larghezza(const Rete& rete) {
  double ovest = std::numeric_limits<double>::max();
  double est = std::numeric_limits<double>::lowest();
  for (const Stima& stima : rete.Stime()) {
    if (!stima.posta) continue;
    ovest = std::min(ovest, stima.posto.est);
    est = std::max(est, stima.posto.est);
  }
  return std::max(0.0, est - ovest);
}

void DisegnaBattute(const Atto& atto, ArchivioGrafica& archivio) {
  const double larga = Larghezza(atto.rete);
  for (const Stazionamento& s : atto.rete.Stazioni()) {
    const PuntoPiano qui = s.frame.Applica({});
    for (std::size_t i = s.prima; i < s.dopo; ++i) {
      const Stima& stima = atto.rete.Stime()[i];
      if (!stima.posta || (s.gps && stima.distanza > larga)) continue;
      const PennaGrafica penna{colore::Grigio, 1, s.gps ? stile::Punteggiato : stile::Tratteggiato};
      Linea(archivio, qui, stima.posto, penna);
    }
  }
}

void DisegnaPoligonali(const Atto& atto, ArchivioGrafica& archivio) {
  const PennaGrafica penna{colore::BluChiaro, Larga, stile::Continuo};
  Punto prima = SenzaPunto;
  for (std::size_t i = 0; i < atto.righe.InizioProposta(); ++i) {
    const RigaLetta& letta = atto.righe[i];
    if (letta.forma != FormaRiga::Poligonale) continue;
    if (letta.conteggio != 0) prima = SenzaPunto;
    for (const Punto punto : letta.punti) {
      if (prima != SenzaPunto && atto.rete.Nota(prima) && atto.rete.Nota(punto))
        Linea(archivio, atto.rete.Dove(prima), atto.rete.Dove(punto), penna);
      prima = punto;
    }
  }
}

void DisegnaSquadri(const Atto& atto, ArchivioGrafica& archivio) {
  const PennaGrafica penna{colore::Verde, 1, stile::Punteggiato};
  const RigaLetta* base = nullptr;
  std::size_t k = atto.rete.PrimoOffset();
  const auto& stime = atto.rete.Stime();
  for (std::size_t i = 0; i < atto.righe.InizioProposta() && k < stime.size(); ++i) {
    const RigaLetta& letta = atto.righe[i];
    if (letta.genere == 4) base = &letta;
    if (base == nullptr || i != stime[k].riga) continue;
    const PuntoPiano& a = atto.rete.Dove(base->punti[0]);
    const PuntoPiano& b = atto.rete.Dove(base->punti[1]);
    const double parte = letta.numeri[0] / std::max(DistanzaPiana(a, b), std::numeric_limits<double>::min());
    const PuntoPiano piede{a.est + (b.est - a.est) * parte, a.nord + (b.nord - a.nord) * parte};
    Linea(archivio, a, piede, penna);
    Linea(archivio, piede, stime[k].posto, penna);
    ++k;
  }
}

PennaGrafica PennaContorno(std::string_view codice) {
  PennaGrafica penna{colore::Nero, 2, stile::Continuo};
  if (codice.starts_with('R')) penna.Colore = colore::RossoChiaro;
  if (codice.starts_with('V')) penna.Colore = colore::Verde;
  if (codice.ends_with('T')) penna.Stile = stile::Tratteggiato;
  if (codice.ends_with('P')) penna.Stile = stile::Punteggiato;
  return penna;
}

void DisegnaContorni(const Atto& atto, ArchivioGrafica& archivio) {
  for (const ContornoLetto& contorno : LeggiContorni(atto.righe)) {
    if (contorno.Vertici()) continue;
    const PennaGrafica penna = PennaContorno(contorno.codice);
    for (std::size_t i = 1; i < contorno.vertici.size(); ++i) {
      const Punto da = contorno.vertici[i - 1].punto;
      const Punto a = contorno.vertici[i].punto;
      if (atto.rete.Nota(da) && atto.rete.Nota(a)) Linea(archivio, atto.rete.Dove(da), atto.rete.Dove(a), penna);
    }
  }
}

void DisegnaTriangolo(const Atto& atto, ArchivioGrafica& archivio) {
  const auto triangolo = TriangoloDi(atto.righe, atto.rete);
  if (!triangolo) return;
  const auto& [a, b, c] = *triangolo;
  Spezzata(archivio, {a, b, c, a}, {colore::MagentaChiaro, 1, stile::Tratteggiato});
}

std::int16_t ColorePunto(const Atto& atto, Punto punto, const std::vector<bool>& stazione) {
  if (atto.righe.Nomi().Fiduciale(punto)) return colore::MagentaChiaro;
  if (stazione[punto]) return colore::Blu;
  return atto.rete.Punti()[punto].origine == Origine::Coordinate ? GrigioScuro : colore::Nero;
}

void DisegnaPunti(const Atto& atto, ArchivioGrafica& archivio) {
  const auto& punti = atto.rete.Punti();
  std::vector<bool> stazione(punti.size());
  for (const Stazionamento& s : atto.rete.Stazioni()) stazione[s.punto] = true;
  const double larga = Larghezza(atto.rete);
  for (Punto punto = 0; punto < punti.size(); ++punto) {
    if (!atto.rete.Nota(punto)) continue;
    const PuntoPiano& posto = punti[punto].posto;
    const auto& prima = atto.rete.Stazioni();
    const bool baseLontana = !prima.empty() && prima.back().gps && prima.back().punto == punto &&
                             atto.rete.StimeDi(punto).empty() &&
                             (prima.back().prima == prima.back().dopo ||
                              DistanzaPiana(posto, atto.rete.Stime()[prima.back().prima].posto) > larga);
    if (baseLontana) continue; // the picture would be a speck in a corner
    archivio.Aggiungi(PuntoGrafica{std::string(atto.righe.Nomi().Nome(punto)),
                                   posto.est,
                                   posto.nord,
                                   0,
                                   ColorePunto(atto, punto, stazione),
                                   {},
                                   0,
                                   std::string(FontNomi),
                                   DimensioneNomi});
  }
}

} // namespace

void DisegnaRilievo(const Atto& atto, ArchivioGrafica& archivio) {
  archivio.Svuota();
  archivio.Riserva(atto.rete.Punti().size(), atto.rete.Stime().size());
  DisegnaEstratto(atto, archivio);
  DisegnaBattute(atto, archivio);
  DisegnaPoligonali(atto, archivio);
  DisegnaSquadri(atto, archivio);
  DisegnaContorni(atto, archivio);
  DisegnaTriangolo(atto, archivio);
  DisegnaPunti(atto, archivio);
}

} // namespace lirmeto
