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

signals:
  // The tool's tag, which the table of the tools holds.
  void Premuto(std::string_view tag);
};

} // namespace lirmeto::ui
