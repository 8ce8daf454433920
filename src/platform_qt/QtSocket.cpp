#include "platform_qt/QtSocket.h"

#include <QNetworkProxy>

namespace trekor {

namespace {

// A peer that no longer reads must not fill the memory; what would wait behind this much is dropped.
constexpr qint64 MostWaiting = 16 << 20;

// The numbers that the window of the link shows.
int ErrorNumber(QAbstractSocket::SocketError e) {
  switch (e) {
  case QAbstractSocket::ConnectionRefusedError:
    return 10061;
  case QAbstractSocket::HostNotFoundError:
    return 11001;
  case QAbstractSocket::SocketTimeoutError:
    return 10060;
  case QAbstractSocket::NetworkError:
    return 10050;
  case QAbstractSocket::SocketAccessError:
    return 10013;
  case QAbstractSocket::SocketResourceError:
    return 10024;
  case QAbstractSocket::AddressInUseError:
    return 10048;
  case QAbstractSocket::SocketAddressNotAvailableError:
    return 10049;
  default:
    return 10053;
  }
}

} // namespace

QtSocket::QtSocket() = default;
QtSocket::~QtSocket() {
  DropSocket();
}

void QtSocket::NewSocket() {
  socket = std::make_unique<QTcpSocket>();
  socket->setProxy(QNetworkProxy::NoProxy);
  connect(socket.get(), &QAbstractSocket::stateChanged, this, &QtSocket::OnState);
  connect(socket.get(), &QAbstractSocket::errorOccurred, this, &QtSocket::OnError);
  connect(socket.get(), &QIODevice::readyRead, this, [this] {
    if (!dataPosted)
      Post(News::Data);
    dataPosted = true;
  });
}

// The socket may be the one whose signal stands further up the stack, so it goes with the event loop's next turn.
void QtSocket::DropSocket() {
  ++connection;
  dataPosted = false;
  if (!socket)
    return;
  socket->disconnect(this);
  socket->abort();
  socket.release()->deleteLater();
}

void QtSocket::Connect(const std::string& host, int port) {
  DropSocket();
  NewSocket();
  state = SocketState::Connecting;
  if (port < 0 || port > 65535)
    port = 0; // a port that nobody listens on: the attempt fails like any other
  socket->connectToHost(QString::fromStdString(host), static_cast<quint16>(port));
}

void QtSocket::Close() {
  if (socket && state == SocketState::Connected)
    socket->flush();
  DropSocket();
  state = SocketState::Closed;
}

void QtSocket::SetNoDelay() {
  if (socket)
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
}

bool QtSocket::Send(std::string_view bytes) {
  if (state != SocketState::Connected || socket->bytesToWrite() > MostWaiting)
    return false;
  const bool taken = socket->write(bytes.data(), static_cast<qint64>(bytes.size())) >= 0;
  if (taken && socket) // out at once, without the turn of the loop that buffered writing would take
    socket->flush();
  return taken;
}

std::string QtSocket::ReadAll() {
  return socket ? socket->readAll().toStdString() : std::string();
}

void QtSocket::OnState(QAbstractSocket::SocketState s) {
  if (s == QAbstractSocket::HostLookupState)
    state = SocketState::ResolvingHost;
  else if (s == QAbstractSocket::ConnectingState)
    state = SocketState::Connecting;
  else if (s == QAbstractSocket::ConnectedState)
    Post(News::Connected);
}

// A peer's close is no error: it leaves the state PeerClosing, which nobody but a new Connect ends.
void QtSocket::OnError(QAbstractSocket::SocketError e) {
  if (e == QAbstractSocket::RemoteHostClosedError) {
    state = SocketState::PeerClosing;
    Post(News::Closed);
  } else {
    state = SocketState::Error;
    Post(News::Failed, ErrorNumber(e));
  }
}

void QtSocket::Post(News news, int number) {
  QMetaObject::invokeMethod(
      this,
      [this, news, number, of = connection] {
        if (of == connection)
          Raise(news, number);
      },
      Qt::QueuedConnection);
}

void QtSocket::Raise(News news, int number) {
  if (news == News::Data)
    dataPosted = false; // before the handler: what arrives while it runs is new
  // Only now, or a tick before the owner's handler would get a line out ahead of the greeting.
  if (news == News::Connected && state != SocketState::PeerClosing && state != SocketState::Error)
    state = SocketState::Connected;
  if (!events)
    return;
  switch (news) {
  case News::Connected:
    return events->Socket_Connect();
  case News::Data:
    return events->Socket_DataArrival();
  case News::Closed:
    return events->Socket_Close();
  case News::Failed:
    return events->Socket_Error(number);
  }
}

} // namespace trekor
