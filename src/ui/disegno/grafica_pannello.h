#pragma once
// A drawing with all that belongs to it: toolbar, surface, context menu and the line below that tells where the mouse
// is. The windows that show a drawing put it into their layout.

#include <core/ambiente.h>
#include <grafica/comandi_grafica.h>
#include <grafica/grafica.h>

#include <QWidget>

#include <cstdint>

class QAction;
class QLabel;
class QListView;
class QMenu;

namespace lirmeto::ui {

class BarraACapo;

class GraficaSuperficie;
class ModelloClasse;

class GraficaPannello : public QWidget {
  Q_OBJECT
public:
  // Surroundings and drawing must outlive the panel. `ospite` is the number of the form that hosts it.
  GraficaPannello(Ambiente& ambiente, Grafica& grafica, std::int16_t ospite, QWidget* padre = nullptr);

  [[nodiscard]] BarraACapo& Barra() { return *barra_; }
  [[nodiscard]] GraficaSuperficie& Superficie() { return *superficie_; }

  // Takes away the flags that decide what is loaded, and the rows: those of a drawing that is made otherwise.
  void NascondiCaricamento();

  // Shows the rows in use beside the drawing; one chosen there lights its points.
  void MostraRighe(bool si);

  // The view as a picture file that the user chooses.
  void SalvaImmagine();

signals:
  // A flag has changed that decides what is loaded: the file must be loaded again.
  void RicaricaRichiesta();

private:
  // A display flag as a button.
  struct VoceFlag {
    const char* icona;
    const char* testo;
    const char* spiegazione;
    bool VistaGrafica::*flag;
    bool siVedeSeSpento; // the flag hides something: its button is down while it is off
  };

  [[nodiscard]] QWidget* CreaRighe();
  void RiempiBarra();
  void RiempiMenu();
  void AggiungiVoce(const VoceGrafica& voce);
  void AggiungiStrumenti();
  void AggiungiFlag(const VoceFlag& voce);
  void AggiornaRighe();
  void CambiaFlag(bool VistaGrafica::*flag, bool valore);
  void MostraMenu(const QPoint& sulloSchermo);
  void MostraPosto(double x, double y);
  void MostraConteggi();
  void FiniscePerScambio();

  Ambiente& ambiente_;
  Grafica& grafica_;
  BarraACapo* barra_;
  GraficaSuperficie* superficie_;
  ModelloClasse* righe_; // LibrettoOriginale
  QListView* elenco_;
  QAction* mostraRighe_ = nullptr;
  QAction* righello_ = nullptr;
  std::uint64_t versioneRighe_ = 0; // of the drawing, when the rows were read
  QMenu* menu_;                     // mnuZoom1
  QLabel* posto_;
  QLabel* conteggi_;
};

} // namespace lirmeto::ui
