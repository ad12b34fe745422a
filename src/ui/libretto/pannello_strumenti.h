#pragma once
// The tools panel: floats over the row list while the model says it is visible.

#include <applicazione/comandi.h>

#include <QFrame>

#include <string_view>

namespace lirmeto::ui {

class PannelloStrumenti : public QFrame {
  Q_OBJECT
public:
  explicit PannelloStrumenti(QWidget* padre);

  // The keyboard goes to its first tool.
  void Entra();

signals:
  // The tool's tag, which the table of the tools holds.
  void Premuto(std::string_view tag);
  // With Esc.
  void Lasciato();

protected:
  void keyPressEvent(QKeyEvent* evento) override;
};

} // namespace lirmeto::ui
