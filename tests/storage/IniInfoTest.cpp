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
      {"[Info]\nKey=1\nKey=2\n", "1", "[Info]\nKey=new\nKey=2\n"},
      {"[Info]\nMyKey=\xA4\nKey 4\n\n[Y]\nKey=3\n", "", "[Info]\nMyKey=\xA4\nKey 4\nKey=new\n\n[Y]\nKey=3\n"},
      {"[Info]\nA=1\n[Y]\n[Info]\nKey=3\n", "", "[Info]\nA=1\nKey=new\n[Y]\n[Info]\nKey=3\n"},
      {"[Info]\r\nKey=\"  a  \"\nB=2\r\n", "  a  ", "[Info]\r\nKey=new\nB=2\r\n"},
      {"[Info]\nKey=a \"b\"\n", "a \"b\"", "[Info]\nKey=new\n"}};
  for (const auto& [Before, Value, After] : Rows) {
    EXPECT_EQ(IniInfo::FindValue(Before, "Key"), QLatin1String(Value)) << Before;
    EXPECT_EQ(IniInfo::WithValue(Before, "Key", "new"), After) << Before;
  }
  EXPECT_EQ(IniInfo::WithValue("", "Key", "\u00A4\u65E5"), "[Info]\nKey=\xA4?\n");
  EXPECT_EQ(IniInfo::WithValue("\xEF\xBB\xBF[Info]\n", "Key", "\u65E5"), "\xEF\xBB\xBF[Info]\nKey=\xE6\x97\xA5\n");
}

/// An info file in a place of its own.
struct IniInfoTest : testing::Test {
  const Place place;
  const QString path = place.Path("x.ini");
  const IniInfo Info{path};
};

TEST_F(IniInfoTest, WritesAtOnceOrTogetherAndLeavesNothingBeside) {
  EXPECT_EQ(Info.ReadInfoValue("Names", "none"), "none");
  EXPECT_TRUE(place.Names().isEmpty()) << "reading makes no file";
  place.Put("real.ini", "");
  place.Chmod("real.ini", 0600);
  ASSERT_TRUE(QFile::link("real.ini", path));
  place.Put("real.ini.saving", "what a killed copy left");
  Info.WriteInfoValue("Names", "A");
  {
    const IniInfo Copy = Info;
    const WrittenTogether Save(Copy), Inner(Info);
    Info.WriteInfoValue("Empty", "");
    Copy.WriteInfoValue("names", "B");
    Copy.WriteInfoPath("Path", QByteArray(IniInfo::LongestValue + 1, 'x'));  // couldn't be read back
    EXPECT_EQ(place.Get("real.ini"), "[Info]\nNames=A\n");
    EXPECT_EQ(Info.ReadInfoValue("Names"), "B");
  }
  EXPECT_EQ(place.Get("real.ini"), "[Info]\nNames=B\nEmpty=\n");
  EXPECT_FALSE(QFile::permissions(path) & QFile::ReadOther);
  EXPECT_EQ(Info.ReadInfoValue("Empty", "default"), "default");
  EXPECT_EQ(place.Names(), (QStringList{"real.ini", "x.ini"}));
  QThread::msleep(50);
  EXPECT_EQ(Info.ReadInfoValue("Names"), "B");
  ReplaceFile(path, "[Info]\nNames=C\nEmpty=\n");
  EXPECT_EQ(Info.ReadInfoValue("Names"), "C") << "another copy's, of the same length";
}

TEST_F(IniInfoTest, MovesAwayWhatIsNoInfoFile) {
  const std::function<void()> Rows[] = {[this] { place.Put("x.ini", QByteArray(2 << 20, '\n')); },
                                        [this] { place.Put("x.ini", QByteArray("[\0I\0n\0f\0o\0", 10)); },
                                        [this] { place.Put("x.ini/inside", ""); }, [this] { place.Pipe("x.ini"); }};
  QStringList Aside;
  for (const auto& Plant : Rows) {
    Plant();
    testing::internal::CaptureStderr();
    EXPECT_EQ(Info.ReadInfoValue("Key", "default"), "default");
    EXPECT_NE(testing::internal::GetCapturedStderr(), "");
    Aside << QStringLiteral("x.ini.damaged%1").arg(Aside.size() + 1);
    ASSERT_EQ(place.Names(), Aside);
  }
}

