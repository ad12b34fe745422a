#include <grafica/grafica.h>

#include <base/testo.h>
#include <grafica/file_esportati.h>
#include <grafica/righe_in_disegno.h>

#include <cmath>

namespace lirmeto {

namespace {

constexpr double Passetto = 0.1; // of the height, by which the view moves

// A point placed by a tool.
constexpr std::string_view TestoNuovo = "SF";
constexpr double DimensioneNuovo = 10;

} // namespace

void Grafica::KR_Clear() {
  disegno_.archivio.Svuota();
  KR_ZoomTutto();
}

void Grafica::KR_ZoomTutto() {
  disegno_.vista.Inquadra(Archivio());
  KR_RidisegnaGrafica();
}

void Grafica::Scala(double fattore) {
  disegno_.vista.Zoom *= fattore;
  KR_RidisegnaGrafica();
}

void Grafica::Sposta(const PuntoPiano& quota) {
  disegno_.vista.Sposta(quota);
  KR_RidisegnaGrafica();
}

void Grafica::KR_ZoomPiu() {
  Scala(0.9);
}

void Grafica::KR_ZoomMeno() {
  Scala(1.1);
}

void Grafica::KR_ZoomUP() {
  Sposta({.nord = -Passetto});
}

void Grafica::KR_ZoomDown() {
  Sposta({.nord = Passetto});
}

void Grafica::KR_ZoomLeft() {
  Sposta({.est = Passetto});
}

void Grafica::KR_ZoomRight() {
  Sposta({.est = -Passetto});
}

void Grafica::KR_RidisegnaGrafica() {
  if (Picture1 != nullptr) Picture1->Ridisegna();
}

Operazioni Grafica::Dipingi(double rapporto) {
  disegno_.vista.MettiRapporto(rapporto);
  disegno_.vista.MettiAltezza();
  return ComponiOperazioni(Archivio(), disegno_.vista);
}

void Grafica::MouseMove(const PuntoPiano& daCentro, TastoMouse tasto) {
  const bool spostata = mouse_.Muovi(daCentro, tasto);
  if (metro_.Acceso()) metro_.PassaSu(mouse_.Etichetta().posto);
  if (spostata) KR_RidisegnaGrafica();
}

void Grafica::MouseDown(const PuntoPiano& daCentro, TastoMouse tasto) {
  switch (tasto) {
  case TastoMouse::Destro:
    if (Picture1 != nullptr) Picture1->MostraMenu();
    break;
  case TastoMouse::Centrale:
    mouse_.Afferra(daCentro);
    break;
  case TastoMouse::Sinistro:
    Prova("MouseDown", [&] { Clicca(daCentro); });
    break;
  case TastoMouse::Nessuno:
    break;
  }
}

// Without a tool the view stays where it is and is painted again: only the middle button moves it.
void Grafica::Clicca(const PuntoPiano& daCentro) {
  if (metro_.Acceso()) {
    (void)mouse_.Muovi(daCentro, TastoMouse::Nessuno);
    if (!Archivio().Punti().empty()) metro_.Prendi(mouse_.Etichetta().posto);
    return KR_RidisegnaGrafica();
  }
  const EsitoClic esito = mouse_.Clicca(daCentro, Strumento);
  if (esito.nuovo) AggiungiPuntoNuovo(*esito.nuovo);
  KR_RidisegnaGrafica();
  if (esito.contorno) ScriviContorno(ambiente_, *esito.contorno);
}

// The tool takes one name: the next point has none until the form gives one.
void Grafica::AggiungiPuntoNuovo(const PuntoPiano& posto) {
  PuntoGrafica punto;
  punto.Nome = std::exchange(NomeNuovoPunto, {});
  punto.X = posto.est;
  punto.Y = posto.nord;
  punto.Testo = TestoNuovo;
  punto.Font = FontPredefinito;
  punto.Dimensione = DimensioneNuovo;
  KR_AggiungiPuntoGraf(std::move(punto));
}

void Grafica::Rotola(bool avanti, const PuntoPiano& daCentro) {
  const double prima = Vista().Zoom;
  disegno_.gancio.Rotella(avanti);
  const double resta = 1 - Vista().Zoom / prima;
  if (!(prima > 0) || !std::isfinite(resta) || resta == 0) return;
  Vista().MettiCentro({Vista().Xc + daCentro.est * resta, Vista().Yc + daCentro.nord * resta});
  KR_RidisegnaGrafica();
}

void Grafica::AccendiMetro(bool acceso) {
  metro_.Accendi(acceso);
  KR_RidisegnaGrafica();
}

void Grafica::TogliVertice() {
  metro_.TogliUltimo();
  KR_RidisegnaGrafica();
}

// Of a row 8 the point, of a row 7 its vertices.
void Grafica::AccendiRiga(std::optional<std::size_t> riga) {
  PuntiEvidenza.clear();
  const ListaRighe& righe = liste_.LibrettoOriginale;
  if (riga && *riga < righe.size()) PuntiEvidenza = PostiDellaRiga(righe[*riga], Archivio());
  if (!PuntiEvidenza.empty() && !Vista().Mostra(PuntiEvidenza.front())) Vista().MettiCentro(PuntiEvidenza.front());
  KR_RidisegnaGrafica();
}

void Grafica::PuntatoreEntra(std::int16_t host) {
  ambiente_.sessione.HostGrafica = host;
  if (Rotella) return disegno_.gancio.Installa(Rotella);
  disegno_.gancio.Installa([this](bool avanti) { avanti ? KR_ZoomPiu() : KR_ZoomMeno(); });
}

void Grafica::PuntatoreEsce(std::int16_t host) {
  ambiente_.sessione.HostGrafica = host;
  disegno_.gancio.Togli();
}

void Grafica::KR_PuntiCoincidenti() {
  const std::string nomi = mouse_.Coincidenti();
  if (!nomi.empty()) ambiente_.dialoghi.Messaggio(nomi);
}

void Grafica::Carica(std::string_view percorso, ListeGrafica liste) {
  Percorso = percorso;
  liste_ = std::move(liste);
  GeneraGrafica();
}

void Grafica::KR_CaricaEstratto_EMP(std::string_view percorso) {
  Carica(percorso, RigheEstratto(LeggiTestoDisegno(ambiente_, percorso, "KR_CaricaEstratto_EMP"), Vista()));
}

void Grafica::KR_CaricaPropostaDaLibretto(std::string_view percorso) {
  Carica(percorso, RigheSezioni(LeggiTestoDisegno(ambiente_, percorso, "KR_CaricaPropostaDaLibretto")));
}

void Grafica::KR_Elaborazione_SUR(std::string_view percorso) {
  Carica(percorso, RigheIntere(LeggiTestoDisegno(ambiente_, percorso, "KR_Elaborazione_SUR")));
}

void Grafica::EsplodiPDF(std::string_view percorso) {
  Carica(percorso, RighePdf(LeggiByteDisegno(ambiente_, percorso, "EsplodiPDF")));
}

void Grafica::KR_LoadFileCSV(std::string_view percorso) {
  liste_ = RigheCsv(LeggiTestoDisegno(ambiente_, percorso, "KR_LoadFileCSV"));
  Percorso = percorso;
  disegno_.archivio.Svuota();
  DisegnaCsv(liste_.List1, liste_.List3, disegno_.archivio);
  KR_ZoomTutto();
}

void Grafica::CaricaDisegno(std::string_view percorso) {
  const auto e = [&](std::string_view estensione) { return FinisceConSenzaCaso(percorso, estensione); };
  if (e(".EMP") || e(".AGG") || e(".SMP")) return KR_CaricaEstratto_EMP(percorso);
  if (e(".CSV")) return KR_LoadFileCSV(percorso);
  if (e(".PDF")) return EsplodiPDF(percorso);
  if (!e(".SUR")) return KR_CaricaPropostaDaLibretto(percorso);
  const TestoCondiviso testo = LeggiTestoDisegno(ambiente_, percorso, "KR_Elaborazione_SUR");
  Carica(percorso, HaSezioni(*testo) ? RigheSezioni(testo) : RigheIntere(testo));
}

void Grafica::GeneraGrafica() {
  KR_Clear();
  const bool conProposta = disegno_.vista.Check1;
  const auto& [estratto, proposta] = liste_.List2;
  std::string& punto = ambiente_.sessione.PuntoErrore;
  DisegnaRighe(estratto, conProposta, disegno_.archivio, punto);
  if (conProposta) DisegnaRighe(proposta, false, disegno_.archivio, punto);
  liste_.LibrettoOriginale = estratto;
  if (conProposta)
    for (const auto riga : proposta) liste_.LibrettoOriginale.Aggiungi(riga);
  KR_ZoomTutto();
}

std::string Grafica::KR_SalvaDXF() {
  return ScriviDXF(ambiente_, disegno_);
}

std::string Grafica::GeneraHTML5_CANVAS() {
  return ScriviPagina(ambiente_, disegno_);
}

std::string Grafica::GeneraStampa() {
  return ScriviOrdiniStampa(ambiente_, disegno_);
}

std::string Grafica::KR_CopiaInFile() {
  std::string percorso = ScriviScambio(ambiente_, disegno_);
  ambiente_.sessione.FineScambio = SoloPerScambio(ambiente_);
  return percorso;
}

} // namespace lirmeto
