#pragma once
// The pane beside the rows: the picture of the survey, and the line below that says what it is.

#include <verifiche/figura_rilievo.h>

#include <QWidget>

#include <optional>

class QLabel;

namespace lirmeto::ui {

class GraficaSuperficie;

class PannelloRilievo : public QWidget {
  Q_OBJECT
public:
  // The picture must outlive the pane.
  explicit PannelloRilievo(FiguraRilievo& figura, QWidget* padre = nullptr);

  // Takes up what changed in the picture.
  void Mostra();

signals:
  // A place of the map was clicked; a point counts within so many metres.
  void Cliccato(const PuntoPiano& posto, double entro);
  void ChiusuraRichiesta();

protected:
  bool eventFilter(QObject* chi, QEvent* evento) override;

private:
  [[nodiscard]] QWidget* CreaTestata();

  FiguraRilievo& figura_;
  GraficaSuperficie* superficie_;
  QLabel* avviso_;
  std::optional<QPointF> premuto_; // where the left button went down
};

} // namespace lirmeto::ui
