#pragma once
// The box that searches a list moves through it too.

class QAbstractItemView;
class QLineEdit;

namespace lirmeto::ui {

// Up, Down, Page Up and Page Down typed in the box go to the list, which must outlive it.
void FrecceAllElenco(QLineEdit& casella, QAbstractItemView& elenco);

} // namespace lirmeto::ui
