// What Windows keeps of the user's choice between light and dark programs; read at the start alone.

#include <ui/comune/luce_di_sistema.h>

#include <QSettings>

namespace lirmeto::ui {

void AscoltaDesktop(LuceDiSistema& luce) {
  const QSettings scelte(
      QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize"),
      QSettings::NativeFormat);
  luce.Cambia(scelte.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0);
}

} // namespace lirmeto::ui
