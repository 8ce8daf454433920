#include "platform_qt/QtPump.h"

#include <QCoreApplication>
#include <QTimer>

#include <cmath>

namespace trekor {

void QtPump::ProcessEvents() {
  QCoreApplication::processEvents();
}

void QtPump::WaitForEvents(double milliseconds) {
  QTimer wake; // a timer of this call alone, as a wait can stand inside another
  wake.setTimerType(Qt::PreciseTimer);
  wake.setSingleShot(true);
  wake.start(static_cast<int>(std::ceil(milliseconds)));
  QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace trekor
