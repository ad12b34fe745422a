#include <verifiche/atto.h>
#include <verifiche/contorni_letti.h>
#include <verifiche/incroci.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/campi_riga.h>
#include <fiduciali/taf.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <set>

namespace lirmeto {

namespace {

constexpr std::size_t MassimiFiduciali = 50; // beyond so many, pairs and triangles are not gone through
constexpr double FuoriTriangolo = 0.30;      // of the longest side (Circ. 2/88)
constexpr double TriangoloPiatto = 0.10;     // height by the longest side
constexpr double UgualiAllaTaf = 0.01;       // metres
constexpr double DifferenzaArchivio = 0.10;  // metres
constexpr double DifferenzaTaf = 3;          // metres
constexpr std::size_t CampoNome = 1;
constexpr std::size_t CampoNord = 2;
constexpr std::size_t CampoEst = 3;

// A fiducial point of the act.
struct Fiduciale {
  Punto punto = SenzaPunto;
  std::string nome;     // in capitals
  std::size_t riga = 0; // the first sighting, or else the first row 8
  bool misurato = false;
  bool conCoordinate = false;
};

bool Ausiliario(std::string_view nome) {
  return NomePuntoFiduciale(nome) && nome.starts_with("PA");
}

// In the order in which they are measured, then those of rows 8 alone.
std::vector<Fiduciale> Trova(const Atto& atto) {
  std::vector<Fiduciale> trovati;
  std::vector<std::size_t> posto(atto.righe.Nomi().Quanti()); // by point, from 1
  const auto prendi = [&](Punto punto, std::size_t riga) -> Fiduciale* {
    const std::string_view nome = atto.righe.Nomi().Nome(punto);
    if (!atto.righe.Nomi().Fiduciale(punto) && !Ausiliario(nome)) return nullptr;
    if (posto[punto] == 0) {
      trovati.push_back({punto, Maiuscolo(nome), riga, false, false});
      posto[punto] = trovati.size();
    }
    return &trovati[posto[punto] - 1];
  };
  for (const Stima& stima : atto.rete.Stime())
    if (auto* fiduciale = prendi(stima.punto, stima.riga)) fiduciale->misurato = true;
  for (const Stima& c : atto.rete.Coordinate())
    if (auto* fiduciale = prendi(c.punto, c.riga)) fiduciale->conCoordinate = true;
  return trovati;
}

std::string_view CampoZero(const Atto& atto, std::size_t campo) {
  return atto.righe.Quante() == 0 ? std::string_view{} : Taglia(Parte(atto.righe.Testo(0), '|', campo));
}

void VerificaQuanti(const Atto& atto, const std::vector<Fiduciale>& fiduciali, Raccolta& raccolta) {
  constexpr std::size_t triangolo = 3;
  const bool modesta = atto.righe.Quante() > 1 && Taglia(Parte(atto.righe.Testo(1), '|', 6)) == "TM";
  if (atto.rete.Stazioni().empty() || modesta || fiduciali.size() >= triangolo) return;
  raccolta.Atto(RegolaDi("F001"), {TestoIntero(static_cast<long long>(fiduciali.size()))});
}

void VerificaNome(const Atto& atto, const Fiduciale& f, Raccolta& raccolta) {
  constexpr std::size_t comune = 4;
  if (!NomePuntoFiduciale(f.nome)) return; // the row by itself has told so
  const std::string_view codice = CampoZero(atto, 3).substr(0, comune);
  if (!codice.empty() && ComuneDelPunto(f.nome) != codice)
    return raccolta.Riga(RegolaDi("F005"), f.riga, CampoNome, {f.nome});
  const std::string_view foglio = CampoZero(atto, 4);
  if (foglio.size() == 4 && f.nome.substr(5, 3) != foglio.substr(0, 3))
    raccolta.Riga(RegolaDi("F014"), f.riga, CampoNome, {f.nome});
}

bool ConTaf(const Atto& atto, std::string_view nome) {
  return !atto.intorno.senzaTaf.contains(std::string(ComuneDelPunto(nome)));
}

void VerificaPresenza(const Atto& atto, const Fiduciale& f, Raccolta& raccolta) {
  const bool nuovo = NomePuntoFiduciale(f.nome) && ConTaf(atto, f.nome) && !atto.intorno.taf.contains(f.nome);
  if (nuovo && !Ausiliario(f.nome)) raccolta.Riga(RegolaDi("F006"), f.riga, CampoNome, {f.nome});
  if (f.misurato && !f.conCoordinate && !Ausiliario(f.nome))
    raccolta.Riga(RegolaDi("F012"), f.riga, CampoNome, {f.nome});
  if (!nuovo || !f.misurato) return;
  std::set<Punto> stazioni;
  for (const std::size_t i : atto.rete.StimeDi(f.punto))
    if (i < atto.rete.PrimoOffset()) stazioni.insert(atto.rete.StazioneDi(i).punto);
  if (stazioni.size() < 2) raccolta.Riga(RegolaDi("F013"), f.riga, CampoNome, {f.nome});
}

void VerificaCoordinateTaf(const Atto& atto, Raccolta& raccolta) {
  for (const Stima& c : atto.rete.Coordinate()) {
    const auto taf = atto.intorno.taf.find(Maiuscolo(atto.righe.Nomi().Nome(c.punto)));
    if (taf == atto.intorno.taf.end()) continue;
    const double scarto = DistanzaPiana(c.locale, taf->second);
    if (scarto <= UgualiAllaTaf) continue;
    const std::string nord = ConCampo(atto.righe.Testo(c.riga), CampoNord, Formatta(taf->second.nord, "0.000"));
    raccolta.Riga(RegolaDi("F007"), c.riga, CampoNord, {taf->first, Metri(scarto)},
                  ConCampo(nord, CampoEst, Formatta(taf->second.est, "0.000")));
  }
}

// Fiducial points whose place comes from measures.
std::vector<const Fiduciale*> Misurati(const Atto& atto, const std::vector<Fiduciale>& fiduciali) {
  std::vector<const Fiduciale*> misurati;
  for (const Fiduciale& f : fiduciali)
    if (misurati.size() < MassimiFiduciali && atto.rete.Nota(f.punto) &&
        atto.rete.Punti()[f.punto].origine == Origine::Misure)
      misurati.push_back(&f);
  return misurati;
}

void VerificaDistanza(const Atto& atto, const Fiduciale& a, const Fiduciale& b, Raccolta& raccolta) {
  const std::string& primo = std::min(a.nome, b.nome);
  const std::string& secondo = std::max(a.nome, b.nome);
  const double misurata = DistanzaPiana(atto.rete.Dove(a.punto), atto.rete.Dove(b.punto));
  const auto archivio = std::find_if(atto.intorno.misurate.begin(), atto.intorno.misurate.end(),
                                     [&](const auto& m) { return m.primo == primo && m.secondo == secondo; });
  const std::size_t riga = std::max(a.riga, b.riga);
  if (archivio != atto.intorno.misurate.end() && std::fabs(misurata - archivio->media) > DifferenzaArchivio)
    raccolta.Riga(RegolaDi("F008"), riga, CampoNome, {primo, secondo, Metri(misurata), Metri(archivio->media)});
  const auto tafA = atto.intorno.taf.find(a.nome);
  const auto tafB = atto.intorno.taf.find(b.nome);
  if (tafA == atto.intorno.taf.end() || tafB == atto.intorno.taf.end()) return;
  const double taf = DistanzaPiana(tafA->second, tafB->second);
  if (std::fabs(misurata - taf) > DifferenzaTaf)
    raccolta.Riga(RegolaDi("F009"), riga, CampoNome, {primo, secondo, Metri(misurata), Metri(taf)});
}

void VerificaDistanze(const Atto& atto, const std::vector<Fiduciale>& fiduciali, Raccolta& raccolta) {
  const auto misurati = Misurati(atto, fiduciali);
  for (std::size_t i = 0; i < misurati.size(); ++i)
    for (std::size_t k = i + 1; k < misurati.size(); ++k) VerificaDistanza(atto, *misurati[i], *misurati[k], raccolta);
  if (misurati.size() > 1 && !atto.intorno.archivioMisurate) raccolta.Atto(RegolaDi("F011"));
}

double Area(const PuntoPiano& a, const PuntoPiano& b, const PuntoPiano& c) {
  return std::fabs((b.est - a.est) * (c.nord - a.nord) - (b.nord - a.nord) * (c.est - a.est)) / 2;
}

double LatoMassimo(const TriangoloFiduciale& t) {
  return std::max({DistanzaPiana(t[0], t[1]), DistanzaPiana(t[1], t[2]), DistanzaPiana(t[2], t[0])});
}

bool Dentro(const TriangoloFiduciale& t, const PuntoPiano& p) {
  const double intero = Area(t[0], t[1], t[2]);
  const double pezzi = Area(p, t[0], t[1]) + Area(p, t[1], t[2]) + Area(p, t[2], t[0]);
  return pezzi <= intero * (1 + 1e-9);
}

double DistanzaDaTriangolo(const TriangoloFiduciale& t, const PuntoPiano& p) {
  if (Dentro(t, p)) return 0;
  return std::min({DistanzaDaTratto(p, t[0], t[1]), DistanzaDaTratto(p, t[1], t[2]), DistanzaDaTratto(p, t[2], t[0])});
}

// Stations and vertices of contours: what is to lie in the triangle.
std::vector<Punto> Oggetto(const Atto& atto) {
  std::vector<Punto> punti;
  for (const Stazionamento& s : atto.rete.Stazioni())
    if (!s.gps) punti.push_back(s.punto);
  for (const ContornoLetto& contorno : LeggiContorni(atto.righe))
    for (const VerticeContorno& v : contorno.vertici) punti.push_back(v.punto);
  std::erase_if(punti, [&](Punto punto) { return !atto.rete.Nota(punto); });
  return punti;
}

void VerificaTriangolo(const Atto& atto, Raccolta& raccolta) {
  const auto triangolo = TriangoloDi(atto.righe, atto.rete);
  if (!triangolo) return;
  const double lato = LatoMassimo(*triangolo);
  const double altezza = lato > 0 ? 2 * Area((*triangolo)[0], (*triangolo)[1], (*triangolo)[2]) / lato : 0;
  if (altezza < TriangoloPiatto * lato) raccolta.Atto(RegolaDi("F002"), {Metri(altezza), Metri(lato)});
  double massima = 0;
  Punto lontano = SenzaPunto;
  for (const Punto punto : Oggetto(atto)) {
    const double fuori = DistanzaDaTriangolo(*triangolo, atto.rete.Dove(punto));
    if (fuori <= massima) continue;
    massima = fuori;
    lontano = punto;
  }
  if (massima > FuoriTriangolo * lato)
    raccolta.Riga(RegolaDi("F003"), atto.rete.Punti()[lontano].riga, CampoNome,
                  {atto.righe.Nomi().Nome(lontano), Metri(massima)});
}

void VerificaArchivi(const Atto& atto, Raccolta& raccolta) {
  for (const std::string& comune : atto.intorno.senzaTaf) raccolta.Atto(RegolaDi("F010"), {comune});
}

} // namespace

std::optional<TriangoloFiduciale> TriangoloDi(const RigheLette& righe, const Rete& rete) {
  constexpr std::size_t alMassimo = 20;
  std::vector<PuntoPiano> posti;
  for (Punto punto = 0; punto < righe.Nomi().Quanti() && posti.size() < alMassimo; ++punto)
    if (righe.Nomi().Fiduciale(punto) && rete.Nota(punto)) posti.push_back(rete.Dove(punto));
  std::optional<TriangoloFiduciale> migliore;
  double massima = -1;
  for (std::size_t i = 0; i < posti.size(); ++i)
    for (std::size_t k = i + 1; k < posti.size(); ++k)
      for (std::size_t m = k + 1; m < posti.size(); ++m) {
        const double area = Area(posti[i], posti[k], posti[m]);
        if (area <= massima) continue;
        massima = area;
        migliore = TriangoloFiduciale{posti[i], posti[k], posti[m]};
      }
  return migliore;
}

void VerificaFiduciali(const Atto& atto, Raccolta& raccolta) {
  const auto fiduciali = Trova(atto);
  VerificaQuanti(atto, fiduciali, raccolta);
  for (const Fiduciale& f : fiduciali) {
    VerificaNome(atto, f, raccolta);
    VerificaPresenza(atto, f, raccolta);
  }
  VerificaCoordinateTaf(atto, raccolta);
  VerificaDistanze(atto, fiduciali, raccolta);
  VerificaTriangolo(atto, raccolta);
  VerificaArchivi(atto, raccolta);
}

} // namespace lirmeto
