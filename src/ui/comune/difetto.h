#pragma once
// A box whose text is wrong.

class QLineEdit;
class QString;

namespace lirmeto::ui {

// Gives the box a frame that tells it apart and the reason as its hint; an empty reason takes both away.
void SegnaDifetto(QLineEdit& casella, const QString& perche);

} // namespace lirmeto::ui
