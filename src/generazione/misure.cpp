// The numbers of rows 1 and 2, from the coordinates.

#include <generazione/angoli.h>
#include <generazione/generazione.h>

#include <base/avanzamento.h>
#include <base/numeri.h>
#include <base/testo.h>
#include <core/riga.h>

#include <cmath>
#include <unordered_map>

namespace lirmeto {

namespace {

constexpr double MillimetriPerMetro = 1000;

// Where the old libretto's stations begin, by "1|name|".
class StazioniVecchie {
public:
  explicit StazioniVecchie(const std::vector<std::string_view>& righe) : righe_(righe) {
    for (std::size_t i = 0; i + 1 < righe.size(); ++i)
      if (righe[i].starts_with("1|")) stazioni_[Inizio(righe[i])].push_back(i);
  }

  [[nodiscard]] const std::vector<std::size_t>& Di(const std::string& testo) const {
    static const std::vector<std::size_t> nessuna;
    const auto trovate = stazioni_.find(testo);
    return trovate == stazioni_.end() ? nessuna : trovate->second;
  }

  [[nodiscard]] const std::vector<std::string_view>& Righe() const { return righe_; }

private:
  // "1|name|" of a row 1; a row without a second bar begins like no station.
  static std::string Inizio(std::string_view riga) {
    const std::size_t barra = riga.find('|', 2);
    return std::string(barra == std::string_view::npos ? std::string_view{} : riga.substr(0, barra + 1));
  }

  const std::vector<std::string_view>& righe_;
  std::unordered_map<std::string, std::vector<std::size_t>> stazioni_;
};

// What is kept from row to row: the station, its first sight and the reading to it.
class Misure {
public:
  Misure(Generazione& g, Gon passo) : g_(g), passo_(passo), vecchie_(g.vecchie) {}

  void Stazione(std::size_t indice) {
    std::string& riga = g_.righe[indice];
    if (const PuntoDisegno* punto = g_.tabelle.Trova(Parte(riga, '|', 1))) riga = RigaStazione(*punto);
    if (indice + 1 < g_.righe.size()) PrendiPrimaBattuta(g_.righe[indice + 1]);
    if (g_.opzioni.OrientaAzimut)
      orientamento_ = Gon(AzimutDistanza(battuta_.Posto(), stazione_.Posto()).angolo * g_.ambiente.sessione.RadGon);
    else if (g_.opzioni.OrientaPrecedente)
      orientamento_ = {};
    else
      OrientaSulLibretto();
  }

  void Battuta(std::string& riga) const {
    if (const PuntoDisegno* punto = g_.tabelle.Trova(Parte(riga, '|', 1))) riga = RigaBattuta(*punto);
  }

private:
  std::string RigaStazione(const PuntoDisegno& punto) {
    stazione_ = punto;
    testoStazione_ = "1|" + punto.Nome + "|";
    conAltezza_ = punto.Altezza > 0 && (!HaMarca(punto.Nota, "<P!>") || HaMarca(punto.Nota, "[P.A.]"));
    std::string riga = testoStazione_;
    if (conAltezza_) riga += Formatta(punto.Altezza, FormatoAltezza) + "|";
    return riga + (Taglia(punto.Nota).empty() ? "Note: " : punto.Nota) + "|";
  }

  // The first sight is the row behind the station's, whatever that is.
  void PrendiPrimaBattuta(std::string_view riga) {
    const PuntoDisegno* punto = g_.tabelle.Trova(Parte(riga, '|', 1));
    if (punto == nullptr) return;
    battuta_ = *punto;
    testoBattuta_ = "2|" + punto->Nome + "|";
  }

  // The last station of the old libretto that has the first sight wins; without one the orientation stays.
  void OrientaSulLibretto() {
    for (const std::size_t inizio : vecchie_.Di(testoStazione_)) OrientaSu(inizio);
  }

  void OrientaSu(std::size_t inizio) {
    const auto& righe = vecchie_.Righe();
    for (std::size_t i = inizio + 1; i < righe.size(); ++i) {
      if (GenereDi(righe[i]) == Genere::Stazione) return AvvisaNonTrovata();
      if (testoBattuta_.empty() || !righe[i].starts_with(testoBattuta_)) continue;
      orientamento_ = Gon(Valore(righe[i].substr(testoBattuta_.size())));
      return;
    }
  }

