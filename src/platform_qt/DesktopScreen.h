// Asks the desktop to keep the screen on: the service org.freedesktop.ScreenSaver of the session's message bus, or the
// execution state of Windows. Without a bus, or with nobody on it who answers, nothing happens.
#pragma once

#include "platform/Screen.h"

#include <QObject>

#include <cstdint>
#include <optional>

namespace trekor {

class DesktopScreen : public QObject, public Screen {
public:
  void KeepOn(bool on) override;

private:
  void Ask();
  void Release();

  bool wanted = false, asked = false;  // asked: the answer to a request is still to come
  std::optional<std::uint32_t> cookie; // of the request that holds now
};

} // namespace trekor
