#pragma once
// The window of the fiducial points on a plane: the drawing's own surface under two rows of buttons.

#include <fiduciali/elco_pf_grafica.h>

#include <QDialog>

class QCheckBox;
class QLabel;
class QMenu;
class QRubberBand;

namespace lirmeto::ui {

class BarraACapo;

class GraficaSuperficie;

class FinestraElcoPfGrafica : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraElcoPfGrafica(KR_ElcoPFGrafica& modello, QWidget* padre = nullptr);

  [[nodiscard]] GraficaSuperficie& Superficie() { return *superficie_; }

protected:
  bool eventFilter(QObject* oggetto, QEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;

private:
  void RiempiComandi();
  void RiempiSelezione();
  void Esegui(int indice);
  bool UsaStrumento(QEvent& evento);
  void Traccia(const QPoint& posto);
  void Ridimensiona();
  void Mostra();
  [[nodiscard]] QPointF Mappa(const QPointF& posto) const;

  KR_ElcoPFGrafica& modello_;
  BarraACapo* comandi_;
  BarraACapo* selezione_;
  GraficaSuperficie* superficie_;
  QMenu* menu_;
  QRubberBand* riquadro_; // of the window zoom
  QPoint angolo_;         // where it began
  QLabel* posto_;
  QLabel* conteggi_;
};

} // namespace lirmeto::ui
