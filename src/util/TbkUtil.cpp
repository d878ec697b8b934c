#include "util/TbkUtil.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QVersionNumber>

#include <optional>

#include "storage/FileAccess.h"

namespace blunko {

namespace {

constexpr int LongestEnd = 200;  // ms that a killed program may take

/// Value of the first line of a system file that begins with `Name`, as "model name : ...".
QString ValueFrom(const QString& Path, const QByteArray& Name) {
  QFile File(Path);
  if (!File.open(QIODevice::ReadOnly)) return {};
  for (const QByteArray& Line : File.readAll().split('\n')) {
    if (Line.startsWith(Name)) return QString::fromUtf8(Line).section(':', 1).trimmed();
  }
  return {};
}

/// Three numbers with dots between, and nothing else but blanks around: Qt's own reader lets more pass.
std::optional<QVersionNumber> ParseVersion(const QByteArray& Text) {
  const QRegularExpression Form(QStringLiteral("\\A\\s*([0-9]{1,9}(\\.[0-9]{1,9}){2})\\s*\\z"));
  const QRegularExpressionMatch Found = Form.match(QString::fromLatin1(Text));
  return Found.hasMatch() ? std::optional(QVersionNumber::fromString(Found.captured(1))) : std::nullopt;
}

/// The program that asks for the newest version: beside the game, or where an installation has it. Empty without it.
QString VersionAsker() {
  const QString Here = QCoreApplication::applicationDirPath() + QLatin1Char('/');
  return QStandardPaths::findExecutable(QStringLiteral("blunko-newest-version"),
                                        {Here, Here + QStringLiteral(TBK_HELPERS)});
}

}  // namespace

TbkUtil::TbkUtil(QString VersionAddress, int TimeLimit, QString Asker)
    : versionAddress(std::move(VersionAddress)), timeLimit(TimeLimit), asker(std::move(Asker)) {}

void TbkUtil::UtilSurveyHardware() const {
  QByteArray Text;
  QTextStream Out(&Text);
  const QString Model = ValueFrom(QStringLiteral("/proc/cpuinfo"), "model name");
  Out << "Processor: " << (Model.isEmpty() ? QSysInfo::currentCpuArchitecture() : Model) << ", "
      << QThread::idealThreadCount() << " threads\n";
  Out << "Memory: " << ValueFrom(QStringLiteral("/proc/meminfo"), "MemTotal") << "\n";
  Out << "System: " << QSysInfo::prettyProductName() << ", " << QSysInfo::kernelType() << " "
      << QSysInfo::kernelVersion() << "\n";
  for (const QScreen* Screen : QGuiApplication::screens()) {
    const QSize Size = Screen->size() * Screen->devicePixelRatio();
    Out << "Screen: " << Size.width() << " x " << Size.height() << " pixels, scale " << Screen->devicePixelRatio()
        << "\n";
  }
  Out.flush();
  Store(QStringLiteral("hardware.txt"), Text);
}

TbkUtil::VersionAnswer TbkUtil::UtilCheckVersion(int Major, int Minor, int Revision) const {
  auto* const Asker = new QProcess;
  QEventLoop Loop;
  QObject::connect(Asker, &QProcess::stateChanged, &Loop, [&](QProcess::ProcessState State) {
    if (State == QProcess::NotRunning) Loop.quit();
  });
  QTimer::singleShot(timeLimit, Qt::PreciseTimer, &Loop, &QEventLoop::quit);
  Asker->start(asker.isEmpty() ? VersionAsker() : asker, {versionAddress});
  if (Asker->state() != QProcess::NotRunning) Loop.exec(QEventLoop::ExcludeUserInputEvents);

  // One that failed has printed nothing.
  const bool Ended = Asker->state() == QProcess::NotRunning;
  const auto Newest = Ended ? ParseVersion(Asker->readAll()) : std::nullopt;
  Asker->kill();
  // One that the system doesn't let go at once is left to itself: its object would wait for it.
  if (Ended || Asker->waitForFinished(LongestEnd)) delete Asker;
  if (!Newest) return VersionError;
  return *Newest > QVersionNumber(Major, Minor, Revision) ? NewerExists : UpToDate;
}

bool TbkUtil::UtilStoreLists(const QByteArray& Text) const { return Store(ListsName, Text); }

/// Before a folder is set there is no place for the file: the root of the file system isn't it.
bool TbkUtil::Store(const QString& Name, const QByteArray& Bytes) const {
  return !folder.isEmpty() && ReplaceFile(folder + QLatin1Char('/') + Name, Bytes);
}

}  // namespace blunko
