#include <ui/comune/appunti_qt.h>

#include <ui/comune/testo_qt.h>

#include <QClipboard>
#include <QGuiApplication>

namespace lirmeto::ui {

// Programs of this host put LF, those of the other put CR LF: the logic sees CR
// LF, and no line end that was not there.
std::string AppuntiQt::Testo() const {
  QString testo = QGuiApplication::clipboard()->text();
  testo.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  testo.replace(u'\r', u'\n');
  testo.replace(u'\n', QStringLiteral("\r\n"));
  return DaQString(testo);
}

void AppuntiQt::MettiTesto(std::string_view testo) {
  QString unicode = AQString(testo);
#ifndef Q_OS_WIN
  unicode.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
#endif
  QGuiApplication::clipboard()->setText(unicode);
}

} // namespace lirmeto::ui
