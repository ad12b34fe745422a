#pragma once
// A list with its title above it.

class QListWidget;
class QString;
class QWidget;

namespace lirmeto::ui {

// The title names the list for screen readers too.
[[nodiscard]] QWidget* ColonnaElenco(const QString& titolo, QListWidget& elenco);

} // namespace lirmeto::ui
