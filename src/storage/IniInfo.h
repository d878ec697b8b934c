#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace blunko {

/// Reads and writes single keys of the info file, a sectioned text in single-byte letters (Latin-1), or in UTF-8 when
/// it begins with a byte order mark. It knows nothing of their meaning. No file is held open between calls; its text is
/// kept, and read again once it has changed. Copies of an object share all that.
class IniInfo {
 public:
  /// Longest value that is written or read, in letters, or in bytes of a path.
  static constexpr int LongestValue = 254;

  explicit IniInfo(const QString& Path);

  /// Value of the key, without regard to case; `Default` when the key is missing or empty.
  QString ReadInfoValue(const QString& Key, const QString& Default = {}) const;
  /// Creates or replaces the key at once; everything else in the file stays as it is. What can't be saved holds
  /// for the run, and is saved with the next write or at the end.
  void WriteInfoValue(const QString& Key, const QString& Value) const;
  /// The same for paths: the bytes of the file system stand for themselves, whatever the coding of the text. One that
  /// is too long to be read back isn't written.
  QByteArray ReadInfoPath(const QString& Key, const QByteArray& Default) const;
  void WriteInfoPath(const QString& Key, const QByteArray& Path) const;

  const QString InfoPath;

  // The text itself, apart from the file.
  static QString FindValue(const QByteArray& Text, const QString& Key);
  static QByteArray WithValue(const QByteArray& Text, const QString& Key, const QString& Value);

 private:
  friend class WrittenTogether;
  class File;
  std::shared_ptr<File> file;
};

/// Gathers what is written while it lives: keys that belong together are one read, change and write of the file.
class WrittenTogether {
 public:
  explicit WrittenTogether(const IniInfo& Info);
  ~WrittenTogether();
  Q_DISABLE_COPY_MOVE(WrittenTogether)

 private:
  const std::shared_ptr<IniInfo::File> file;
};

}  // namespace blunko
