#include "platform_qt/EndRequests.h"

namespace trekor {

// A program with windows gets no signals; log-out and shut-down come as the end of the session.
void EndRequests::WatchSignals() {}
void EndRequests::ForgetSignals() {}

} // namespace trekor
