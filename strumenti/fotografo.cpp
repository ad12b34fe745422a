#include "fotografo.h"

#include <ui/comune/prepara_finestra.h>

#include <QApplication>
#include <QDialog>
#include <QTextStream>

namespace lirmeto::foto {

namespace {

// Pictures of twice the size stand beside the others under the name that Qt gives them.
QString Coda() {
  return qApp->devicePixelRatio() > 1 ? QStringLiteral("@2x.png") : QStringLiteral(".png");
}

} // namespace

void Fotografo::Mostra(QWidget& finestra, int larghezza, int altezza) const {
  if (qobject_cast<QDialog*>(&finestra) != nullptr) ui::PreparaFinestra(finestra); // as every form is shown
  if (larghezza > 0) finestra.resize(larghezza, altezza);
  finestra.show();
  if (massima_.isValid()) finestra.resize(finestra.size().boundedTo(massima_));
}

// What wraps its buttons asks for its height only when it has its width.
bool Fotografo::Salva(QWidget& finestra, const char* nome) const {
  constexpr int giri = 5;
  QApplication::setActiveWindow(&finestra);
  for (int i = 0; i < giri; ++i) QApplication::processEvents();
  const QString file = uscita_.filePath(QString::fromLatin1(nome) + Coda());
  const bool salvata = finestra.grab().save(file);
  QTextStream(salvata ? stdout : stderr) << (salvata ? "" : "Impossibile scrivere ") << file << '\n';
  return salvata;
}

} // namespace lirmeto::foto
