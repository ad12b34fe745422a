#include <verifiche/atto.h>
#include <verifiche/contorni_letti.h>
#include <verifiche/incroci.h>
#include <verifiche/verifica_anelli.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace lirmeto {

namespace {

constexpr std::size_t CampoMappali = 5;
constexpr double SullaLinea = 0.10; // metres: a red line nearer than this to a black one of the map

bool StessoFoglio(std::string_view atto, std::string_view estratto) {
  constexpr std::size_t cifre = 3; // behind them stands the annex
  return Valore(estratto) == Valore(atto.substr(0, cifre)) || Valore(estratto) == Valore(atto);
}

void VerificaTestataEstratto(const Atto& atto, const EstrattoLetto& estratto, Raccolta& raccolta) {
  constexpr std::size_t comune = 4;
  const std::string_view zero = atto.righe.Testo(0);
  const std::string_view suo = Taglia(Parte(zero, '|', 3)).substr(0, comune);
  const bool stesso = suo == std::string_view(estratto.comune).substr(0, comune);
  if (!stesso || !StessoFoglio(Taglia(Parte(zero, '|', 4)), estratto.foglio))
    raccolta.Riga(RegolaDi("E005"), 0, stesso ? 4 : 3, {estratto.comune, estratto.foglio});
  for (const auto parte : Dividi(Parte(zero, '|', CampoMappali), ","))
    if (!Taglia(parte).empty() && !estratto.HaParticella(Taglia(parte)))
      raccolta.Riga(RegolaDi("E004"), 0, CampoMappali, {Taglia(parte)});
}

std::vector<Tratto> TrattiNeri(const EstrattoLetto& estratto) {
  std::vector<Tratto> neri;
  for (const AnelloLetto& anello : estratto.anelli) {
    const auto vertici = estratto.punti.Di(anello);
    for (std::size_t i = 1; i < vertici.size(); ++i) neri.push_back({vertici[i - 1], vertici[i], 0, 0});
  }
  return neri;
}

// How far both ends of a stretch are from the nearest black one: it lies along it.
double LungoNeri(const PuntoPiano& a, const PuntoPiano& b, const std::vector<Tratto>& neri) {
  double minima = SullaLinea;
  for (const Tratto& nero : neri)
    minima = std::min(minima, std::max(DistanzaDaTratto(a, nero.a, nero.b), DistanzaDaTratto(b, nero.a, nero.b)));
  return minima;
}

void VerificaRossiSullaMappa(const Atto& atto, const EstrattoLetto& estratto, Raccolta& raccolta) {
  if (!atto.rete.SullaMappa()) return;
  const auto neri = TrattiNeri(estratto);
  for (const ContornoLetto& contorno : LeggiContorni(atto.righe)) {
    for (std::size_t i = 1; contorno.Rosso() && i < contorno.vertici.size(); ++i) {
      const Punto da = contorno.vertici[i - 1].punto;
      const VerticeContorno& v = contorno.vertici[i];
      if (!atto.rete.Nota(da) || !atto.rete.Nota(v.punto)) continue;
      const PuntoPiano& a = atto.rete.Dove(da);
      const PuntoPiano& b = atto.rete.Dove(v.punto);
      if (DistanzaPiana(a, b) <= 2 * SullaLinea) continue; // too short to lie along anything
      const double vicino = LungoNeri(a, b, neri);
      if (vicino >= SullaLinea) continue;
      const NomiPunti& nomi = atto.righe.Nomi();
      raccolta.Riga(RegolaDi("E009"), v.riga, v.campo, {nomi.Nome(da), nomi.Nome(v.punto), Metri(vicino)});
    }
  }
}

} // namespace

void VerificaScadenza(const EstrattoLetto& estratto, const Data& oggi, Raccolta& raccolta) {
  constexpr int validi = 6; // months
  constexpr int mesiAnno = 12;
  if (!estratto.intestato) return raccolta.Atto(RegolaDi("E012"));
  if (estratto.data == "AUTOALLESTITO") return; // it has no release
  const auto data = LeggiDataRiga(estratto.data);
  if (!data) return raccolta.Atto(RegolaDi("E013"), {estratto.data});
  const int mesi = (oggi.anno - data->anno) * mesiAnno + oggi.mese - data->mese - validi;
  if (mesi > 0) raccolta.Atto(RegolaDi("E001"), {TestoIntero(mesi)});
}

void VerificaEstratto(const Atto& atto, Raccolta& raccolta) {
  const Intorno& intorno = atto.intorno;
  if (intorno.nomeEstratto.empty()) return raccolta.Atto(RegolaDi("E003"));
  if (!intorno.estratto) return raccolta.Atto(RegolaDi("E002"), {intorno.nomeEstratto});
  VerificaScadenza(*intorno.estratto, intorno.oggi, raccolta);
  if (!intorno.estratto->intestato || atto.righe.Quante() == 0) return;
  if (intorno.estratto->data != "AUTOALLESTITO") VerificaTestataEstratto(atto, *intorno.estratto, raccolta);
  VerificaRossiSullaMappa(atto, *intorno.estratto, raccolta);
}

} // namespace lirmeto
