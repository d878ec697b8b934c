#pragma once

#include <QByteArray>
#include <QString>

#include <chrono>
#include <optional>

namespace blunko {

// What the files of the program and of its player need of the operating system is here, and nowhere else.

/// What stands under a path. `Foreign`: nothing of ours, such as a folder, a pipe or a file too large. `Unreadable`: it
/// may well be good, but the system didn't hand it out; so is a link that leads to nothing.
enum class FileState { Whole, Missing, Foreign, Unreadable };

/// Bytes of a file of the game's own, which holds some thousands.
inline constexpr qint64 LargestFile = 1 << 20;
/// All bytes of a plain file of at most `Limit` bytes; nothing in every state but `Whole`. Waits for nobody, whatever
/// stands there.
std::optional<QByteArray> ReadWholeFile(const QString& Path, qint64 Limit = LargestFile, FileState* State = nullptr);

/// Tells a file from what another copy of the program, or its owner, made of it, without reading it.
struct FileStamp {
  quint64 Device = 0, Number = 0;  ///< which file it is; 0 where there is none
  qint64 Size = -1;
  std::chrono::nanoseconds Changed{};  ///< since 1970
  bool operator==(const FileStamp&) const = default;
};
FileStamp StampOf(const QString& Path);

/// Replaces the file by these bytes: afterwards it holds either the old or the new ones, whole. Its owner and its mode
/// stay. False on failure. Where another copy may replace it as well, the caller holds its lock.
bool ReplaceFile(const QString& Path, const QByteArray& Bytes);

/// Moves what can't be ours out of the file's place, under a name of its own, and tells so on standard error: nothing
/// is overwritten. `Wanted` says what it doesn't hold.
bool SetAside(const QString& Path, const char* Wanted);

/// A folder, no link, that belongs to the user and is closed to everybody else.
bool IsPrivate(const QString& Folder);

/// Keeps other copies of the program away from a file while it is read, changed and written: a file beside it that is
/// there for as long, and that nobody can hold who may not write. The system itself frees what a killed copy held. It
/// can't be taken twice at a time, not even by the same copy.
class FileLock {
 public:
  /// Waits no longer than a window may stand still, for a copy that is just saving.
  explicit FileLock(const QString& Path);
  ~FileLock();
  Q_DISABLE_COPY_MOVE(FileLock)
  /// False: the file must be left alone.
  bool IsHeld() const { return handle != -1; }

 private:
  const QByteArray name;
  int handle = -1;
};

/// Tells on standard error that a file can't be saved, unless `Told` already, and notes it there.
void TellUnsaved(const QString& Path, bool& Told);

}  // namespace blunko
