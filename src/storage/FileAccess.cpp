#include "storage/FileAccess.h"

#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <tuple>
#include <unistd.h>
#include <utility>

namespace blunko {

namespace {

constexpr int LongestWait = 100;  // ms for the lock
constexpr int TryEvery = 200;     // us: who saves without a pause lets go for some microseconds at a time
constexpr int MostSetAside = 1000;

/// Where a link leads to; the path itself where there is no file yet.
QString RealPath(const QString& Path) {
  const QString Real = QFileInfo(Path).canonicalFilePath();
  return Real.isEmpty() ? Path : Real;
}

bool LeadsNowhere(const QString& Path) { return QFileInfo(Path).isSymLink() && !QFileInfo::exists(Path); }

/// Some file systems can't be told to write at once.
bool SyncFile(int Handle) {
  return TEMP_FAILURE_RETRY(fsync(Handle)) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP;
}

/// A file written by the administrator stays its owner's. The new one gets of its mode what is in `Mask`.
void KeepOwnerAndMode(const QString& Old, int New, mode_t Mask) {
  struct stat Found {};
  if (stat(QFile::encodeName(Old).constData(), &Found) != 0) return;
  fchmod(New, Found.st_mode & Mask);
  // One after the other: who can't give a file away can still leave it to its group.
  std::ignore = fchown(New, Found.st_uid, -1);
  std::ignore = fchown(New, -1, Found.st_gid);
}

/// Whether the name is still that of the open file.
bool Bears(const QByteArray& Name, int Handle) {
  struct stat Named {};
  struct stat Held {};
  return stat(Name.constData(), &Named) == 0 && fstat(Handle, &Held) == 0 && Named.st_ino == Held.st_ino &&
         Named.st_dev == Held.st_dev;
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

std::optional<QByteArray> ReadWholeFile(const QString& Path, qint64 Limit, FileState* State) {
  const auto Failed = [State](FileState Found) {
    if (State != nullptr) *State = Found;
    return std::nullopt;
  };
  // A pipe is opened, too, and then looked at: whoever looks first may open something else.
  const QByteArray Name = QFile::encodeName(Path);
  const int Handle = TEMP_FAILURE_RETRY(open(Name.constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));
  if (Handle == -1) {
    if (errno == ENOENT && !LeadsNowhere(Path)) return Failed(FileState::Missing);
    return Failed(errno == ENXIO ? FileState::Foreign : FileState::Unreadable);
  }
  QFile File;  // closes the handle, whatever comes
  struct stat Info {};
  if (!File.open(Handle, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle) || fstat(Handle, &Info) != 0) {
    return Failed(FileState::Unreadable);
  }
  if (!S_ISREG(Info.st_mode) || Info.st_size > Limit) return Failed(FileState::Foreign);
  QByteArray Bytes = File.read(Limit + 1);
  if (File.error() != QFileDevice::NoError) return Failed(FileState::Unreadable);
  if (Bytes.size() > Limit) return Failed(FileState::Foreign);
  if (State != nullptr) *State = FileState::Whole;
  return Bytes;
}

FileStamp StampOf(const QString& Path) {
  struct stat Found {};
  if (stat(QFile::encodeName(Path).constData(), &Found) != 0) return {};
  const std::chrono::seconds Changed(Found.st_ctim.tv_sec);
  return {Found.st_dev, Found.st_ino, Found.st_size, Changed + std::chrono::nanoseconds(Found.st_ctim.tv_nsec)};
}

bool ReplaceFile(const QString& Path, const QByteArray& Bytes) {
  const QString Target = RealPath(Path);
  if (LeadsNowhere(Path) || (QFileInfo::exists(Target) && !QFileInfo(Target).isWritable())) return false;
  QFile New(Target + QStringLiteral(".saving"));
  if (!New.remove() && New.exists()) SetAside(New.fileName(), "file in the making");  // else a killed copy's
  if (!New.open(QIODevice::WriteOnly | QIODevice::NewOnly)) return false;
  KeepOwnerAndMode(Target, New.handle(), 0777);
  // The bytes must be on the disk before the name is: after a power cut an empty file may stand there otherwise.
  const bool Whole = New.write(Bytes) == Bytes.size() && New.flush() && SyncFile(New.handle());
  New.close();
  if (!Whole || rename(QFile::encodeName(New.fileName()).constData(), QFile::encodeName(Target).constData()) != 0) {
    New.remove();
    return false;
  }
  const QByteArray FolderName = QFile::encodeName(QFileInfo(Target).absolutePath());
  const int Folder = TEMP_FAILURE_RETRY(open(FolderName.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (Folder != -1) {
    SyncFile(Folder);
    close(Folder);
  }
  return true;
}

bool IsPrivate(const QString& Folder) {
  struct stat Found {};
  return lstat(QFile::encodeName(Folder).constData(), &Found) == 0 && S_ISDIR(Found.st_mode) &&
         Found.st_uid == geteuid() && (Found.st_mode & 0777) == 0700;
}

FileLock::FileLock(const QString& Path) : name(QFile::encodeName(RealPath(Path) + QStringLiteral(".lock"))) {
  // Nobody can open it for reading, and for writing only who may write the file.
  const auto Open = [this](int Flags) {
    return TEMP_FAILURE_RETRY(open(name.constData(), O_WRONLY | O_NONBLOCK | O_NOFOLLOW | O_CLOEXEC | Flags, 0222));
  };
  const QDeadlineTimer End(LongestWait);
  do {
    handle = Open(O_CREAT | O_EXCL);
    if (handle != -1) {
      KeepOwnerAndMode(Path, handle, 0222);
    } else {
      if (errno != EEXIST) return;
      handle = Open(0);
      if (handle == -1 && errno != ENOENT && !(errno == EISDIR && SetAside(QFile::decodeName(name), "lock"))) return;
    }
    // Who held it before has taken it away with its name.
    if (handle != -1 && TEMP_FAILURE_RETRY(flock(handle, LOCK_EX | LOCK_NB)) == 0 && Bears(name, handle)) return;
    if (handle != -1) close(std::exchange(handle, -1));
    QThread::usleep(TryEvery);
  } while (!End.hasExpired());
}

FileLock::~FileLock() {
  if (!IsHeld()) return;
  unlink(name.constData());
  close(handle);
}

void TellUnsaved(const QString& Path, bool& Told) {
  if (std::exchange(Told, true)) return;
  std::fprintf(stderr, "%s can't be saved: what is new is kept, and saved as soon as it can be\n", qPrintable(Path));
}

}  // namespace blunko
