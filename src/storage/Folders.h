#pragma once

#include <QString>

namespace blunko {

/// Where the program's files live. Paths have no trailing separator, but for `Temp`.
struct Folders {
  QString Program;   ///< folder of the executable
  QString BaseName;  ///< name of the executable: the info file's name
  QString State;     ///< info file and lists: `Program`, or the user's configuration folder where that is read-only
  QString Temp;      ///< private to the user; empty when there is none

  /// The folders of the running program.
  static Folders OfProgram();
  /// Those of an executable with this path.
  static Folders Of(const QString& Path);
  QString InfoPath() const;
  QString ListsPath() const;
  /// A part of the shipped files ("Background", "help"...): beside the program, or where it was installed.
  QString Shipped(const QString& Part) const;
};

/// Name of the high rollers file.
inline const QString ListsName = QStringLiteral("highscores.dat");

/// The user's own folder for files that can be made again, with its trailing separator: mode 0700 and owned by the
/// user, the same one at every start unless somebody tampered with it. Empty when none can be had.
QString GetTempFolder();

/// Whether the path names an existing file. Any error counts as no.
bool FileExists(const QString& Path);

/// Name without folder, cut at its first dot: "Old" of "/a/Old.Glory.jpg".
QString FileBaseName(const QString& Path);
/// What stands behind the last separator.
QString FileNameOnly(const QString& Path);

}  // namespace blunko
