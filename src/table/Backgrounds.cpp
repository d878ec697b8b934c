#include "table/Backgrounds.h"

#include <QDir>

#include "storage/FileAccess.h"
#include "storage/Folders.h"
#include "storage/Numbers.h"
#include "widgets/JpegCheck.h"

namespace blunko {

void Backgrounds::ScanBackgrounds() {
  pictures.clear();
  for (const QString& Folder : folders) {
    for (const QString& Name : QDir(Folder).entryList({QStringLiteral("*.jpg")}, QDir::Files, QDir::Unsorted)) {
      if (!pictures.contains(Name)) pictures[Name].Path = Folder + QLatin1Char('/') + Name;
    }
  }
  BackgroundFiles = pictures.keys();
  BackgroundFiles.sort();
  BackgroundFiles = BackgroundFiles.mid(0, MostFiles);
  for (const QString& Name : BackgroundFiles) {
    Picture& Found = pictures[Name];
    const QString Folder = Found.Path.chopped(Name.size());
    Found.Colour = ReadColourFile(Folder + FileBaseName(Name) + QStringLiteral(".clr"));
  }
}

std::int16_t ReadColourFile(const QString& Path) {
  return LeadingNumber(QString::fromLatin1(ReadWholeFile(Path, LargestJpeg).value_or(QByteArray())));
}

}  // namespace blunko
