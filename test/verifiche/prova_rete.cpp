#include <generazione/disegno.h>

#include <verifiche/verificatore.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <cmath>
#include <map>
#include <numbers>
#include <random>

namespace lirmeto::prova {

namespace {

using Elenco = std::vector<std::string>;

struct DisegnoNoto {
  Elenco linee; // of a .LXC
  std::map<std::string, PuntoPiano> posti;
};

void MettiPunto(DisegnoNoto& d, const std::string& nome, const PuntoPiano& p, double quota, const std::string& nota) {
  d.posti[nome] = p;
  d.linee.push_back("P," + nome + "," + Formatta(p.est, "0.000") + "," + Formatta(p.nord, "0.000") + "," +
                    Formatta(quota, "0.000") + "," + nota + ",1.5");
}

void MettiLinea(DisegnoNoto& d, const std::string& a, const std::string& b) {
  const PuntoPiano p = d.posti[a];
  const PuntoPiano q = d.posti[b];
  d.linee.push_back("L," + Formatta(p.est, "0.000") + "," + Formatta(p.nord, "0.000") + ",0," +
                    Formatta(q.est, "0.000") + "," + Formatta(q.nord, "0.000") + ",0");
}

// Stations on a ring, each seen from its neighbours, with points around it that the stations beside it see too; points
// of two stations in a row give offsets; two of the stations have their coordinates written.
DisegnoNoto Anello(unsigned seme, int stazioni) {
  std::mt19937 caso(seme);
  std::uniform_real_distribution<double> vario(-30, 30);
  DisegnoNoto d;
  const auto nome = [](int s, int p) { return TestoIntero(100 * (s + 1) + p); };
  for (int s = 0; s < stazioni; ++s) {
    const double angolo = 2 * std::numbers::pi * s / stazioni;
    const PuntoPiano centro{2300000 + 150 * std::cos(angolo), 5030000 + 150 * std::sin(angolo)};
    MettiPunto(d, nome(s, 0), centro, 12 + s, s < 2 ? "CHIODO<8P>" : "CHIODO");
    for (int p = 1; p < 8; ++p)
      MettiPunto(d, nome(s, p), {centro.est + vario(caso), centro.nord + vario(caso)}, 11.5, "SPIGOLO");
  }
  for (int s = 0; s < stazioni; ++s) {
    const int dopo = (s + 1) % stazioni;
    MettiLinea(d, nome(s, 0), nome(dopo, 0));
    for (int p = 1; p < 4; ++p) {
      MettiLinea(d, nome(s, 0), nome(dopo, p));
      MettiLinea(d, nome(dopo, 0), nome(s, p));
    }
  }
  MettiPunto(d, "A1", {2300000 + 5, 5030000 - 7}, 10, "POZZO");
  MettiPunto(d, "A2", {2300000 - 91, 5030000 + 33}, 10, "POZZO");
  d.linee.push_back("7,|101|204|A1|A2|,SQUADRO,X");
  return d;
}

// Rounding of a reading (half of 0.0001 gon) and of a distance (half a millimetre), carried around the ring.
constexpr double Arrotondamento = 0.01;

struct Ricalcolato : Disegno {
  Verificatore verificatore{ambiente};

