#include "storage/Folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <sys/stat.h>
#include <unistd.h>

namespace blunko {

namespace {

const QString FolderName = QStringLiteral("tollmoor-blunko");

/// A real folder, no link, that belongs to the user and is closed to everybody else.
bool IsPrivate(const QString& Folder) {
  struct stat Found {};
  return lstat(QFile::encodeName(Folder).constData(), &Found) == 0 && S_ISDIR(Found.st_mode) &&
         Found.st_uid == geteuid() && (Found.st_mode & 0777) == 0700;
}

bool CanWriteIn(const QString& Folder) { return QFileInfo(Folder).isDir() && QFileInfo(Folder).isWritable(); }

}  // namespace

Folders Folders::OfProgram() { return Of(QCoreApplication::applicationFilePath()); }

Folders Folders::Of(const QString& Path) {
  Folders Found;
  const QFileInfo Executable(Path);
  Found.Program = Executable.absolutePath();
  Found.BaseName = Executable.completeBaseName();
  Found.State = Found.Program;
  if (!CanWriteIn(Found.State)) {
    Found.State =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation) + QStringLiteral("/TollmoorBlunko");
    QDir().mkpath(Found.State);
  }
  Found.Temp = GetTempFolder();
  return Found;
}

QString Folders::InfoPath() const { return State + QLatin1Char('/') + BaseName + QStringLiteral(".ini"); }
QString Folders::ListsPath() const { return State + QLatin1Char('/') + ListsName; }

QString Folders::Shipped(const QString& Part) const {
  const QString Beside = Program + QLatin1Char('/') + Part;
  if (QFileInfo(Beside).isDir()) return Beside;
  const QString Installed = QDir::cleanPath(Program + QStringLiteral("/../share/tollmoor-blunko/") + Part);
  return QFileInfo(Installed).isDir() ? Installed : Beside;
}

QString GetTempFolder() {
  const QString Runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QString Cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  for (const QString& Parent : {IsPrivate(Runtime) ? Runtime : QString(), Cache}) {
    if (Parent.isEmpty() || !QDir().mkpath(Parent)) continue;
    const QString Folder = Parent + QLatin1Char('/') + FolderName;
    if (IsPrivate(Folder) || (mkdir(QFile::encodeName(Folder).constData(), 0700) == 0 && IsPrivate(Folder))) {
      return Folder + QLatin1Char('/');
    }
  }
  QByteArray Fresh = QFile::encodeName(QDir::tempPath() + QLatin1Char('/') + FolderName + QStringLiteral("-XXXXXX"));
  return mkdtemp(Fresh.data()) == nullptr ? QString() : QFile::decodeName(Fresh) + QLatin1Char('/');
}

bool FileExists(const QString& Path) { return !Path.isEmpty() && QFileInfo(Path).isFile(); }

QString FileNameOnly(const QString& Path) { return Path.mid(Path.lastIndexOf(QLatin1Char('/')) + 1); }

QString FileBaseName(const QString& Path) { return FileNameOnly(Path).section(QLatin1Char('.'), 0, 0); }

}  // namespace blunko
