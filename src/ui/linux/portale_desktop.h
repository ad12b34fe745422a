#pragma once
// What the desktop says of itself over D-Bus (the settings portal).

#include <QDBusVariant>
#include <QObject>

namespace lirmeto::ui {

class LuceDiSistema;

class PortaleDesktop : public QObject {
  Q_OBJECT
public:
  // Asks once and listens from then on; it goes with the light.
  explicit PortaleDesktop(LuceDiSistema& luce);

private slots:
  void ImpostazioneCambiata(const QString& gruppo, const QString& chiave, const QDBusVariant& valore);

private:
  LuceDiSistema& luce_;
};

} // namespace lirmeto::ui
