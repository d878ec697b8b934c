#pragma once

#include <QString>

namespace blunko {

/// Where the program's files live. Paths have no trailing separator, but for `Temp`. A program beside whose folder
/// there is `../share/tollmoor-blunko` is installed: its shipped files are there, and each user has a state of his own.
struct Folders {
  QString Program;   ///< folder of the executable
  QString BaseName;  ///< name of the executable: the info file's name
  QString State;     ///< info file: `Program`, or the user's configuration folder when installed or read-only
  QString Temp;      ///< private to the user; empty when there is none
  QString Data{};    ///< lists: the user's data folder when installed; empty: they lie in `State`

  /// The folders of the running program; needs no application object.
  static Folders OfProgram();
  /// Those of an executable with this path. State that it left in an earlier place is taken over.
  static Folders Of(const QString& Path);
  QString InfoPath() const;
  QString ListsPath() const;
  /// A part of the shipped files ("Background", "help"...).
  QString Shipped(const QString& Part) const;
  /// A folder for the player's own pictures, which need not exist; empty where the shipped one is the player's.
  QString OwnBackground() const;
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
