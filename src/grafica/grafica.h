#pragma once
// The drawing control as a model: its lists, its view, its loaders, tools and exporters over the shared store. The
// surface on the screen only paints what it says.

#include <core/ambiente.h>
#include <core/lista_righe.h>
#include <grafica/archivio_grafica.h>
#include <grafica/gancio_grafica.h>
#include <grafica/indice_punti.h>
#include <grafica/operazioni.h>
#include <grafica/scambio.h>
#include <grafica/vista_grafica.h>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lirmeto {

// Store, view and hook are one for all instances; the owner of the instances hands them to each.
struct DisegnoCondiviso {
  ArchivioGrafica archivio;
  VistaGrafica vista;
  GancioGrafica gancio;
};

// What the drawing asks of the surface that it is shown on. On the command line there is none, and nothing is asked.
class SuperficieGrafica {
public:
  SuperficieGrafica() = default;
  SuperficieGrafica(const SuperficieGrafica&) = delete;
  SuperficieGrafica& operator=(const SuperficieGrafica&) = delete;
  virtual ~SuperficieGrafica() = default;

  // Store or view have changed: the surface paints the drawing again.
  virtual void Ridisegna() = 0;
  // The surface as a raster into the clipboard.
  virtual void CopiaRaster() = 0;
  // The user chooses a printer and the drawing is painted on it. Errors: 32755 cancelled, 482 the printer does not go.
  virtual void Stampa() = 0;
  // The context menu, at the pointer.
  virtual void MostraMenu() = 0;
};

enum class TastoMouse { Nessuno, Sinistro, Centrale, Destro };

// The label beside the point under the mouse, in map coordinates.
struct EtichettaMouse {
  std::string testo;
  double x = 0;
  double y = 0;
  bool visibile = false;
};

class Grafica {
public:
  // Reads the user's display flags; the end of the instance keeps them.
  Grafica(Ambiente& ambiente, DisegnoCondiviso& disegno);
  Grafica(const Grafica&) = delete;
  Grafica& operator=(const Grafica&) = delete;
  ~Grafica();

  // Rows that the loaders fill.
  std::array<ListaRighe, 2> List2; // rows of the extract; rows of the updated extract
  ListaRighe List1;
  ListaRighe List3;
  ListaRighe List4;
  ListaRighe List5;
  ListaRighe LibrettoOriginale; // the visible list of the rows in use
  std::string Percorso;         // of the file loaded last

  // The surface it is shown on, if any; it must take itself away before it goes.
  SuperficieGrafica* Picture1 = nullptr;

  // Mouse tools.
  std::string Strumento;      // in any case; empty: none
  std::string NomeNuovoPunto; // of the next point
  std::string UltimoNome;     // of the point under the mouse
  double UltimoX = 0;         // its position, metres
  double UltimoY = 0;         //
  std::int16_t Passo = 0;     // 1: a first pick is held
  std::string NomePrimoPunto; // first pick of a contour
  double PrimoX = 0;          // picks of a middle point
  double PrimoY = 0;          //
  double SecondoX = 0;        //
  double SecondoY = 0;        //
  double MedioX = 0;          // result of PuntoMedio
  double MedioY = 0;          //
  double PanMouseX = 0;       // when a pan began: mouse from the centre of the view,
  double PanMouseY = 0;       //
  double PanXc = 0;           // and centre
  double PanYc = 0;           //
  EtichettaMouse Label1;      // readout of the point under the mouse
  bool CursoreSposta = false; // the pointer has the shape of moving in all directions
  // A line that the surface lights up over the drawing; it is no part of the store, and no exporter sees it.
  std::optional<LineaGrafica> Evidenza;

  [[nodiscard]] const ArchivioGrafica& Archivio() const { return disegno_.archivio; }
  [[nodiscard]] VistaGrafica& Vista() { return disegno_.vista; }
  [[nodiscard]] const VistaGrafica& Vista() const { return disegno_.vista; }
  [[nodiscard]] GancioGrafica& Gancio() { return disegno_.gancio; }

  // Shows an error box.
  void MostraErrore(std::string_view testo);

  // Store.
  void KR_Clear();
  void KR_AggiungiPuntoGraf(PuntoGrafica punto) { disegno_.archivio.Aggiungi(std::move(punto)); }
  void KR_AggiungiLineaGraf(const LineaGrafica& linea) { disegno_.archivio.Aggiungi(linea); }
  // A line between the first points so named; nothing when either is missing.
  void KR_AggiungiLineaGraf2Punti(std::string_view primo, std::string_view secondo, std::int16_t colore,
                                  std::int16_t spessore, std::int16_t stile);

