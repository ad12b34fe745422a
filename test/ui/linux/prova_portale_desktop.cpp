// The desktop tells the windows of its light while they run. A bus of the test's own stands for the session's.

#include <ui/comune/luce_di_sistema.h>
#include <ui/linux/portale_desktop.h>

#include <QDBusVariant>
#include <QProcess>
#include <QTest>

#include <gtest/gtest.h>

namespace lirmeto::prova {
namespace {

TEST(PortaleDesktop, LaLuceCheCambiaSiSegue) {
  QProcess demone;
  demone.start(QStringLiteral("dbus-daemon"),
               {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
  if (!demone.waitForStarted()) GTEST_SKIP() << "no dbus-daemon here";
  ASSERT_TRUE(demone.waitForReadyRead());
  const QString indirizzo = QString::fromUtf8(demone.readLine()).trimmed();
  QDBusConnection desktop = QDBusConnection::connectToBus(indirizzo, QStringLiteral("desktop"));
  ASSERT_TRUE(desktop.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
  const QDBusConnection bus = QDBusConnection::connectToBus(indirizzo, QStringLiteral("finestre"));
  ui::LuceDiSistema luce;
  new ui::PortaleDesktop(luce, bus);
  const auto dice = [&](const QString& chiave, uint valore) {
    QDBusMessage segnale =
        QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
                                   QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
    segnale << QStringLiteral("org.freedesktop.appearance") << chiave << QVariant::fromValue(QDBusVariant(valore));
    desktop.send(segnale);
  };
  dice(QStringLiteral("color-scheme"), 1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return luce.Scura(); }));
  dice(QStringLiteral("contrast"), 0);
  dice(QStringLiteral("color-scheme"), 2);
  EXPECT_TRUE(QTest::qWaitFor([&] { return !luce.Scura(); }));
  for (const char* nome : {"desktop", "finestre"}) QDBusConnection::disconnectFromBus(QString::fromLatin1(nome));
  demone.terminate();
  demone.waitForFinished();
}

} // namespace
} // namespace lirmeto::prova
