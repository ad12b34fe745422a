// Rows 4 and 5: offsets from a base, levellings, points by two distances.

#include <generazione/angoli.h>
#include <generazione/generazione.h>
#include <generazione/squadri.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <span>

namespace lirmeto {

namespace {

constexpr std::string_view FormatoQuota = "####0.##0";
constexpr std::string_view FormatoMisura = "########0.##0";
constexpr std::string_view FormatoMisuraVecchia = "########0.#0"; // of the contours marked "*V*"
constexpr std::string_view NotaVuota = "Note: ";
constexpr double Parallele = 1e-7;     // determinant below which two lines do not meet
constexpr double LetturaPiana = 1.523; // both staff readings of a flat stretch, metres
constexpr double LetturaBassa = 0.2;   // the lower one of the two otherwise

std::string NotaDi(const PuntoDisegno& punto) {
  return NotaConBarra(punto.Nota, NotaVuota);
}

// The foot of the perpendicular from C to the line AB; none when A and B are one point.
std::optional<PuntoPiano> Piede(const PuntoPiano& a, const PuntoPiano& b, const PuntoPiano& c) {
  const double normale = AzimutDistanza(a, b).angolo + std::numbers::pi / 2;
  const double ux = b.est - a.est;
  const double uy = b.nord - a.nord;
  const double vx = std::sin(normale);
  const double vy = std::cos(normale);
  const double determinante = ux * vy - uy * vx;
  if (std::abs(determinante) < Parallele) return std::nullopt;
  const double t = ((c.est - a.est) * vy - (c.nord - a.nord) * vx) / determinante;
  return PuntoPiano{a.est + t * ux, a.nord + t * uy};
}

class Squadri {
public:
  explicit Squadri(Generazione& g) : g_(g) {}

  void Contorno(const ContornoDisegno& contorno) {
    const auto elementi = Elementi(contorno.Punti);
    // An empty name ends the line. Of any length: a line of the drawing is no row yet.
    const std::span nomi(elementi.begin(), std::find(elementi.begin(), elementi.end(), std::string_view{}));
    if (contorno.Tipo == "LIVELLAZIONE RAGGIANTE") LivellazioneRaggiante(nomi);
    if (contorno.Tipo == "LIVELLAZIONE DAL MEZZO") LivellazioneDalMezzo(nomi);
    if (contorno.Tipo == "SQUADRO") Squadro(nomi, contorno.Commento);
    if (contorno.Tipo == "COGO") Cogo(nomi);
  }

private:
  using Nomi = std::span<const std::string_view>;

  void Metti(std::string_view riga) { g_.righe.push_back(Sostituisci(riga, ",", ".")); }

  // A levelling needs its points.
  [[nodiscard]] const PuntoDisegno& Pretendi(Nomi nomi, std::size_t indice) const {
    const PuntoDisegno* punto = indice < nomi.size() ? g_.tabelle.Trova(nomi[indice]) : nullptr;
    if (punto == nullptr) throw Errore(errore::IndiceFuoriIntervallo);
    return *punto;
  }

  void LivellazioneRaggiante(Nomi nomi) {
    const PuntoDisegno& primo = Pretendi(nomi, 0);
    Metti("4|" + primo.Nome + "|" + Formatta(primo.Altezza, "###0.##0") + "|" + NotaDi(primo));
    for (std::size_t i = 1; i < nomi.size(); ++i) {
      const PuntoDisegno& punto = Pretendi(nomi, i);
      const double lettura = primo.Quota + punto.Altezza - punto.Quota;
      Metti("5|" + punto.Nome + "|" + Formatta(lettura, FormatoQuota) + "|" + NotaDi(punto));
    }
  }

  void LivellazioneDalMezzo(Nomi nomi) {
    for (std::size_t i = 0; i + 1 < nomi.size(); ++i) {
      const PuntoDisegno& indietro = Pretendi(nomi, i);
      const PuntoDisegno& avanti = Pretendi(nomi, i + 1);
      const double dislivello = avanti.Quota - indietro.Quota;
      const double letturaIndietro = dislivello == 0 ? LetturaPiana : LetturaBassa + std::max(dislivello, 0.0);
      const double letturaAvanti = dislivello == 0 ? LetturaPiana : LetturaBassa + std::max(-dislivello, 0.0);
      Metti("4|" + indietro.Nome + "|" + avanti.Nome + "|" + Formatta(letturaIndietro, FormatoQuota) + "|" +
            Formatta(letturaAvanti, FormatoQuota) + "|Liv dal Mezzo|");
    }
  }

  static std::string Nome(Nomi nomi, std::size_t indice) {
    return std::string(indice < nomi.size() ? nomi[indice] : std::string_view{});
  }

