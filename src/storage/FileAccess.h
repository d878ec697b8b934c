#pragma once

#include <QByteArray>
#include <QLockFile>
#include <QString>

#include <optional>

namespace blunko {

/// What stands under a path. `Foreign`: nothing of ours, such as a folder, a pipe or a file too large. `Unreadable`: it
/// may well be good, but the system didn't hand it out.
enum class FileState { Whole, Missing, Foreign, Unreadable };

/// All bytes of a plain file of at most `Limit` bytes; nothing in every state but `Whole`.
std::optional<QByteArray> ReadWholeFile(const QString& Path, qint64 Limit, FileState* State = nullptr);

/// Replaces the file by these bytes: afterwards it holds either the old or the new ones, whole. False on failure.
bool ReplaceFile(const QString& Path, const QByteArray& Bytes);

/// Keeps a second copy of the program away from the file while it is read, changed and written. A lock that can't be
/// had within a quarter of a second is done without: the window stands still meanwhile, and a dialog writes several
/// keys.
class FileLock {
 public:
  explicit FileLock(const QString& Path);

 private:
  QLockFile lock;
};

}  // namespace blunko
