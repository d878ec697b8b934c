// Time from exec to the first painted table beside that of an empty window: start_up [ROUNDS]
// Both programs run in turn, in one run, on the display that is there or on an Xvfb of its own. Prints the medians in
// milliseconds and their ratio.

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <time.h>
#include <vector>

namespace {

constexpr int TimeLimit = 20000;  // ms, for everything that is waited for

long long Now() {
  timespec Time{};
  clock_gettime(CLOCK_MONOTONIC, &Time);
  return Time.tv_sec * 1'000'000'000LL + Time.tv_nsec;
}

[[noreturn]] void Fail(const char* What) {
  std::fprintf(stderr, "start_up: %s\n", What);
  std::exit(1);
}

/// Milliseconds from the start of the program to its first paint.
double TimeOf(const QString& Program, const QStringList& Arguments) {
  QProcess Run;
  Run.setProcessChannelMode(QProcess::ForwardedErrorChannel);
  const long long Begin = Now();
  Run.start(Program, Arguments);
  if (!Run.waitForFinished(TimeLimit)) Fail("a window never came up");
  const long long Painted = Run.readAllStandardOutput().trimmed().toLongLong();
  if (Painted < Begin) Fail("a window never painted");
  return static_cast<double>(Painted - Begin) / 1e6;
}

double Median(std::vector<double> Times) {
  std::nth_element(Times.begin(), Times.begin() + static_cast<long>(Times.size() / 2), Times.end());
  return Times[Times.size() / 2];
}

}  // namespace

int main(int Count, char** Arguments) {
  QCoreApplication app(Count, Arguments);
  const int Rounds = Count > 1 ? std::atoi(Arguments[1]) : 25;
  if (Rounds < 1) Fail("usage: start_up [ROUNDS]");

  QProcess Server;
  if (!qEnvironmentVariableIsSet("DISPLAY") && !qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
    Server.start(QStringLiteral("Xvfb"), {QStringLiteral("-displayfd"), QStringLiteral("1")});
    if (!Server.waitForReadyRead(TimeLimit)) Fail("no display, and Xvfb doesn't start");
    qputenv("DISPLAY", ':' + Server.readAllStandardOutput().trimmed());
  }

  const QString Beside = QCoreApplication::applicationDirPath() + QLatin1Char('/');
  QTemporaryDir State;  // an info file of its own: the start-up question has been put
  QFile Info(State.filePath(QStringLiteral("table_window.ini")));
  if (!Info.open(QIODevice::WriteOnly)) Fail("no temporary folder");
  Info.write("[Info]\nScanned=True\nShowWelcomeMessage=0\n");
  Info.close();

  std::vector<double> Empty, Table;
  for (int Round = 0; Round < Rounds; ++Round) {
    Empty.push_back(TimeOf(Beside + QStringLiteral("empty_window"), {}));
    Table.push_back(TimeOf(Beside + QStringLiteral("table_window"), {State.path()}));
  }
  std::printf("empty window %.1f ms, table %.1f ms, ratio %.2f\n", Median(Empty), Median(Table),
              Median(Table) / Median(Empty));
  Server.kill();
  Server.waitForFinished(TimeLimit);
}
