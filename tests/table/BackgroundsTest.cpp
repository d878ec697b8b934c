#include <QImage>
#include <QTest>

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "table/Backgrounds.h"
#include "tests/support/Place.h"
#include "widgets/JpegCheck.h"
#include "widgets/Pictures.h"

namespace blunko::test {

TEST(Backgrounds, TheFoldersAreLookedThroughAfreshAsOneListSortedByCharacterCode) {
  Place Folder;
  Backgrounds Found({Folder.Path("Own"), Folder.Path("Background")});
  Found.ScanBackgrounds();
  EXPECT_TRUE(Found.BackgroundFiles.isEmpty()) << "no folder";

  Folder.Mkdir("Background/Folder.jpg", 0755);
  for (const char* Name : {"Own/Z.jpg", "Own/b.jpg"}) Folder.Put(Name, "no picture");
  for (const char* Name : {"sea.JPG", "a.jpg", "Old.Glory.jpg", "Äpfel.jpg", "Z.jpg", "Sea.jpg", "n.txt", "p.jpeg"})
    Folder.Put(QStringLiteral("Background/") + Name, "no picture");
  Folder.Put("Background/Old.clr", QByteArray(1 << 20, ' ') + "4 and more");
  Folder.Put("Background/Sea.clr", "6");
  Folder.Put("Background/sea.clr", "5");
  Folder.Put("Background/Z.clr", "3");
  Found.ScanBackgrounds();
  EXPECT_EQ(Found.BackgroundFiles,
            (QStringList{"Old.Glory.jpg", "Sea.jpg", "Z.jpg", "a.jpg", "b.jpg", "sea.JPG", "Äpfel.jpg"}));
  EXPECT_EQ(Found.PathOf("Z.jpg"), Folder.Path("Own/Z.jpg")) << "the player's own comes first";
  EXPECT_EQ(Found.ColourIndexOf("Old.Glory.jpg"), 4) << "the name up to its first dot";
  EXPECT_EQ(Found.ColourIndexOf("Sea.jpg") * 10 + Found.ColourIndexOf("sea.JPG"), 65) << "each its own";
  EXPECT_EQ(Found.ColourIndexOf("Z.jpg"), 0) << "the colour goes with the picture";
}

/// The markers of a picture, with nothing in its scans; the samples of a component are given as 0x11, 0x21...
static QByteArray Jpeg(int Width, int Height, char Frame, int Scans, const QByteArray& Samples = "\x11\x11\x11") {
  QByteArray Made("\xFF\xD8\xFF\xE1\x00\x06\xFF\xDA..", 10);  // a scan of the thumbnail isn't one
  Made += QByteArray("\xFF", 1) + Frame + '\0' + static_cast<char>(8 + 3 * Samples.size()) + '\x08';
  for (const int Size : {Height, Width}) Made += QByteArray(1, static_cast<char>(Size >> 8)) + static_cast<char>(Size);
  Made += static_cast<char>(Samples.size());
  for (const char Sample : Samples) Made += QByteArray("\1", 1) + Sample + '\0';
  for (int i = 0; i < Scans; ++i) Made += QByteArray("\xFF\xFF\xDA\x00\x02.\xFF\x00.\xFF\xD0..", 14);
  return Made + "\xFF\xD9" + QByteArray("\xFF\xDA\0\2", 4).repeated(500);
}

TEST(Backgrounds, APictureIsRefusedByItsSizeBeforeItIsDecoded) {
  const std::pair<QByteArray, bool> Rows[] = {
      {Jpeg(20000, 20000, '\xC0', 1), true},
      {Jpeg(20001, 20000, '\xC0', 1), false},
      {Jpeg(5000, 4300, '\xC2', 1), false},                 // 123 MB in three components
      {Jpeg(8192, 5120, '\xC2', 9, "\x22\x11\x11"), true},  // two of them of a quarter
      {Jpeg(8000, 6000, '\xC0', 3), false},                 // isn't progressive, but kept as well
      {Jpeg(100, 100, '\xC2', 40000), true},
      {Jpeg(100, 100, '\xC2', 40001), false},
      {Jpeg(100, 100, '\xC0', 1).leftJustified(32 << 20, '.'), true},
      {Jpeg(100, 100, '\xC0', 1).leftJustified((32 << 20) + 1, '.'), false},
      {Jpeg(100, 100, '\xC2', 9).leftJustified(12 << 20, '.'), true},
      {Jpeg(100, 100, '\xC2', 9).leftJustified((12 << 20) + 1, '.'), false},
      {Jpeg(0, 100, '\xC0', 1), false},
      {Jpeg(100, 100, '\xC4', 1), false},  // no frame
      {Jpeg(100, 100, '\xC0', 0), false},
      {Jpeg(100, 100, '\xC0', 1).replace("\xFF\xD9", Jpeg(8, 8, '\xC0', 1).mid(10)), false},  // one of two frames
      {Jpeg(100, 100, '\xC0', 1).left(33), false},
      {"\x89PNG" + Jpeg(100, 100, '\xC0', 1), false}};
  for (const auto& [File, Modest] : Rows) {
    EXPECT_EQ(IsModestJpeg(File), Modest) << File.left(40).toHex().constData();
  }
}

TEST(Backgrounds, AnyFileLeavesTheTableUsable) {
  Place Folder;
  QImage Red(60, 40, QImage::Format_RGB32), Huge(10000, 5000, QImage::Format_Grayscale8);  // 50 megapixels
  Red.fill(Qt::red);
  Huge.fill(128);
  ASSERT_TRUE(Red.save(Folder.Path("Good.jpg")) && Huge.save(Folder.Path("Huge.jpg")));
  const QByteArray Bytes = Folder.Get("Good.jpg");
  Folder.Put("Cut.jpg", Bytes.left(Bytes.size() / 3));
  Folder.Put("Hollow.jpg", Jpeg(60, 40, '\xC0', 1));
  StretchedPicture Table;
  Table.resize(393, 513);
  const auto Green = [&Table] { return Table.grab().toImage().pixelColor(390, 510).green(); };
  const int Plain = Green();
  const std::pair<const char*, int> Rows[] = {{"Good.jpg", 0},    {"Huge.jpg", 128},     {"Cut.jpg", Plain},
                                              {"Good.jpg", 0},    {"Hollow.jpg", Plain}, {"Good.jpg", 0},
                                              {"None.jpg", Plain}};
  for (const auto& [Name, Shown] : Rows) {
    Table.Load(Folder.Path(Name));
    EXPECT_TRUE(QTest::qWaitFor([&] { return qAbs(Green() - Shown) < 3; })) << Name << ' ' << Green();
  }
  Table.Load(Folder.Path("Huge.jpg"));
  Folder.Put("Huge.jpg", Bytes);
  Table.Load(Folder.Path("Huge.jpg"));
  EXPECT_TRUE(QTest::qWaitFor([&] { return Green() < 3; })) << "replaced";
}

}  // namespace blunko::test
