#include "platform_qt/QtSocket.h"

#include <QUrl>

#include <mutex>
#include <thread>
#include <utility>

namespace trekor {

namespace {

// A peer that no longer reads must not fill the memory. At the rate of the link this is hours of lines.
constexpr std::size_t MostWaiting = 16 << 20;

} // namespace

// What a search leaves its answer with. The system may take half a minute over one, in a call that nothing ends: the
// socket does not wait for it and may have gone by then.
struct QtSocket::Asker {
  std::mutex mutex;
  QtSocket* socket;
};

QtSocket::QtSocket() : asker(std::make_shared<Asker>()) {
  asker->socket = this;
  connect(&readable, &QSocketNotifier::activated, this, [this] { Hear(); });
  connect(&writable, &QSocketNotifier::activated, this, &QtSocket::OnWritable);
  limit.setSingleShot(true);
  connect(&limit, &QTimer::timeout, this, [this] {
    lastError = NativeSocket::TimedOut;
    TryNext();
  });
}

QtSocket::~QtSocket() {
  {
    const std::lock_guard lock(asker->mutex);
    asker->socket = nullptr;
  }
  Drop();
}

// Nothing of a connection outlives it.
void QtSocket::Drop() {
  ++connection;
  readable.setEnabled(false);
  writable.setEnabled(false);
  limit.stop();
  native.Close();
  addresses.clear();
  received.clear();
  waiting.clear();
  failure = 0;
}

void QtSocket::Connect(const std::string& host, int toPort) {
  Drop();
  port = toPort < 0 || toPort > 65535 ? 0 : toPort; // nobody listens on 0: the attempt fails like any other
  state = SocketState::ResolvingHost;
  if (NativeSocket::IsNumeric(host))
    Found({host});
  else
    LookUp(host);
}

void QtSocket::LookUp(const std::string& host) {
  const std::string asciiName = QUrl::toAce(QString::fromStdString(host)).toStdString();
  if (asciiName.empty()) // no name at all, which some systems take for this computer
    return Found({});
  const auto answer = [of = connection](Asker& to, const std::deque<std::string>& found) {
    const std::lock_guard lock(to.mutex);
    if (to.socket)
      QMetaObject::invokeMethod(
          to.socket,
          [self = to.socket, of, found] {
            if (of == self->connection)
              self->Found(found);
          },
          Qt::QueuedConnection);
  };
  try {
    std::thread([asciiName, answer, to = asker] { answer(*to, NativeSocket::AddressesOf(asciiName)); }).detach();
  } catch (const std::system_error&) { // the machine has no thread left
    answer(*asker, {});                // as for a host that nobody knows
  }
}

void QtSocket::Found(std::deque<std::string> addressesOfHost) {
  addresses = std::move(addressesOfHost);
  lastError = NativeSocket::HostNotFound;
  state = SocketState::Connecting;
  TryNext();
}

void QtSocket::TryNext() {
  writable.setEnabled(false); // before its socket closes
  limit.stop();
  native.Close();
  while (!addresses.empty()) {
    lastError = native.Connect(addresses.front(), port);
    addresses.pop_front();
    if (lastError != NativeSocket::None)
      continue;
    readable.setSocket(native.Handle());
    writable.setSocket(native.Handle());
    writable.setEnabled(true);
    limit.start(connectLimit);
    return;
  }
  Fail(lastError);
}

void QtSocket::OnWritable() {
  if (state == SocketState::Connecting) {
    lastError = native.Outcome();
    if (lastError != NativeSocket::None)
      return TryNext();
    limit.stop();
    writable.setEnabled(false);
    readable.setEnabled(true);
    state = SocketState::Connected;
    if (events)
      events->SocketConnected();
    return;
  }
  const auto [bytes, error] = native.Send(waiting);
  waiting.erase(0, bytes);
  writable.setEnabled(!waiting.empty());
  if (error != NativeSocket::None && error != NativeSocket::WouldBlock)
    Fail(error);
}

bool QtSocket::Send(std::string_view bytes) {
  if (state != SocketState::Connected || failure != NativeSocket::None)
    return false;
  if (waiting.empty()) {
    const auto [sent, error] = native.Send(bytes);
    bytes.remove_prefix(sent);
    if (bytes.empty())
      return true;
    if (error != NativeSocket::None && error != NativeSocket::WouldBlock) {
      Fail(error);
      return false;
    }
  }
  if (waiting.size() + bytes.size() > MostWaiting) { // lines are never dropped in silence
    Fail(NativeSocket::NoBuffers);
    return false;
  }
  waiting += bytes;
  writable.setEnabled(true);
  return true;
}

void QtSocket::Close() {
  if (state == SocketState::Connected && !waiting.empty())
    native.Send(waiting); // what the system still takes
  Drop();
  state = SocketState::Closed;
}

std::string QtSocket::ReadAll() {
  return std::exchange(received, {});
}

// Reads once and tells the owner. False when there is nothing more to read: for now, or for good, which ends the
// connection.
bool QtSocket::Hear() {
  const auto [bytes, error] = native.Receive(room);
  if (bytes > 0) {
    received.append(room.data(), bytes);
    if (events)
      events->SocketDataArrived();
    return true;
  }
  if (error != NativeSocket::WouldBlock)
    End(failure != NativeSocket::None ? failure : error);
  return false;
}

// Told from the event loop, as the owner may be inside a call of its own now.
void QtSocket::Fail(int number) {
  failure = number;
  writable.setEnabled(false);
  QMetaObject::invokeMethod(
      this, [this, of = connection] { Settle(of); }, Qt::QueuedConnection);
}

// The bytes that came before the error are told first. At most as many reads as empty the system's buffer, since a peer
// that does not read may go on sending.
void QtSocket::Settle(unsigned of) {
  const auto unsettled = [&] { return of == connection && failure != NativeSocket::None; };
  for (int helpings = 0; helpings < 256 && unsettled() && Hear(); ++helpings) {
  }
  if (unsettled())
    End(failure);
}

void QtSocket::End(int number) {
  readable.setEnabled(false);
  writable.setEnabled(false);
  native.Close();
  waiting.clear();
  failure = NativeSocket::None;
  state = number == NativeSocket::None ? SocketState::PeerClosing : SocketState::Error;
  if (!events)
    return;
  if (number == NativeSocket::None)
    events->SocketClosed();
  else
    events->SocketFailed(number);
}

} // namespace trekor
