#pragma once
// Boxes whose text goes into a row: no bar can be typed into them, since it would end the field.

class QLineEdit;

namespace lirmeto::ui {

// A bar that is typed does not come in; those of a text that is pasted become blanks.
void RifiutaBarre(QLineEdit& casella);

} // namespace lirmeto::ui
