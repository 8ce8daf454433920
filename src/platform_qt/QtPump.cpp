#include "platform_qt/QtPump.h"

#include <QCoreApplication>

namespace trekor {

void QtPump::ProcessEvents() {
  QCoreApplication::processEvents();
}

} // namespace trekor
