#pragma once
// A list of comuni searched while typing: the two boxes, the rows, the code of the one selected.

#include <supporto/cod_fis.h>

#include <QStringListModel>
#include <QWidget>

#include <functional>

class QLabel;
class QLineEdit;
class QListView;

namespace lirmeto::ui {

class RiquadroComuni : public QWidget {
  Q_OBJECT
public:
  // The model must outlive the box.
  explicit RiquadroComuni(SceltaComune& modello, QWidget* padre = nullptr);

  // Shows the model's rows anew, and its boxes and selection.
  void Ricarica();
  void Mostra();

signals:
  // A double click took a comune.
  void Scelto();

private:
  [[nodiscard]] QWidget* CreaCaselle();
  void Collega(QLineEdit& casella, const std::function<void(std::string_view)>& cambia);

  SceltaComune& modello_;
  QStringListModel righe_;
  QLineEdit* nome_;
  QLineEdit* codice_;
  QListView* elenco_;
  QLabel* scelto_;
};

} // namespace lirmeto::ui
