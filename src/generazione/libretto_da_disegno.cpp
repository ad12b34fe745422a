#include <generazione/libretto_da_disegno.h>

#include <generazione/generazione.h>
#include <generazione/stazioni.h>

#include <base/numeri.h>
#include <base/percorsi.h>
#include <base/piano.h>
#include <base/testo.h>
#include <core/apertura.h>
#include <core/mostra_errore.h>
#include <core/riga.h>
#include <core/riordino.h>
#include <core/salvataggio.h>
#include <supporto/stampa_generale.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace lirmeto {

// What could be done in more than one way:
//
//   the list of lines                    a line of which no end is a station gives no row
//   a record with fewer fields           those that are missing are empty, or 0
//   a TAF of a comune that is no name    there is none
//   a fiducial point's name              taken in capitals, as the TAF has it
//   a base that is one point             the offset before stands

namespace {

constexpr std::size_t RigheMinimePerOrientare = 4;
constexpr std::size_t LineeMinimePerTogliere = 3;
constexpr std::string_view FontNomi = "Courier New";
constexpr double DimensioneNomi = 8; // points

// Rows of a text at CR LF, with the empty part behind the last.
std::vector<std::string_view> Spezza(std::string_view testo) {
  return Dividi(testo, FineRiga);
}

std::pair<std::string_view, std::string_view> Estremi(std::string_view linea) {
  constexpr std::string_view tra = " - ";
  const std::size_t posto = linea.find(tra);
  if (posto == std::string_view::npos) return {linea, {}};
  return {linea.substr(0, posto), linea.substr(posto + tra.size())};
}

std::int16_t ColoreDi(const PuntoDisegno& punto) {
  if (NomeFiduciale(punto.Nome)) return colore::MagentaChiaro;
  return NomeMillesimale(punto.Nome) ? colore::RossoChiaro : colore::Nero;
}

PuntoGrafica PuntoDaDisegnare(const PuntoDisegno& punto) {
  PuntoGrafica grafico;
  grafico.Nome = punto.Nome;
  grafico.X = punto.X;
  grafico.Y = punto.Y;
  grafico.Z = punto.Quota;
  grafico.Colore = ColoreDi(punto);
  grafico.Font = FontNomi;
  grafico.Dimensione = DimensioneNomi;
  return grafico;
}

// Of a stretch by its code, as in the drawing of an act: red, black or green; solid, dashed or dotted. What has no code
// is no contour but a way of measuring (a traverse, a squadro, a levelling): thin, dashed and blue.
std::int16_t ColoreDelCodice(std::string_view codice) {
  if (codice.empty()) return colore::Blu;
  return codice.starts_with("R") ? colore::RossoChiaro : codice.starts_with("V") ? colore::Verde : colore::Nero;
}

std::int16_t StileDelCodice(std::string_view codice) {
  if (codice.empty()) return stile::Tratteggiato;
  return codice.ends_with("T") ? stile::Tratteggiato : codice.ends_with("P") ? stile::Punteggiato : stile::Continuo;
}

PennaGrafica PennaDelCodice(std::string_view codice) {
  return {ColoreDelCodice(codice), static_cast<std::int16_t>(codice.empty() ? 1 : 2), StileDelCodice(codice)};
}

// Vertex points one by one: nothing joins them.
bool ElencoDiVertici(const ContornoDisegno& contorno) {
  return contorno.Tipo == "PV" || contorno.Tipo == "PD";
}

double DistanzaDaTratto(const LineaGrafica& tratto, const PuntoPiano& posto) {
  const double dx = tratto.X2 - tratto.X1;
  const double dy = tratto.Y2 - tratto.Y1;
  const double quadrato = dx * dx + dy * dy;
  const double lungo = quadrato > 0 ? ((posto.est - tratto.X1) * dx + (posto.nord - tratto.Y1) * dy) / quadrato : 0;
  const double parte = std::clamp(lungo, 0.0, 1.0);
  return DistanzaPiana(posto, {tratto.X1 + parte * dx, tratto.Y1 + parte * dy});
}

} // namespace

