#include <QFile>
#include <QImage>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "table/Backgrounds.h"
#include "table/Pictures.h"
#include "tests/storage/Place.h"

namespace blunko::test {
namespace {

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
    Folder.Put(QStringLiteral("A.clr"), Row.Text);
    EXPECT_EQ(ReadColourFile(Folder.Path(QStringLiteral("A.clr"))), Row.Index) << Row.Text.left(20).constData();
  }
  EXPECT_EQ(ReadColourFile(Folder.Path(QStringLiteral("None.clr"))), 0);
  EXPECT_EQ(ReadColourFile(Folder.Path()), 0) << "a folder";
  const QString Pipe = Folder.Path(QStringLiteral("Pipe.clr"));
  ASSERT_EQ(mkfifo(QFile::encodeName(Pipe).constData(), 0600), 0);
  EXPECT_EQ(ReadColourFile(Pipe), 0) << "a pipe is not waited for";
}

TEST(Backgrounds, NamesAreSortedByCharacterCode) {
  QStringList Names;
  for (int i = 0; i < 200; ++i) Names << QString::number((i * 7919) % 1000);
  Names << QStringLiteral("baby") << QStringLiteral("Baby") << QStringLiteral("BABY") << QStringLiteral("Äpfel")
        << QStringLiteral("a") << QStringLiteral("Z") << QString();
  QStringList Expected = Names;
  Expected.sort(Qt::CaseSensitive);
  EXPECT_EQ(SortNames(Names), Expected);
  EXPECT_EQ(SortNames({}), QStringList());
  EXPECT_LT(Expected.indexOf(QStringLiteral("Z")), Expected.indexOf(QStringLiteral("a")));
}

TEST(Backgrounds, TheFolderIsLookedThroughAfresh) {
  Place Folder;
  Backgrounds Found(Folder.Path(QStringLiteral("Background")));
  Found.ScanBackgrounds();
  EXPECT_TRUE(Found.BackgroundFiles.isEmpty()) << "no folder";

  Folder.Mkdir(QStringLiteral("Background/Folder.jpg"), 0755);
  for (const char* Name : {"Old.Glory.jpg", "sea.JPG", "Sea.jpg", "note.txt", "picture.jpeg"}) {
    Folder.Put(QStringLiteral("Background/") + QLatin1String(Name), "no picture");
  }
  Folder.Put(QStringLiteral("Background/Old.clr"), "4");
  Folder.Put(QStringLiteral("Background/Sea.clr"), "6");
  Found.ScanBackgrounds();
  EXPECT_EQ(Found.BackgroundFiles,
            (QStringList{QStringLiteral("Old.Glory.jpg"), QStringLiteral("Sea.jpg"), QStringLiteral("sea.JPG")}));
  EXPECT_EQ(Found.ColourIndexOf(QStringLiteral("Old.Glory.jpg")), 4) << "the name up to its first dot";
  EXPECT_EQ(Found.ColourIndexOf(QStringLiteral("SEA.JPG")), 6) << "without regard to case";
}

TEST(Backgrounds, FiveThousandPicturesStayWithinTheList) {
  Place Folder;
  for (int i = 0; i < 5000; ++i) Folder.Put(QStringLiteral("%1.jpg").arg(i, 4, 10, QLatin1Char('0')), "");
  Backgrounds Found(Folder.Path());
  Found.ScanBackgrounds();
  ASSERT_EQ(Found.BackgroundFiles.size(), 255) << "256 entries with (None)";
  EXPECT_EQ(Found.BackgroundFiles.back(), QStringLiteral("0254.jpg"));
}

TEST(Backgrounds, AnyFileLeavesTheTableUsable) {
  Place Folder;
  QImage Picture(60, 40, QImage::Format_RGB32);
  Picture.fill(Qt::red);
  const QString Good = Folder.Path(QStringLiteral("Good.jpg"));
  ASSERT_TRUE(Picture.save(Good));
  QFile GoodFile(Good);
  ASSERT_TRUE(GoodFile.open(QIODevice::ReadOnly));
  const QByteArray Bytes = GoodFile.readAll();
  QImage Huge(10000, 5000, QImage::Format_Grayscale8);  // 50 megapixels
  Huge.fill(128);
  ASSERT_TRUE(Huge.save(Folder.Path(QStringLiteral("Huge.jpg"))));
  Folder.Put(QStringLiteral("Cut.jpg"), Bytes.left(Bytes.size() / 3));
  Folder.Put(QStringLiteral("Text.jpg"), "no picture at all");
  Folder.Put(QStringLiteral("Empty.jpg"), "");
  ASSERT_EQ(mkfifo(QFile::encodeName(Folder.Path(QStringLiteral("Pipe.jpg"))).constData(), 0600), 0);

  StretchedPicture Table;
  Table.resize(393, 513);
  const struct {
    const char* Name;
    bool Shows;
  } Rows[] = {{"Good.jpg", true},   {"Huge.jpg", true},  {"Text.jpg", false}, {"Good.jpg", true},
              {"Empty.jpg", false}, {"Pipe.jpg", false}, {".", false},        {"None.jpg", false}};
  for (const auto& Row : Rows) {
    Table.Load(Folder.Path(QLatin1String(Row.Name)));
    EXPECT_EQ(Table.IsEmpty(), !Row.Shows) << Row.Name;
    EXPECT_EQ(Table.grab().size(), QSize(393, 513));
  }
  Table.Load(Folder.Path(QStringLiteral("Cut.jpg")));  // shows what there is, or nothing
  Table.grab();
}

}  // namespace
}  // namespace blunko::test
