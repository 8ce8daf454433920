// A second program that connects is turned away: the vehicle has one.
#include "LinkServer.h"

#include "values/CodePage.h"

#include <cstdio>

namespace control {

QByteArray ToWire(const QString& text) {
  return QByteArray::fromStdString(trekor::ToWindows1252(text.toStdString()));
}

QString FromWire(const QByteArray& bytes) {
  return QString::fromStdString(trekor::FromWindows1252(bytes.toStdString()));
}

LinkServer::LinkServer(QObject* parent) : QObject(parent) {
  clock.start();
  connect(&server, &QTcpServer::newConnection, this, &LinkServer::Accept);
}

// The socket reports its end while it is destroyed, when nothing may be called any more.
LinkServer::~LinkServer() {
  if (peer)
    peer->disconnect(this);
}

bool LinkServer::Listen(quint16 port) {
  return server.listen(QHostAddress::LocalHost, port);
}

void LinkServer::Tell(const QString& mark, const QString& line) {
  std::printf("%9.3f %s %s\n", Seconds(), qUtf8Printable(mark), qUtf8Printable(line));
  std::fflush(stdout);
}

void LinkServer::Accept() {
  auto* next = server.nextPendingConnection();
  if (peer) {
    Tell("--", "a second connection was turned away");
    next->abort();
    next->deleteLater();
    return;
  }
  peer = next;
  buffer.clear();
  next->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  connect(next, &QTcpSocket::readyRead, this, &LinkServer::Read);
  connect(next, &QTcpSocket::disconnected, this, [this, next] {
    peer.clear();
    next->deleteLater();
    Tell("--", "connection closed");
    emit Closed();
  });
  Tell("--", "connection opened");
  emit Opened();
}

void LinkServer::Read() {
  buffer += peer->readAll();
  qsizetype from = 0;
  for (auto end = buffer.indexOf("\r\n"); end >= 0; end = buffer.indexOf("\r\n", from)) {
    const QString line = FromWire(buffer.mid(from, end - from));
    from = end + 2;
    Tell("<-", line);
    emit Line(line);
  }
  buffer.remove(0, from);
}

void LinkServer::Send(const QString& line) {
  if (!peer)
    return;
  if (tellsPositions || !(line.startsWith("DMI ") || line.startsWith("GPS ")))
    Tell("->", line);
  peer->write(ToWire(line) + "\r\n");
}

} // namespace control
