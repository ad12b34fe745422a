#pragma once
// What every form gets before it is shown.

class QWidget;

namespace lirmeto::ui {

// The order of the Tab key, letters for its captions, a menu on its lists; no bar can be typed into its boxes, but for
// those that look for a text (property "cerca").
void PreparaFinestra(QWidget& finestra);

} // namespace lirmeto::ui
