#pragma once
// What the desktop says of itself over D-Bus (the settings portal).

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>

namespace lirmeto::ui {

class LuceDiSistema;

class PortaleDesktop : public QObject {
  Q_OBJECT
public:
  // Asks once and listens from then on; it goes with the light.
  PortaleDesktop(LuceDiSistema& luce, QDBusConnection bus);

private slots:
  void ImpostazioneCambiata(const QDBusMessage& segnale);

private:
  LuceDiSistema& luce_;
};

} // namespace lirmeto::ui
