#include <QElapsedTimer>

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <thread>

#include "storage/FileAccess.h"
#include "storage/IniInfo.h"
#include "tests/storage/Place.h"

namespace blunko::test {
namespace {

TEST(IniText, FindsAKeyInWhatPeopleWrite) {
  struct Row {
    const char* Text;
    const char* Value;
  };
  static const Row Rows[] = {
      {"", ""},
      {"[Info]\n", ""},
      {"[Info]\nKey=1\n", "1"},
      {"[Info]\r\nKey=1\r\n", "1"},
      {"[Info]\nKey=1", "1"},
      {"\xEF\xBB\xBF[Info]\nKey=1\n", "1"},
      {"\n ; made by hand\n  [INFO]  ; mine\n\tkEY  =  1\t\n", "1"},
      {"Key=1\n", ""},                            // in no section
      {"[Other]\nKey=1\n[Info]\nKey=2\n", "2"},   // another section's key
      {"[Info]\nA=1\n[Other]\nKey=1\n", ""},      // the same, behind
      {"[Info]\nKey=1\nKey=2\n", "1"},            // the first of two keys
      {"[Info]\nA=1\n[X]\n[Info]\nKey=2\n", ""},  // the first of two sections
      {"[Information]\nKey=1\n", ""},
      {"[Info\nKey=1\n", ""},
      {"[Info]\n;Key=1\n#Key=2\nMyKey=3\nKey 4\n", ""},  // comments, a longer key, no value
      {"[Info]\nKey=\n", ""},
      {"[Info]\nKey==a=b\n", "=a=b"},
      {"[Info]\nKey=\"  a  \"\n", "  a  "},
      {"[Info]\nKey='a'\n", "a"},
      {"[Info]\nKey=\"a\n", "\"a"},
      {"[Info]\nKey=\"\n", "\""},
      {"[Info]\nKey=a \"b\"\n", "a \"b\""},
      {"[Info]\nKey=A\xA4\xE4\xFF\n", "A\xA4\xE4\xFF"},
      {"[Info]\rKey=1\r", ""},
  };
  for (const Row& row : Rows) {
    EXPECT_EQ(IniInfo::FindValue(row.Text, "Key").toLatin1(), QByteArray(row.Value)) << row.Text;
  }
}

TEST(IniText, ChangesNothingButTheKey) {
  struct Row {
    const char* Before;
    const char* After;
  };
  static const Row Rows[] = {
      {"", "[Info]\nKey=new\n"},
      {"; only a remark", "; only a remark\n[Info]\nKey=new\n"},
      {"[Info]", "[Info]\nKey=new\n"},
      {"[Info]\nA=1", "[Info]\nA=1\nKey=new\n"},
      {"[Info]\r\nA=1", "[Info]\r\nA=1\r\nKey=new\r\n"},
      {"[X]\r\nA=1", "[X]\r\nA=1\r\n[Info]\r\nKey=new\r\n"},
      {"\xEF\xBB\xBF[Info]\nkey=1\n", "\xEF\xBB\xBF[Info]\nkey=new\n"},
      {"\xEF\xBB\xBF", "\xEF\xBB\xBF[Info]\nKey=new\n"},
      {"[Info]\nB = 2\n kEy = 1\nA=1", "[Info]\nB = 2\n kEy =new\nA=1"},
      {"[Info]\nA=1\nKey=1", "[Info]\nA=1\nKey=new"},
      {"[Info]\nKey=1\nKey=2\n", "[Info]\nKey=new\nKey=2\n"},
      {"[Info]\r\nA=1\nKey=1\r\nB=2\n", "[Info]\r\nA=1\nKey=new\r\nB=2\n"},
      {"[Info]\n; Key=0\nA=\xA4\n\n\n[Y]\nKey=3\n", "[Info]\n; Key=0\nA=\xA4\nKey=new\n\n\n[Y]\nKey=3\n"},
      {"[Info]\nA=1\n[Y]\n[Info]\nKey=3\n", "[Info]\nA=1\nKey=new\n[Y]\n[Info]\nKey=3\n"},
      {"[Info]\rKey=1\r", "[Info]\rKey=1\r\nKey=new\n"},
  };
  for (const Row& row : Rows) {
    const QByteArray After = IniInfo::WithValue(row.Before, "Key", "new");
    EXPECT_EQ(After, QByteArray(row.After)) << row.Before;
    EXPECT_EQ(IniInfo::FindValue(After, "KEY"), QStringLiteral("new")) << row.Before;
  }
}

TEST(IniText, ReadsBackWhatItWrote) {
  const QString Long(IniInfo::LongestValue + 40, QLatin1Char('x'));
  struct Row {
    QString Written, Read;
  };
  const Row Rows[] = {
      {" a b ", " a b "},
      {" ", " "},
      {"\"", "\""},
      {"\"quoted\"", "\"quoted\""},
      {"'a'", "'a'"},
      {"[a]", "[a]"},
      {";a", ";a"},
      {"a=b", "a=b"},
      {"\tx", "\tx"},
      {"a\nB=1\r", "a B=1 "},
      {QString::fromLatin1("M\xFCller\xA4\xA4"), QString::fromLatin1("M\xFCller\xA4\xA4")},
      {QStringLiteral("\u65E5a"), "?a"},
      {Long, Long.left(IniInfo::LongestValue)},
  };
  for (const Row& row : Rows) {
    const QByteArray Text = IniInfo::WithValue("[Info]\nLast=1\n", "Key", row.Written);
    EXPECT_EQ(IniInfo::FindValue(Text, "Key"), row.Read) << row.Written.toStdString();
    EXPECT_EQ(IniInfo::FindValue(Text, "Last"), QStringLiteral("1")) << row.Written.toStdString();
    EXPECT_TRUE(IniInfo::FindValue(Text, "B").isEmpty()) << row.Written.toStdString();
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

  struct stat Before {
  }, After{};
  stat(place.Path("x.ini").toLatin1().constData(), &Before);
  Info.WriteInfoValue("names", QString::fromLatin1("B\xA4"));
  stat(place.Path("x.ini").toLatin1().constData(), &After);
  EXPECT_EQ(Before.st_ino, After.st_ino) << "what stands there already costs no write";
}

TEST(IniInfo, LeavesAloneWhatItCannotRead) {
  const Place place;
  place.Mkdir("folder.ini", 0755);
  place.Put("huge.ini", QByteArray(2 << 20, '\n'));
  place.Put("secret.ini", "[Info]\nKey=old\n");
  place.Put("readonly.ini", "[Info]\nKey=old\n");
  chmod(place.Path("secret.ini").toLatin1().constData(), 0222);
  chmod(place.Path("huge.ini").toLatin1().constData(), 0666);
  chmod(place.Path("readonly.ini").toLatin1().constData(), 0444);
  const QStringList Before = place.Names();
  {
    const Unprivileged Nobody(place);
    for (const char* Name : {"folder.ini", "huge.ini", "secret.ini"}) {
      const IniInfo Info(place.Path(Name));
      Info.WriteInfoValue("Key", "new");
      EXPECT_EQ(Info.ReadInfoValue("Key", "default"), QStringLiteral("default")) << Name;
    }
    const IniInfo ReadOnly(place.Path("readonly.ini"));
    ReadOnly.WriteInfoValue("Key", "new");
    EXPECT_EQ(ReadOnly.ReadInfoValue("Key"), QStringLiteral("old"));
  }
  EXPECT_EQ(place.Names(), Before);
  EXPECT_TRUE(QFileInfo(place.Path("folder.ini")).isDir());
  EXPECT_EQ(QFileInfo(place.Path("huge.ini")).size(), 2 << 20);
  EXPECT_EQ(place.Get("secret.ini"), geteuid() == 0 ? "[Info]\nKey=old\n" : "(no file)");
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
  EXPECT_LT(Clock.elapsed(), 1000) << "eight writes that wait for a lock would take eight seconds";
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
    std::this_thread::sleep_for(std::chrono::milliseconds(150));
    EXPECT_TRUE(Info.ReadInfoValue("Theirs").isEmpty()) << "...so the other one waits";
    ReplaceFile(Path, IniInfo::WithValue(Text, "Ours", "3"));
  }
  Other.join();
  EXPECT_EQ(place.Get("x.ini"), QByteArray("[Info]\nOld=1\nOurs=3\nTheirs=2\n"));
}

TEST(IniInfo, TheLockOfAKilledCopyIsNoHindrance) {
  const Place place;
  const pid_t Copy = fork();
  if (Copy == 0) {
    const FileLock Lock(place.Path("x.ini"));
    _exit(0);
  }
  ASSERT_EQ(waitpid(Copy, nullptr, 0), Copy);
  ASSERT_EQ(place.Names(), QStringList("x.ini.lock"));
  IniInfo(place.Path("x.ini")).WriteInfoValue("Key", "1");
  EXPECT_EQ(place.Get("x.ini"), QByteArray("[Info]\nKey=1\n"));
  EXPECT_EQ(place.Names(), QStringList("x.ini")) << "the lock left behind is gone too";
}

TEST(FileAccess, ReadsPlainFilesUpToTheLimit) {
  const Place place;
  place.Put("four", "1234");
  place.Put("none", "");
  ASSERT_EQ(mkfifo(place.Path("pipe").toLatin1().constData(), 0600), 0);
  EXPECT_EQ(ReadWholeFile(place.Path("four"), 4), QByteArray("1234"));
  EXPECT_EQ(ReadWholeFile(place.Path("four"), 3), std::nullopt);
  EXPECT_EQ(ReadWholeFile(place.Path("none"), 4), QByteArray(""));
  EXPECT_EQ(ReadWholeFile(place.Path("missing"), 4), std::nullopt);
  EXPECT_EQ(ReadWholeFile(place.Path(), 1 << 20), std::nullopt);
  EXPECT_EQ(ReadWholeFile(place.Path("pipe"), 4), std::nullopt) << "a pipe would never end";
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
