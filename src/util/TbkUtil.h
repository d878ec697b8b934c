#pragma once

#include <QByteArray>
#include <QString>

#include "storage/Folders.h"

namespace blunko {

/// What the program asks of its utility library besides random numbers.
class TbkUtil {
 public:
  /// `VersionAddress`: where a text "major.minor.revision" names the newest version. `TimeLimit` in ms.
  /// `Asker`: the program that asks there and prints the answer; without one, that of the installation.
  explicit TbkUtil(QString VersionAddress, int TimeLimit = 5000, QString Asker = {});

  /// The folder that the files of the next functions go to.
  void UtilSetFolder(const QString& Folder) { folder = Folder; }
  QString ListsPath() const { return folder + QLatin1Char('/') + ListsName; }

  /// Writes "hardware.txt": processor, memory, system and screens in readable form. Nothing in it identifies a person,
  /// and nothing is sent anywhere. Failure is silent.
  void UtilSurveyHardware() const;

  enum VersionAnswer { VersionError, UpToDate, NewerExists };
  /// Compares with the newest version. Anything unexpected is an error, and so is no answer within the time limit.
  VersionAnswer UtilCheckVersion(int Major, int Minor, int Revision) const;

  /// Puts exactly these bytes in place of "highscores.dat": at any moment it holds the old or the new ones, whole.
  /// False if the old ones are still there.
  bool UtilStoreLists(const QByteArray& Text) const;

 private:
  bool Store(const QString& Name, const QByteArray& Bytes) const;

  QString folder;
  QString versionAddress;
  int timeLimit;
  QString asker;
};

}  // namespace blunko
