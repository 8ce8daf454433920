#include "platform_qt/EndRequests.h"

#include <QGuiApplication>

#include <utility>

namespace trekor {

// The session's manager waits for the return from its request: by then the files are closed.
EndRequests::EndRequests(std::function<void()> onRequest) : end(std::move(onRequest)) {
  connect(
      qGuiApp, &QGuiApplication::commitDataRequest, this, [this] { end(); }, Qt::DirectConnection);
  WatchSignals();
}

EndRequests::~EndRequests() {
  ForgetSignals();
}

} // namespace trekor
