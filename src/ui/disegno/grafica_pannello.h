#pragma once
// A drawing with all that belongs to it: toolbar, surface, context menu and the line below that tells where the mouse
// is. The windows that show a drawing put it into their layout.

#include <core/ambiente.h>
#include <grafica/grafica.h>

#include <QWidget>

#include <cstdint>

class QAction;
class QLabel;
class QMenu;
class QToolBar;

namespace lirmeto::ui {

class GraficaSuperficie;

class GraficaPannello : public QWidget {
  Q_OBJECT
public:
  // Surroundings and drawing must outlive the panel. `ospite` is the number of the form that hosts it.
  GraficaPannello(Ambiente& ambiente, Grafica& grafica, std::int16_t ospite, QWidget* padre = nullptr);

  [[nodiscard]] QToolBar& Barra() { return *barra_; }
  [[nodiscard]] GraficaSuperficie& Superficie() { return *superficie_; }

  // Takes away the flags that decide what is loaded: those of a drawing that is made otherwise.
  void NascondiCaricamento();

  // The view as a picture file that the user chooses.
  void SalvaImmagine();

signals:
  // A flag has changed that decides what is loaded: the file must be loaded again.
  void RicaricaRichiesta();
  // The exchange file was all that the program was started for.
  void FineRichiesta();

private:
  void RiempiBarra();
  void AggiungiFlag(const QString& testo, const QString& spiegazione, bool VistaGrafica::*flag, bool siVedeSeSpento);
  void CambiaFlag(bool VistaGrafica::*flag, bool valore);
  void MostraMenu(const QPoint& sulloSchermo);
  void MostraPosto(double x, double y);
  void MostraConteggi();
  void FiniscePerScambio();

  Ambiente& ambiente_;
  Grafica& grafica_;
  QToolBar* barra_;
  GraficaSuperficie* superficie_;
  QMenu* menu_; // mnuZoom1
  QLabel* posto_;
  QLabel* conteggi_;
};

} // namespace lirmeto::ui
