// Fetches the text that names the newest version, and prints it: blunko-newest-version ADDRESS
// A program of its own: the network's libraries would be a tenth of the game's start, and the game can end it while it
// waits for a name server that never answers.

#include <QCoreApplication>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

constexpr qint64 LongestText = 64;  // bytes
constexpr int MostRedirects = 3;
constexpr int LongestLife = 60'000;  // ms, when nobody waits any more

/// Ends the program without its destructors: those of the network wait for an answer that may never come.
[[noreturn]] void End(int Result) {
  std::fflush(stdout);
  std::_Exit(Result);
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);
  if (argc != 2) return EXIT_FAILURE;
  QNetworkAccessManager Network;
  QNetworkRequest Request(QUrl(QString::fromLocal8Bit(argv[1])));
  Request.setMaximumRedirectsAllowed(MostRedirects);
  QNetworkReply* const Reply = Network.get(Request);
  QObject::connect(Reply, &QNetworkReply::readyRead, Reply, [Reply] {
    if (Reply->bytesAvailable() > LongestText) End(EXIT_FAILURE);
  });
  QObject::connect(Reply, &QNetworkReply::finished, Reply, [Reply] {
    const bool Answered = Reply->error() == QNetworkReply::NoError &&
                          Reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == 200;
    const QByteArray Text = Reply->readAll();
    if (!Answered || Text.size() > LongestText) End(EXIT_FAILURE);
    std::fwrite(Text.constData(), 1, static_cast<std::size_t>(Text.size()), stdout);
    End(EXIT_SUCCESS);
  });
  QTimer::singleShot(LongestLife, [] { End(EXIT_FAILURE); });
  return QCoreApplication::exec();
}
