#include <ui/comune/difetto.h>

#include <QLineEdit>
#include <QString>
#include <QStyle>
#include <QVariant>

namespace lirmeto::ui {

void SegnaDifetto(QLineEdit& casella, const QString& perche) {
  constexpr const char* proprieta = "difetto"; // the style sheet knows it
  const bool si = !perche.isEmpty();
  if (casella.property(proprieta).toBool() == si && (!si || casella.toolTip() == perche)) return;
  casella.setProperty(proprieta, si);
  casella.setToolTip(perche);
  casella.setAccessibleDescription(perche);
  casella.style()->unpolish(&casella);
  casella.style()->polish(&casella);
}

} // namespace lirmeto::ui
