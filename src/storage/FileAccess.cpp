#include "storage/FileAccess.h"

#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <fcntl.h>
#include <unistd.h>

namespace blunko {

namespace {

constexpr int LongestWait = 1000;  // ms
constexpr int StaleAfter = 5000;   // ms

}  // namespace

std::optional<QByteArray> ReadWholeFile(const QString& Path, qint64 Limit) {
  const QFileInfo Info(Path);
  if (!Info.isFile() || Info.size() > Limit) return std::nullopt;
  QFile File(Path);
  if (!File.open(QIODevice::ReadOnly)) return std::nullopt;
  QByteArray Bytes = File.readAll();
  if (Bytes.size() > Limit || File.error() != QFileDevice::NoError) return std::nullopt;
  return Bytes;
}

bool ReplaceFile(const QString& Path, const QByteArray& Bytes) {
  QSaveFile File(Path);
  if (!File.open(QIODevice::WriteOnly)) return false;
  // The bytes must be on the disk before the new name is: after a power cut an empty file may stand there otherwise. On
  // a full disk the write is short, or the flush fails; the commit alone wouldn't mind and put the torso in place.
  const bool Whole = File.write(Bytes) == Bytes.size() && File.flush() && fsync(File.handle()) == 0;
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