  void AvvisaNonTrovata() {
    g_.ambiente.dialoghi.Messaggio("L'Orientamento della stazione " + testoStazione_ + std::string(FineRiga) +
                                       testoBattuta_ + " Non Trovato!",
                                   "Orientamento non Trovato!");
  }

  [[nodiscard]] bool Planimetrico(const PuntoDisegno& punto) const {
    if (HaMarca(punto.Nota, "<P!>")) return true;
    return g_.opzioni.PuntoPlanimetrico &&
           std::abs(stazione_.Quota - punto.Quota) <= Valore(g_.opzioni.Dislivello) / MillimetriPerMetro;
  }

  [[nodiscard]] std::string RigaBattuta(const PuntoDisegno& punto) const {
    const Lettura lettura = AngoloDaOrientamento({stazione_.Posto(), battuta_.Posto(), orientamento_}, punto.Posto());
    const bool altimetrico = conAltezza_ && !Planimetrico(punto);
    double distanza = lettura.distanza;
    std::string riga = "2|" + punto.Nome + "|" + Orizzontale(lettura.angolo) + "|";
    if (altimetrico && distanza > 0) {
      const Inclinata inclinata = InclinataA(punto, distanza);
      distanza = inclinata.distanza;
      riga += Formatta(ArrotondaAngolo(inclinata.zenitale, passo_).Valore(), FormatoAngolo) + "|";
    } else if (altimetrico) {
      AvvisaCoincidente(punto.Nome);
    }
    riga += DistanzaScritta(punto, distanza) + "|";
    if (altimetrico && punto.Altezza >= 0) riga += Formatta(punto.Altezza, FormatoAltezza) + "|";
    return riga + NotaConBarra(punto.Nota, "Note:");
  }

  [[nodiscard]] std::string Orizzontale(Gon angolo) const {
    std::string testo = Formatta(ArrotondaAngolo(angolo, passo_).Valore(), FormatoAngolo);
    return Gon(Valore(testo)) >= Giro ? "0.000" : testo;
  }

  struct Inclinata {
    Gon zenitale;
    double distanza = 0; // metres, along the slope
  };

  // To the prism on a point at a plan distance.
  [[nodiscard]] Inclinata InclinataA(const PuntoDisegno& punto, double piana) const {
    const double dislivello = std::abs(punto.Altezza) + punto.Quota - (std::abs(stazione_.Altezza) + stazione_.Quota);
    return {Retto - Gon(std::atan(dislivello / piana) * g_.ambiente.sessione.RadGon),
            std::sqrt(piana * piana + dislivello * dislivello)};
  }

  // In spite of its words the row stays, without a zenith angle: the user sees in the list which point it was.
  void AvvisaCoincidente(const std::string& nome) const {
    std::string testo = "Il punto " + nome;
    testo += " è coincidente con la stazione."_w;
    testo += FineRiga;
    testo += "Non verrà inserito nel Libretto"_w;
    g_.ambiente.dialoghi.Messaggio(testo, "Punti Coincidenti");
  }

  static std::string DistanzaScritta(const PuntoDisegno& punto, double distanza) {
    if (punto.Altezza < 0 || HaMarca(punto.Nota, "<00>")) return "0.000";
    return Formatta(distanza, FormatoDistanza);
  }

  Generazione& g_;
  Gon passo_;
  StazioniVecchie vecchie_;
  PuntoDisegno stazione_;
  PuntoDisegno battuta_;
  std::string testoStazione_;
  std::string testoBattuta_;
  bool conAltezza_ = false;
  Gon orientamento_;
};

} // namespace

void CalcolaMisure(Generazione& g, Gon passo) {
  Misure misure(g, passo);
  Avanzamento avanzamento(g.ambiente.dialoghi, "Calcolo delle misure", g.righe.size());
  for (std::size_t i = 0; i < g.righe.size(); ++i) {
    avanzamento.Fatto(i);
    const Genere genere = GenereDi(g.righe[i]);
    if (genere == Genere::Stazione) misure.Stazione(i);
    if (genere == Genere::Battuta) misure.Battuta(g.righe[i]);
  }
}

} // namespace lirmeto
