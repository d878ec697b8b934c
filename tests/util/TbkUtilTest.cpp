#include <QElapsedTimer>
#include <QRegularExpression>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include <atomic>
#include <functional>
#include <future>
#include <gtest/gtest.h>
#include <thread>

#include "tests/storage/Place.h"
#include "util/TbkUtil.h"

namespace blunko::test {
namespace {

constexpr int Limit = 400;      // ms, for a server that never comes to an end
constexpr int Patience = 5000;  // ms: a loaded machine may be late, but not for ever

/// Answers every request on loopback as it is told.
class Server {
 public:
  explicit Server(std::function<void(QTcpSocket&)> Answer) : answer(std::move(Answer)) {
    if (!tcp.listen(QHostAddress::LocalHost)) abort();
    QObject::connect(&tcp, &QTcpServer::newConnection, &tcp, [this] {
      QTcpSocket* Client = tcp.nextPendingConnection();
      QObject::connect(Client, &QTcpSocket::readyRead, Client, [this, Client] {
        if (!Client->readAll().contains("\r\n\r\n")) return;
        answer(*Client);
      });
    });
  }
  QString Address(const QString& Path = "/version.txt") const {
    return QStringLiteral("http://127.0.0.1:%1%2").arg(tcp.serverPort()).arg(Path);
  }

