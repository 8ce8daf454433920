// Requests of the system that the program ends: SIGTERM, SIGINT and SIGHUP, and the end of the desktop's session. They
// come out of the event loop, as a click on the close box does. There can be one such object at a time.
#pragma once

#include <QObject>

#include <functional>

namespace trekor {

class EndRequests : public QObject {
public:
  // `end` is called for each request, on the thread that makes this object. The application must exist.
  explicit EndRequests(std::function<void()> end);
  ~EndRequests() override;
  EndRequests(const EndRequests&) = delete;
  EndRequests& operator=(const EndRequests&) = delete;

private:
  void WatchSignals();
  void ForgetSignals();

  std::function<void()> end;
};

} // namespace trekor
