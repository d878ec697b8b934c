#include "storage/FileAccess.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cstdio>

#ifdef Q_OS_LINUX
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#else
#include <QDateTime>
#include <QLockFile>
#include <QSaveFile>
#endif

namespace blunko {

namespace {

constexpr int LongestWait = 5000;  // ms for the lock
constexpr int TryEvery = 2;        // ms
constexpr int MostSetAside = 1000;

/// Where a link leads to; the path itself where there is no file yet.
QString RealPath(const QString& Path) {
  const QString Real = QFileInfo(Path).canonicalFilePath();
  return Real.isEmpty() ? Path : Real;
}

}  // namespace

bool SetAside(const QString& Path, const char* Wanted) {
  for (int i = 1; i <= MostSetAside; ++i) {
    const QString Aside = Path + QStringLiteral(".damaged%1").arg(i);
    if (QFileInfo::exists(Aside)) continue;
    if (!QFile::rename(Path, Aside)) break;
    std::fprintf(stderr, "%s holds no %s: moved to %s\n", qPrintable(Path), Wanted, qPrintable(Aside));
    return true;
  }
  std::fprintf(stderr, "%s holds no %s, and can't be moved away\n", qPrintable(Path), Wanted);
  return false;
}

FileLock::~FileLock() {
  if (!held) return;
  lock.reset();
  QThread::msleep(TryEvery + 1);  // who writes without a pause would keep all others out: they look in between
}

#ifdef Q_OS_LINUX

namespace {

/// Some file systems can't be told to write at once.
bool SyncFile(int Handle) { return fsync(Handle) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP; }

/// A file written by the administrator stays its owner's.
void KeepOwnerAndMode(const QString& Old, int New) {
  struct stat Found {};
  if (stat(QFile::encodeName(Old).constData(), &Found) != 0) return;
  fchmod(New, Found.st_mode & 0777);
  static_cast<void>(fchown(New, Found.st_uid, Found.st_gid) == 0 || fchown(New, -1, Found.st_gid) == 0);
}

int OpenFolderOf(const QString& Path) {
  return open(QFile::encodeName(QFileInfo(Path).absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

}  // namespace

std::optional<QByteArray> ReadWholeFile(const QString& Path, qint64 Limit, FileState* State) {
  const auto Failed = [State](FileState Found) {
    if (State != nullptr) *State = Found;
    return std::nullopt;
  };
  // A pipe is opened, too, and then looked at: whoever looks first may open something else.
  const int Handle = open(QFile::encodeName(Path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
  if (Handle < 0) {
    if (errno == ENOENT || errno == ENOTDIR) return Failed(FileState::Missing);
    return Failed(errno == ENXIO || errno == ENODEV ? FileState::Foreign : FileState::Unreadable);
  }
  QFile File;
  struct stat Info {};
  const bool Plain = fstat(Handle, &Info) == 0 && S_ISREG(Info.st_mode) && Info.st_size <= Limit;
  if (!Plain || !File.open(Handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
    close(Handle);
    return Failed(Plain ? FileState::Unreadable : FileState::Foreign);
  }
  QByteArray Bytes = File.read(Limit + 1);
  if (File.error() != QFileDevice::NoError) return Failed(FileState::Unreadable);
  if (Bytes.size() > Limit) return Failed(FileState::Foreign);
  if (State != nullptr) *State = FileState::Whole;
  return Bytes;
}

FileStamp StampOf(const QString& Path) {
  struct stat Found {};
  if (stat(QFile::encodeName(Path).constData(), &Found) != 0) return {};
  return {Found.st_dev, Found.st_ino, Found.st_size, Found.st_ctim.tv_sec * 1'000'000'000LL + Found.st_ctim.tv_nsec};
}

bool ReplaceFile(const QString& Path, const QByteArray& Bytes) {
  const QString Target = RealPath(Path);
  if (QFileInfo::exists(Target) && !QFileInfo(Target).isWritable()) return false;
  QFile New(Target + QStringLiteral(".saving"));
  New.remove();  // of a copy that was killed
  if (!New.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return false;
  KeepOwnerAndMode(Target, New.handle());
  // The bytes must be on the disk before the name is: after a power cut an empty file may stand there otherwise.
  const bool Whole = New.write(Bytes) == Bytes.size() && New.flush() && SyncFile(New.handle());
  New.close();
  if (!Whole || rename(QFile::encodeName(New.fileName()).constData(), QFile::encodeName(Target).constData()) != 0) {
    New.remove();
    return false;
  }
  const int Folder = OpenFolderOf(Target);
  if (Folder >= 0) {
    fsync(Folder);
    close(Folder);
  }
  return true;
}

bool IsPrivate(const QString& Folder) {
  struct stat Found {};
  return lstat(QFile::encodeName(Folder).constData(), &Found) == 0 && S_ISDIR(Found.st_mode) &&
         Found.st_uid == geteuid() && (Found.st_mode & 0777) == 0700;
}

/// The folder itself is what is locked: it stays, is there before the file, and can be locked by all who can write in
/// it.
struct FileLock::OfSystem {
  explicit OfSystem(const QString& Path) : folder(OpenFolderOf(RealPath(Path))) {}
  ~OfSystem() { close(folder); }
  Q_DISABLE_COPY_MOVE(OfSystem)
  /// A system without such locks does without.
  bool Take() const { return flock(folder, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK; }

 private:
  const int folder;
};

FileLock::FileLock(const QString& Path) : lock(std::make_unique<OfSystem>(Path)) {
  const QDeadlineTimer End(LongestWait);
  while (!(held = lock->Take()) && !End.hasExpired()) QThread::msleep(TryEvery);
}

#else

std::optional<QByteArray> ReadWholeFile(const QString& Path, qint64 Limit, FileState* State) {
  const QFileInfo Info(Path);
  QFile File(Path);
  std::optional<QByteArray> Bytes;
  FileState Found = FileState::Whole;
  if (!Info.exists())
    Found = FileState::Missing;
  else if (!Info.isFile() || Info.size() > Limit)
    Found = FileState::Foreign;
  else if (!File.open(QIODevice::ReadOnly))
    Found = FileState::Unreadable;
  else
    Bytes = File.read(Limit);
  if (State != nullptr) *State = Found;
  return Bytes;
}

FileStamp StampOf(const QString& Path) {
  const QFileInfo Info(Path);
  if (!Info.exists()) return {};
  return {0, 1, Info.size(), Info.lastModified().toMSecsSinceEpoch() * 1'000'000};
}

bool ReplaceFile(const QString& Path, const QByteArray& Bytes) {
  QSaveFile File(Path);
  if (!File.open(QIODevice::WriteOnly)) return false;
  if (File.write(Bytes) != Bytes.size()) File.cancelWriting();
  return File.commit();
}

bool IsPrivate(const QString& Folder) {
  const QFileInfo Info(Folder);
  return Info.isDir() && !Info.isSymLink() && Info.isWritable();
}

struct FileLock::OfSystem : QLockFile {
  explicit OfSystem(const QString& Path) : QLockFile(RealPath(Path) + QStringLiteral(".lock")) {}
};

FileLock::FileLock(const QString& Path) : lock(std::make_unique<OfSystem>(Path)) {
  held = lock->tryLock(LongestWait) || lock->error() == QLockFile::PermissionError;
}

#endif

}  // namespace blunko
