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

/// Keeps a second copy of the program away from the file while it is read, changed and written. Waits a second at the
/// most: in a folder that can't hold a lock the work goes on without one.
class FileLock {
 public:
  explicit FileLock(const QString& Path);

 private:
  QLockFile lock;
};

}  // namespace blunko