  // View. Each ends with a repaint.
  void KR_ZoomTutto();
  void KR_ZoomPiu();  // height times 0.9
  void KR_ZoomMeno(); // height times 1.1
  void KR_ZoomUP();   // centre by a tenth of the height
  void KR_ZoomDown();
  void KR_ZoomLeft();
  void KR_ZoomRight();
  void CentraMouse(float x, float y);
  void KR_RidisegnaGrafica();
  // What a surface of this shape paints; `Rapporto` becomes it. Names are views into the store.
  [[nodiscard]] Operazioni Dipingi(double rapporto);

  // Toolbar and context menu, by the index of the entry; one that is not there does nothing. Errors are reported.
  void Toolbar(int indice);
  void mnuZoom1(int indice);
  void KR_CopiaImmagineGrafica();
  void KR_Stampa();

  // Events of the mouse; a position is in metres from the centre of the view, north up.
  void MouseMove(double x, double y, TastoMouse tasto);
  void MouseDown(double x, double y, TastoMouse tasto);
  // The pointer comes upon the surface, or goes: the host's number is set, and the wheel zooms in between.
  void PuntatoreEntra(std::int16_t host);
  void PuntatoreEsce(std::int16_t host);

  // Picking.
  [[nodiscard]] static double DistanzaDuePuntiNuova(double x1, double y1, double x2, double y2);
  // Index of the nearest point, the first of equal ones, in map coordinates. 0 when all are 100,000 metres away or
  // more.
  [[nodiscard]] std::size_t KR_IlPiuVicinoAlMouse(double x, double y);
  void PuntoMedio(double x1, double y1, double x2, double y2);
  // Tells the names of points less than 0.01 metres apart, pair by pair; nothing when there are none.
  void KR_PuntiCoincidenti();

  // What every loader does first: keeps the path, empties lists and store.
  void Comincia(std::string_view percorso);
  // Loaders. A file that is not there is error 53, and the drawing that stood before stays.
  void KR_CaricaEstratto_EMP(std::string_view percorso);
  void KR_CaricaPropostaDaLibretto(std::string_view percorso);
  void KR_CaricaProposta_SUR(std::string_view percorso);
  void KR_Elaborazione_SUR(std::string_view percorso);
  void KR_LoadFileCSV(std::string_view percorso);
  void EsplodiPDF(std::string_view percorso);
  // By the extension: .EMP, .CSV, .PDF, .SUR; anything else is a libretto with a proposal.
  void CaricaDisegno(std::string_view percorso);
  // The store from the rows of List2, as `Check1` says; then the view fits it.
  void GeneraGrafica();
  void AggiungiGrafica(std::size_t indice, int modo);
  // The label of a parcel at the mean of its vertices. A ring none of whose vertices is a point is error 11.
  void KR_AggiungiNomeParticella(std::string_view riga7, std::int16_t colore);

  // Exporters: the file's path. An empty store has no DXF: error 9.
  std::string KR_SalvaDXF();
  std::string GeneraHTML5_CANVAS();
  std::string GeneraStampa();
  std::string KR_CopiaInFile();

  // The exchange file by its records; it is written when it is closed.
  void ApriCopiaInfile();
  void SalvaPuntoCopiaInFile(const PuntoGrafica& punto) { copia_.Punto(punto); }
  void SalvaLineaCopiaInFile(const LineaGrafica& linea) { copia_.Linea(linea); }
  std::string ChiudiCopiaInFile();
  // Set when the exchange file was all that the program was started for: it ends then.
  bool FineProgramma = false;

  // A row 8 named `NomeNuovoPunto` behind the rows of the file loaded last.
  void AggiungiPuntoAFile(double x, double y);

private:
  void SalvaDXFEApri();
  void StampaConProgramma();
  void Prova(std::string_view punto, const std::function<void()>& comando);

  void Clicca(double x, double y);
  void PrendiContorno(std::int16_t colore);
  void PrendiMedio();
  void AggiungiPuntoNuovo(double x, double y);
  void ScriviContorno();
  [[nodiscard]] const PuntoGrafica& PuntoVicino(double x, double y);
  void AggiornaIndice();

  Ambiente& ambiente_;
  DisegnoCondiviso& disegno_;
  IndicePunti indice_;
  std::uint64_t generazioneIndice_ = 0;
  ScrittoreScambio copia_; // exchange file that is open
};

} // namespace lirmeto
