#include <verifiche/atto.h>
#include <verifiche/piano_gnss.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <optional>

namespace lirmeto {

namespace {

constexpr double MinimoRaggio = 6.35e6;  // metres: the ellipsoid at the pole is above it,
constexpr double MassimoRaggio = 6.39e6; // at the equator, with a mountain on it, below this one
constexpr double LimiteRtk = 10e3;       // metres
constexpr double LimiteSenzaMatrice = 5e3;
constexpr double MassimoPdop = 6;
constexpr double Chilometro = 1e3;
constexpr std::size_t CampoVettore = 2;
constexpr std::size_t CampoMatrice = 3;

Geocentrica Valori(const RigaLetta& letta) {
  return {letta.numeri[0], letta.numeri[1], letta.numeri[2]};
}

// Variances and covariances in the order xx, xy, xz, yy, yz, zz.
bool DefinitaPositiva(const Terna& m) {
  const auto& [xx, xy, xz, yy, yz, zz] = m.valori;
  const double determinante = xx * (yy * zz - yz * yz) - xy * (xy * zz - yz * xz) + xz * (xy * yz - yy * xz);
  return xx > 0 && yy > 0 && zz > 0 && determinante > 0;
}

bool Nulla(const Terna& m) {
  for (const double valore : m.valori)
    if (valore != 0) return false;
  return true;
}

void VerificaMatrice(const Atto& atto, std::size_t riga, double lungo, Raccolta& raccolta) {
  constexpr std::size_t valori = 6;
  const std::string_view nome = atto.righe.Nome(riga);
  const Terna matrice = LeggiTerna(Parte(atto.righe.Testo(riga), '|', CampoMatrice));
  const bool assente = matrice.quanti < valori || Nulla(matrice);
  if (assente && lungo > LimiteSenzaMatrice)
    raccolta.Riga(RegolaDi("G010"), riga, CampoMatrice, {nome, Metri(lungo / Chilometro)});
  if (!assente && !DefinitaPositiva(matrice)) raccolta.Riga(RegolaDi("G011"), riga, CampoMatrice, {nome});
}

void VerificaPdop(const Atto& atto, std::size_t riga, Raccolta& raccolta) {
  constexpr std::string_view chiave = "PDOP=";
  const std::string_view testo = atto.righe.Testo(riga);
  const std::size_t posto = testo.find(chiave);
  if (posto == std::string_view::npos) return;
  const std::string_view valore = testo.substr(posto + chiave.size());
  const std::string_view numero = valore.substr(0, valore.find('|'));
  if (Valore(numero) > MassimoPdop) raccolta.Riga(RegolaDi("G012"), riga, 0, {numero});
}

// What is known of the session on the way through the rows.
struct SessioneGnss {
  std::optional<std::size_t> base; // its row
  bool riga6 = false;              // the session's row 6 was met
  bool nrtk = false;
  bool vettore = false; // a vector of this base was met
};

class Giro {
public:
  Giro(const Atto& atto, Raccolta& raccolta) : atto_(atto), raccolta_(raccolta) {}

  void Riga(std::size_t riga) {
    switch (atto_.righe[riga].forma) {
    case FormaRiga::BaseGps:
      return Base(riga);
    case FormaRiga::VettoreGps:
      return Vettore(riga);
    case FormaRiga::Sessione:
      return Sessione6(riga);
    default:
      return;
    }
  }

private:
  void Base(std::size_t riga) {
    sessione_ = {riga, false, false, false};
    const double raggio = Valori(atto_.righe[riga]).Lunghezza();
    if (raggio < MinimoRaggio || raggio > MassimoRaggio)
      raccolta_.Riga(RegolaDi("G001"), riga, CampoVettore, {atto_.righe.Nome(riga)});
  }

  void Sessione6(std::size_t riga) {
    constexpr std::string_view stazionePermanente = "10000";
    sessione_.riga6 = true;
    VerificaPdop(atto_, riga, raccolta_);
    if (sessione_.nrtk || !Contiene(atto_.righe.Testo(riga), "|NRTK|") || !sessione_.base) return;
    sessione_.nrtk = true;
    if (atto_.righe.Nome(*sessione_.base) != stazionePermanente)
      raccolta_.Riga(RegolaDi("G003"), *sessione_.base, 1, {atto_.righe.Nome(*sessione_.base)});
  }

  void Vettore(std::size_t riga) {
    if (!sessione_.base) return raccolta_.Riga(RegolaDi("G007"), riga, 0);
    if (!sessione_.vettore) PrimoVettore(riga);
    sessione_.vettore = true;
    VerificaVrs(riga);
    const std::string_view componenti = Parte(atto_.righe.Testo(riga), '|', CampoVettore);
    if (!atto_.righe[riga].haDistanza) return raccolta_.Riga(RegolaDi("G008"), riga, CampoVettore, {componenti});
    VerificaLunghezza(riga);
    VerificaPdop(atto_, riga, raccolta_);
  }

  void PrimoVettore(std::size_t riga) {
    const std::string_view nome = atto_.righe.Nome(*sessione_.base);
    if (!sessione_.riga6) raccolta_.Riga(RegolaDi("G006"), *sessione_.base, 0, {nome});
    if (sessione_.nrtk && !Contiene(atto_.righe.Testo(riga), "[VRS]"))
      raccolta_.Riga(RegolaDi("G002"), riga, 0, {nome});
  }

  void VerificaVrs(std::size_t riga) {
    if (!Contiene(atto_.righe.Testo(riga), "[VRS]")) return;
    if (vrs_) raccolta_.Riga(RegolaDi("G005"), riga, 0);
    if (!sessione_.nrtk) raccolta_.Riga(RegolaDi("G004"), riga, 0);
    vrs_ = true;
  }

  void VerificaLunghezza(std::size_t riga) {
    const double lungo = Valori(atto_.righe[riga]).Lunghezza();
    if (lungo > LimiteRtk && !sessione_.nrtk)
      raccolta_.Riga(RegolaDi("G009"), riga, CampoVettore, {atto_.righe.Nome(riga), Metri(lungo / Chilometro)});
    VerificaMatrice(atto_, riga, lungo, raccolta_);
  }

  const Atto& atto_;
  Raccolta& raccolta_;
  SessioneGnss sessione_;
  bool vrs_ = false; // a point was marked [VRS]
};

} // namespace

void VerificaGnss(const Atto& atto, Raccolta& raccolta) {
  Giro giro(atto, raccolta);
  for (std::size_t i = 0; i < atto.righe.Quante(); ++i)
    if (atto.righe[i].sezione == SezioneAtto::Misure) giro.Riga(i);
}

} // namespace lirmeto
