#include <ui/comune/frecce_elenco.h>

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace lirmeto::ui {

namespace {

class Frecce : public QObject {
public:
  Frecce(QLineEdit& casella, QAbstractItemView& elenco) : QObject(&casella), elenco_(elenco) {}

  bool eventFilter(QObject* oggetto, QEvent* evento) override {
    if (evento->type() != QEvent::KeyPress) return QObject::eventFilter(oggetto, evento);
    switch (static_cast<QKeyEvent*>(evento)->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      QCoreApplication::sendEvent(&elenco_, evento);
      return true;
    default:
      return QObject::eventFilter(oggetto, evento);
    }
  }

private:
  QAbstractItemView& elenco_;
};

} // namespace

void FrecceAllElenco(QLineEdit& casella, QAbstractItemView& elenco) {
  casella.installEventFilter(new Frecce(casella, elenco));
}

} // namespace lirmeto::ui