/// From now on no file can grow beyond a number of bytes, as on a full disk.
static void LimitFiles(rlim_t Bytes) {
  std::signal(SIGXFSZ, SIG_IGN);
  rlimit Limit{};
  getrlimit(RLIMIT_FSIZE, &Limit);
  Limit.rlim_cur = std::min(Bytes, Limit.rlim_max);
  setrlimit(RLIMIT_FSIZE, &Limit);
}

TEST_F(IniInfoTest, WhatCannotBeSavedHoldsForTheRunAndGoesWithTheNextWrite) {
  const QByteArray Text = "[Info]\nKey=old\n";
  const std::tuple<int, int, rlim_t> Rows[] = {
      {0555, 0644, RLIM_INFINITY}, {0755, 0444, RLIM_INFINITY}, {0755, 0, RLIM_INFINITY}, {0755, 0644, 9}};
  for (const auto& [FolderMode, FileMode, Limit] : Rows) {
    place.Put("x.ini", Text);
    place.Chmod("x.ini", FileMode);
    place.Chmod("", FolderMode);
    {
      const Unprivileged Nobody(place);
      LimitFiles(Limit);
      Info.WriteInfoValue("Key", "new");
      EXPECT_EQ(Info.ReadInfoValue("Key"), "new");
    }
    LimitFiles(RLIM_INFINITY);
    place.Chmod("", 0755);
    place.Chmod("x.ini", 0644);
    EXPECT_EQ(place.Get("x.ini"), Text);
    EXPECT_EQ(place.Names(), QStringList("x.ini"));
    Info.WriteInfoValue("Other", "1");
    EXPECT_EQ(IniInfo::FindValue(place.Get("x.ini"), "Key"), "new");
  }
}

/// Two copies write without a pause, and one of them is killed at any moment: no write that had returned is lost, and
/// neither a lock nor litter is left.
TEST_F(IniInfoTest, CopiesLoseNothingOfEachOtherEvenWhenKilled) {
  std::mt19937_64 Random(7);
  qsizetype Written = 0;
  for (int Kills = 0; Kills < 30; ++Kills) {
    int Pipe[2];
    ASSERT_EQ(pipe(Pipe), 0);
    const pid_t Child = fork();
    ASSERT_GE(Child, 0);
    if (Child == 0) {
      alarm(60);
      Random.seed(static_cast<unsigned>(getpid()));
      while (write(Pipe[1], "", 1) == 1) Info.WriteInfoValue(QString::number(Random()), "1");
      _exit(1);
    }
    close(Pipe[1]);
    char Byte;
    ASSERT_EQ(read(Pipe[0], &Byte, 1), 1);  // only says that the child lives
    for (const QDeadlineTimer End(Random() % 30); !End.hasExpired(); ++Written)
      Info.WriteInfoValue(QString::number(Random()), "1");
    usleep(Random() % 5000);
    kill(Child, SIGKILL);
    waitpid(Child, nullptr, 0);
    while (read(Pipe[0], &Byte, 1) == 1) ++Written;
    close(Pipe[0]);
    const qsizetype Found = place.Get("x.ini").count("=1\n");
    ASSERT_TRUE(Found == Written || Found == Written + 1) << Found << " found, " << Written << " returned";
    Written = Found;
  }
  EXPECT_GT(Written, 30);
  Info.WriteInfoValue("Last", "1");
  EXPECT_EQ(place.Names(), QStringList("x.ini"));
}

}  // namespace blunko::test