 private:
  std::function<void(QTcpSocket&)> answer;
  QTcpServer tcp;
};

/// A whole answer that the connection's end follows.
std::function<void(QTcpSocket&)> Reply(const QByteArray& Status, const QByteArray& Fields, const QByteArray& Body) {
  return [=](QTcpSocket& Client) {
    Client.write("HTTP/1.1 " + Status + "\r\nConnection: close\r\n" + Fields + "\r\n" + Body);
    Client.disconnectFromHost();
  };
}
std::function<void(QTcpSocket&)> Text(const QByteArray& Body) {
  return Reply("200 OK", "Content-Length: " + QByteArray::number(Body.size()) + "\r\n", Body);
}

/// An answer that never ends.
std::function<void(QTcpSocket&)> Endless(const QByteArray& Begin, const QByteArray& Part) {
  return [=](QTcpSocket& Client) {
    Client.write(Begin);
    auto* Timer = new QTimer(&Client);
    QObject::connect(Timer, &QTimer::timeout, &Client, [&Client, Part] { Client.write(Part); });
    Timer->start(5);
  };
}

TbkUtil::VersionAnswer Ask(const QString& Address, int TimeLimit = 10 * Patience) {
  return TbkUtil(Address, TimeLimit).UtilCheckVersion(1, 9, 3);
}

TEST(UtilCheckVersion, ComparesNumberByNumber) {
  const std::pair<TbkUtil::VersionAnswer, QByteArrayList> Rows[] = {
      {TbkUtil::UpToDate, {"1.9.3", "1.8.9", "0.10.10"}},
      {TbkUtil::NewerExists, {"1.9.10", "1.10.0", "2.0.0", " \t1.9.4 \r\n"}},
      {TbkUtil::VersionError,
       {"", "newest", "2.0", "2.0.0.0", "2.0.0.", ".2.0.0", "2..0", "v2.0.0", "2. 0.0", "2.0.0\n2.0.0", "-2.0.0",
        QByteArray("2.0.0\0", 6), "99999999999.0.0", "2.0.0" + QByteArray(500, ' ')}}};
  for (const auto& [Answer, Bodies] : Rows) {
    for (const QByteArray& Body : Bodies) {
      const Server server(Text(Body));
      EXPECT_EQ(Ask(server.Address()), Answer) << Body.constData();
    }
  }
}

TEST(UtilCheckVersion, AnythingUnexpectedIsAnErrorWithinTheLimit) {
  const auto Says = [](const QByteArray& Begin) { return [=](QTcpSocket& Client) { Client.write(Begin); }; };
  struct Row {
    const char* Trouble;
    std::function<void(QTcpSocket&)> Answer;
    bool Waits = false;  ///< a slow server has until the limit; all else is known at once
  };
  const Row Rows[] = {
      {"not found", Reply("404 Not Found", "", "2.0.0")},
      {"redirect to itself", Reply("302 Found", "Location: /version.txt\r\n", "")},
      {"redirect to a file", Reply("302 Found", "Location: file:///etc/hostname\r\n", "")},
      {"no HTTP", [](QTcpSocket& Client) { Client.write("2.0.0\n"), Client.disconnectFromHost(); }},
      {"hangs up early", Reply("200 OK", "Content-Length: 100\r\n", "2.0.0")},
      {"breaks off", [](QTcpSocket& Client) { Client.write("HTTP/1.1 200 OK\r\nContent-Le"), Client.abort(); }},
      {"sends for ever", Endless("HTTP/1.1 200 OK\r\n\r\n", QByteArray(5000, '1'))},
      {"says nothing", Says(""), true},
      {"stops in the middle", Says("HTTP/1.1 200 OK\r\nContent-Length: 5\r\n\r\n2.0"), true},
      {"dribbles its head", Endless("HTTP/1.1 200 OK\r\n", "X: y\r\n"), true}};
  for (const Row& row : Rows) {
    const Server server(row.Answer);
    QElapsedTimer Clock;
    Clock.start();
    EXPECT_EQ(Ask(server.Address(), row.Waits ? Limit : 10 * Patience), TbkUtil::VersionError) << row.Trouble;
    EXPECT_LT(Clock.elapsed(), Patience) << row.Trouble;
    EXPECT_GE(Clock.elapsed(), row.Waits ? Limit - 5 : 0) << row.Trouble;
  }
}

TEST(UtilCheckVersion, FollowsARedirect) {
  const Server Target(Text("1.9.4"));
  const Server Start(Reply("301 Moved", "Location: " + Target.Address().toLatin1() + "\r\n", ""));
  EXPECT_EQ(Ask(Start.Address()), TbkUtil::NewerExists);
}

TEST(UtilCheckVersion, ALimitIsALimitForAServerThatFloods) {
  std::promise<quint16> Port;
  std::atomic<bool> Enough = false;
  std::thread Flood([&] {
    QTcpServer Tcp;
    if (!Tcp.listen(QHostAddress::LocalHost)) abort();
    Port.set_value(Tcp.serverPort());
    if (!Tcp.waitForNewConnection(Patience)) return;
    QTcpSocket* const Client = Tcp.nextPendingConnection();
    Client->write("HTTP/1.1 200 OK\r\n");
    do Client->write(QByteArray("X-Head: y\r\n").repeated(10000));
    while (!Enough && Client->waitForBytesWritten(Patience));
  });
  QElapsedTimer Clock;
  Clock.start();
  EXPECT_EQ(Ask(QStringLiteral("http://127.0.0.1:%1/").arg(Port.get_future().get()), Limit), TbkUtil::VersionError);
  EXPECT_LT(Clock.elapsed(), Limit + Patience - 500) << "the library's own end waits for 5 s";
  Enough = true;
  Flood.join();
}

TEST(UtilCheckVersion, TakesWebAddressesOnly) {
  const Place place;
  place.Put("version.txt", "2.0.0");
  ASSERT_EQ(mkfifo(QFile::encodeName(place.Path("pipe")).constData(), 0600), 0);
  for (const QString& Address :
       {QString(), QStringLiteral("http://"), QStringLiteral("http://127.0.0.1:99999/"), QStringLiteral("nonsense"),
        place.Path("version.txt"), "file://" + place.Path("version.txt"), "file://" + place.Path("pipe"),
        QStringLiteral("data:,2.0.0"), Server(Text("2.0.0")).Address()}) {  // it is gone by then
    EXPECT_EQ(Ask(Address), TbkUtil::VersionError) << Address.toStdString();
  }
}

TEST(UtilSurveyHardware, IsReadableAndNamesNobody) {
  const Place place;
  TbkUtil Util("");
  Util.UtilSetFolder(place.Path());
  Util.UtilSurveyHardware();
  EXPECT_EQ(place.Names(), QStringList("hardware.txt"));
  const QString Survey = QString::fromUtf8(place.Get("hardware.txt"));
  static const QRegularExpression Form(
      QStringLiteral("\\AProcessor: [^\\n]*\\w[^\\n]*, \\d+ threads\\nMemory: \\d+ kB\\nSystem: [^\\n]+, linux "
                     "\\d[^\\n]*\\n(Screen: \\d+ x \\d+ pixels, scale [\\d.]+\\n)+\\z"));
  EXPECT_TRUE(Form.match(Survey).hasMatch()) << Survey.toStdString();

  for (const QString& Name : {QSysInfo::machineHostName(), QFileInfo(place.Path()).owner(), QDir::homePath()}) {
    const QRegularExpression Word("(?<![\\w.-])" + QRegularExpression::escape(Name) + "(?![\\w.-])");
    EXPECT_FALSE(Survey.contains(Word)) << Name.toStdString() << " in\n" << Survey.toStdString();
  }
}

TEST(UtilStoreLists, PutsExactlyTheseBytesInPlace) {
  const Place place;
  TbkUtil Util("");
  EXPECT_FALSE(Util.UtilStoreLists("lost")) << "there is no folder yet";
  Util.UtilSetFolder(place.Path());
  for (const QByteArray& Bytes : {QByteArray("a\r\n\0\xFF\xA4\n", 7), QByteArray(30000, '\x01')}) {
    EXPECT_TRUE(Util.UtilStoreLists(Bytes));
    EXPECT_EQ(place.Get("highscores.dat"), Bytes);
  }
  Util.UtilSetFolder(place.Path("gone"));
  EXPECT_FALSE(Util.UtilStoreLists("new"));
  EXPECT_EQ(place.Names(), QStringList("highscores.dat"));
}

}  // namespace
}  // namespace blunko::test
