#pragma once

#include <QTcpServer>
#include <QTcpSocket>

#include <future>
#include <thread>

namespace blunko::test {

constexpr int Patience = 5000;  // ms: a loaded machine may be late, but not for ever
const QByteArray Ok = "HTTP/1.1 200 OK\r\n";

/// On loopback, answers with `Begin` and hangs up; `Stays` on the line instead, sending `More` for ever.
class Server {
  std::promise<quint16> port;
  std::jthread thread;

 public:
  explicit Server(const QByteArray& Begin, bool Stays = false, const QByteArray& More = {})
      : thread([=, this](const std::stop_token& Stop) {
          QTcpServer Tcp;
          if (!Tcp.listen(QHostAddress::LocalHost)) abort();
          port.set_value(Tcp.serverPort());
          if (!Tcp.waitForNewConnection(Patience)) return;
          QTcpSocket* const Client = Tcp.nextPendingConnection();
          Client->waitForReadyRead(Patience);
          Client->readAll();
          Client->write(Begin);
          do Client->write(More);
          while ((Client->waitForBytesWritten(Patience) || !Client->waitForReadyRead(5)) && Stays &&
                 !Stop.stop_requested());
        }) {}
  const QByteArray Address = "http://127.0.0.1:" + QByteArray::number(port.get_future().get()) + "/version.txt";
};

}  // namespace blunko::test
