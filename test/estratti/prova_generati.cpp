// Extracts made by chance: the indexed renumbering against the plain one, twice a save, areas by another formula.
#include "sostituti/banco.h"

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <estratti/kr_estratto.h>
#include <estratti/modifiche_estratto.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <set>

namespace lirmeto {
namespace {

using prova::Banco;
using Righe = std::vector<std::string>;

// The renumbering of an extract step after step over lists of rows, at any cost: what the indexed one must equal.
struct Tabelle {
  Righe Punti;
  Righe Toponimi;
  Righe PLinee;
  Righe SETTE;
  Righe Linee;
};

Righe Spezza(const std::string& testo, const std::string& dove) {
  Righe parti;
  for (const auto parte : Dividi(testo, dove)) parti.emplace_back(parte);
  return parti;
}

std::string Giunta(const Righe& parti, const std::string& con) {
  std::string testo;
  for (std::size_t i = 0; i < parti.size(); ++i) testo += (i > 0 ? con : "") + parti[i];
  return testo;
}

// "|old|" by "|new|" until none is left of those that stood there: neighbours share a bar.
void SostituisciTraBarre(std::string& testo, const std::string& vecchio, const std::string& nuovo) {
  const std::string cercato = "|" + vecchio + "|";
  for (std::size_t qui = testo.find(cercato); qui != std::string::npos; qui = testo.find(cercato, qui)) {
    testo.replace(qui, cercato.size(), "|" + nuovo + "|");
    qui += nuovo.size() + 1;
  }
}

void Rinomina(std::string& riga, const std::string& nuovo) {
  Righe campi = Spezza(riga, "|");
  campi.at(1) = nuovo;
  riga = Giunta(campi, "|");
}

void OrdinaERinumera(Tabelle& t) {
  Righe ordinati;
  for (const auto& riga : t.Punti) {
    const std::string allineato = std::string(20, ' ') + Spezza(riga, "|").at(1);
    ordinati.push_back(riga);
    Rinomina(ordinati.back(), allineato.substr(allineato.size() - 10));
  }
  std::sort(ordinati.begin(), ordinati.end());
  std::string sette = Giunta(t.SETTE, "\r\n");
  for (std::size_t i = 0; i < ordinati.size(); ++i) {
    const std::string vecchio(Taglia(Spezza(ordinati[i], "|").at(1)));
    Rinomina(ordinati[i], std::to_string(i + 1) + "%");
    SostituisciTraBarre(sette, vecchio, std::to_string(i + 1) + "%");
  }
  t.Punti = ordinati;
  t.SETTE = Spezza(sette, "\r\n");
}

void RinumeraResto(Tabelle& t) {
  std::size_t n = t.Punti.size();
  for (std::size_t i = 0; i < t.Toponimi.size(); ++i) Rinomina(t.Toponimi[i], std::to_string(i + 1 + n) + "T");
  n += t.Toponimi.size();
  if (t.PLinee.empty()) return;
  std::string linee = Giunta(t.Linee, "\r\n");
  const bool dalFondo = std::floor(Valore(Spezza(t.PLinee[0], "|").at(1))) <= static_cast<double>(n);
  for (std::size_t passo = 0; passo < t.PLinee.size(); ++passo) {
    const std::size_t i = dalFondo ? t.PLinee.size() - 1 - passo : passo;
    const std::string nuovo = std::to_string(i + 1 + n) + "L";
    SostituisciTraBarre(linee, Spezza(t.PLinee[i], "|").at(1), nuovo);
    Rinomina(t.PLinee[i], nuovo);
  }
  t.Linee = Spezza(linee, "\r\n");
}

// The identifiers of a ring, or of a piece of one.
std::string Identificativi(const std::string& riga) {
  const Righe campi = Spezza(riga, "|");
  const auto coda = campi.at(1) == "0" ? 2 : 5; // "NC" and what stands behind it
  return Giunta({campi.begin() + 2, campi.end() - coda}, "|") + "|";
}

// Rings joined and without their surfaces, which another test looks at.
Righe ConAnelliUniti(const Righe& righe) {
  Righe unite;
  for (const auto& riga : righe) {
    const bool anello = riga.starts_with("7|") && !Contiene(riga, "L|");
    if (anello && riga.starts_with("7|0|"))
      unite.back() += Identificativi(riga);
    else
      unite.push_back(anello ? Identificativi(riga) : riga);
  }
  return unite;
}

void EliminaPuntiIsolatiPiano(Tabelle& t) {
  std::erase_if(t.Punti, [&](const std::string& punto) {
    const std::string chiave = "|" + Spezza(punto, "|").at(1) + "|";
    return std::none_of(t.SETTE.begin(), t.SETTE.end(),
                        [&](const std::string& riga) { return Contiene(riga, chiave); });
  });
}

Righe RinumeraPiano(Tabelle t) {
  OrdinaERinumera(t);
  RinumeraResto(t);
  Righe file = t.Punti;
  file.insert(file.end(), t.Toponimi.begin(), t.Toponimi.end());
  file.insert(file.end(), t.PLinee.begin(), t.PLinee.end());
  for (const auto& riga : t.SETTE) file.push_back(Identificativi(riga));
  file.insert(file.end(), t.Linee.begin(), t.Linee.end());
  return file;
}

class Caso {
public:
  explicit Caso(unsigned seme) : motore_(seme) {}
  unsigned Fino(unsigned n) { return static_cast<unsigned>(motore_() % n); }
  template <class T>
  const T& Uno(const std::vector<T>& fra) {
    return fra[Fino(static_cast<unsigned>(fra.size()))];
  }
  std::string Coordinata() { return std::to_string(Fino(2000)) + "." + std::to_string(Fino(8) * 125); }

private:
  std::mt19937 motore_;
};

// A ring in rows of ten, its first identifier repeated at the end.
void AggiungiAnello(Righe& righe, Righe nomi, const std::string& particella) {
  nomi.push_back(nomi.front());
  std::string riga = "7|" + std::to_string(nomi.size()) + "|";
  for (std::size_t i = 0; i < nomi.size(); ++i) {
    riga += nomi[i] + "|";
    const bool piena = i % 10 == 9;
    if (!piena && i + 1 < nomi.size()) continue;
    righe.push_back(riga + "NC|" + (i < 10 ? particella + "|" + particella + "|" + "1.5|" : ""));
    riga = "7|0|";
  }
}

// Identifiers that a real file bears, or any that a broken one might: numbers taken up again, repeated, too long,
// blank, called as a parcel, a count or the class.
Righe Nomi(Caso& caso, bool strani) {
  Righe nomi;
  std::set<std::string> presi;
  const Righe strambi = {"a",  "b%", "1",   "3",  "NC",           "35",           "01%", " 2%", "2% ", "",
                         "4%", "5%", "12%", "7%", "x1234567890%", "y1234567890%", "1%",  "2%",  "3%",  "%"};
  for (unsigned i = 0; i < 8 + caso.Fino(12); ++i) {
    const std::string nome = strani ? caso.Uno(strambi) : std::to_string(1 + caso.Fino(300)) + "%";
    if (strani || presi.insert(nome).second) nomi.push_back(nome);
  }
  return nomi;
}

Righe Estratto(Caso& caso, bool strani) {
  Righe righe = {"0|12062026|x|G224|00123|35|PD|"};
  const Righe nomi = Nomi(caso, strani);
  for (const auto& nome : nomi) righe.push_back("8|" + nome + "|" + caso.Coordinata() + "|" + caso.Coordinata() + "|");
  const unsigned anelli = 1 + caso.Fino(9);
  for (unsigned k = 0; k < anelli; ++k) {
    Righe anello;
    for (unsigned i = 0; i < 1 + caso.Fino(24); ++i)
      anello.push_back(strani && caso.Fino(9) == 0 ? "99%" : caso.Uno(nomi));
    AggiungiAnello(righe, anello, caso.Uno<std::string>({"35", "36", "35-", "35+", "36-", "a"}));
  }
  const unsigned base = caso.Fino(40); // around the number of points: both ways of renumbering
  for (unsigned i = 0; i < 5; ++i)
    righe.push_back("8|" + std::to_string(base + (strani ? caso.Fino(6) : i)) + "L|1|2|");
  for (unsigned i = 0; i < caso.Fino(4); ++i) righe.push_back("8|" + std::to_string(caso.Fino(40)) + "T|1|2|0|VIA|");
  righe.push_back("7|3|" + std::to_string(base) + "L|" + std::to_string(base + 1) + "L|" + std::to_string(base + 1) +
                  "L|NT|");
  righe.push_back("7|0|" + std::to_string(base + 4) + "L|NT|");
  return righe;
}

Righe InRighe(std::string_view testo) {
  Righe righe;
  for (const auto riga : RigheDi(testo)) righe.emplace_back(riga);
  return righe;
}

std::string SalvatoUnaVolta(const std::string& testo) {
  Banco banco;
  banco.disco.Metti("C:\\X.EMP", testo);
  KR_Estratto estratto;
  EXPECT_TRUE(EsplodiEstratto(banco.ambiente, estratto, "C:\\X.EMP")) << testo;
  EXPECT_TRUE(SalvaEstratto(banco.ambiente, estratto)) << banco.dialoghi.UltimoTesto() << testo;
  return banco.disco.Contenuto("C:\\X.EMP");
}

enum class Modifica { Niente, Isolati, Particella };

class Generati : public testing::TestWithParam<std::tuple<bool, Modifica>> {};

TEST_P(Generati, NumeratiComePassoPasso) {
  const auto [strani, modifica] = GetParam();
  for (unsigned seme = 0; seme < 100; ++seme) {
    Caso caso(seme);
    Banco banco;
    banco.disco.Metti("C:\\X.EMP", prova::Testo(Estratto(caso, strani)));
    KR_Estratto estratto;
    ASSERT_TRUE(EsplodiEstratto(banco.ambiente, estratto, "C:\\X.EMP"));
    Tabelle piane{prova::Copia(estratto.Punti), prova::Copia(estratto.Toponimi), prova::Copia(estratto.PLinee),
                  prova::Copia(estratto.SETTE), prova::Copia(estratto.Linee)};
    if (modifica == Modifica::Isolati) {
      EliminaPuntiIsolati(estratto);
      EliminaPuntiIsolatiPiano(piane);
    } else if (modifica == Modifica::Particella) {
      EliminaParticellaEstratto(estratto, "35");
      std::erase_if(piane.SETTE,
                    [](const std::string& riga) { return Spezza(riga, "|").at(Spezza(riga, "|").size() - 4) == "35"; });
      EliminaPuntiIsolatiPiano(piane);
    }
    const Righe salvate = InRighe(TestoEstratto(banco.ambiente, estratto));
    ASSERT_EQ(ConAnelliUniti({salvate.begin() + 1, salvate.end()}), RinumeraPiano(piane)) << "seed " << seme;
  }
}

INSTANTIATE_TEST_SUITE_P(Prove, Generati,
                         testing::Combine(testing::Bool(),
                                          testing::Values(Modifica::Niente, Modifica::Isolati, Modifica::Particella)));

struct AnelloLetto {
  std::string nome;
  std::string superficie;
  std::vector<std::pair<double, double>> vertici; // east, north
  bool operator==(const AnelloLetto&) const = default;
};

// A reader of its own: rings with the coordinates of their vertices.
std::vector<AnelloLetto> Anelli(const std::string& testo) {
  std::map<std::string, std::pair<double, double>> punti;
  std::vector<AnelloLetto> anelli;
  for (const auto& riga : InRighe(testo)) {
    const auto campi = Dividi(riga, "|");
    if (riga.starts_with("8|")) punti[std::string(campi[1])] = {Valore(campi[3]), Valore(campi[2])};
    if (!riga.starts_with("7|") || Contiene(riga, "L|")) continue;
    const bool testa = campi[1] != "0";
    const std::size_t fine = campi.size() - (testa ? 5 : 2);
    if (testa) anelli.push_back({std::string(campi[fine + 1]), std::string(campi[fine + 3]), {}});
    for (std::size_t i = 2; i < fine; ++i) anelli.back().vertici.push_back(punti.at(std::string(campi[i])));
  }
  return anelli;
}

// Cross products round the first vertex.
double Superficie(const AnelloLetto& anello) {
  const auto [x0, y0] = anello.vertici.front();
  double doppia = 0;
  for (std::size_t i = 1; i < anello.vertici.size(); ++i) {
    const auto [xa, ya] = anello.vertici[i - 1];
    const auto [xb, yb] = anello.vertici[i];
    doppia += (xa - x0) * (yb - y0) - (xb - x0) * (ya - y0);
  }
  return std::fabs(doppia / 2);
}

TEST(Generati, DueVolteTornaLOrdineELeSuperficiTornano) {
  for (unsigned seme = 1000; seme < 1100; ++seme) {
    Caso caso(seme);
    const std::string file = prova::Testo(Estratto(caso, false));
    const std::string uno = SalvatoUnaVolta(file);
    const std::string due = SalvatoUnaVolta(uno);
    ASSERT_EQ(SalvatoUnaVolta(due), uno) << "seed " << seme;
    const auto prima = Anelli(file);
    const auto dopo = Anelli(due);
    ASSERT_EQ(prima.size(), dopo.size());
    for (std::size_t i = 0; i < prima.size(); ++i) {
      ASSERT_EQ(prima[i].nome, dopo[i].nome) << "seed " << seme;
      ASSERT_EQ(prima[i].vertici, dopo[i].vertici) << "seed " << seme;
      // SETTE of the second save stands in the file's first order: holes behind their parcel are taken off
      double buchi = 0;
      for (std::size_t j = i + 1; j < dopo.size(); ++j)
        if (dopo[j].nome == dopo[i].nome + "-" && dopo[j].vertici.size() > 2) buchi += Superficie(dopo[j]);
      if (dopo[i].vertici.size() > 2) {
        ASSERT_NEAR(Valore(dopo[i].superficie), Superficie(dopo[i]) - buchi, 0.5001) << "seed " << seme;
      }
    }
  }
}

} // namespace
} // namespace lirmeto
