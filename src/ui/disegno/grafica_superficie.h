#pragma once
// The surface on the screen of a drawing: paints it, and hands the mouse to it.

#include <ui/disegno/grafica_pittura.h>

#include <grafica/grafica.h>

#include <QWidget>

#include <cstdint>

class QLabel;

namespace lirmeto::ui {

class GraficaSuperficie : public QWidget, public SuperficieGrafica {
  Q_OBJECT
public:
  // The drawing must outlive the surface. `ospite` is the number of the form that hosts it.
  GraficaSuperficie(Grafica& grafica, std::int16_t ospite, QWidget* padre = nullptr);
  ~GraficaSuperficie() override;
  GraficaSuperficie(const GraficaSuperficie&) = delete;
  GraficaSuperficie& operator=(const GraficaSuperficie&) = delete;

  void Ridisegna() override;
  void CopiaRaster() override;
  void Stampa() override;
  void MostraMenu() override;

  // What an empty drawing says: how to begin.
  void MettiInvito(const QString& invito) { invito_ = invito; }

  // Metres from the centre of the view, north up, of a place of the widget, and the place of map coordinates.
  [[nodiscard]] QPointF Metri(const QPointF& posto) const;
  [[nodiscard]] QPointF Posto(double x, double y) const;

  [[nodiscard]] QSize sizeHint() const override { return {900, 620}; }
  [[nodiscard]] QSize minimumSizeHint() const override { return {200, 150}; }

signals:
  // The mouse stands over these map coordinates, metres.
  void Sopra(double x, double y);
  void Uscito();
  void Ridisegnata();
  // The ruler was left with its key.
  void RighelloLasciato();
  // The context menu is wanted, at the pointer.
  void MenuRichiesto(const QPoint& sulloSchermo);

protected:
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;
  void mouseMoveEvent(QMouseEvent* evento) override;
  void mousePressEvent(QMouseEvent* evento) override;
  void mouseReleaseEvent(QMouseEvent* evento) override;
  void wheelEvent(QWheelEvent* evento) override;
  void keyPressEvent(QKeyEvent* evento) override;
  void changeEvent(QEvent* evento) override;
  void enterEvent(QEnterEvent* evento) override;
  void leaveEvent(QEvent* evento) override;

private:
  // What the picture kept shows.
  struct Ritratto {
    VistaGrafica vista;
    std::uint64_t versione = 0;
    QSize misura;
  };

  void AggiornaTela();
  [[nodiscard]] bool Scorri(const Operazioni& lista, const Ritratto& adesso);
  void DisponiNomi(PittoreSchermo& pittore, const Operazioni& lista, const QSize& misura) const;
  void DipingiSullaTela(const Operazioni& lista, const QRegion& dove);
  void DipingiEvidenza(QPainter& pittore) const;
  void DipingiPuntoVicino(QPainter& pittore) const;
  void DipingiScala(QPainter& pittore) const;
  void DipingiRighello(QPainter& pittore) const;
  void DipingiMisura(QPainter& pittore) const;
  void DipingiInvito(QPainter& pittore) const;
  void MostraEtichetta();
  [[nodiscard]] TastoMouse Tasto(Qt::MouseButtons tasti) const;
  [[nodiscard]] QSize MisuraTela() const;

  Grafica& grafica_;
  std::int16_t ospite_;
  PittoreSchermo pittore_;
  QImage tela_;       // the drawing, in device pixels
  Ritratto ritratto_; // what stands on it
  QLabel* label1_;
  QString invito_;
  bool sopra_ = false; // the pointer is on it
  int rotella_ = 0;    // eighths of a degree that are not a whole notch yet
};

} // namespace lirmeto::ui
