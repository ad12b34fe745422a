// The mouse over the drawing: readout, pan, drawing tools, coincident points.

#include <grafica/grafica.h>

#include <base/numeri.h>
#include <base/testo.h>
#include <core/servizi.h>

namespace lirmeto {

namespace {

constexpr double LimiteVicino = 100'000;      // metres: farther points are not looked for
constexpr double StessoPosto = 0.01;          // metres: points closer than this stand on each other
constexpr std::size_t TestoMassimo = 1 << 20; // bytes of names; a box shows a few thousand of them

// A point placed by a tool.
constexpr std::string_view TestoNuovo = "SF";
constexpr double DimensioneNuovo = 10;

std::string CoordinataContorno(double valore, std::string_view formato) {
  return Sostituisci(Formatta(valore, formato), ",", ".");
}

} // namespace

double Grafica::DistanzaDuePuntiNuova(double x1, double y1, double x2, double y2) {
  return DistanzaPiana(x1, y1, x2, y2);
}

void Grafica::AggiornaIndice() {
  if (generazioneIndice_ != Archivio().Generazione()) indice_.Svuota();
  generazioneIndice_ = Archivio().Generazione();
  indice_.Segui(Archivio().Punti());
}

std::size_t Grafica::KR_IlPiuVicinoAlMouse(double x, double y) {
  AggiornaIndice();
  return indice_.PiuVicino(Archivio().Punti(), x, y, LimiteVicino);
}

const PuntoGrafica& Grafica::PuntoVicino(double x, double y) {
  static const PuntoGrafica nessuno; // an empty store: the first slot holds zeros
  const std::size_t indice = KR_IlPiuVicinoAlMouse(x, y);
  return indice < Archivio().Punti().size() ? Archivio().Punti()[indice] : nessuno;
}

void Grafica::PuntoMedio(double x1, double y1, double x2, double y2) {
  MedioX = (x1 + x2) / 2;
  MedioY = (y1 + y2) / 2;
}

// Pairs in the order of their first point, then of the second. A heap of points at one place has more pairs than any
// box can show: the text ends where nobody reads on.
void Grafica::KR_PuntiCoincidenti() {
  AggiornaIndice();
  const auto& punti = Archivio().Punti();
  std::string testo;
  for (std::size_t i = 0; i < punti.size() && testo.size() < TestoMassimo; ++i)
    for (const std::size_t j : indice_.Vicini(punti, punti[i].X, punti[i].Y, StessoPosto)) {
      if (j <= i) continue;
      testo += punti[i].Nome + " " + punti[j].Nome + " ";
      if (testo.size() >= TestoMassimo) break;
    }
  if (!testo.empty()) ambiente_.dialoghi.Messaggio(testo);
}

void Grafica::MouseMove(double x, double y, TastoMouse tasto) {
  const VistaGrafica& vista = disegno_.vista;
  const auto& punti = Archivio().Punti();
  const PuntoGrafica& vicino = PuntoVicino(x + vista.Xc, y + vista.Yc);
  UltimoX = vicino.X;
  UltimoY = vicino.Y;
  UltimoNome = vicino.Nome;
  std::string nomi;
  for (const std::size_t indice : indice_.Vicini(punti, vicino.X, vicino.Y, StessoPosto)) {
    nomi += punti[indice].Nome + " ";
    UltimoX = punti[indice].X;
    UltimoY = punti[indice].Y;
    UltimoNome = punti[indice].Nome;
  }
  Label1 = {std::string(Taglia(nomi)), vicino.X, vicino.Y, true};
  CursoreSposta = tasto == TastoMouse::Centrale;
  if (!CursoreSposta) return;
  disegno_.vista.Xc = PanXc - (x - PanMouseX);
  disegno_.vista.Yc = PanYc - (y - PanMouseY);
  KR_RidisegnaGrafica();
}

void Grafica::MouseDown(double x, double y, TastoMouse tasto) {
  switch (tasto) {
  case TastoMouse::Destro:
    if (Picture1 != nullptr) Picture1->MostraMenu();
    break;
  case TastoMouse::Centrale:
    PanMouseX = x;
    PanMouseY = y;
    PanXc = disegno_.vista.Xc;
    PanYc = disegno_.vista.Yc;
    break;
  case TastoMouse::Sinistro:
    Prova("MouseDown", [&] { Clicca(x, y); });
    break;
  case TastoMouse::Nessuno:
    break;
  }
}

void Grafica::PuntatoreEntra(std::int16_t host) {
  ambiente_.sessione.HostGrafica = host;
  disegno_.gancio.Installa([this](bool avanti) { avanti ? KR_ZoomPiu() : KR_ZoomMeno(); });
}

void Grafica::PuntatoreEsce(std::int16_t host) {
  ambiente_.sessione.HostGrafica = host;
  disegno_.gancio.Togli();
}

void Grafica::Clicca(double x, double y) {
  const std::string strumento = Maiuscolo(Strumento);
  const bool rosso = strumento == "CONTORNOROSSO";
  const bool medio = strumento == "PUNTOMEDIO" || strumento == "PUNTOBILATERA";
  if (!rosso && !medio && strumento != "CONTORNONERO" && strumento != "NUOVOPUNTO")
    return CentraMouse(static_cast<float>(x), static_cast<float>(y));
  const PuntoGrafica& vicino = PuntoVicino(x + disegno_.vista.Xc, y + disegno_.vista.Yc);
  UltimoX = vicino.X;
  UltimoY = vicino.Y;
  UltimoNome = vicino.Nome;
  if (medio) return PrendiMedio();
  if (strumento == "NUOVOPUNTO") return AggiungiPuntoNuovo(UltimoX, UltimoY);
  PrendiContorno(rosso ? colore::RossoChiaro : colore::Nero);
}

// The tool takes one name: the next point has none until the form gives one.
void Grafica::AggiungiPuntoNuovo(double x, double y) {
  PuntoGrafica punto;
  punto.Nome = std::exchange(NomeNuovoPunto, {});
  punto.X = x;
  punto.Y = y;
  punto.Testo = TestoNuovo;
  punto.Font = FontPredefinito;
  punto.Dimensione = DimensioneNuovo;
  KR_AggiungiPuntoGraf(std::move(punto));
  KR_RidisegnaGrafica();
}

// A chain: each pick is joined to the one before and becomes the next one's beginning.
void Grafica::PrendiContorno(std::int16_t colore) {
  if (Passo == 1) KR_AggiungiLineaGraf2Punti(NomePrimoPunto, UltimoNome, colore, 1, stile::Continuo);
  NomePrimoPunto = UltimoNome;
  Passo = 1;
  KR_RidisegnaGrafica();
  ScriviContorno();
}

void Grafica::ScriviContorno() {
  const std::string file = ambiente_.sessione.CartellaProgramma + "\\TEMP\\CONTORNO.TXT";
  std::string testo = ambiente_.disco.Esiste(file) ? ambiente_.disco.Leggi(file) : std::string();
  testo += "al punto  X=" + CoordinataContorno(UltimoX, "###########.000");
  testo += "  Y=" + CoordinataContorno(UltimoY, "##########.000");
  testo += "  Z=   0" + std::string(FineRiga);
  ambiente_.disco.Scrivi(file, testo);
}

void Grafica::PrendiMedio() {
  if (Passo == 0) {
    PrimoX = UltimoX;
    PrimoY = UltimoY;
    Passo = 1;
    return;
  }
  SecondoX = UltimoX;
  SecondoY = UltimoY;
  PuntoMedio(PrimoX, PrimoY, SecondoX, SecondoY);
  AggiungiPuntoNuovo(MedioX, MedioY);
  Passo = 0;
}

} // namespace lirmeto
