#include <fiduciali/elco_pf_grafica.h>

#include <fiduciali/elco_pf_file.h>

#include <base/numeri.h>
#include <base/piano.h>
#include <base/testo.h>
#include <core/apri_form.h>
#include <core/lettura.h>
#include <core/mostra_errore.h>
#include <core/nomi_forme.h>
#include <estratti/kr_estratto.h>
#include <fiduciali/misurate.h>
#include <supporto/imputa.h>
#include <supporto/stampa_generale.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace lirmeto {

// What could be done in more than one way:
//
//   the archive of the province          the code and ".DDD"; where that file is not, the last archive of the province
//   the two points of a distance         the names in its two columns of 15 characters
//   names with an end in "T"             are points of the TAF all the same, and not toponyms
//   the extent of all points             has a margin of a tenth on each side
//   the point under the mouse            the nearest within a hundredth of the view's width
//   the radius round a click             is asked for before the click
//   choosing an extract                  the libretto keeps its own

namespace {

constexpr std::string_view FontNomi = "Arial";
constexpr double DimensioneNomi = 8; // points

PuntoPF Punto(const RecordTaf& taf) {
  PuntoPF punto;
  punto.nome = taf.nome;
  punto.est = taf.x;
  punto.nord = taf.y;
  punto.quota = taf.z;
  punto.riferimentoPlanimetrico = taf.riferimentoPlanimetrico;
  punto.mappale = taf.mappale;
  punto.riferimentoAltimetrico = taf.riferimentoAltimetrico;
  return punto;
}

PuntoGrafica DaDipingere(const PuntoPF& punto) {
  PuntoGrafica grafico;
  grafico.Nome = grafico.Testo = punto.nome;
  grafico.X = punto.est;
  grafico.Y = punto.nord;
  grafico.Z = punto.quota;
  grafico.Colore = punto.Selezionato() ? colore::Verde : colore::RossoChiaro;
  grafico.ColoreNome = punto.Selezionato() ? colore::Nero : colore::RossoChiaro;
  grafico.Font = FontNomi;
  grafico.Dimensione = DimensioneNomi;
  return grafico;
}

// "NU" stands in longer words too, and they count: the archive writes what became of a point in free words, and a point
// too many in grey does no harm.
bool FuoriUso(const PuntoPF& punto) {
  const std::string posto = Maiuscolo(punto.riferimentoPlanimetrico);
  return Contiene(posto, "NU") || Contiene(posto, "N.U.") || Contiene(posto, "NON") || Contiene(posto, "EX PF");
}

bool GaussBoaga(const PuntoPF& punto) {
  constexpr double estMinimo = 1'000'000;
  constexpr double nordMinimo = 4'000'000;
  return punto.est > estMinimo && punto.nord > nordMinimo;
}

// Sheet and annex, columns 6 to 9 of a name.
std::string_view FoglioDi(std::string_view nome) {
  constexpr std::size_t primo = 5;
  constexpr std::size_t lungo = 4;
  return nome.size() > primo ? nome.substr(primo, lungo) : std::string_view{};
}

std::vector<std::string_view> Nomi(const std::vector<PuntoPF>& punti) {
  std::vector<std::string_view> nomi;
  nomi.reserve(punti.size());
  for (const PuntoPF& punto : punti) nomi.push_back(punto.nome);
  return nomi;
}

} // namespace

KR_ElcoPFGrafica::KR_ElcoPFGrafica(Ambiente& ambiente, const TabellaPF& tabella)
    : ambiente_(ambiente), tabella_(tabella), grafica_(ambiente, disegno_) {
  grafica_.Vista().PerLarghezza = true;
  grafica_.Vista().Check2 = false;
  grafica_.Rotella = [this](bool avanti) { subZoomElcoPF(avanti ? 1 : 2); };
}

void KR_ElcoPFGrafica::AlCaricamento() {
  Punti.clear();
  Punti.reserve(tabella_.punti.size());
  for (const RecordTaf& taf : tabella_.punti) Punti.push_back(Punto(taf));
  ZoomTutto();
}

std::size_t KR_ElcoPFGrafica::Selezionati() const {
  return static_cast<std::size_t>(
      std::count_if(Punti.begin(), Punti.end(), [](const PuntoPF& punto) { return punto.Selezionato(); }));
}

// --- view

void KR_ElcoPFGrafica::MettiLarghezza(double metri) {
  VistaGrafica& vista = grafica_.Vista();
  vista.Zoom = metri / vista.Rapporto;
  vista.MettiAltezza();
}

void KR_ElcoPFGrafica::MettiRapporto(double rapporto) {
  grafica_.Vista().MettiRapporto(rapporto);
  if (!std::exchange(adattata_, true)) ZoomTutto();
}

