#include "platform_qt/DesktopScreen.h"

#include "platform_qt/SessionBus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

namespace trekor {

namespace {

QDBusMessage CallOf(const QString& method) {
  const QString service = "org.freedesktop.ScreenSaver";
  QDBusMessage call = QDBusMessage::createMethodCall(service, "/org/freedesktop/ScreenSaver", service, method);
  call.setAutoStartService(false); // a desktop that has the service runs it
  return call;
}

} // namespace

void DesktopScreen::KeepOn(bool on) {
  wanted = on;
  if (wanted && !asked && !cookie && HasSessionBus())
    Ask();
  else if (!wanted && cookie)
    Release();
}

// The wish may have changed when the answer comes.
void DesktopScreen::Ask() {
  asked = true;
  QDBusMessage call = CallOf("Inhibit");
  call << QString("Trekor") << QString("A run is being collected");
  auto* answer = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), this);
  connect(answer, &QDBusPendingCallWatcher::finished, this, [this, answer] {
    asked = false;
    if (const QDBusPendingReply<quint32> reply = *answer; reply.isValid())
      cookie = reply.value();
    answer->deleteLater();
    if (cookie && !wanted)
      Release();
  });
}

void DesktopScreen::Release() {
  QDBusMessage call = CallOf("UnInhibit");
  call << *cookie;
  cookie.reset();
  QDBusConnection::sessionBus().send(call);
}

} // namespace trekor
