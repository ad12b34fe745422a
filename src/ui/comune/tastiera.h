#pragma once
// The keyboard in a window: Tab goes from widget to widget as the eye does, and Alt with an underlined letter goes to
// a box or presses a button.

#include <QSet>

class QChar;
class QWidget;

namespace lirmeto::ui {

// The order of the Tab key is that of the layouts: rows from above, in a row from the left; columns that stand side by
// side one after the other.
void OrdinaTab(QWidget& finestra);

// Gives the captions of boxes and buttons a letter each that no other of the window has; letters of `prese` are not
// free, captions that have one already keep it. Where there are more captions than letters boxes come first. A label that
// stands before a box or list becomes its caption.
void AssegnaMnemoniche(QWidget& finestra, const QSet<QChar>& prese = {});

} // namespace lirmeto::ui
