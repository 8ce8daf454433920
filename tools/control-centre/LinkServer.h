// The listening end of the link: one program at a time; sends and receives lines and prints each with its time.
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>

namespace control {

class LinkServer : public QObject {
  Q_OBJECT

public:
  explicit LinkServer(QObject* parent = nullptr);
  ~LinkServer() override;
  // On 127.0.0.1 only. Port 0 takes a free one. False when the port is taken.
  bool Listen(quint16 port);
  quint16 Port() const { return server.serverPort(); }
  bool Connected() const { return !peer.isNull(); }
  void Send(const QString& line); // dropped while nobody is connected
  // Seconds since the server was made, as the transcript shows them.
  double Seconds() const { return static_cast<double>(clock.nsecsElapsed()) / 1e9; }
  // When false, positions that are sent are not printed: thirty lines a second would hide all others.
  bool tellsPositions = true;
  void Tell(const QString& mark, const QString& line); // one line of the transcript, on standard output

signals:
  void Opened();
  void Closed();
  void Line(const QString& line);

private:
  void Accept();
  void Read();
  QTcpServer server;
  QPointer<QTcpSocket> peer;
  QByteArray buffer;
  QElapsedTimer clock;
};

// The link's code page. What it lacks becomes "?".
QByteArray ToWire(const QString& text);
QString FromWire(const QByteArray& bytes);

} // namespace control
