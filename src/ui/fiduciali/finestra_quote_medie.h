#pragma once
// The window of the mean heights: a box to search, the comuni, and the button that takes a height into row 9.

#include <fiduciali/quote_medie.h>

#include <QDialog>

class QTreeWidget;

namespace lirmeto::ui {

class FinestraQuoteMedie : public QDialog {
  Q_OBJECT
public:
  // The model must be loaded and outlive the window.
  explicit FinestraQuoteMedie(QuoteMedie& modello, QWidget* padre = nullptr);

private:
  void Mostra();
  void Prendi();

  QuoteMedie& modello_;
  QTreeWidget* comuni_;
};

} // namespace lirmeto::ui
