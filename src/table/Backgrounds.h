#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <cstdint>

namespace blunko {

/// The background pictures of some folders as one list, each with the text colour that suits it.
class Backgrounds {
 public:
  /// The list that offers the pictures holds no more of them, "(None)" not counted.
  static constexpr int MostFiles = 255;

  /// Of pictures with the same name that in the folder named first counts.
  explicit Backgrounds(QStringList Folders) : folders(std::move(Folders)) {}

  /// Looks through the folders afresh. A missing one is an empty one.
  void ScanBackgrounds();

  /// Names of the pictures without their folder, sorted by character code.
  QStringList BackgroundFiles;
  /// Index in the list of text colours that goes with a picture; 0, black, without a colour file.
  std::int16_t ColourIndexOf(const QString& Name) const { return pictures.value(Name).Colour; }
  QString PathOf(const QString& Name) const { return pictures.value(Name).Path; }

 private:
  struct Picture {
    QString Path;
    std::int16_t Colour = 0;
  };

  QStringList folders;
  QHash<QString, Picture> pictures;  ///< by their names
};

/// The number that a colour file begins with; 0 without one, and for a file that can't be read.
std::int16_t ReadColourFile(const QString& Path);

}  // namespace blunko
