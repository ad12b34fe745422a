#include <ui/linux/portale_desktop.h>

#include <ui/comune/luce_di_sistema.h>

#include <QDBusVariant>

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

PortaleDesktop::PortaleDesktop(LuceDiSistema& luce, QDBusConnection bus) : QObject(&luce), luce_(luce) {
  if (!bus.isConnected()) return;
  if (DettoScuro(bus)) luce_.Cambia(true);
  // Qt 6.4 connects no slot that takes the value as a QDBusVariant.
  bus.connect(Portale, Oggetto, Interfaccia, QStringLiteral("SettingChanged"), this,
              SLOT(ImpostazioneCambiata(QDBusMessage)));
}

void PortaleDesktop::ImpostazioneCambiata(const QDBusMessage& segnale) {
  const QVariantList detto = segnale.arguments(); // group, key, value
  if (detto.size() == 3 && detto[0].toString() == Gruppo && detto[1].toString() == Chiave)
    luce_.Cambia(Scuro(detto[2]));
}

void AscoltaDesktop(LuceDiSistema& luce) {
  new PortaleDesktop(luce, QDBusConnection::sessionBus());
}

} // namespace lirmeto::ui
