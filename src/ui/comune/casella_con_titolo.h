#pragma once
// The title of a group, a box with its title beside it, and what a box shows.

#include <string>

class QGridLayout;
class QLabel;
class QLineEdit;
class QString;
class QWidget;

namespace lirmeto::ui {

[[nodiscard]] QLabel* TitoloGruppo(const QString& testo, QWidget* padre);

// What stands back behind the boxes: the unit of a number, a word of advice.
[[nodiscard]] QLabel* Tenue(const QString& testo, QWidget* padre);

// A box in the next row of a grid, its title to its left. What is typed goes to `valore`, which must outlive it; the
// title names the box for screen readers too.
[[nodiscard]] QLineEdit* AggiungiCasella(QGridLayout& griglia, const QString& titolo, const QString& nome,
                                         std::string& valore, QWidget* padre);

// Shows a text without losing the place of the caret; nothing happens where it stands already.
void MettiTesto(QLineEdit& casella, const std::string& testo);

} // namespace lirmeto::ui
