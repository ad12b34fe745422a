#include <grafica/comandi_grafica.h>

#include <base/testo.h>
#include <core/mostra_errore.h>
#include <core/programmi.h>
#include <grafica/grafica.h>

#include <array>

namespace lirmeto {

namespace {

constexpr std::array<VoceGrafica, 12> Barra = {{
    {0, "zoom_tutto", "Tutto", "Mostra tutto il disegno"},
    {10, "zoom_piu", "Ingrandisci", "Ingrandisce (rotella avanti)"},
    {11, "zoom_meno", "Riduci", "Riduce (rotella indietro)"},
    {6, "sinistra", "Sinistra", "Sposta il disegno a sinistra"},
    {9, "destra", "Destra", "Sposta il disegno a destra"},
    {7, "su", "Su", "Sposta il disegno in alto"},
    {8, "giu", "Giù"_w, "Sposta il disegno in basso"},
    {1, "copia", "Copia", "Copia l'immagine negli appunti"},
    {3, "scambio", "Scambio", "Copia in file: scrive il disegno nel file di scambio"},
    {4, "dxf", "DXF", "Salva il disegno in DXF"},
    {12, "pagina", "Pagina", "Scrive il disegno in una pagina HTML e la apre"},
    {5, "stampa", "Stampa", "Scrive gli ordini di stampa e avvia il programma di stampa"},
}};

constexpr std::array<VoceGrafica, 7> Menu = {{
    {0, "zoom_tutto", "Zoom tutto", ""},
    {1, "", "", ""},
    {2, "copia", "Copia immagine", ""},
    {3, "stampa", "Stampa diretta...", ""},
    {4, "scambio", "Copia in file", ""},
    {5, "dxf", "Salva in DXF", ""},
    {6, "stampa", "Stampa con Print", ""},
}};

} // namespace

std::span<const VoceGrafica> VociToolbar() {
  return Barra;
}

std::span<const VoceGrafica> VociMnuZoom1() {
  return Menu;
}

void Grafica::Toolbar(int indice) {
  Prova("Toolbar", [&] {
    switch (indice) {
    case 0:
      return KR_ZoomTutto();
    case 1:
      return KR_CopiaImmagineGrafica();
    case 3:
      return CopiaInFileEDillo();
    case 4:
      return SalvaDXFEApri();
    case 5:
      return StampaConProgramma();
    case 6:
      return KR_ZoomLeft();
    case 7:
      return KR_ZoomUP();
    case 8:
      return KR_ZoomDown();
    case 9:
      return KR_ZoomRight();
    case 10:
      return KR_ZoomPiu();
    case 11:
      return KR_ZoomMeno();
    case 12:
      return static_cast<void>(GeneraHTML5_CANVAS());
    default:
      return; // 2 is a gap in the bar
    }
  });
}

void Grafica::mnuZoom1(int indice) {
  Prova("mnuZoom1", [&] {
    switch (indice) {
    case 0:
      return KR_ZoomTutto();
    case 2:
      return KR_CopiaImmagineGrafica();
    case 3:
      return KR_Stampa();
    case 4:
      return CopiaInFileEDillo();
    case 5:
      return SalvaDXFEApri();
    case 6:
      return StampaConProgramma();
    default:
      return; // 1 is the line in the menu
    }
  });
}

void Grafica::Prova(std::string_view punto, const std::function<void()>& comando) {
  ambiente_.sessione.PuntoErrore = punto;
  (void)Intrappola(ambiente_, comando);
}

void Grafica::KR_CopiaImmagineGrafica() {
  if (Picture1 == nullptr) return;
  Picture1->CopiaRaster();
  ambiente_.dialoghi.Messaggio("Immagine Copiata negli Appunti di Windows.", "Copia Raster");
}

void Grafica::KR_Stampa() {
  if (Picture1 != nullptr) Picture1->Stampa();
}

void Grafica::SalvaDXFEApri() {
  const std::string file = KR_SalvaDXF();
  ambiente_.dialoghi.Messaggio("Salvato il file " + std::string(FineRiga) + file, "Salva in DXF");
  if (ambiente_.dialoghi.Chiedi("Aprire il file DXF ?", "Apertura file DXF ", Bottoni::SiNo) == Risposta::Si)
    ApriDocumentoODillo(ambiente_, file);
}

// Nobody is told who only hands over the drawing.
void Grafica::CopiaInFileEDillo() {
  const std::string file = KR_CopiaInFile();
  if (ambiente_.sessione.FineScambio) return;
  ambiente_.dialoghi.Messaggio("Salvato il file " + std::string(FineRiga) + file, "Copia in file");
}

void Grafica::StampaConProgramma() {
  const std::string ordini = GeneraStampa();
  AttendiProgramma(ambiente_, ambiente_.sessione.CartellaProgramma + "\\print.exe", {ordini});
}

} // namespace lirmeto