void LibrettoDaDisegno::Form_Load() {
  const Sessione& sessione = ambiente_.sessione;
  ambiente_.sessione.EsitoForm = EsitoAnnullato;
  Titolo = "Libretto Fittizio : " + sessione.NomeFileLibretto;
  Opzioni = LeggiOpzioni(ambiente_.impostazioni);
  List0 = sessione.List1.Righe();
  tabelle_ = CaricaGrafica(ambiente_);
  Grafica1.Percorso = PercorsoDisegno(sessione);
  List1 = ElencoLinee(tabelle_);
  tolte_.clear();
  if (List1.empty()) {
    std::string testo;
    testo += "Non è stata trovata nessuna Stazione nel Disegno!"_w;
    ambiente_.dialoghi.Messaggio(testo, "Libretto da Disegno");
  }
  OrientaLibrettoAbilitato = !List1.empty() && List0.size() >= RigheMinimePerOrientare;
  if (!OrientaLibrettoAbilitato) Opzioni.OrientaLibretto = false;
  Disegna();
  Grafica1.KR_ZoomTutto();
}

void LibrettoDaDisegno::Form_Unload() {
  ScriviOpzioni(Opzioni, ambiente_.impostazioni);
}

bool LibrettoDaDisegno::Imposta(std::string_view chiave, std::string_view valore) {
  OpzioniLibretto nuove = Opzioni;
  if (!ImpostaOpzione(nuove, chiave, valore)) return false;
  if (OrientaLibrettoAbilitato || !nuove.OrientaLibretto) Opzioni = nuove;
  return true;
}

void LibrettoDaDisegno::DoppioClickList1(std::size_t indice) {
  if (!GeneraAbilitato || List1.size() < LineeMinimePerTogliere || indice >= List1.size()) return;
  tolte_.emplace_back(indice, List1[indice]);
  List1.erase(List1.begin() + static_cast<std::ptrdiff_t>(indice));
  Accendi({});
  Disegna();
}

std::optional<std::size_t> LibrettoDaDisegno::RimettiLinea() {
  if (!GeneraAbilitato || tolte_.empty()) return {};
  const auto [indice, linea] = std::move(tolte_.back());
  tolte_.pop_back();
  List1.insert(List1.begin() + static_cast<std::ptrdiff_t>(indice), linea);
  Disegna();
  return indice;
}

// A generation puts rows into the session and leaves List1 alone, so that the places stay those of the lines.
void LibrettoDaDisegno::Accendi(std::optional<std::size_t> indice) {
  Grafica1.Evidenza = indice && *indice < tracciate_.size() ? tracciate_[*indice] : std::nullopt;
  Grafica1.KR_RidisegnaGrafica();
}

std::optional<std::size_t> LibrettoDaDisegno::LineaVicina(const PuntoPiano& posto, double entro) const {
  std::optional<std::size_t> vicina;
  for (std::size_t i = 0; i < tracciate_.size(); ++i) {
    if (!tracciate_[i]) continue;
    const double distanza = DistanzaDaTratto(*tracciate_[i], posto);
    if (!(distanza < entro)) continue;
    entro = distanza;
    vicina = i;
  }
  return vicina;
}

void LibrettoDaDisegno::Disegna() {
  const VistaGrafica vista = Grafica1.Vista(); // a line that goes moves nothing
  Grafica1.KR_Clear();
  Grafica1.Vista() = vista;
  for (const PuntoDisegno& punto : tabelle_.Punti()) Grafica1.KR_AggiungiPuntoGraf(PuntoDaDisegnare(punto));
  DisegnaRaggi();
  DisegnaLinee();
  DisegnaContorni();
  Grafica1.KR_RidisegnaGrafica();
}

void LibrettoDaDisegno::DisegnaLinee() {
  tracciate_.clear();
  tracciate_.reserve(List1.size());
  for (const std::string& linea : List1) {
    const auto [a, b] = Estremi(linea);
    const PuntoDisegno* p = tabelle_.Trova(a);
    const PuntoDisegno* q = tabelle_.Trova(b);
    std::optional<LineaGrafica> tracciata;
    if (p != nullptr && q != nullptr)
      tracciata = {p->X, p->Y, p->Quota, q->X, q->Y, q->Quota, 1, colore::BluChiaro, stile::Continuo};
    if (tracciata) Grafica1.KR_AggiungiLineaGraf(*tracciata);
    tracciate_.push_back(tracciata);
  }
}

void LibrettoDaDisegno::DisegnaRaggi() {
  const PuntiPerNome punti(tabelle_);
  std::string_view fatta;
  for (const std::string& linea : List1) {
    const std::string_view stazione = Estremi(linea).first;
    if (stazione == fatta || !NomeMillesimale(stazione)) continue;
    fatta = stazione; // the list is sorted by the first end
    for (const auto nome : punti.Di(stazione))
      if (nome != stazione) Grafica1.KR_AggiungiLineaGraf2Punti(stazione, nome, {.Colore = colore::Grigio});
  }
}

