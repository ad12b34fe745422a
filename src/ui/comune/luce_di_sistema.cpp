#include <ui/comune/luce_di_sistema.h>

#include <ui/comune/tema.h>

namespace lirmeto::ui {

LuceDiSistema::LuceDiSistema(QObject* padre) : QObject(padre), scura_(TemaScuro()) {
  AscoltaDesktop(*this);
}

void LuceDiSistema::Cambia(bool scura) {
  if (scura == scura_) return;
  scura_ = scura;
  emit Cambiata(scura);
}

} // namespace lirmeto::ui
