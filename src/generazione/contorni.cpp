// Rows 7, with their comments, and the rows of vertex points.

#include <generazione/generazione.h>
#include <generazione/righe_mantenute.h>

#include <base/numeri.h>
#include <base/testo.h>

#include <algorithm>
#include <array>
#include <utility>

namespace lirmeto {

namespace {

constexpr std::size_t NomiPerRiga = 10;
constexpr std::size_t LunghezzaInizioSeguito = 5; // "7|0|" and a character: a running row of no more says nothing
constexpr std::array<std::string_view, 6> TipiSenzaRiga7 = {
    "COGO", "SQUADRO", "LIVELLAZIONE DAL MEZZO", "LIVELLAZIONE RAGGIANTE", "PD", "PV"};

// A point has a number; a code of a line, such as RC, has none.
bool EPunto(std::string_view elemento) {
  return Valore(elemento) > 0 || elemento.starts_with("PF");
}

bool ECodice(std::string_view elemento) {
  return Valore(elemento) == 0 && !elemento.starts_with("PF");
}

bool SenzaRiga7(std::string_view tipo) {
  return UgualiSenzaCaso(tipo, "POLIGONALE") ||
         std::find(TipiSenzaRiga7.begin(), TipiSenzaRiga7.end(), tipo) != TipiSenzaRiga7.end();
}

// A stretch of a contour up to a code of a line: the count field, names, and the code if there is one.
struct Tratto {
  std::string conteggio; // "0" behind the first stretch
  std::vector<std::string_view> nomi;
  std::string coda; // "RC|"
};

std::vector<Tratto> Tratti(const std::vector<std::string_view>& elementi) {
  std::vector<Tratto> tratti;
  const auto quanti = std::count_if(elementi.begin(), elementi.end(), EPunto);
  Tratto corrente{TestoIntero(quanti), {}, {}};
  for (const auto elemento : elementi) {
    if (!ECodice(elemento)) {
      corrente.nomi.push_back(elemento);
      continue;
    }
    corrente.coda = std::string(elemento) + "|";
    tratti.push_back(std::exchange(corrente, Tratto{"0", {}, {}}));
  }
  std::size_t lunghezza = corrente.conteggio.size() + 3; // "7|" and a bar
  for (const auto nome : corrente.nomi) lunghezza += nome.size() + 1;
  if (lunghezza > LunghezzaInizioSeguito) tratti.push_back(corrente);
  return tratti;
}

// Ten names a row; each row that is closed by the eleventh bears code and comment, the last one the comment only if it
// is not a continuation.
void MettiTratto(Generazione& g, const Tratto& tratto, std::string_view commento) {
  const std::string fine = commento.empty() ? std::string{} : std::string(commento) + "|";
  std::string riga = "7|" + tratto.conteggio + "|";
  std::size_t nomi = 0;
  for (const auto nome : tratto.nomi) {
    if (nomi == NomiPerRiga) {
      riga.append(tratto.coda).append(fine);
      g.righe.push_back(std::move(riga));
      riga = "7|0|";
      nomi = 0;
    }
    riga += nome;
    riga += '|';
    ++nomi;
  }
  g.righe.push_back(riga + tratto.coda + (riga.starts_with("7|0|") ? std::string{} : fine));
}

void MettiContorno(Generazione& g, std::size_t indice) {
  ContornoDisegno& contorno = g.tabelle.Contorni[indice];
  if (Taglia(contorno.Tipo).empty()) return;
  contorno.Commento = Sostituisci(contorno.Commento, "__", "");
  if (SenzaRiga7(contorno.Tipo)) return;
  const bool ripetuto =
      indice > 0 && g.opzioni.CommentiDuplicati && Taglia(contorno.Tipo) == Taglia(g.tabelle.Contorni[indice - 1].Tipo);
  if (!ripetuto) g.righe.push_back("6|" + contorno.Tipo + "|");
  std::vector<std::string_view> elementi;
  const auto parti = Dividi(contorno.Punti, "|");
  if (parti.size() > 2) elementi.assign(parti.begin() + 1, parti.end() - 1);
  for (const Tratto& tratto : Tratti(elementi)) MettiTratto(g, tratto, contorno.Commento);
}

// A parcel's identifier drawn as a line of the contour comes to the tail of the contour's row.
void UnisciMappali(Generazione& g) {
  constexpr std::string_view segno = "7|0|MAPPALE";
  std::vector<std::string> tenute; // from the last
  for (std::size_t i = g.righe.size(); i-- > 0;) {
    std::string& riga = g.righe[i];
    if (i > 0 && Contiene(riga, segno))
      g.righe[i - 1] += Sostituisci(std::string_view(riga).substr(std::min(riga.size(), segno.size() + 1)), " ", "|");
    else
      tenute.push_back(std::move(riga));
  }
  g.righe.assign(std::make_move_iterator(tenute.rbegin()), std::make_move_iterator(tenute.rend()));
}

std::vector<std::string> RigheVertice(const TabelleDisegno& tabelle) {
  std::vector<std::string> righe;
  for (const PuntoDisegno& punto : tabelle.Punti()) {
    if (NomeFiduciale(punto.Nome)) continue;
    if (HaMarca(punto.Nota, "<PV>")) righe.push_back("7|1|" + punto.Nome + "|PV|");
    if (HaMarca(punto.Nota, "<PD>")) righe.push_back("7|1|" + punto.Nome + "|PD|");
  }
  for (const ContornoDisegno& contorno : tabelle.Contorni)
    if (contorno.Tipo == "PD" || contorno.Tipo == "PV") righe.push_back("7|1" + contorno.Punti + contorno.Tipo + "|");
  return righe;
}

void MettiVertici(Generazione& g) {
  const auto vertici = RigheVertice(g.tabelle);
  if (vertici.empty()) return;
  g.righe.emplace_back("6|PUNTI VERTICE|");
  g.righe.insert(g.righe.end(), vertici.begin(), vertici.end());
}

} // namespace

void MettiContorni(Generazione& g) {
  if (g.opzioni.Mantieni37) {
    g.rapporto.emplace_back("Mantiene Righe 7 del Disegno");
    MantieniConCommenti(g, Genere::Contorno);
    return;
  }
  g.rapporto.emplace_back("Carica Righe 7 dal Disegno");
  for (std::size_t i = 0; i < g.tabelle.Contorni.size(); ++i) MettiContorno(g, i);
  UnisciMappali(g);
  MettiVertici(g);
}

} // namespace lirmeto
