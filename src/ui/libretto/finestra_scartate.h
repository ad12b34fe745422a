#pragma once
// The window that lists the rows which the last reorder dropped.

#include <core/righe_scartate.h>

#include <QDialog>

namespace lirmeto::ui {

class FinestraScartate : public QDialog {
  Q_OBJECT
public:
  // The model must outlive the window.
  explicit FinestraScartate(FormRigheScartate& modello, QWidget* padre = nullptr);

private:
  [[nodiscard]] QWidget* CreaPiede();

  FormRigheScartate& modello_;
};

} // namespace lirmeto::ui
