#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

namespace blunko {

/// Reads and writes single keys of the info file, a sectioned text in single-byte letters (Latin-1), or in UTF-8 when
/// it begins with a byte order mark. It knows nothing of their meaning. No file is held open between calls.
class IniInfo {
 public:
  /// Longest value that a read returns, in letters, or in bytes of a path.
  static constexpr int LongestValue = 254;

  explicit IniInfo(QString Path) : InfoPath(std::move(Path)) {}

  /// Value of the key, without regard to case; `Default` when the key is missing or empty.
  QString ReadInfoValue(const QString& Key, const QString& Default = {}) const;
  /// Creates or replaces the key at once; everything else in the file stays as it is. Failure is silent.
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
  using Change = QByteArray(const QByteArray& Text);
  void WriteFile(const std::function<Change>& Changed) const;
};

}  // namespace blunko
