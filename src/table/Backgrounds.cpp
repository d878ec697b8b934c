#include "table/Backgrounds.h"

#include <QDir>

#include <algorithm>
#include <numeric>
#include <vector>

#include "storage/FileAccess.h"
#include "storage/Folders.h"
#include "storage/Numbers.h"

namespace blunko {

namespace {

constexpr qint64 LargestColourFile = 1 << 16;  // bytes

}  // namespace

void Backgrounds::ScanBackgrounds() {
  PictureFolders.clear();
  for (const QString& Folder : folders) {
    for (const QString& Name : QDir(Folder).entryList({QStringLiteral("*.jpg")}, QDir::Files, QDir::Unsorted)) {
      if (!PictureFolders.contains(Name)) PictureFolders[Name] = Folder;
    }
  }
  BackgroundFiles = SortNames(PictureFolders.keys()).mid(0, MostFiles);
  BackgroundColours.clear();
  for (const QString& Name : BackgroundFiles) {
    const QString Base = PictureFolders[Name] + QLatin1Char('/') + FileBaseName(Name);
    BackgroundColours.emplace(Name, ReadColourFile(Base + QStringLiteral(".clr")));
  }
}

std::int16_t Backgrounds::ColourIndexOf(const QString& Name) const {
  const auto Found = BackgroundColours.find(Name);
  return Found == BackgroundColours.end() ? std::int16_t{0} : Found->second;
}

std::int16_t ReadColourFile(const QString& Path) {
  return LeadingNumber(QString::fromLatin1(ReadWholeFile(Path, LargestColourFile).value_or(QByteArray())));
}

/// A heap sort over the places of the names; the names themselves stay where they are.
QStringList SortNames(const QStringList& Names) {
  std::vector<qsizetype> Order(static_cast<std::size_t>(Names.size()));
  std::iota(Order.begin(), Order.end(), 0);
  const auto NameAt = [&Names](qsizetype Place) -> const QString& { return Names[Place]; };
  std::ranges::make_heap(Order, {}, NameAt);
  std::ranges::sort_heap(Order, {}, NameAt);
  QStringList Sorted;
  for (const qsizetype Place : Order) Sorted << Names[Place];
  return Sorted;
}

}  // namespace blunko