  void Calcola(const Elenco& righe) {
    Apri(Testo(righe));
    verificatore.Aggiorna();
  }
  [[nodiscard]] double Scarto(const std::string& nome, const PuntoPiano& vero) const {
    const NomiPunti& nomi = verificatore.Righe().Nomi();
    Punto punto = 0;
    while (punto < nomi.Quanti() && nomi.Nome(punto) != nome) ++punto;
    return verificatore.Posti().Nota(punto) ? DistanzaPiana(verificatore.Posti().Dove(punto), vero) : 1e9;
  }
  // Rows of the findings of the network.
  [[nodiscard]] std::set<std::size_t> RigheInColpa() const {
    std::set<std::size_t> righe;
    for (const Segnalazione& s : verificatore.Segnalazioni())
      if (s.regola->codice.starts_with('R') && s.regola->severita != Severita::Nota && s.riga) righe.insert(*s.riga);
    return righe;
  }
};

// A row with another reading.
std::string ConLettura(const std::string& riga, double gon) {
  const auto parti = Dividi(riga, "|");
  const double nuova = std::fmod(Valore(parti[2]) + gon, 400);
  std::string cambiata = "2|" + std::string(parti[1]) + "|" + Formatta(nuova, "0.0000");
  for (std::size_t i = 3; i < parti.size(); ++i) cambiata += "|" + std::string(parti[i]);
  return cambiata;
}

} // namespace

class AndataERitorno : public testing::TestWithParam<std::pair<unsigned, std::string>> {};

// A drawing made into a libretto and computed back is the same drawing.
TEST_P(AndataERitorno, LeCoordinateTornano) {
  const auto& [seme, orientamento] = GetParam();
  const DisegnoNoto disegno = Anello(seme, 4 + static_cast<int>(seme));
  Ricalcolato r;
  r.Calcola(r.Genera(disegno.linee, {orientamento}));
  EXPECT_TRUE(r.verificatore.Posti().SullaMappa());
  for (const auto& [nome, posto] : disegno.posti) EXPECT_LT(r.Scarto(nome, posto), Arrotondamento) << nome;
  EXPECT_EQ(r.RigheInColpa(), std::set<std::size_t>{});
}

INSTANTIATE_TEST_SUITE_P(Disegni, AndataERitorno,
                         testing::Values(std::pair{0U, "ORIENTA_AZIMUT=1"}, std::pair{1U, "ORIENTA_PRECEDENTE=1"},
                                         std::pair{3U, "ORIENTA_PRECEDENTE=1"}));

// One wrong reading: its row is named, and no station is led astray by it.
TEST(Rete, UnaLetturaSbagliataSiTrova) {
  Ricalcolato r;
  const DisegnoNoto disegno = Anello(7, 5);
  const Elenco buone = r.Genera(disegno.linee, {"ORIENTA_AZIMUT=1"});
  std::size_t provate = 0;
  for (std::size_t i = 2; i < buone.size(); ++i) {
    const std::string nome(Parte(buone[i], '|', 1));
    if (!buone[i].starts_with("2|")) continue;
    const bool unica = std::count_if(buone.begin(), buone.end(),
                                     [&](const std::string& riga) { return riga.starts_with("2|" + nome + "|"); }) == 1;
    if (unica) continue; // nothing tells that it is wrong
    Elenco righe = buone;
    righe[i] = ConLettura(righe[i], 20);
    r.Calcola(righe);
    EXPECT_TRUE(r.RigheInColpa().contains(i)) << righe[i] << testing::PrintToString(r.RigheInColpa());
    EXPECT_LE(r.RigheInColpa().size(), 2U) << righe[i];
    ++provate;
  }
  EXPECT_GT(provate, 30U);
}

// Rows of the measures as they change: the coordinates are those of a libretto read for the first time.
TEST(Rete, RigaPerRigaComeDaCapo) {
  Ricalcolato r;
  const DisegnoNoto disegno = Anello(2, 4);
  Elenco righe = r.Genera(disegno.linee, {"ORIENTA_AZIMUT=1"});
  r.Calcola(righe);
  std::mt19937 caso(5);
  for (int giro = 0; giro < 40; ++giro) {
    const std::size_t i = 2 + caso() % (righe.size() - 2);
    const auto posto = righe.begin() + static_cast<std::ptrdiff_t>(i);
    if (giro % 3 == 0) righe.erase(posto);
    if (giro % 3 == 1) righe.insert(posto, righe[2 + caso() % (righe.size() - 2)]);
    if (giro % 3 == 2 && righe[i].starts_with("2|")) righe[i] = ConLettura(righe[i], 3);
    r.Calcola(righe);
    Ricalcolato nuovo;
    nuovo.Calcola(righe);
    EXPECT_EQ(r.verificatore.Segnalazioni(), nuovo.verificatore.Segnalazioni());
    for (const auto& [nome, posto2] : disegno.posti) EXPECT_EQ(r.Scarto(nome, posto2), nuovo.Scarto(nome, posto2));
  }
}

// A station that another one places, and that sees of what is known a single point and not how far it is.
TEST(Rete, UnaSolaDirezioneOrienta) {
  Ricalcolato r;
  r.Calcola({"0|21112026|1|G224|0010|12|ROSSI ADA|GEOMETRA|PADOVA|", "9|12|10|20|50|10.00|FR|STAZIONE TOTALE|",
             "1|100|CHIODO|", "2|1|0.0000|100.000|X|", "2|2|100.0000|100.000|X|", "2|200|100.0000|50.000|X|",
             "1|200|CHIODO|", "2|1|30.0000|0.000|X|", "2|5|130.0000|10.000|X|", "8|1|1100.000|1000.000|X|",
             "8|2|1000.000|1100.000|X|"});
  const double lato = std::hypot(100, 50);
  EXPECT_LT(r.Scarto("5", {1050 + 10 * 100 / lato, 1000 + 10 * 50 / lato}), 0.001) << "square to the direction of 1";
}

// A survey whose first station sees nothing of the others: coordinates tie the two.
TEST(Rete, LeRighe8LeganoDueRilievi) {
  const Elenco due = {"0|21112026|1|G224|0010|12|ROSSI ADA|GEOMETRA|PADOVA|",
                      "9|12|10|20|50|10.00|FR|STAZIONE TOTALE|",
                      "1|100|CHIODO|",
                      "2|1|0.0000|100.000|X|",
                      "2|2|100.0000|100.000|X|",
                      "1|200|CHIODO|",
                      "2|3|50.0000|50.000|X|",
                      "2|4|150.0000|50.000|X|",
                      "2|5|0.0000|10.000|X|",
                      "8|1|1100.000|1000.000|X|",
                      "8|2|1000.000|1100.000|X|",
                      "8|3|1200.000|1250.000|X|",
                      "8|4|1150.000|1200.000|X|"};
  Ricalcolato r;
  r.Calcola(due);
  EXPECT_LT(r.Scarto("100", {1000, 1000}), 0.001);
  EXPECT_LT(r.Scarto("200", {1200, 1200}), 0.001);
  EXPECT_LT(r.Scarto("5", {1200 + 10 * std::sqrt(0.5), 1200 + 10 * std::sqrt(0.5)}), 0.001);
}

} // namespace lirmeto::prova
