#include <ui/linux/portale_desktop.h>

#include <ui/comune/luce_di_sistema.h>

#include <QDBusConnection>
#include <QDBusMessage>

namespace lirmeto::ui {

namespace {

constexpr QLatin1String Portale("org.freedesktop.portal.Desktop");
constexpr QLatin1String Oggetto("/org/freedesktop/portal/desktop");
constexpr QLatin1String Interfaccia("org.freedesktop.portal.Settings");
constexpr QLatin1String Gruppo("org.freedesktop.appearance");
constexpr QLatin1String Chiave("color-scheme"); // 0 no preference, 1 dark, 2 light

// The portal wraps its answer once more than its signal does.
bool Scuro(QVariant valore) {
  while (valore.canConvert<QDBusVariant>()) valore = valore.value<QDBusVariant>().variant();
  return valore.toUInt() == 1;
}

bool DettoScuro(const QDBusConnection& bus) {
  constexpr int attesa = 300; // milliseconds: a portal that sleeps must not hold up the start
  QDBusMessage domanda = QDBusMessage::createMethodCall(Portale, Oggetto, Interfaccia, QStringLiteral("Read"));
  domanda << Gruppo << Chiave;
  const QDBusMessage risposta = bus.call(domanda, QDBus::Block, attesa);
  return risposta.type() == QDBusMessage::ReplyMessage && !risposta.arguments().isEmpty() &&
         Scuro(risposta.arguments().constFirst());
}

} // namespace

PortaleDesktop::PortaleDesktop(LuceDiSistema& luce) : QObject(&luce), luce_(luce) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  if (DettoScuro(bus)) luce_.Cambia(true);
  bus.connect(Portale, Oggetto, Interfaccia, QStringLiteral("SettingChanged"), this,
              SLOT(ImpostazioneCambiata(QString, QString, QDBusVariant)));
}

void PortaleDesktop::ImpostazioneCambiata(const QString& gruppo, const QString& chiave, const QDBusVariant& valore) {
  if (gruppo == Gruppo && chiave == Chiave) luce_.Cambia(Scuro(valore.variant()));
}

void AscoltaDesktop(LuceDiSistema& luce) {
  new PortaleDesktop(luce);
}

} // namespace lirmeto::ui
