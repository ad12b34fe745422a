#pragma once
// A bar of buttons for the actions of a widget. What does not fit into a line goes on in the next: no button is ever
// hidden.

#include <QList>
#include <QWidget>

class QToolButton;

namespace lirmeto::ui {

class DisposizioneACapo;

// Its actions are those of the widget (`addAction`, `insertAction`); one that is a separator is an upright line. Where the
// captions would make it taller than a few lines the icons stand alone, with the captions in their tooltips.
class BarraACapo : public QWidget {
  Q_OBJECT
public:
  explicit BarraACapo(QWidget* padre = nullptr);

  // Of the buttons that are added from now on.
  void MettiStile(Qt::ToolButtonStyle stile) { stile_ = stile; }
  // A line between what stands before it and what is added next.
  void Separa(QAction* prima = nullptr);
  // Any widget, in line with the buttons.
  void Aggiungi(QWidget* oggetto);
  // What is added next stands at the right end of its line.
  void Allarga();

protected:
  void actionEvent(QActionEvent* evento) override;
  void paintEvent(QPaintEvent* evento) override;
  void resizeEvent(QResizeEvent* evento) override;

private:
  [[nodiscard]] int PostoDi(const QAction* azione) const;
  [[nodiscard]] QWidget* CreaPer(QAction* azione);
  void Didascalie(bool si);

  DisposizioneACapo* riga_;
  QList<QToolButton*> conDidascalia_;
  Qt::ToolButtonStyle stile_ = Qt::ToolButtonTextBesideIcon;
};

} // namespace lirmeto::ui
