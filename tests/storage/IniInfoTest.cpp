#include <QDeadlineTimer>
#include <QThread>

#include <algorithm>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <random>
#include <sys/resource.h>
#include <sys/wait.h>

#include "storage/FileAccess.h"
#include "storage/IniInfo.h"
#include "tests/support/Place.h"

namespace blunko::test {

TEST(IniText, FindsAKeyInWhatPeopleWriteAndChangesNothingElse) {
  static const std::tuple<const char*, const char*, const char*> Rows[] = {
      {"", "", "[Info]\nKey=new\n"},
      {"Key=1\n", "", "Key=1\n[Info]\nKey=new\n"},
      {"\xEF\xBB\xBF[Info]\nkey=1\n", "1", "\xEF\xBB\xBF[Info]\nkey=new\n"},
      {"\n [INFO]  ; mine\n;Key=0\n\tkEY  =  1\t\nA=1", "1", "\n [INFO]  ; mine\n;Key=0\n\tkEY  =new\nA=1"},
      {"[Info]\r\nA=1", "", "[Info]\r\nA=1\r\nKey=new\r\n"},
      {"[X]\r\nKey=1", "", "[X]\r\nKey=1\r\n[Info]\r\nKey=new\r\n"},
      {"[Info]\r\nKey=1\r\nKey=2\r\n", "1", "[Info]\r\nKey=new\r\nKey=2\r\n"},
      {"[Info]\nMyKey=\xA4\nKey\n\n[Y]\nKey=3\n", "", "[Info]\nMyKey=\xA4\nKey\nKey=new\n\n[Y]\nKey=3\n"},
      {"[Info]\nA=1\n[Y]\n[Info]\nKey=3\n", "", "[Info]\nA=1\nKey=new\n[Y]\n[Info]\nKey=3\n"},
      {"[Info]\r\nKey=\"  a  \"\nB=2\r\n", "  a  ", "[Info]\r\nKey=new\nB=2\r\n"},
      {"[Info]\nKey=a \"b\"\n", "a \"b\"", "[Info]\nKey=new\n"}};
  for (const auto& [Before, Value, After] : Rows) {
    EXPECT_EQ(IniInfo::FindValue(Before, "Key"), QLatin1String(Value)) << Before;
    EXPECT_EQ(IniInfo::WithValue(Before, "Key", "new"), After) << Before;
  }
  EXPECT_EQ(IniInfo::WithValue("", "Key", QStringLiteral(" \u00A4\u65E5\n\r\0.")), "[Info]\nKey=\" \xA4?   .\"\n");
  EXPECT_EQ(IniInfo::WithValue("\xEF\xBB\xBF[Info]\n", "Key", "\u65E5"), "\xEF\xBB\xBF[Info]\nKey=\xE6\x97\xA5\n");
}

/// An info file in a place of its own.
struct IniInfoTest : testing::Test {
  const Place place;
  const QString path = place.Path("x.ini");
  const IniInfo Info{path};
};

TEST_F(IniInfoTest, WritesAtOnceOrTogetherAndLeavesNothingBeside) {
  std::optional<Unprivileged> Nobody(place);
  place.Put("real.ini", "");
  place.Chmod("real.ini", 0600);
  ASSERT_TRUE(QFile::link("real.ini", path));
  for (const char* InTheWay : {"real.ini.lock/a", "real.ini.saving/a"}) place.Put(InTheWay, "");
  place.Chmod("", 0300);
  Info.WriteInfoValue("Names", "A");
  for (char Letter = 'A'; Letter <= 'Z'; ++Letter) {  // all in the same moment and of the same length
    place.Put("real.ini", QByteArray("[Info]\nNames=A\nMore=") + Letter + '\n');
    EXPECT_EQ(Info.ReadInfoValue("More"), QChar(Letter));
  }
  QThread::msleep(50);  // from now on what was read is kept
  EXPECT_EQ(Info.ReadInfoValue("More"), "Z");
  {
    const IniInfo Copy = Info;
    const WrittenTogether Save(Copy), Inner(Info);
    Info.WriteInfoValue("Empty", "");
    Copy.WriteInfoValue("names", "B");
    Copy.WriteInfoPath("Path", QByteArray(IniInfo::LongestValue + 1, 'x'));  // couldn't be read back
    EXPECT_EQ(place.Get("real.ini"), "[Info]\nNames=A\nMore=Z\n");
    EXPECT_EQ(Info.ReadInfoValue("Names"), "B");
    ReplaceFile(path, "[Info]\nNames=A\nMore=C\n");
    EXPECT_EQ(Info.ReadInfoValue("More"), "C") << "another copy's, of the same length";
  }
  EXPECT_EQ(place.Get("real.ini"), "[Info]\nNames=B\nMore=C\nEmpty=\n");
  EXPECT_FALSE(QFile::permissions(path) & QFile::ReadOther);
  EXPECT_EQ(Info.ReadInfoValue("Empty", "default"), "default");
  place.Chmod("", 0700);
  EXPECT_EQ(place.Names(), (QStringList{"real.ini", "real.ini.lock.damaged1", "real.ini.saving.damaged1", "x.ini"}));
  Nobody.reset();
  const auto Owners = [](const QFileInfo& File) { return std::pair(File.ownerId(), File.groupId()); };
  const auto Before = Owners(QFileInfo(path));
  Info.WriteInfoValue("Names", "D");  // the administrator
  const FileLock Held(path);
  for (const char* Name : {"real.ini", "real.ini.lock"}) EXPECT_EQ(Owners(QFileInfo(place.Path(Name))), Before) << Name;
}

TEST_F(IniInfoTest, MovesAwayWhatIsNoInfoFile) {
  const std::function<void()> Rows[] = {[this] { place.Put("x.ini", QByteArray(LargestFile + 1, '\n')); },
                                        [this] { place.Put("x.ini", QByteArray("[\0I\0n\0f\0o\0", 10)); },
                                        [this] { place.Put("x.ini/inside", ""); }, [this] { place.Pipe("x.ini"); },
                                        [this] { place.Pipe("x.ini", S_IFSOCK); }};
  for (int Number = 1; const auto& Plant : Rows) {
    Plant();
    testing::internal::CaptureStderr();
    EXPECT_EQ(Info.ReadInfoValue("Key", "default"), "default");
    EXPECT_TRUE(testing::internal::GetCapturedStderr().ends_with("x.ini.damaged" + std::to_string(Number) + '\n'));
    ASSERT_EQ(place.Names().size(), Number++);
  }
}

/// From now on no file can grow beyond a number of bytes, as on a full disk.
static void LimitFiles(rlim_t Bytes) {
  std::signal(SIGXFSZ, SIG_IGN);
  const rlimit Limit{Bytes, RLIM_INFINITY};
  if (setrlimit(RLIMIT_FSIZE, &Limit) != 0) abort();
}

TEST_F(IniInfoTest, WhatCannotBeSavedIsToldOnceHoldsForTheRunAndGoesWithTheNextWrite) {
  const QString Real = place.Path("real.ini");
  const QByteArray Begin = ';' + QByteArray(500, 'x') + "\n[Info]\n", Text = Begin + "Key=old\n";
  std::optional<FileLock> OfAnotherCopy;
  // What is in the way, and how it goes away.
  const std::tuple<const char*, std::function<void()>, std::function<void()>> Rows[] = {
      {"a folder to read", [&] { place.Chmod("", 0555); }, [&] { place.Chmod("", 0755); }},
      {"a file to read", [&] { place.Chmod("real.ini", 0444); }, [&] { place.Chmod("real.ini", 0644); }},
      {"an unreadable file", [&] { place.Chmod("real.ini", 0200); }, [&] { place.Chmod("real.ini", 0644); }},
      {"a full disk", [&] { LimitFiles(Text.size() - 1); }, [] { LimitFiles(RLIM_INFINITY); }},
      {"a lock that isn't let go", [&] { OfAnotherCopy.emplace(path); }, [&] { OfAnotherCopy.reset(); }},
      {"a disk that isn't there", [&] { QFile::rename(Real, Real + '~'); }, [&] { QFile::rename(Real + '~', Real); }}};
  const Unprivileged Nobody(place);
  ASSERT_TRUE(QFile::link("real.ini", path));
  for (const auto& [Why, Spoil, Mend] : Rows) {
    SCOPED_TRACE(Why);
    place.Put("real.ini", Begin);
    {
      const IniInfo Run(path);
      Run.WriteInfoValue("Key", "old");  // told of nothing yet
      Spoil();
      testing::internal::CaptureStderr();
      for (const char* Key : {"Key", "Key2", "key2"}) Run.WriteInfoValue(Key, "new");
      EXPECT_EQ(QString::fromStdString(testing::internal::GetCapturedStderr()).count('\n'), 1);
      EXPECT_EQ(Run.ReadInfoValue("Key"), "new");
      Mend();
      EXPECT_EQ(place.Get("x.ini"), Text);
      EXPECT_EQ(place.Names(), (QStringList{"real.ini", "x.ini"}));
      Run.WriteInfoValue("Other", "1");
      EXPECT_EQ(place.Get("real.ini"), Begin + "Key=new\nkey2=new\nOther=1\n");
      Spoil();
      Run.WriteInfoValue("Last", "1");
      Mend();
    }
    EXPECT_EQ(place.Get("real.ini"), Begin + "Key=new\nkey2=new\nOther=1\nLast=1\n") << "at the end";
  }
}

/// Two copies write without a pause, and one of them is killed at any moment: each saves one key after the other, and
/// none is missing. Neither a lock nor litter is left.
TEST_F(IniInfoTest, CopiesLoseNothingOfEachOtherEvenWhenKilled) {
  const auto Line = [](char Of, int Run, int i) { return QByteArray("\n") + Of + QByteArray::number(1000 * Run + i); };
  const auto Save = [&](const QByteArray& Key) {
    do Info.WriteInfoValue(Key.mid(1), "1");
    while (!place.Get("x.ini").contains(Key + '='));  // the other copy may have held the lock for too long
  };
  std::mt19937_64 Random(7);
  int Own = 0, Others = 0;
  for (int Kills = 1; Kills <= 30; ++Kills) {
    const pid_t Child = fork();
    ASSERT_GE(Child, 0);
    if (Child == 0) alarm(60);
    for (int i = 0; Child == 0; ++i) Save(Line('c', Kills, i));
    for (const QDeadlineTimer End(Random() % 30); !End.hasExpired(); ++Own) Save(Line('p', 1, Own));
    usleep(Random() % 5000);
    kill(Child, SIGKILL);
    waitpid(Child, nullptr, 0);
    const QByteArray Text = place.Get("x.ini");
    for (int i = 0; i < Own; ++i) ASSERT_TRUE(Text.contains(Line('p', 1, i) + '=')) << i;
    for (int i = 0; Text.contains(Line('c', Kills, i) + '='); ++i) ++Others;
    ASSERT_EQ(Text.count("=1\n"), Own + Others) << "a gap in what the other saved";
  }
  EXPECT_TRUE(Own > 0 && Others > 0) << Own << ' ' << Others;
  EXPECT_LT(QDir("/proc/self/fd").entryList().size(), 20) << "what is open for a moment is closed again";
  Info.WriteInfoValue("Last", "1");
  EXPECT_EQ(place.Names(), QStringList("x.ini"));
}

}  // namespace blunko::test
