#pragma once
// The foot of a window where something is chosen.

#include <QString>

class QDialog;
class QHBoxLayout;
class QPushButton;

namespace lirmeto::ui {

struct PiedeScelta {
  QHBoxLayout* riga;     // whatever goes to its left is inserted at 0
  QPushButton* conferma; // pressed by Enter
};

// The button that takes what is selected, and "Chiudi", which leaves the window.
[[nodiscard]] PiedeScelta CreaPiedeScelta(const QString& conferma, QDialog& finestra);

} // namespace lirmeto::ui
