#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <thread>

#include "storage/FileAccess.h"
#include "storage/IniInfo.h"
#include "tests/storage/Place.h"

namespace blunko::test {
namespace {

TEST(IniText, FindsAKeyInWhatPeopleWrite) {
  static const std::pair<const char*, const char*> Rows[] = {
      {"", ""},
      {"\xEF\xBB\xBF[Info]\nKey=1\n", "1"},
      {"\n ; made by hand\n  [INFO]  ; mine\n\tkEY  =  1\t\n", "1"},
      {"Key=1\n", ""},                                   // in no section
      {"[Other]\nKey=1\n[Info]\nKey=2\n", "2"},          // another section's key
      {"[Info]\nA=1\n[Other]\nKey=1\n", ""},             // the same, behind
      {"[Info]\nKey=1\nKey=2\n", "1"},                   // the first of two keys
      {"[Info]\nA=1\n[X]\n[Info]\nKey=2\n", ""},         // the first of two sections
      {"[Info]\n;Key=1\n#Key=2\nMyKey=3\nKey 4\n", ""},  // comments, a longer key, no value
      {"[Info]\nKey=\"  a  \"\n", "  a  "},
      {"[Info]\nKey=\"\n", "\""},
      {"[Info]\nKey=a \"b\"\n", "a \"b\""}};
  for (const auto& [Text, Value] : Rows) {
    EXPECT_EQ(IniInfo::FindValue(Text, "Key").toLatin1(), QByteArray(Value)) << Text;
  }
}

TEST(IniText, ChangesNothingButTheKey) {
  static const std::pair<const char*, const char*> Rows[] = {
      {"", "[Info]\nKey=new\n"},
      {"; only a remark", "; only a remark\n[Info]\nKey=new\n"},
      {"[Info]\r\nA=1", "[Info]\r\nA=1\r\nKey=new\r\n"},
      {"[X]\r\nA=1", "[X]\r\nA=1\r\n[Info]\r\nKey=new\r\n"},
      {"\xEF\xBB\xBF[Info]\nkey=1\n", "\xEF\xBB\xBF[Info]\nkey=new\n"},
      {"[Info]\nB = 2\n kEy = 1\nA=1", "[Info]\nB = 2\n kEy =new\nA=1"},
      {"[Info]\r\nA=1\nKey=1\r\nB=2\n", "[Info]\r\nA=1\nKey=new\r\nB=2\n"},
      {"[Info]\n; Key=0\nA=\xA4\n\n\n[Y]\nKey=3\n", "[Info]\n; Key=0\nA=\xA4\nKey=new\n\n\n[Y]\nKey=3\n"},
      {"[Info]\nA=1\n[Y]\n[Info]\nKey=3\n", "[Info]\nA=1\nKey=new\n[Y]\n[Info]\nKey=3\n"}};
  for (const auto& [Before, After] : Rows) {
    EXPECT_EQ(IniInfo::WithValue(Before, "Key", "new"), QByteArray(After)) << Before;
    EXPECT_EQ(IniInfo::FindValue(After, "KEY"), QStringLiteral("new")) << Before;
  }
}

TEST(IniText, ReadsBackWhatItWrote) {
  const QString Long(IniInfo::LongestValue + 40, QLatin1Char('x'));
  const std::pair<QString, QString> Rows[] = {
      {" a b ", " a b "},
      {"\"quoted\"", "\"quoted\""},
      {"\"", "\""},
      {"[a]", "[a]"},
      {"a=b", "a=b"},
      {"a\nB=1\r", "a B=1 "},
      {QStringLiteral("M\u00FCller\u00A4"), QStringLiteral("M\u00FCller\u00A4")},
      {Long, Long.left(IniInfo::LongestValue)}};
  for (const QByteArray Mark : {"", "\xEF\xBB\xBF"}) {
    for (const auto& [Written, Read] : Rows) {
      const QByteArray Text = IniInfo::WithValue(Mark + "[Info]\nLast=1\n", "Key", Written);
      EXPECT_EQ(IniInfo::FindValue(Text, "Key"), Read) << Written.toStdString();
      EXPECT_EQ(IniInfo::FindValue(Text, "Last"), QStringLiteral("1")) << Written.toStdString();
      EXPECT_TRUE(IniInfo::FindValue(Text, "B").isEmpty()) << Written.toStdString();
    }
  }
  EXPECT_EQ(IniInfo::WithValue("", "Key", "\u00A4\u65E5"), "[Info]\nKey=\xA4?\n");
  EXPECT_EQ(IniInfo::WithValue("\xEF\xBB\xBF[Info]\n", "Key", "\u00A4\u65E5"),
            "\xEF\xBB\xBF[Info]\nKey=\xC2\xA4\xE6\x97\xA5\n");
}

TEST(IniInfo, PathsAreBytesInEitherCoding) {
  const Place place;
  const IniInfo Info(place.Path("x.ini"));
  const QByteArray Path = "/T\xC3\xB6ne/\xFF";
  for (const QByteArray Mark : {"", "\xEF\xBB\xBF"}) {
    place.Put("x.ini", Mark + "[Info]\n");
    EXPECT_EQ(Info.ReadInfoPath("Key", "/default"), "/default");
    Info.WriteInfoPath("Key", Path);
    Info.WriteInfoPath("Key", QByteArray(IniInfo::LongestValue + 1, 'x'));  // couldn't be read back
    EXPECT_EQ(Info.ReadInfoPath("Key", ""), Path);
    EXPECT_EQ(place.Get("x.ini"), Mark + "[Info]\nKey=" + Path + '\n');
  }
}

TEST(IniInfo, WritesAtOnceAndLeavesNothingBeside) {
  const Place place;
  const IniInfo Info(place.Path("x.ini"));
  EXPECT_EQ(Info.ReadInfoValue("Names", "none"), QStringLiteral("none"));
  EXPECT_TRUE(place.Names().isEmpty()) << "reading makes no file";
  Info.WriteInfoValue("Names", QString::fromLatin1("A\xA4"));
  Info.WriteInfoValue("names", QString::fromLatin1("B\xA4"));
  Info.WriteInfoValue("Empty", "");
  EXPECT_EQ(place.Get("x.ini"), QByteArray("[Info]\nNames=B\xA4\nEmpty=\n"));
  EXPECT_EQ(Info.ReadInfoValue("Empty", "default"), QStringLiteral("default"));
  EXPECT_EQ(place.Names(), QStringList("x.ini"));
}

TEST(IniInfo, LeavesAloneWhatItCannotRead) {
  const Place place;
  place.Mkdir("folder.ini", 0755);
  const std::pair<const char*, QByteArray> Files[] = {{"huge.ini", QByteArray(2 << 20, '\n')},
                                                      {"secret.ini", "[Info]\nKey=old\n"}};
  for (const auto& [Name, Text] : Files) place.Put(Name, Text);
  ASSERT_EQ(mkfifo(place.Path("pipe.ini").toLatin1().constData(), 0600), 0);
  chmod(place.Path("secret.ini").toLatin1().constData(), 0);
  const QStringList Before = place.Names();
  {
    const Unprivileged Nobody(place);
    for (const QString& Name : Before) {
      const IniInfo Info(place.Path(Name));
      Info.WriteInfoValue("Key", "new");
      EXPECT_EQ(Info.ReadInfoValue("Key", "default"), QStringLiteral("default")) << Name.toStdString();
    }
  }
  EXPECT_EQ(place.Names(), Before);
  chmod(place.Path("secret.ini").toLatin1().constData(), 0644);
  for (const auto& [Name, Text] : Files) EXPECT_TRUE(place.Get(Name) == Text) << Name;
}

TEST(IniInfo, LosesNothingOnAFullDisk) {
  // Short files wait in a buffer until the flush, long ones are written at once: both must be noticed.
  for (const int Bytes : {600, 40000}) {
    const Place place;
    const QByteArray Text = "[Info]\nKey=old\n;" + QByteArray(Bytes, 'c') + '\n';
    place.Put("x.ini", Text);
    {
      const FullDisk Full(500);
      IniInfo(place.Path("x.ini")).WriteInfoValue("Key", "new");
      EXPECT_FALSE(ReplaceFile(place.Path("other"), Text));
    }
    EXPECT_EQ(place.Get("x.ini"), Text);
    EXPECT_EQ(place.Names(), QStringList("x.ini"));
  }
}

TEST(IniInfo, GivesUpAtOnceInAFolderThatTakesNoFile) {
  const Place place;
  place.Put("ro/x.ini", "[Info]\nKey=old\n");
  place.Mkdir("ro", 0555);
  QElapsedTimer Clock;
  Clock.start();
  {
    const Unprivileged Nobody(place);
    for (int i = 0; i < 4; ++i) {
      IniInfo(place.Path("ro/x.ini")).WriteInfoValue("Key", "new");
      IniInfo(place.Path("no such folder/x.ini")).WriteInfoValue("Key", "new");
    }
  }
  EXPECT_LT(Clock.elapsed(), 1000) << "eight writes that wait for a lock would take two seconds";
  EXPECT_EQ(place.Get("ro/x.ini"), QByteArray("[Info]\nKey=old\n"));
  place.Mkdir("ro", 0755);
}

TEST(IniInfo, TwoCopiesThatWriteDifferentKeysBothWin) {
  const Place place;
  const QString Path = place.Path("x.ini");
  const IniInfo Info(Path);
  Info.WriteInfoValue("Old", "1");
  std::thread Other;
  {
    const FileLock Lock(Path);  // this copy is about to change the file...
    const QByteArray Text = place.Get("x.ini");
    Other = std::thread([&Info] { Info.WriteInfoValue("Theirs", "2"); });
    std::this_thread::sleep_for(std::chrono::milliseconds(50));
    EXPECT_TRUE(Info.ReadInfoValue("Theirs").isEmpty()) << "...so the other one waits";
    ReplaceFile(Path, IniInfo::WithValue(Text, "Ours", "3"));
  }
  Other.join();
  EXPECT_EQ(place.Get("x.ini"), QByteArray("[Info]\nOld=1\nOurs=3\nTheirs=2\n"));
}

TEST(FileAccess, ReplacesTheFileBehindALinkAndKeepsItsMode) {
  const Place place;
  place.Put("real/x.ini", "old");
  chmod(place.Path("real/x.ini").toLatin1().constData(), 0600);
  ASSERT_TRUE(QFile::link(place.Path("real/x.ini"), place.Path("x.ini")));
  EXPECT_TRUE(ReplaceFile(place.Path("x.ini"), "new"));
  EXPECT_EQ(place.Get("real/x.ini"), QByteArray("new"));
  EXPECT_TRUE(QFileInfo(place.Path("x.ini")).isSymLink());
  EXPECT_EQ(QFile::permissions(place.Path("real/x.ini")) & 0x0FF, QFile::Permissions());
}

}  // namespace
}  // namespace blunko::test
