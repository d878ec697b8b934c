#include <QImage>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "table/Backgrounds.h"
#include "tests/storage/Place.h"
#include "widgets/Pictures.h"

namespace blunko::test {
namespace {

/// A pipe that nobody writes into: who reads it waits for ever.
QString Pipe(const Place& Folder, const char* Name) {
  EXPECT_EQ(mkfifo(QFile::encodeName(Folder.Path(Name)).constData(), 0600), 0);
  return Folder.Path(Name);
}

TEST(Backgrounds, AColourFileCountsByTheNumberItBeginsWith) {
  const struct {
    QByteArray Text;
    int Index;
  } Rows[] = {{"7", 7},      {"  3 and more", 3},
              {"7\r\n", 7},  {"", 0},
              {"white", 0},  {"9", 9},
              {"-2", -2},    {"2.6", 3},
              {"32768", 0},  {"99999999999", 0},
              {"+4", 4},     {"\n 5", 5},
              {"1\0002", 1}, {"nan", 0},
              {"6;TRUE", 6}, {QByteArray(1 << 20, '7'), 0}};
  Place Folder;
  for (const auto& Row : Rows) {
    Folder.Put("A.clr", Row.Text);
    EXPECT_EQ(ReadColourFile(Folder.Path("A.clr")), Row.Index) << Row.Text.left(20).constData();
  }
  EXPECT_EQ(ReadColourFile(Folder.Path("None.clr")), 0);
  EXPECT_EQ(ReadColourFile(Folder.Path()), 0) << "a folder";
  EXPECT_EQ(ReadColourFile(Pipe(Folder, "Pipe.clr")), 0);
}

TEST(Backgrounds, TheFolderIsLookedThroughAfreshAndSortedByCharacterCode) {
  Place Folder;
  Backgrounds Found(Folder.Path("Background"));
  Found.ScanBackgrounds();
  EXPECT_TRUE(Found.BackgroundFiles.isEmpty()) << "no folder";

  Folder.Mkdir("Background/Folder.jpg", 0755);
  for (const char* Name : {"sea.JPG", "a.jpg", "Old.Glory.jpg", "Äpfel.jpg", "Z.jpg", "Sea.jpg", "n.txt", "p.jpeg"})
    Folder.Put(QStringLiteral("Background/") + Name, "no picture");
  Folder.Put("Background/Old.clr", "4");
  Folder.Put("Background/Sea.clr", "6");
  Found.ScanBackgrounds();
  EXPECT_EQ(Found.BackgroundFiles, (QStringList{"Old.Glory.jpg", "Sea.jpg", "Z.jpg", "a.jpg", "sea.JPG", "Äpfel.jpg"}));
  EXPECT_EQ(Found.ColourIndexOf("Old.Glory.jpg"), 4) << "the name up to its first dot";
  EXPECT_EQ(Found.ColourIndexOf("SEA.JPG"), 6) << "without regard to case";
}

TEST(Backgrounds, FiveThousandPicturesStayWithinTheList) {
  Place Folder;
  Folder.Put("picture", "");
  const QByteArray One = QFile::encodeName(Folder.Path("picture"));
  for (int i = 0; i < 5000; ++i) {
    const QString Name = QStringLiteral("%1.jpg").arg(i, 4, 10, QChar('0'));
    ASSERT_EQ(link(One.constData(), QFile::encodeName(Folder.Path(Name)).constData()), 0);
  }
  Backgrounds Found(Folder.Path());
  Found.ScanBackgrounds();
  ASSERT_EQ(Found.BackgroundFiles.size(), 255) << "256 entries with (None)";
  EXPECT_EQ(Found.BackgroundFiles.back(), "0254.jpg");
}

TEST(Backgrounds, AnyFileLeavesTheTableUsable) {
  Place Folder;
  QImage Red(60, 40, QImage::Format_RGB32), Huge(10000, 5000, QImage::Format_Grayscale8);  // 50 megapixels
  Red.fill(Qt::red);
  Huge.fill(128);
  ASSERT_TRUE(Red.save(Folder.Path("Good.jpg")) && Huge.save(Folder.Path("Huge.jpg")));
  const QByteArray Bytes = Folder.Get("Good.jpg");
  Folder.Put("Cut.jpg", Bytes.left(Bytes.size() / 3));
  Folder.Put("Text.jpg", "no picture at all");
  Folder.Put("Empty.jpg", "");
  Pipe(Folder, "Pipe.jpg");
  StretchedPicture Table;
  Table.resize(393, 513);
  const std::pair<const char*, bool> Rows[] = {
      {"Good.jpg", true}, {"Huge.jpg", true},   {"Text.jpg", false}, {"Good.jpg", true}, {"Cut.jpg", false},
      {"Good.jpg", true}, {"Empty.jpg", false}, {"Pipe.jpg", false}, {".", false},       {"None.jpg", false}};
  for (const auto& [Name, Shows] : Rows) {
    Table.Load(Folder.Path(Name));
    EXPECT_EQ(Table.IsEmpty(), !Shows) << Name;
    EXPECT_EQ(Table.grab().size(), QSize(393, 513));
  }
}

}  // namespace
}  // namespace blunko::test
