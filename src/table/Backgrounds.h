#pragma once

#include <QString>
#include <QStringList>

#include <cstdint>
#include <map>

namespace blunko {

/// The background pictures of a folder, each with the text colour that suits it.
class Backgrounds {
 public:
  /// The list that offers the pictures holds no more of them, "(None)" not counted.
  static constexpr int MostFiles = 255;

  explicit Backgrounds(QString Folder) : folder(std::move(Folder)) {}

  /// Looks through the folder afresh. A missing one is an empty one.
  void ScanBackgrounds();

  /// Names of the pictures without their folder, sorted by character code.
  QStringList BackgroundFiles;
  /// Index in the list of text colours that goes with a picture; 0, black, without a colour file.
  std::int16_t ColourIndexOf(const QString& Name) const;
  QString PathOf(const QString& Name) const { return folder + QLatin1Char('/') + Name; }

 private:
  struct IgnoringCase {
    bool operator()(const QString& Left, const QString& Right) const {
      return Left.compare(Right, Qt::CaseInsensitive) < 0;
    }
  };

  QString folder;
  std::map<QString, std::int16_t, IgnoringCase> BackgroundColours;
};

/// The number that a colour file begins with; 0 without one, and for a file that can't be read.
std::int16_t ReadColourFile(const QString& Path);

/// The names in ascending order of character code: capital letters stand before small ones.
QStringList SortNames(const QStringList& Names);

}  // namespace blunko
