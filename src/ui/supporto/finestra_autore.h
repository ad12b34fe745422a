#pragma once
// The window that says what the program is.

#include <applicazione/autore.h>

#include <QDialog>

namespace lirmeto::ui {

class FinestraAutore : public QDialog {
  Q_OBJECT
public:
  explicit FinestraAutore(autore& modello, QWidget* padre = nullptr);
};

} // namespace lirmeto::ui
