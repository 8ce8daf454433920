// The link's TCP client in Qt. The toolkit's signals only note what happened and post it; the owner hears of it from
// the event loop, so a handler may pump, send, close or connect again. What was posted for a connection that has been
// closed since is dropped.
#pragma once

#include "platform/Socket.h"

#include <QTcpSocket>

#include <memory>

namespace trekor {

class QtSocket : public QObject, public Socket {
public:
  QtSocket();
  ~QtSocket() override;

  void SetEvents(SocketEvents* e) override { events = e; }
  SocketState State() const override { return state; }
  void Connect(const std::string& host, int port) override;
  void Close() override;
  void SetNoDelay() override;
  bool Send(std::string_view bytes) override;
  std::string ReadAll() override;

private:
  enum class News { Connected, Data, Closed, Failed };
  void NewSocket();
  void DropSocket();
  void Post(News news, int number = 0);
  void Raise(News news, int number);
  void OnState(QAbstractSocket::SocketState s);
  void OnError(QAbstractSocket::SocketError e);

  SocketEvents* events = nullptr;
  std::unique_ptr<QTcpSocket> socket;
  SocketState state = SocketState::Closed;
  unsigned connection = 0; // number of the present connection, so that news of older ones can be told
  bool dataPosted = false; // one arrival event is enough for any number of packets
};

} // namespace trekor
