#include <grafica/righello.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <cmath>
#include <numbers>

namespace lirmeto {

namespace {

constexpr std::size_t VerticiArea = 3;

Gon Azimut(const PuntoPiano& da, const PuntoPiano& a) {
  constexpr double gonPerRadiante = 200 / std::numbers::pi;
  const double angolo = std::atan2(a.est - da.est, a.nord - da.nord) * gonPerRadiante;
  return Gon(angolo < 0 ? angolo + Giro.Valore() : angolo);
}

std::string Voce(std::string_view titolo, double valore, std::string_view formato, std::string_view unita) {
  std::string voce(titolo);
  voce += std::isfinite(valore) ? Formatta(valore, formato) : "?";
  return voce.append(unita);
}

} // namespace

void Righello::Accendi(bool acceso) {
  acceso_ = acceso;
  if (acceso) return;
  Svuota();
  sotto_.reset();
}

void Righello::Prendi(const PuntoPiano& posto) {
  if (vertici_.empty() || vertici_.back() != posto) vertici_.push_back(posto);
}

void Righello::TogliUltimo() {
  if (!vertici_.empty()) vertici_.pop_back();
}

Misurato Righello::Misura() const {
  std::vector<PuntoPiano> punti = vertici_;
  if (sotto_ && !punti.empty() && punti.back() != *sotto_) punti.push_back(*sotto_);
  Misurato misura;
  for (std::size_t i = 1; i < punti.size(); ++i) {
    misura.tratto = DistanzaPiana(punti[i - 1], punti[i]);
    misura.direzione = Azimut(punti[i - 1], punti[i]);
    misura.totale += misura.tratto;
    ++misura.lati;
  }
  if (punti.size() >= VerticiArea) misura.area = AreaDi(punti);
  return misura;
}

std::vector<std::string> RigheMisura(const Righello& righello) {
  const Misurato misura = righello.Misura();
  if (misura.lati == 0) return {"Righello: clic su un punto, poi sul successivo", "Canc toglie l'ultimo, Esc lascia"};
  std::vector<std::string> righe = {Voce("Distanza ", misura.tratto, "#########0.000", " m"),
                                    Voce("Direzione ", misura.direzione.Valore(), "##0.0000", " gon")};
  if (misura.lati > 1) righe.push_back(Voce("Totale ", misura.totale, "#########0.000", " m"));
  if (misura.area > 0) righe.push_back(Voce("Area ", misura.area, "##########0.0", " m²"_w));
  return righe;
}

} // namespace lirmeto