// The extent starts from the third point, and an array of fewer has zeros there: with less than three points the origin
// is seen too: so small a comune is shown where it lies.
void KR_ElcoPFGrafica::ZoomTutto() {
  constexpr std::size_t terzo = 2;
  constexpr double margine = 1.2;
  constexpr double massimo = std::numeric_limits<double>::max();
  VistaGrafica& vista = grafica_.Vista();
  const PuntoPF inizio = Punti.size() > terzo ? Punti[terzo] : PuntoPF{};
  vista.Xmin = vista.Xmax = inizio.est;
  vista.Ymin = vista.Ymax = inizio.nord;
  for (const PuntoPF& punto : Punti) {
    vista.Xmin = std::min(vista.Xmin, punto.est);
    vista.Xmax = std::max(vista.Xmax, punto.est);
    vista.Ymin = std::min(vista.Ymin, punto.nord);
    vista.Ymax = std::max(vista.Ymax, punto.nord);
  }
  vista.dX = std::min(vista.Xmax - vista.Xmin, massimo);
  vista.dY = std::min(vista.Ymax - vista.Ymin, massimo);
  vista.Xc = std::midpoint(vista.Xmin, vista.Xmax);
  vista.Yc = std::midpoint(vista.Ymin, vista.Ymax);
  MettiLarghezza(std::min(std::max(vista.dX, vista.dY * vista.Rapporto) * margine, massimo));
  RiDisegnaPF();
}

// The view stays as it is.
void KR_ElcoPFGrafica::RiDisegnaPF() {
  grafica_.Vista().MettiAltezza();
  disegno_.archivio.Svuota();
  disegno_.archivio.Riserva(Punti.size(), Segmenti.size());
  for (const SegmentoPF& segmento : Segmenti) {
    const PuntoPF& a = Punti[segmento.primo];
    const PuntoPF& b = Punti[segmento.secondo];
    grafica_.KR_AggiungiLineaGraf({a.est, a.nord, a.quota, b.est, b.nord, b.quota, 1, colore::Grigio, stile::Continuo});
  }
  for (const PuntoPF& punto : Punti) grafica_.KR_AggiungiPuntoGraf(DaDipingere(punto));
  grafica_.KR_RidisegnaGrafica();
}

void KR_ElcoPFGrafica::subZoomElcoPF(int verso) {
  constexpr double vicino = 0.8;
  constexpr double lontano = 1.2;
  MettiLarghezza(Larghezza() * (verso == 1 ? vicino : lontano));
  grafica_.KR_RidisegnaGrafica();
}

void KR_ElcoPFGrafica::Sposta(double partiDiLarghezza) {
  grafica_.Vista().Xc += Larghezza() * partiDiLarghezza;
  grafica_.KR_RidisegnaGrafica();
}

void KR_ElcoPFGrafica::ZoomFinestra(const PuntoPiano& primo, const PuntoPiano& secondo) {
  LasciaStrumento();
  VistaGrafica& vista = grafica_.Vista();
  const double larghezza =
      std::max(std::abs(secondo.est - primo.est), std::abs(secondo.nord - primo.nord) * vista.Rapporto);
  if (!(larghezza > 0)) return;
  const PuntoPiano centro = PuntoMedio(primo, secondo);
  vista.Xc = centro.est;
  vista.Yc = centro.nord;
  MettiLarghezza(larghezza);
  grafica_.KR_RidisegnaGrafica();
}

void KR_ElcoPFGrafica::CambiaCheck1(bool si) {
  grafica_.Vista().Check2 = !si;
  Esegui(10);
}

std::string KR_ElcoPFGrafica::Leggenda(const PuntoPiano& posto) const {
  constexpr std::string_view coordinate = "#########0.##0";
  constexpr std::string_view dati = "#####0.000";
  std::string testo = Formatta(posto.est, coordinate) + " " + Formatta(posto.nord, coordinate) +
                      " Scala : 1:" + Formatta(Larghezza() / LarghezzaFoglio, "0");
  const PuntoPF* punto = PiuVicino(posto, Larghezza() / 100);
  if (punto == nullptr || Contiene(punto->nome, "/0000/")) return testo;
  return testo + " " + punto->nome + " - " + Formatta(punto->nord, dati) + " / " + Formatta(punto->est, dati) + " / " +
         punto->riferimentoPlanimetrico;
}

// The first of equal ones; none when all are farther than that.
const PuntoPF* KR_ElcoPFGrafica::PiuVicino(const PuntoPiano& posto, double entro) const {
  const PuntoPF* vicino = nullptr;
  for (const PuntoPF& punto : Punti) {
    const double distanza = DistanzaPiana({punto.est, punto.nord}, posto);
    if (distanza >= entro) continue;
    entro = distanza;
    vicino = &punto;
  }
  return vicino;
}

// --- selection

void KR_ElcoPFGrafica::SelezionaSe(bool (*condizione)(const PuntoPF&)) {
  for (PuntoPF& punto : Punti)
    if (condizione(punto)) punto.selezionato = selezione::Si;
  RiDisegnaPF();
}

