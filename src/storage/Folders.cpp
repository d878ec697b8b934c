#include "storage/Folders.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "storage/FileAccess.h"

namespace blunko {

namespace {

const QString FolderName = QStringLiteral("tollmoor-blunko");
constexpr QFile::Permissions OwnerOnly = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

/// Makes the folder and those above it that are missing, closed to everybody else.
bool MakePrivate(const QString& Folder) {
  const QFileInfo Found(Folder);
  return Found.isDir() || (MakePrivate(Found.path()) && QDir().mkdir(Folder, OwnerOnly));
}

/// Where the shipped files of an installed program are; empty for any other.
QString InstalledFiles(const QString& Program) {
  const QString Share = QDir::cleanPath(Program + QStringLiteral("/../share/") + FolderName);
  return QFileInfo(Share).isDir() ? Share : QString();
}

/// The file is copied while there is none in its new place; the old one stays for whoever shares it.
void TakeOver(const QString& From, const QString& To) {
  if (QFileInfo::exists(To)) return;
  const FileLock Lock(To);
  const auto Bytes = ReadWholeFile(From);
  if (Lock.IsHeld() && Bytes && !QFileInfo::exists(To)) ReplaceFile(To, *Bytes);
}

}  // namespace

Folders Folders::OfProgram() {
  // Qt's own answer is empty before there is an application, and for a path that isn't text.
  const QString Path = QFile::symLinkTarget(QStringLiteral("/proc/self/exe"));
  return Of(Path.isEmpty() ? QCoreApplication::applicationFilePath() : Path);
}

Folders Folders::Of(const QString& Path) {
  const QFileInfo Executable(Path);
  const QString Program = Executable.absolutePath();
  Folders Beside{Program, Executable.completeBaseName(), Program, GetTempFolder()};
  const bool Installed = !InstalledFiles(Program).isEmpty();
  if (!Installed && QFileInfo(Program).isWritable()) return Beside;

  const auto Own = [](QStandardPaths::StandardLocation Kind) {
    QString Folder = QStandardPaths::writableLocation(Kind) + QStringLiteral("/TollmoorBlunko");
    MakePrivate(Folder);
    return Folder;
  };
  Folders Found = Beside;
  Found.State = Own(QStandardPaths::GenericConfigLocation);
  const QString ListsInState = Found.ListsPath();
  if (Installed) Found.Data = Own(QStandardPaths::GenericDataLocation);
  TakeOver(Beside.InfoPath(), Found.InfoPath());
  for (const QString& Lists : {ListsInState, Beside.ListsPath()}) TakeOver(Lists, Found.ListsPath());
  return Found;
}

QString Folders::InfoPath() const { return State + QLatin1Char('/') + BaseName + QStringLiteral(".ini"); }

QString Folders::ListsPath() const { return (Data.isEmpty() ? State : Data) + QLatin1Char('/') + ListsName; }

QString Folders::Shipped(const QString& Part) const {
  const QString Installed = InstalledFiles(Program);
  return (Installed.isEmpty() ? Program : Installed) + QLatin1Char('/') + Part;
}

QString Folders::OwnBackground() const { return Data.isEmpty() ? QString() : Data + QStringLiteral("/Background"); }

QString GetTempFolder() {
  const QString Runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
  const QString Cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation);
  for (const QString& Parent : {IsPrivate(Runtime) ? Runtime : QString(), Cache}) {
    if (Parent.isEmpty()) continue;
    const QString Folder = Parent + QLatin1Char('/') + FolderName;
    if (MakePrivate(Folder) && IsPrivate(Folder)) return Folder + QLatin1Char('/');
  }
  if (QDir::tempPath().isEmpty()) return {};  // the one that the system names isn't there
  // A name that nobody can take beforehand; the next start finds the folder by its owner.
  const QDir Shared(QDir::tempPath());
  for (const QString& Name :
       Shared.entryList({FolderName + QStringLiteral("-??????")}, QDir::Dirs | QDir::NoSymLinks)) {
    if (IsPrivate(Shared.filePath(Name))) return Shared.filePath(Name) + QLatin1Char('/');
  }
  QTemporaryDir Fresh(Shared.filePath(FolderName + QStringLiteral("-XXXXXX")));
  Fresh.setAutoRemove(false);
  return Fresh.isValid() ? Fresh.path() + QLatin1Char('/') : QString();
}

bool FileExists(const QString& Path) { return !Path.isEmpty() && QFileInfo(Path).isFile(); }

QString FileNameOnly(const QString& Path) { return Path.mid(Path.lastIndexOf(QLatin1Char('/')) + 1); }

QString FileBaseName(const QString& Path) { return FileNameOnly(Path).section(QLatin1Char('.'), 0, 0); }

}  // namespace blunko
