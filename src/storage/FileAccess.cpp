#include "storage/FileAccess.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace blunko {

namespace {

constexpr int LongestWait = 250;  // ms
constexpr int StaleAfter = 5000;  // ms

/// Some file systems can't be told to write at once.
bool SyncFile(int Handle) { return fsync(Handle) == 0 || errno == EINVAL || errno == ENOSYS || errno == ENOTSUP; }

}  // namespace

std::optional<QByteArray> ReadWholeFile(const QString& Path, qint64 Limit, FileState* State) {
  const auto Failed = [State](FileState Found) {
    if (State != nullptr) *State = Found;
    return std::nullopt;
  };
  struct stat Info {};
  if (stat(QFile::encodeName(Path).constData(), &Info) != 0) {
    return Failed(errno == ENOENT || errno == ENOTDIR ? FileState::Missing : FileState::Unreadable);
  }
  if (!S_ISREG(Info.st_mode) || Info.st_size > Limit) return Failed(FileState::Foreign);
  QFile File(Path);
  if (!File.open(QIODevice::ReadOnly)) return Failed(FileState::Unreadable);
  QByteArray Bytes = File.readAll();
  if (File.error() != QFileDevice::NoError) return Failed(FileState::Unreadable);
  if (Bytes.size() > Limit) return Failed(FileState::Foreign);
  if (State != nullptr) *State = FileState::Whole;
  return Bytes;
}

bool ReplaceFile(const QString& Path, const QByteArray& Bytes) {
  QSaveFile File(Path);
  if (!File.open(QIODevice::WriteOnly)) return false;
  // The bytes must be on the disk before the new name is: after a power cut an empty file may stand there otherwise. On
  // a full disk the write is short, or the flush fails; the commit alone wouldn't mind and put the torso in place.
  const bool Whole = File.write(Bytes) == Bytes.size() && File.flush() && SyncFile(File.handle());
  if (!Whole) File.cancelWriting();
  if (!File.commit()) return false;
  const int Folder = open(QFile::encodeName(QFileInfo(Path).absolutePath()).constData(), O_RDONLY | O_DIRECTORY);
  if (Folder >= 0) {
    fsync(Folder);
    close(Folder);
  }
  return true;
}

FileLock::FileLock(const QString& Path) : lock(Path + QStringLiteral(".lock")) {
  lock.setStaleLockTime(StaleAfter);
  lock.tryLock(LongestWait);
}

}  // namespace blunko
