#include "platform_qt/QtPump.h"

#include <QCoreApplication>
#include <QTimer>

#include <cmath>

namespace trekor {

void QtPump::ProcessEvents() {
  QCoreApplication::processEvents();
}

void QtPump::WaitForEvents(double milliseconds) {
  QTimer wake; // one for each call, as waits nest
  wake.setTimerType(Qt::PreciseTimer);
  wake.setSingleShot(true);
  wake.start(static_cast<int>(std::ceil(milliseconds)));
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace trekor
