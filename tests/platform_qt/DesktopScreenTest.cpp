// The desktop's own switch for the screen, over a message bus of the test's own.
#include "platform_qt/DesktopScreen.h"
#include "platform_qt/QtPump.h"

#include "Peer.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusVirtualObject>
#include <QProcess>

#include <gtest/gtest.h>

namespace trekor::tests {
namespace {

// The desktop's service: gives the cookies 41, 42, ... or keeps the asker waiting.
class Desktop : public QDBusVirtualObject {
public:
  QString introspect(const QString&) const override { return {}; }
  bool handleMessage(const QDBusMessage& call, const QDBusConnection& bus) override {
    heard += call.member().toStdString();
    if (call.member() == "UnInhibit")
      heard += " " + std::to_string(call.arguments().value(0).toUInt());
    heard += ";";
    waiting = call.createReply(QVariant::fromValue(quint32(++cookie)));
    if (answers)
      bus.send(waiting);
    return true;
  }
  std::string heard;
  bool answers = true;
  quint32 cookie = 40;
  QDBusMessage waiting;
};

class DesktopScreenTest : public testing::Test {
protected:
  DesktopScreenTest() {
    daemon.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address=1"});
    EXPECT_TRUE(daemon.waitForReadyRead(5000)) << "no message bus";
    const QByteArray address = daemon.readAllStandardOutput().trimmed();
    qputenv("DBUS_SESSION_BUS_ADDRESS", address);
    serving = std::make_unique<QDBusConnection>(QDBusConnection::connectToBus(QString::fromLatin1(address), "desktop"));
  }
  ~DesktopScreenTest() override {
    QDBusConnection::disconnectFromBus("desktop");
    QDBusConnection::disconnectFromBus("qt_default_session_bus");
    daemon.kill();
    daemon.waitForFinished();
  }
  void StartDesktop() {
    EXPECT_TRUE(serving->registerVirtualObject("/org/freedesktop/ScreenSaver", &desktop));
    EXPECT_TRUE(serving->registerService("org.freedesktop.ScreenSaver"));
  }
  // The bus answers in order: with this answer the refusal has come, too.
  void Refused() {
    QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall("org.freedesktop.DBus", "/org/freedesktop/DBus",
                                                                      "org.freedesktop.DBus", "GetId"));
    for (int i = 0; i < 3; ++i)
      pump.ProcessEvents();
  }
  bool Hears(const std::string& words) {
    return WaitUntil(pump, [&] { return desktop.heard == words; });
  }
  QProcess daemon;
  std::unique_ptr<QDBusConnection> serving;
  Desktop desktop;
  QtPump pump;
  DesktopScreen screen;
};

TEST_F(DesktopScreenTest, IsHeldByACookieAndLetGoWithIt) {
  screen.KeepOn(true); // nobody is there to answer
  screen.KeepOn(false);
  Refused();
  StartDesktop();
  screen.KeepOn(true);
  EXPECT_TRUE(Hears("Inhibit;")) << desktop.heard;
  screen.KeepOn(true); // twice is once
  screen.KeepOn(false);
  EXPECT_TRUE(Hears("Inhibit;UnInhibit 41;")) << desktop.heard;
  screen.KeepOn(false);
  desktop.answers = false;
  screen.KeepOn(true);
  EXPECT_TRUE(Hears("Inhibit;UnInhibit 41;Inhibit;")) << desktop.heard;
  screen.KeepOn(false); // before the answer
  serving->send(desktop.waiting);
  EXPECT_TRUE(Hears("Inhibit;UnInhibit 41;Inhibit;UnInhibit 43;")) << desktop.heard;
}

} // namespace
} // namespace trekor::tests
