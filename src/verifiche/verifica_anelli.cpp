#include <verifiche/verifica_anelli.h>

#include <verifiche/atto.h>

#include <base/numeri.h>
#include <core/riga.h>

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace lirmeto {

namespace {

constexpr double DifferenzaArea = 1; // square metres: the rounding of the area as written

void VerificaVertici(const AnelloLetto& anello, const PuntiEstratto& punti, Raccolta& raccolta) {
  for (std::size_t i = 0; i < anello.vertici.size(); ++i)
    if (!punti.posti.contains(anello.vertici[i]))
      raccolta.Riga(RegolaDi("E010"), anello.riga, i + 2, {anello.nome, anello.vertici[i]});
  if (anello.vertici.size() > 1 && anello.vertici.front() != anello.vertici.back())
    raccolta.Riga(RegolaDi("E006"), anello.riga, 0, {anello.nome, anello.vertici.back(), anello.vertici.front()});
}

// The area inside a ring without that of its holes, by their names.
class Aree {
public:
  Aree(const std::vector<AnelloLetto>& anelli, const PuntiEstratto& punti) : punti_(punti) {
    for (const AnelloLetto& anello : anelli)
      if (anello.nome.ends_with('-')) fori_[anello.nome] += AreaDi(punti.Di(anello));
  }

  [[nodiscard]] double Di(const AnelloLetto& anello) const {
    const auto foro = fori_.find(anello.nome + "-");
    return AreaDi(punti_.Di(anello)) - (foro == fori_.end() ? 0 : foro->second);
  }

private:
  const PuntiEstratto& punti_;
  std::unordered_map<std::string, double> fori_;
};

} // namespace

void VerificaAnelli(const std::vector<AnelloLetto>& anelli, const PuntiEstratto& punti, Raccolta& raccolta) {
  const Aree aree(anelli, punti);
  for (const AnelloLetto& anello : anelli) {
    VerificaVertici(anello, punti, raccolta);
    const double scritta = Misura(anello.superficie);
    const double calcolata = aree.Di(anello);
    if (scritta == 0) {
      raccolta.Riga(RegolaDi("E007"), anello.riga, 0, {anello.nome});
    } else if (std::fabs(scritta - calcolata) > DifferenzaArea) {
      raccolta.Riga(RegolaDi("E011"), anello.riga, 0, {anello.nome, Metri(scritta), Metri(calcolata)});
    }
  }
}

// The updated extract follows the original one and may use its vertices.
void VerificaProposta(const Atto& atto, Raccolta& raccolta) {
  constexpr std::string_view aggiornato = "6|ESTRATTO DI MAPPA AGGIORNATO|";
  LettoreAnelli lettore;
  std::size_t originali = 0;
  bool dopo = false;
  for (std::size_t i = atto.righe.InizioProposta(); i < atto.righe.Quante(); ++i) {
    if (atto.righe.Testo(i) == aggiornato) {
      originali = lettore.anelli.size();
      dopo = true;
    }
    lettore.Riga(atto.righe.Testo(i), i);
  }
  VerificaAnelli(lettore.anelli, lettore.punti, raccolta);
  const auto somma = [&](std::size_t da, std::size_t a) {
    double totale = 0;
    for (std::size_t i = da; i < a; ++i)
      if (!lettore.anelli[i].nome.ends_with('-')) totale += Misura(lettore.anelli[i].superficie);
    return totale;
  };
  const double prima = somma(0, originali);
  const double poi = somma(originali, lettore.anelli.size());
  if (dopo && std::fabs(prima - poi) > DifferenzaArea)
    raccolta.Riga(RegolaDi("E008"), atto.righe.InizioProposta(), 0, {Metri(poi), Metri(prima)});
}

std::vector<Segnalazione> VerificaFileEstratto(std::string_view testo, const Data& oggi) {
  Raccolta raccolta;
  const EstrattoLetto estratto = LeggiEstratto(testo);
  VerificaScadenza(estratto, oggi, raccolta);
  VerificaAnelli(estratto.anelli, estratto.punti, raccolta);
  return raccolta.Prendi();
}

} // namespace lirmeto