void LibrettoDaDisegno::DisegnaContorni() {
  for (const ContornoDisegno& contorno : tabelle_.Contorni) {
    if (ElencoDiVertici(contorno)) continue;
    std::vector<std::string_view> tratto;
    const auto traccia = [&](std::string_view codice) {
      for (std::size_t i = 1; i < tratto.size(); ++i)
        Grafica1.KR_AggiungiLineaGraf2Punti(tratto[i - 1], tratto[i], PennaDelCodice(codice));
      if (!tratto.empty()) tratto = {tratto.back()};
    };
    for (const auto elemento : Elementi(contorno.Punti)) {
      if (tabelle_.Trova(elemento) != nullptr)
        tratto.push_back(elemento);
      else
        traccia(elemento);
    }
    traccia({});
  }
}

void LibrettoDaDisegno::ButtonPlus1_0() {
  if (!GeneraAbilitato) return;
  Sessione& sessione = ambiente_.sessione;
  const bool riuscito = Intrappola(ambiente_, [&] {
    if (!GeneraLibrettoMisureAutomatico()) return;
    std::string& nome = sessione.NomeFileLibretto;
    if (FinisceConSenzaCaso(nome, EstensioneDisegno))
      nome = PercorsoInCapitali(ambiente_.disco, ConEstensione(nome, ".TXT"));
    FineProgramma = true;
  });
  if (!riuscito || !FineProgramma) return;
  FineProgramma = SalvaLibrettoMisure(ambiente_);
  Chiusa = FineProgramma;
  if (!FineProgramma) sessione.EsitoForm = EsitoAnnullato; // it is in the session, but not on the disk
}

bool LibrettoDaDisegno::GeneraLibrettoMisureAutomatico() {
  Sessione& sessione = ambiente_.sessione;
  sessione.PuntoErrore = " GeneraLibrettoAutomatico";
  if (!Opzioni.Orientata()) {
    ambiente_.dialoghi.Messaggio("Selezionare una modalità di Orientamento delle stazioni!"_w, "Orientamento stazioni");
    return false;
  }
  const std::string vecchio = sessione.Libretto;
  const ElencoRighe elencoVecchio = sessione.List1;
  try {
    const auto vecchie = Spezza(vecchio);
    Generazione g{ambiente_, Opzioni, tabelle_, List1, vecchie, {}, {}, {}};
    Fasi(g);
    List6 = std::move(g.rapporto);
    sessione.Libretto = SciogliSegni(RigheUnite(g.righe));
    sessione.PuntoErrore = "GeneraLibrettoAutomatico2";
    RiordinaEdElenca();
  } catch (...) {
    sessione.Libretto = vecchio;
    sessione.List1 = elencoVecchio;
    throw;
  }
  sessione.PuntoErrore = "GeneraLibrettoAutomatico3";
  sessione.EsitoForm = EsitoConfermato;
  return true;
}

// The order is part of the result: what a phase adds stands before what the next one does.
void LibrettoDaDisegno::Fasi(Generazione& g) {
  PrendiRigheGps(g);
  const Gon passo(Valore(PassiAngolari.at(static_cast<std::size_t>(Opzioni.PrecisioneAngolare))));
  MettiTestata(g);
  MettiPoligonali(g);
  MettiStazioni(g);
  GeneraAbilitato = false;
  MettiSquadri(g);
  ambiente_.sessione.PuntoErrore = "GeneraLibrettoAutomatico1";
  MettiContorni(g);
  TogliUgualiVicine(g);
  MantieniCensuario(g);
  CalcolaMisure(g, passo);
  MettiCoordinate(g);
  CompletaRigaNove(g);
  TogliPuntiDalleNote(g);
  InserisciGps(g);
  if (Opzioni.MostraReport) MostraRapporto(g.rapporto);
  MettiCs(g);
  ControlliFinali(g);
}

void LibrettoDaDisegno::MostraRapporto(const std::vector<std::string>& rapporto) {
  ListaRighe righe;
  for (const std::string& riga : rapporto) righe.Aggiungi(riga);
  MostraStampaGenerale(ambiente_, std::move(righe));
}

void LibrettoDaDisegno::RiordinaEdElenca() {
  subRiordinoRighe(ambiente_);
  ambiente_.sessione.PuntoErrore = "Decozero_128";
  ElencoRighe& elenco = ambiente_.sessione.List1;
  for (std::size_t i = 0; i < elenco.Quante(); ++i) {
    const std::string pulita = TogliMarcatoriNota(elenco.Riga(i));
    if (pulita != elenco.Riga(i)) elenco.Cambia(i, pulita);
  }
  AggiornaLibrettoMisure(ambiente_); // so that no mark reaches the file
}

} // namespace lirmeto
