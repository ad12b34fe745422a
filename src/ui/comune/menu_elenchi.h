#pragma once
// The menu that lists and tables have in common.

class QWidget;

namespace lirmeto::ui {

// Each list and table of the window that has no menu of its own gets one: copy, and select all where more than one
// line can be selected. What is copied are the selected lines, else the current one, cells with a tab between.
void DaiMenuAgliElenchi(QWidget& finestra);

} // namespace lirmeto::ui
