#pragma once

#include <QString>

class QAbstractItemView;

namespace lirmeto::ui {

// While a list with its model is empty, a text in its middle that says how to begin.
void MettiInvito(QAbstractItemView& elenco, const QString& testo);

} // namespace lirmeto::ui
