#include <ui/comune/cursore_attesa.h>

#include <QCursor>
#include <QGuiApplication>

namespace lirmeto::ui {

void MostraAttesa(bool si) {
  si ? QGuiApplication::setOverrideCursor(Qt::WaitCursor) : QGuiApplication::restoreOverrideCursor();
}

TempoDellUtente::TempoDellUtente() {
  for (; QGuiApplication::overrideCursor() != nullptr; ++lavori_) MostraAttesa(false);
}

TempoDellUtente::~TempoDellUtente() {
  for (; lavori_ > 0; --lavori_) MostraAttesa(true);
}

} // namespace lirmeto::ui
