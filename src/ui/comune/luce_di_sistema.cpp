#include <ui/comune/luce_di_sistema.h>

#include <ui/comune/tema.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusReply>

namespace lirmeto::ui {

namespace {

constexpr QLatin1String Portale("org.freedesktop.portal.Desktop");
constexpr QLatin1String Oggetto("/org/freedesktop/portal/desktop");
constexpr QLatin1String Interfaccia("org.freedesktop.portal.Settings");
constexpr QLatin1String Gruppo("org.freedesktop.appearance");
constexpr QLatin1String Chiave("color-scheme"); // 0 no preference, 1 dark, 2 light

// The portal wraps its answer once more than its signal does.
uint Numero(QVariant valore) {
  while (valore.canConvert<QDBusVariant>()) valore = valore.value<QDBusVariant>().variant();
  return valore.toUInt();
}

bool ScuroPerIlPortale(const QDBusConnection& bus) {
  constexpr int attesa = 300; // milliseconds: a portal that sleeps must not hold up the start
  QDBusMessage domanda = QDBusMessage::createMethodCall(Portale, Oggetto, Interfaccia, QStringLiteral("Read"));
  domanda << Gruppo << Chiave;
  const QDBusMessage risposta = bus.call(domanda, QDBus::Block, attesa);
  return risposta.type() == QDBusMessage::ReplyMessage && !risposta.arguments().isEmpty() &&
         Numero(risposta.arguments().constFirst()) == 1;
}

} // namespace

LuceDiSistema::LuceDiSistema(QObject* padre) : QObject(padre), scura_(TemaScuro()) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  if (!bus.isConnected()) return;
  scura_ = scura_ || ScuroPerIlPortale(bus);
  bus.connect(Portale, Oggetto, Interfaccia, QStringLiteral("SettingChanged"), this,
              SLOT(ImpostazioneCambiata(QString, QString, QDBusVariant)));
}

void LuceDiSistema::ImpostazioneCambiata(const QString& gruppo, const QString& chiave, const QDBusVariant& valore) {
  if (gruppo != Gruppo || chiave != Chiave) return;
  const bool ora = Numero(valore.variant()) == 1;
  if (ora == scura_) return;
  scura_ = ora;
  emit Cambiata(ora);
}

} // namespace lirmeto::ui
