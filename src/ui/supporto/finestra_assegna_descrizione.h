#pragma once
// The window of the form that gives the selected rows one note.

#include <supporto/assegna_descrizione.h>

#include <QDialog>

namespace lirmeto::ui {

class FinestraAssegnaDescrizione : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraAssegnaDescrizione(AssegnaDescrizione& modello, QWidget* padre = nullptr);

private:
  AssegnaDescrizione& modello_;
};

} // namespace lirmeto::ui
