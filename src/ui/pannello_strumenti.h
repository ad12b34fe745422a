#pragma once
// The tools panel: floats over the row list while the model says it is visible.

#include <applicazione/comandi.h>

#include <QFrame>

#include <functional>

namespace lirmeto::ui {

class PannelloStrumenti : public QFrame {
  Q_OBJECT
public:
  PannelloStrumenti(const std::function<bool(Comando)>& disponibile, QWidget* padre);

signals:
  void Premuto(lirmeto::Comando comando);
};

} // namespace lirmeto::ui
