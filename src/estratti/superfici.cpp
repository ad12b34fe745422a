#include <estratti/superfici.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <estratti/campi.h>

#include <cmath>

namespace lirmeto {

namespace {

std::string TroppiVertici(std::string_view riga) {
  return "Particella " + std::string(CampoDaUltimo(riga, 2)) + std::string(": il contorno ha più di 500 vertici"_w);
}

} // namespace

double SuperficieAnello(std::span<const double> nord, std::span<const double> est) {
  double superficie = 0;
  for (std::size_t i = 0; i + 1 < nord.size(); ++i) superficie += (est[i + 1] - est[i]) * (nord[i + 1] + nord[i]) / 2;
  return std::fabs(superficie);
}

SuperficiAnelli::SuperficiAnelli(KR_Estratto& estratto) : estratto_(estratto), indice_(estratto.Punti.size(), '%') {
  vertici_.reserve(estratto.Punti.size());
  for (const auto riga : estratto.Punti) {
    // A point is found by "8|" and its identifier: a row that begins in another way is none.
    const RigaPunto punto = SpezzaPunto(riga);
    if (punto.genere == "8") indice_.Aggiungi(punto.identificativo, static_cast<std::uint32_t>(vertici_.size()));
    vertici_.push_back({Valore(Campo(punto.resto, 1)), Valore(Campo(punto.resto, 2))});
  }
}

void SuperficiAnelli::MettiVertice(std::size_t posto, std::string_view identificativo) {
  const std::uint32_t trovato = indice_.Cerca(identificativo);
  if (trovato == IndiceIdentificativi::Nessuno) return;
  estratto_.Nord.at(posto) = vertici_[trovato].nord;
  estratto_.Est.at(posto) = vertici_[trovato].est;
}

// From position 2 to the "NC", four places before the last. The answer is how many.
std::size_t SuperficiAnelli::MettiVertici(std::string_view riga) {
  constexpr std::size_t primo = 2;
  constexpr std::size_t dietroNc = 4;
  const std::size_t fine = InizioCampoDaUltimo(riga, dietroNc);
  std::size_t n = 0;
  for (std::size_t i = InizioCampo(riga, primo); i <= fine; ++n) {
    const std::string_view identificativo = CampoDa(riga, i);
    if (n == KR_Estratto::MassimoVertici) throw Errore(errore::IndiceFuoriIntervallo, TroppiVertici(riga));
    MettiVertice(n + 1, identificativo);
    i += identificativo.size() + 1;
  }
  return n;
}

void SuperficiAnelli::SuperficieRigaSette(std::string_view riga) {
  const std::size_t n = MettiVertici(riga);
  auto& nord = estratto_.Nord;
  auto& est = estratto_.Est;
  nord[0] = nord.at(n);
  est[0] = est.at(n);
  nord.at(n + 1) = nord[1];
  est.at(n + 1) = est[1];
  if (n < 3) return;
  // The "NC" is a vertex wherever its place lay before: the ring is closed, so that its two terms cancel.
  estratto_.SuperficieCalcolata = SuperficieAnello(std::span(nord).subspan(1, n + 1), std::span(est).subspan(1, n + 1));
}

} // namespace lirmeto