  static Nomi Seguenti(Nomi nomi, std::size_t primo) { return nomi.subspan(std::min(primo, nomi.size())); }

  // A point of the base that is missing leaves the one of the contour before.
  void PrendiBase(Nomi nomi) {
    if (const PuntoDisegno* a = g_.tabelle.Trova(Nome(nomi, 0))) a_ = *a;
    if (const PuntoDisegno* b = g_.tabelle.Trova(Nome(nomi, 1))) b_ = *b;
  }

  void Squadro(Nomi nomi, std::string_view commento) {
    PrendiBase(nomi);
    const std::string testata = Sostituisci(Taglia(commento), "_", "");
    Metti("4|" + Nome(nomi, 0) + "|" + Nome(nomi, 1) + "|0.00|" + testata + " " + NotaDi(a_));
    const std::string_view formato = commento == "*V*" ? FormatoMisuraVecchia : FormatoMisura;
    for (const auto nome : Seguenti(nomi, 1))
      if (const PuntoDisegno* punto = g_.tabelle.Trova(nome)) {
        misura_ = MisuraSquadro(a_, b_, *punto).value_or(misura_);
        Metti("5|" + punto->Nome + "|" + Formatta(misura_.ascissa, formato) + "|" +
              Formatta(misura_.ordinata, formato) + "|" + NotaDi(*punto));
      }
  }

  // Points by their distances from A and from B, and by their height over A.
  void Cogo(Nomi nomi) {
    PrendiBase(nomi);
    const std::string a = Nome(nomi, 0);
    const std::string b = Nome(nomi, 1);
    std::vector<PuntoDisegno> punti;
    for (const auto nome : Seguenti(nomi, 2))
      if (const PuntoDisegno* punto = g_.tabelle.Trova(nome)) punti.push_back(*punto);
    Metti("4|" + a + "|" + b + "|50|" + NotaDi(a_));
    for (const auto& punto : punti) MettiDistanza(punto, a_);
    // The note is that of the point last looked up and not of B, which has none of its own here: B closes the figure.
    Metti("4|" + b + "|" + a + "|-50|" + NotaDi(punti.empty() ? b_ : punti.back()));
    for (const auto& punto : punti) MettiDistanza(punto, b_);
    Metti("4|" + a + "|0.00|");
    for (const auto& punto : punti)
      Metti("5|" + punto.Nome + "|" + Formatta(punto.Quota - a_.Quota, FormatoMisura) + "|");
  }

  void MettiDistanza(const PuntoDisegno& punto, const PuntoDisegno& da) {
    Metti("5|" + punto.Nome + "|" + Formatta(DistanzaPiana(da.Posto(), punto.Posto()), FormatoMisura) + "|0|" +
          NotaDi(punto));
  }

  Generazione& g_;
  PuntoDisegno a_;
  PuntoDisegno b_;
  Squadratura misura_;
};

} // namespace

std::optional<Squadratura> MisuraSquadro(const PuntoDisegno& a, const PuntoDisegno& b, const PuntoDisegno& c) {
  const auto piede = Piede(a.Posto(), b.Posto(), c.Posto());
  if (!piede) return std::nullopt;
  Squadratura misura{DistanzaPiana(a.Posto(), *piede), DistanzaPiana(c.Posto(), *piede)};
  double giro = AzimutDistanza(a.Posto(), c.Posto()).angolo - AzimutDistanza(a.Posto(), b.Posto()).angolo;
  if (giro < 0) giro += 2 * std::numbers::pi;
  if (giro > std::numbers::pi) misura.ordinata = -misura.ordinata;
  if (giro > std::numbers::pi / 2 && giro < 3 * std::numbers::pi / 2) {
    misura.ascissa = -misura.ascissa;
    misura.ordinata = -misura.ordinata;
  }
  return misura;
}

void MettiSquadri(Generazione& g) {
  if (g.tabelle.Contorni.empty()) return;
  g.rapporto.emplace_back("Carica Squadri dal Disegno");
  if (!g.opzioni.MantieniRighe4) {
    Squadri squadri(g);
    const auto& contorni = g.tabelle.Contorni;
    for (std::size_t i = 0; i < contorni.size(); ++i)
      AllaRiga([i] { return i + 1; }, contorni[i].Punti, [&] { squadri.Contorno(contorni[i]); });
    return;
  }
  g.rapporto.emplace_back("Mantiene Righe 4-5 del Libretto");
  for (const auto riga : g.vecchie)
    if (GenereDi(riga) == Genere::Allineamento || GenereDi(riga) == Genere::Squadro) g.righe.emplace_back(riga);
}

} // namespace lirmeto
