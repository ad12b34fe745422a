#pragma once
// The drawing control as a model: store, view, loaders, mouse tools and exporters joined to what a form calls. The
// surface on the screen only paints what it says.

#include <core/ambiente.h>
#include <grafica/caricatori.h>
#include <grafica/disegno_condiviso.h>
#include <grafica/operazioni.h>
#include <grafica/righello.h>
#include <grafica/strumenti_mouse.h>

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace lirmeto {

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

class Grafica {
public:
  Grafica(Ambiente& ambiente, DisegnoCondiviso& disegno) : ambiente_(ambiente), disegno_(disegno), mouse_(disegno) {}
  Grafica(const Grafica&) = delete;
  Grafica& operator=(const Grafica&) = delete;

  // What a form sets.
  std::string Strumento;      // mouse tool, in any case; empty: none
  std::string NomeNuovoPunto; // of the next point
  std::string Percorso;       // of the file loaded last
  // A line that the surface lights up over the drawing; it is no part of the store, and no exporter sees it.
  std::optional<LineaGrafica> Evidenza;
  std::vector<PuntoPiano> PuntiEvidenza; // lit in the same way
  // The surface it is shown on, if any; it must take itself away before it goes.
  SuperficieGrafica* Picture1 = nullptr;
  // What a step of the wheel does where the form has a zoom of its own, forward or back.
  std::function<void(bool avanti)> Rotella;

  [[nodiscard]] const ArchivioGrafica& Archivio() const { return disegno_.archivio; }
  [[nodiscard]] VistaGrafica& Vista() { return disegno_.vista; }
  [[nodiscard]] const VistaGrafica& Vista() const { return disegno_.vista; }
  // Rows that the last loader filled.
  [[nodiscard]] const ListeGrafica& Liste() const { return liste_; }
  // What the mouse stands over, and what it holds.
  [[nodiscard]] const StrumentiMouse& Mouse() const { return mouse_; }

  // The ruler; while it is on, it has the left button before any tool.
  [[nodiscard]] const Righello& Metro() const { return metro_; }
  void AccendiMetro(bool acceso);
  void TogliVertice();
  // Lights the points that a row of LibrettoOriginale names, in sight; no row puts them out.
  void AccendiRiga(std::optional<std::size_t> riga);

  // Store.
  void KR_Clear();
  void KR_AggiungiPuntoGraf(PuntoGrafica punto) { disegno_.archivio.Aggiungi(std::move(punto)); }
  void KR_AggiungiLineaGraf(const LineaGrafica& linea) { disegno_.archivio.Aggiungi(linea); }
  // A line between the first points so named; nothing when either is missing.
  void KR_AggiungiLineaGraf2Punti(std::string_view primo, std::string_view secondo, const PennaGrafica& penna) {
    disegno_.archivio.AggiungiTra(primo, secondo, penna);
  }

  // View. Each ends with a repaint.
  void KR_ZoomTutto();
  void KR_ZoomPiu();  // height times 0.9
  void KR_ZoomMeno(); // height times 1.1
  void KR_ZoomUP();   // centre by a tenth of the height
  void KR_ZoomDown();
  void KR_ZoomLeft();
  void KR_ZoomRight();
  void KR_RidisegnaGrafica();
  // What a surface of this shape paints; `Rapporto` becomes it. Names are views into the store.
  [[nodiscard]] Operazioni Dipingi(double rapporto);

  // Toolbar and context menu, by the index of the entry; one that is not there does nothing. Errors are reported.
  void Toolbar(int indice);
  void mnuZoom1(int indice);
  void KR_CopiaImmagineGrafica();
  void KR_Stampa();

  // Events of the mouse; a position is in metres from the centre of the view.
  void MouseMove(const PuntoPiano& daCentro, TastoMouse tasto);
  void MouseDown(const PuntoPiano& daCentro, TastoMouse tasto);
  // The pointer comes upon the surface, or goes: the host's number is set, and the wheel zooms in between.
  void PuntatoreEntra(std::int16_t host);
  void PuntatoreEsce(std::int16_t host);

  // A step of the wheel: the form's own zoom or that of the drawing, if a hook stands. The place under the pointer stays
  // under it.
  void Rotola(bool avanti, const PuntoPiano& daCentro);

  // A tool that takes two picks forgets the first.
  void LasciaPresa() { mouse_.Lascia(); }

  // Tells the names of points less than 0.01 metres apart, pair by pair; nothing when there are none.
  void KR_PuntiCoincidenti();

  // Loaders. A file that is not there is error 53, and the drawing that stood before stays.
  void KR_CaricaEstratto_EMP(std::string_view percorso);
  void KR_CaricaPropostaDaLibretto(std::string_view percorso);
  void KR_Elaborazione_SUR(std::string_view percorso);
  void KR_LoadFileCSV(std::string_view percorso);
  void EsplodiPDF(std::string_view percorso);
  // By the extension: .EMP, .CSV, .PDF, .SUR; anything else is a libretto with a proposal.
  void CaricaDisegno(std::string_view percorso);
  // The store from the rows of List2, as `Check1` says; then the view fits it.
  void GeneraGrafica();

  // Exporters: the file's path. An empty store has no DXF: error 9.
  std::string KR_SalvaDXF();
  std::string GeneraHTML5_CANVAS();
  std::string GeneraStampa();
  std::string KR_CopiaInFile();

private:
  void CopiaInFileEDillo();
  void SalvaDXFEApri();
  void StampaConProgramma();
  void Prova(std::string_view punto, const std::function<void()>& comando);
  void Scala(double fattore);
  void Sposta(const PuntoPiano& quota);
  void Clicca(const PuntoPiano& daCentro);
  void AggiungiPuntoNuovo(const PuntoPiano& posto);
  void Carica(std::string_view percorso, ListeGrafica liste);

  Ambiente& ambiente_;
  DisegnoCondiviso& disegno_;
  StrumentiMouse mouse_;
  Righello metro_;
  ListeGrafica liste_;
};

} // namespace lirmeto
