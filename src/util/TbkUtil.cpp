#include "util/TbkUtil.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QGuiApplication>
#include <QProcess>
#include <QScreen>
#include <QStandardPaths>
#include <QSysInfo>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QVersionNumber>

#include <cstdlib>
#include <optional>

#include "storage/FileAccess.h"
#include "storage/Folders.h"

namespace blunko {

namespace {

/// Value of the first line of a system file that begins with `Name`, as "model name : ...".
QString ValueFrom(const QString& Path, const QByteArray& Name) {
  QFile File(Path);
  if (!File.open(QIODevice::ReadOnly)) return {};
  for (const QByteArray& Line : File.readAll().split('\n')) {
    if (Line.startsWith(Name)) return QString::fromUtf8(Line.mid(Line.indexOf(':') + 1).trimmed());
  }
  return {};
}

/// Three numbers with dots between, and nothing else but blanks around.
std::optional<QVersionNumber> ParseVersion(const QByteArray& Text) {
  const QByteArray Trimmed = Text.trimmed();
  // Qt's own reader lets blanks and signs pass.
  if (Trimmed.toStdString().find_first_not_of("0123456789.") != std::string::npos) return std::nullopt;
  qsizetype Rest = 0;
  const QVersionNumber Version = QVersionNumber::fromString(QString::fromLatin1(Trimmed), &Rest);
  if (Rest != Trimmed.size() || Version.segmentCount() != 3) return std::nullopt;
  return Version;
}

/// The program that asks for the newest version: beside the game, or where an installation has it. Empty without it.
QString VersionAsker() {
  const QString Here = QCoreApplication::applicationDirPath() + QLatin1Char('/');
  return QStandardPaths::findExecutable(QStringLiteral("blunko-newest-version"),
                                        {Here, Here + QStringLiteral(TBK_HELPERS)});
}

}  // namespace

TbkUtil::TbkUtil(QString VersionAddress, int TimeLimit)
    : versionAddress(std::move(VersionAddress)), timeLimit(TimeLimit) {}

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
  const QUrl Address(versionAddress);
  if (Address.scheme() != QLatin1String("http") && Address.scheme() != QLatin1String("https")) return VersionError;
  QProcess Asker;
  QEventLoop Loop;
  QObject::connect(&Asker, &QProcess::stateChanged, &Loop, [&Loop](QProcess::ProcessState State) {
    if (State == QProcess::NotRunning) Loop.quit();
  });
  QTimer::singleShot(timeLimit, Qt::PreciseTimer, &Loop, &QEventLoop::quit);
  Asker.start(VersionAsker(), {versionAddress});
  if (Asker.state() != QProcess::NotRunning) Loop.exec(QEventLoop::ExcludeUserInputEvents);

  const bool Answered = Asker.state() == QProcess::NotRunning && Asker.exitStatus() == QProcess::NormalExit &&
                        Asker.error() == QProcess::UnknownError && Asker.exitCode() == EXIT_SUCCESS;
  Asker.kill();
  Asker.waitForFinished();
  const auto Newest = Answered ? ParseVersion(Asker.readAllStandardOutput()) : std::nullopt;
  if (!Newest) return VersionError;
  return *Newest > QVersionNumber(Major, Minor, Revision) ? NewerExists : UpToDate;
}

bool TbkUtil::UtilStoreLists(const QByteArray& Text) const { return Store(ListsName, Text); }

/// Before a folder is set there is no place for the file: the root of the file system isn't it.
bool TbkUtil::Store(const QString& Name, const QByteArray& Bytes) const {
  return !folder.isEmpty() && ReplaceFile(folder + QLatin1Char('/') + Name, Bytes);
}

}  // namespace blunko
