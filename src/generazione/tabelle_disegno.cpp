#include <generazione/tabelle_disegno.h>

#include <base/numeri.h>
#include <base/piano.h>
#include <base/testo.h>
#include <core/lettura.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lirmeto {

namespace {

constexpr double Vicino = 0.005; // metres
constexpr double LatoCella = 1;  // metres: few points in a cell, and a place seldom near to two
constexpr std::size_t ColonneNome = 15;

using Campi = std::vector<std::string_view>;

std::string_view Campo(const Campi& campi, std::size_t indice) {
  return indice < campi.size() ? campi[indice] : std::string_view{};
}

double Numero(const Campi& campi, std::size_t indice) {
  return Valore(Campo(campi, indice));
}

PuntoDisegno LeggiPunto(const Campi& campi) {
  PuntoDisegno punto;
  punto.Nome = Campo(campi, 1);
  punto.X = Numero(campi, 2);
  punto.Y = Numero(campi, 3);
  punto.Quota = Numero(campi, 4);
  punto.Nota = Campo(campi, 5);
  punto.Altezza = Numero(campi, 6);
  return punto;
}

LineaDisegno LeggiLinea(const Campi& campi) {
  return {Numero(campi, 1), Numero(campi, 2), Numero(campi, 3), Numero(campi, 4), Numero(campi, 5), Numero(campi, 6)};
}

ContornoDisegno LeggiContorno(const Campi& campi) {
  return {std::string(Campo(campi, 1)), std::string(Campo(campi, 2)), std::string(Campo(campi, 3))};
}

void LeggiRecord(std::string_view riga, TabelleDisegno& tabelle) {
  const Campi campi = Dividi(riga, ",");
  const std::string_view genere = campi.size() > 1 ? campi[0] : std::string_view{};
  if (genere == "P")
    tabelle.Aggiungi(LeggiPunto(campi));
  else if (genere == "L")
    tabelle.Aggiungi(LeggiLinea(campi));
  else if (genere == "7")
    tabelle.Contorni.push_back(LeggiContorno(campi));
  else
    tabelle.Scartate.emplace_back(riga);
}

// "            100 -             101", the names in their order.
std::string CoppiaOrdinata(std::string_view a, std::string_view b) {
  std::string primo = AllineaDestra(a, ColonneNome);
  std::string secondo = AllineaDestra(b, ColonneNome);
  if (secondo < primo) std::swap(primo, secondo);
  return primo + " - " + secondo;
}

} // namespace

void TabelleDisegno::Aggiungi(PuntoDisegno punto) {
  primi_.try_emplace(punto.Nome, punti_.size());
  punti_.push_back(std::move(punto));
}

const PuntoDisegno* TabelleDisegno::Trova(std::string_view nome) const {
  const auto trovato = primi_.find(nome);
  return trovato == primi_.end() ? nullptr : &punti_[trovato->second];
}

void TabelleDisegno::Riserva(std::size_t punti) {
  punti_.reserve(punti);
  primi_.reserve(punti);
}

TabelleDisegno LeggiDisegno(std::string_view testo) {
  TabelleDisegno tabelle;
  const std::string conFine = ConFineRiga(testo);
  const auto righe = Dividi(conFine, FineRiga);
  tabelle.Riserva(static_cast<std::size_t>(
      std::count_if(righe.begin(), righe.end(), [](std::string_view riga) { return riga.starts_with("P,"); })));
  for (const auto riga : righe)
    if (!Taglia(riga).empty()) LeggiRecord(riga, tabelle);
  return tabelle;
}

std::string PercorsoDisegno(const Sessione& sessione) {
  const std::string& nome = sessione.NomeFileLibretto;
  return FinisceConSenzaCaso(nome, EstensioneDisegno) ? nome : nome + std::string(EstensioneDisegno);
}

TabelleDisegno CaricaGrafica(Ambiente& ambiente) {
  const std::string percorso = PercorsoDisegno(ambiente.sessione);
  if (ambiente.disco.Esiste(percorso)) return LeggiDisegno(CaricaFileBinario(ambiente, percorso));
  ambiente.dialoghi.Messaggio(percorso + std::string(FineRiga) + "Non Trovato!");
  return {};
}

PuntiPerPosto::PuntiPerPosto(const TabelleDisegno& tabelle)
    : punti_(tabelle.Punti()), seguenti_(punti_.size(), punti_.size()) {
  celle_.reserve(punti_.size());
  for (std::size_t i = 0; i < punti_.size(); ++i) {
    const Cella cella{std::floor(punti_[i].X / LatoCella), std::floor(punti_[i].Y / LatoCella)};
    const auto [posto, nuova] = celle_.try_emplace(cella, Catena{i, i});
    if (nuova) continue;
    seguenti_[posto->second.ultimo] = i;
    posto->second.ultimo = i;
  }
}

std::size_t PuntiPerPosto::HashCella::operator()(const Cella& cella) const {
  constexpr std::size_t mescola = 0x9E3779B97F4A7C15U;
  return std::hash<double>{}(cella.colonna) * mescola ^ std::hash<double>{}(cella.riga);
}

// In a cell; the number of points when there is none.
std::size_t PuntiPerPosto::PrimoVicino(const Cella& cella, const PuntoPiano& posto) const {
  const auto trovata = celle_.find(cella);
  std::size_t i = trovata == celle_.end() ? punti_.size() : trovata->second.primo;
  while (i < punti_.size() && !(DistanzaPiana(punti_[i].Posto(), posto) < Vicino)) i = seguenti_[i];
  return i;
}

const PuntoDisegno* PuntiPerPosto::Trova(const PuntoPiano& posto) const {
  const auto cella = [](double metri) { return std::floor(metri / LatoCella); };
  const double colonne[] = {cella(posto.est - Vicino), cella(posto.est + Vicino)};
  const double righe[] = {cella(posto.nord - Vicino), cella(posto.nord + Vicino)};
  std::size_t primo = punti_.size();
  for (std::size_t i = 0; i < (colonne[0] == colonne[1] ? 1U : 2U); ++i)
    for (std::size_t k = 0; k < (righe[0] == righe[1] ? 1U : 2U); ++k)
      primo = std::min(primo, PrimoVicino({colonne[i], righe[k]}, posto));
  return primo < punti_.size() ? &punti_[primo] : nullptr;
}

std::vector<std::string> ElencoLinee(const TabelleDisegno& tabelle) {
  const PuntiPerPosto posti(tabelle);
  std::vector<std::string> coppie;
  for (const LineaDisegno& linea : tabelle.Linee()) {
    const PuntoDisegno* a = posti.Trova({linea.X1, linea.Y1});
    const PuntoDisegno* b = posti.Trova({linea.X2, linea.Y2});
    if (a != nullptr && b != nullptr) coppie.push_back(CoppiaOrdinata(a->Nome, b->Nome));
  }
  std::sort(coppie.begin(), coppie.end());
  coppie.erase(std::unique(coppie.begin(), coppie.end()), coppie.end());
  for (std::string& coppia : coppie) {
    const std::string_view vista = coppia;
    coppia =
        std::string(Taglia(vista.substr(0, ColonneNome))) + " - " + std::string(Taglia(vista.substr(ColonneNome + 2)));
  }
  return coppie;
}

} // namespace lirmeto
