// Points that coincide, found by index, against the scans that they stand for: small figures made by chance.
#include "sostituti/banco.h"

#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>
#include <generazione/ripara_proposta.h>
#include <generazione/tipol10.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>

namespace lirmeto {
namespace {

using prova::Testo;
using Righe = std::vector<std::string>;

// --- a listing into the provisional extract

struct Vertice {
  std::string strato; // of its polyline
  std::string est;
  std::string nord;
};

// Few places, some of them alike only once they are rounded to the millimetre.
std::vector<std::vector<Vertice>> PolilineeACaso(std::mt19937& caso) {
  const std::array<std::string, 4> strati = {"RC", "NC", "RT", "RP"};
  const std::array<std::string, 6> metri = {"1", "1.0004", "1.00049", "-0.0004", "12.5", "1.001"};
  std::vector<std::vector<Vertice>> polilinee(1 + caso() % 4);
  for (auto& polilinea : polilinee) {
    const std::string& strato = strati.at(caso() % strati.size());
    for (std::size_t i = caso() % 14 + 1; i > 0; --i)
      polilinea.push_back({strato, metri.at(caso() % metri.size()), metri.at(caso() % metri.size())});
  }
  return polilinee;
}

std::string Listato(const std::vector<std::vector<Vertice>>& polilinee) {
  std::string testo;
  for (const auto& polilinea : polilinee) {
    testo += "LAYER " + polilinea.front().strato + "\r\n";
    for (const Vertice& v : polilinea) testo += "al punto  X=" + v.est + "  Y=" + v.nord + "  Z=   0.0000\r\n";
  }
  return testo;
}

std::string Millimetri(const std::string& metri) {
  return Formatta(Valore(metri), "###########.##0");
}

// Each vertex looks through all before it for one of its text.
Righe EstrattoScandito(const std::vector<std::vector<Vertice>>& polilinee) {
  Righe chiavi;
  Righe punti;
  Righe anelli;
  for (std::size_t n = 0; n < polilinee.size(); ++n) {
    Righe nomi;
    for (std::size_t i = 0; i < polilinee[n].size(); ++i) {
      const Vertice& v = polilinee[n][i];
      if (i > 0 && v.est == polilinee[n][i - 1].est && v.nord == polilinee[n][i - 1].nord) continue;
      const std::string chiave = Millimetri(v.nord) + "|" + Millimetri(v.est) + "|";
      if (std::find(chiavi.begin(), chiavi.end(), chiave) == chiavi.end()) chiavi.push_back(chiave);
      const auto numero = std::find(chiavi.begin(), chiavi.end(), chiave) - chiavi.begin() + 1;
      nomi.push_back(std::to_string(numero) + "%|");
      const std::string descrizione = v.strato == "NC" ? "Punto per inquadramento cartografico|" : "SF|";
      std::string punto = "8|" + nomi.back() + chiave + descrizione;
      if (punti.empty() || punti.back() != punto) punti.push_back(std::move(punto));
    }
    const std::string parcella = "X" + std::to_string(n + 1) + "|";
    for (std::size_t i = 0; i < nomi.size(); ++i) {
      if (i % 10 == 0) anelli.push_back("7|" + std::to_string(i == 0 ? nomi.size() : 0) + "|");
      anelli.back() += nomi[i];
      if (i % 10 == 9 || i + 1 == nomi.size()) anelli.back() += i < 10 ? "NC|" + parcella + parcella + "1|" : "NC|";
    }
  }
  Righe righe = {"0|AUTOALLESTITO||||||||"};
  righe.insert(righe.end(), punti.begin(), punti.end());
  righe.insert(righe.end(), anelli.begin(), anelli.end());
  const auto primo = Dividi(punti.front(), "|");
  righe.push_back("6|INQUADRAMENTO|" + std::string(primo[3]) + "|" + std::string(primo[2]) + "|0|0|0|0|");
  return righe;
}

TEST(Scansioni, IVerticiDiUnElenco) {
  std::mt19937 caso(11);
  for (int giro = 0; giro < 300; ++giro) {
    const auto polilinee = PolilineeACaso(caso);
    prova::Banco banco;
    banco.sessione.TipologiaCorrente = TipologiaSenzaEstratto;
    banco.disco.cartelle.push_back(Maiuscolo(banco.sessione.CartellaDocumenti));
    banco.appunti.testo = Listato(polilinee);
    DisegnoCondiviso disegno;
    Tipol10 form(banco.ambiente, disegno);
    form.GeneraLibrettoDaList();
    ASSERT_EQ(banco.disco.Contenuto("C:\\pregeo\\ESTRATTI\\ESTRATTOPROVVISORIO.EMP"),
              Testo(EstrattoScandito(polilinee)))
        << Listato(polilinee);
  }
}

// --- a contour against the parcel

std::string Campi23(const std::string& riga8) {
  return std::string(Parte(riga8, '|', 2)) + "|" + std::string(Parte(riga8, '|', 3));
}

std::string PuntoACaso(std::mt19937& caso, std::size_t numero, char segno) {
  return "8|" + std::to_string(numero) + segno + "|" + std::to_string(caso() % 3) + ".000|" +
         std::to_string(caso() % 3) + ".000|";
}

std::string NomiACaso(std::mt19937& caso, std::size_t quanti, char segno) {
  std::string nomi;
  for (std::size_t i = 0; i < quanti; ++i) nomi += std::to_string(1 + caso() % 8) + segno + "|";
  return nomi;
}

struct Proposta {
  ContornoMappale mappale;
  Righe punti;
  Righe contorni;
};

Proposta PropostaACaso(std::mt19937& caso) {
  Proposta proposta;
  for (std::size_t i = 1; i <= 8; ++i) proposta.mappale.punti.push_back(PuntoACaso(caso, i, '%'));
  proposta.mappale.riga = "7|9|" + NomiACaso(caso, 9, '%') + "NC|35|35|100|";
  for (std::size_t i = 1; i <= 8; ++i) proposta.punti.push_back(PuntoACaso(caso, i, '*'));
  for (std::size_t i = 1 + caso() % 2; i > 0; --i)
    proposta.contorni.push_back("7|5|" + NomiACaso(caso, 5, '*') + "RC|35+|35|12|");
  return proposta;
}

std::string TestoDi(const Righe& punti, const Righe& contorni) {
  return Testo(punti) + Testo(contorni);
}

// Each point looks through all of the parcel, and its name through all contours.
void FondiScandendo(Proposta& proposta) {
  std::erase_if(proposta.punti, [&](const std::string& punto) {
    for (const std::string& vecchio : proposta.mappale.punti) {
      if (Campi23(vecchio) != Campi23(punto)) continue;
      const std::string nome = "|" + std::string(Parte(punto, '|', 1)) + "|";
      const std::string dellaMappa = "|" + std::string(Parte(vecchio, '|', 1)) + "|";
      for (std::string& contorno : proposta.contorni)
        while (Contiene(contorno, nome)) contorno = Sostituisci(contorno, nome, dellaMappa); // neighbours share a bar
      return true;
    }
    return false;
  });
}

TEST(Scansioni, UnContornoSulleRigheDellaParticella) {
  std::mt19937 caso(12);
  for (int giro = 0; giro < 300; ++giro) {
    Proposta proposta = PropostaACaso(caso);
    const std::string conIndice = SistemaProposta(TestoDi(proposta.punti, proposta.contorni), proposta.mappale, {});
    FondiScandendo(proposta);
    ASSERT_EQ(conIndice, SistemaProposta(TestoDi(proposta.punti, proposta.contorni), {}, {}));
  }
}

// Names of a row 7, and where they are.
Righe NomiDi(const std::string& riga) {
  Righe nomi;
  for (const auto campo : Dividi(riga, "|"))
    if (campo.ends_with('*') || campo.ends_with('%')) nomi.emplace_back(campo);
  return nomi;
}

Righe TrattiScanditi(const Proposta& proposta) {
  const auto posto = [&](const std::string& nome) {
    for (const Righe* punti : {&proposta.mappale.punti, &proposta.punti})
      for (const std::string& riga : *punti)
        if (Parte(riga, '|', 1) == nome) return Campi23(riga);
    return std::string();
  };
  const Righe anello = NomiDi(proposta.mappale.riga);
  Righe comuni;
  const auto ognuno = [&](const auto& fai) {
    for (const std::string& contorno : proposta.contorni) {
      const Righe nomi = NomiDi(contorno);
      for (std::size_t i = 1; i < nomi.size(); ++i) fai(nomi[i - 1], nomi[i]);
    }
  };
  ognuno([&](const std::string& a, const std::string& b) {
    for (std::size_t k = 1; k < anello.size(); ++k) {
      const std::string da = posto(anello[k - 1]);
      const std::string fin = posto(anello[k]);
      if ((posto(a) == da && posto(b) == fin) || (posto(a) == fin && posto(b) == da))
        comuni.insert(comuni.end(), {a, b});
    }
  });
  const auto comune = [&](const std::string& nome) {
    return std::find(comuni.begin(), comuni.end(), nome) != comuni.end();
  };
  Righe tratti;
  ognuno([&](const std::string& a, const std::string& b) {
    tratti.push_back("7|2|" + a + "|" + b + (comune(a) && comune(b) ? "|NC|" : "|RC|"));
  });
  return tratti;
}

TEST(Scansioni, ITrattiCheStannoSullaMappa) {
  std::mt19937 caso(13);
  for (int giro = 0; giro < 300; ++giro) {
    const Proposta proposta = PropostaACaso(caso);
    const std::string testo = SistemaModestaEntita(TestoDi(proposta.punti, proposta.contorni), proposta.mappale);
    Righe tratti;
    for (const auto riga : RigheDi(testo))
      if (riga.starts_with("7|2|")) tratti.emplace_back(riga);
    ASSERT_EQ(tratti, TrattiScanditi(proposta)) << testo;
  }
}

} // namespace
} // namespace lirmeto
