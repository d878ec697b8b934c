#pragma once

#include <QByteArray>
#include <QLockFile>
#include <QString>

#include <memory>
#include <optional>

namespace blunko {

/// All bytes of a plain file. Nothing for a missing file, for one larger than `Limit`, and for what is no plain file,
/// such as a folder or a pipe.
std::optional<QByteArray> ReadWholeFile(const QString& Path, qint64 Limit);

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