void KR_ElcoPFGrafica::Seleziona(SelezionePF quali) {
  switch (quali) {
  case SelezionePF::Tutti:
    return SelezionaSe([](const PuntoPF&) { return true; });
  case SelezionePF::GaussBoaga:
    return SelezionaSe(GaussBoaga);
  case SelezionePF::FuoriUso:
    return SelezionaSe(FuoriUso);
  case SelezionePF::Foglio:
    return Arma(StrumentoPF::Foglio);
  case SelezionePF::Intorno:
    return ChiediRaggio();
  case SelezionePF::Nessuno:
  case SelezionePF::Inverti:
    break;
  }
  for (PuntoPF& punto : Punti)
    punto.selezionato = quali == SelezionePF::Inverti && !punto.Selezionato() ? selezione::Si : selezione::No;
  RiDisegnaPF();
}

void KR_ElcoPFGrafica::Arma(StrumentoPF strumento) {
  strumento_ = strumento;
}

void KR_ElcoPFGrafica::ChiediRaggio() {
  Imputa form(ambiente_, "Seleziona intorno", "Raggio intorno al clic, in metri");
  ambiente_.sessione.ModoEditor = ModoEditorRaggio;
  ambiente_.finestre.MostraModale(form);
  ambiente_.sessione.ModoEditor = 0;
  if (ambiente_.sessione.EsitoForm < 0) return;
  raggio_ = Valore(Sostituisci(form.Text1, ",", "."));
  Arma(StrumentoPF::Intorno);
}

void KR_ElcoPFGrafica::Clic(const PuntoPiano& posto) {
  switch (std::exchange(strumento_, StrumentoPF::Nessuno)) {
  case StrumentoPF::Foglio:
    return SelezionaFoglio(posto);
  case StrumentoPF::Intorno:
    return SelezionaIntorno(posto, raggio_);
  case StrumentoPF::ZoomFinestra:
  case StrumentoPF::Nessuno:
    return;
  }
}

void KR_ElcoPFGrafica::SelezionaFoglio(const PuntoPiano& posto) {
  const PuntoPF* vicino = PiuVicino(posto, Larghezza());
  if (vicino == nullptr) return;
  const std::string foglio(FoglioDi(vicino->nome));
  for (PuntoPF& punto : Punti)
    if (FoglioDi(punto.nome) == foglio) punto.selezionato = selezione::Si;
  RiDisegnaPF();
}

void KR_ElcoPFGrafica::SelezionaIntorno(const PuntoPiano& posto, double raggio) {
  for (PuntoPF& punto : Punti)
    if (DistanzaPiana({punto.est, punto.nord}, posto) < raggio) punto.selezionato = selezione::Si;
  RiDisegnaPF();
}

// --- archives

std::string KR_ElcoPFGrafica::ArchivioDellaProvincia() {
  std::string archivio = tabella_.provincia + ".DDD";
  if (ArchivioInstallato(ambiente_, archivio)) return archivio;
  std::string ultimo = TrovaArchivioMisurate(ambiente_, tabella_.comune);
  if (ArchivioInstallato(ambiente_, ultimo)) return ultimo;
  return archivio;
}

void KR_ElcoPFGrafica::MettiDistanzeMisurate(const std::string& archivio) {
  ambiente_.sessione.PuntoErrore = "MettiDistanzeMisurate";
  if (!ArchivioInstallato(ambiente_, archivio)) {
    ambiente_.dialoghi.Messaggio("Manca la Provincia " + archivio + std::string(FineRiga) + "Installare " + archivio);
    return;
  }
  const std::string testo = CaricaFileIntero(ambiente_, CartellaArchivi(ambiente_.sessione) + archivio);
  const auto nomi = Nomi(Punti);
  Segmenti = SegmentiDi(nomi, RigheDeiComuni(ambiente_.dialoghi, nomi, testo));
  if (Segmenti.size() > MassimoSegmenti) {
    const auto numero = [](std::size_t quanti) { return TestoIntero(static_cast<long long>(quanti)); };
    ambiente_.dialoghi.Messaggio("Trovate " + numero(Segmenti.size()) + " distanze misurate: si disegnano le prime " +
                                 numero(MassimoSegmenti) + ".");
    Segmenti.resize(MassimoSegmenti);
  }
  RiDisegnaPF();
}

// Without a choice in the manager nothing is added.
void KR_ElcoPFGrafica::AssociamiEstratto() {
  ambiente_.sessione.PuntoErrore = "AssociamiEstratto";
  std::string suo = std::exchange(ambiente_.sessione.EstrattoAssociato, {});
  const bool aperto = Intrappola(ambiente_, [&] { ApriForm(ambiente_, forma::EstrattiDiMappa); });
  const std::string scelto = std::exchange(ambiente_.sessione.EstrattoAssociato, std::move(suo));
  if (aperto && !scelto.empty()) AggiungiPunti(scelto);
}

void KR_ElcoPFGrafica::AggiungiPunti(std::string_view nome) {
  KR_Estratto estratto;
  if (!EsplodiEstratto(ambiente_, estratto, nome)) return;
  for (const auto riga : estratto.PF) {
    PuntoPF punto;
    punto.nome = Parte(riga, '|', 1);
    punto.est = Valore(Parte(riga, '|', 3));
    punto.nord = Valore(Parte(riga, '|', 2));
    Punti.push_back(std::move(punto));
  }
  ZoomTutto();
}

} // namespace lirmeto
