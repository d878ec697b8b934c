#include <QThread>

#include <functional>
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
  const std::pair<QString, QString> Rows[] = {{" a b ", " a b "},
                                              {"\"quoted\"", "\"quoted\""},
                                              {"\"", "\""},
                                              {"[a]=b", "[a]=b"},
                                              {"a\nB=1\r", "a B=1 "},
                                              {QStringLiteral("a") + QChar(0), "a "},
                                              {"M\u00FCller\u00A4", "M\u00FCller\u00A4"},
                                              {Long, Long.left(IniInfo::LongestValue)}};
  for (const QByteArray Mark : {"", "\xEF\xBB\xBF"}) {
    for (const auto& [Written, Read] : Rows) {
      const QByteArray Text = IniInfo::WithValue(Mark + "[Info]\nLast=1\n", "Key", Written);
      EXPECT_EQ(IniInfo::FindValue(Text, "Key"), Read) << Written.toStdString();
      EXPECT_EQ(IniInfo::FindValue(Text, "Last"), "1") << Written.toStdString();
      EXPECT_FALSE(Text.contains('\0'));
    }
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

TEST_F(IniInfoTest, PathsAreBytesInEitherCoding) {
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

TEST_F(IniInfoTest, WritesAtOnceOrTogetherAndLeavesNothingBeside) {
  EXPECT_EQ(Info.ReadInfoValue("Names", "none"), "none");
  EXPECT_TRUE(place.Names().isEmpty()) << "reading makes no file";
  place.Put("x.ini.saving", "what a killed copy left");
  Info.WriteInfoValue("Names", QString::fromLatin1("A\xA4"));
  const IniInfo Copy = Info;
  {
    const WrittenTogether Save(Copy);
    Info.WriteInfoValue("Empty", "");
    {
      const WrittenTogether Inner(Info);
      Copy.WriteInfoValue("names", QString::fromLatin1("B\xA4"));
    }
    EXPECT_EQ(place.Get("x.ini"), "[Info]\nNames=A\xA4\n");
    EXPECT_EQ(Info.ReadInfoValue("Names"), QString::fromLatin1("B\xA4"));
  }
  EXPECT_EQ(place.Get("x.ini"), "[Info]\nNames=B\xA4\nEmpty=\n");
  EXPECT_EQ(Info.ReadInfoValue("Empty", "default"), "default");
  EXPECT_EQ(place.Names(), QStringList("x.ini"));
}

TEST_F(IniInfoTest, SeesWhatOthersWrote) {
  for (const QByteArray Value : {"1", "2", "3", "12"}) {
    place.Put("x.ini", "[Info]\nKey=" + Value);
    EXPECT_EQ(Info.ReadInfoValue("Key"), Value) << "in the same file, at once";
  }
  QThread::msleep(50);
  EXPECT_EQ(Info.ReadInfoValue("Key"), "12");
  ReplaceFile(path, "[Info]\nKey=34");
  EXPECT_EQ(Info.ReadInfoValue("Key"), "34");
}

TEST_F(IniInfoTest, MovesAwayWhatIsNoInfoFile) {
  const std::pair<const char*, std::function<void()>> Rows[] = {
      {"huge", [this] { place.Put("x.ini", QByteArray(2 << 20, '\n')); }},
      {"no text", [this] { place.Put("x.ini", QByteArray("[\0I\0n\0f\0o\0", 10)); }},
      {"folder", [this] { place.Put("x.ini/inside", ""); }},
      {"pipe", [this] { mkfifo(QFile::encodeName(path).constData(), 0600); }},
      {"device", [this] { QFile::link("/dev/zero", path); }}};
  QStringList Aside;
  for (const auto& [What, Plant] : Rows) {
    Plant();
    testing::internal::CaptureStderr();
    EXPECT_EQ(Info.ReadInfoValue("Key", "default"), "default") << What;
    Aside << QStringLiteral("x.ini.damaged%1").arg(Aside.size() + 1);
    ASSERT_EQ(place.Names(), Aside) << What;
    EXPECT_NE(testing::internal::GetCapturedStderr(), "") << What;
    Info.WriteInfoValue("Key", What);
    EXPECT_EQ(place.Get("x.ini"), QByteArray("[Info]\nKey=") + What + '\n');
    QFile::remove(path);
  }
  place.Put("x.ini", "[Info]\n;" + QByteArray((1 << 20) - 10, 'c'));
  Info.WriteInfoValue("Key", "too much");
  EXPECT_EQ(Info.ReadInfoValue("Key"), "too much");
  EXPECT_EQ(place.Names().size(), Aside.size() + 1) << "a write makes no such file";
}

TEST_F(IniInfoTest, WhatCannotBeSavedHoldsForTheRunAndGoesWithTheNextWrite) {
  const QByteArray Old = "[Info]\nKey=old\n;" + QByteArray(40000, 'c') + '\n';
  place.Mkdir("", 0755);
  const auto Mode = [this](const QString& Of, int Bits) {
    ASSERT_EQ(chmod(QFile::encodeName(place.Path(Of)).constData(), static_cast<mode_t>(Bits)), 0);
  };
  const std::pair<const char*, std::function<void()>> Rows[] = {
      {"read-only folder", [&] { Mode("", 0555); }},
      {"read-only file", [&] { Mode("x.ini", 0444); }},
      {"secret file", [&] { Mode("x.ini", 0); }},
      // Short texts wait in a buffer until the flush, long ones are written at once: both must be noticed.
      {"full disk", [] { LimitFiles(500); }}};
  for (const auto& [What, Spoil] : Rows) {
    for (const QByteArray& Text : {Old, Old.left(600) + '\n'}) {
      place.Put("x.ini", Text);
      Spoil();
      {
        const Unprivileged Nobody(place);
        Info.WriteInfoValue("Key", "new");
        EXPECT_EQ(Info.ReadInfoValue("Key"), "new") << What;
      }
      LimitFiles(RLIM_INFINITY);
      Mode("", 0755);
      Mode("x.ini", 0644);
      EXPECT_TRUE(place.Get("x.ini") == Text) << What;
      EXPECT_EQ(place.Names(), QStringList("x.ini")) << What;
      Info.WriteInfoValue("Other", "1");
      EXPECT_EQ(IniInfo::FindValue(place.Get("x.ini"), "Key"), "new") << What;
    }
  }
}

TEST_F(IniInfoTest, CopiesLoseNothingOfEachOther) {
  constexpr int Copies = 3, Writes = 15;
  std::vector<std::thread> Others;
  {
    const FileLock Slow(path);
    for (int Copy = 0; Copy < Copies; ++Copy) {
      Others.emplace_back([this, Copy] {
        const IniInfo Own(path);
        for (int i = 0; i < Writes; ++i) Own.WriteInfoValue(QStringLiteral("Key%1of%2").arg(i).arg(Copy), "1");
      });
    }
    QThread::msleep(400);
    ReplaceFile(path, "[Info]\nOurs=1\n");
  }
  for (std::thread& Other : Others) Other.join();
  EXPECT_EQ(place.Get("x.ini").count("=1\n"), Copies * Writes + 1);
  EXPECT_EQ(Info.ReadInfoValue("Ours"), "1");
}

TEST(ReplaceFile, KeepsLinkOwnerAndMode) {
  const Place place;
  place.Put("real/x.ini", "old");
  const QByteArray Real = QFile::encodeName(place.Path("real/x.ini"));
  chmod(Real.constData(), 0600);
  const uid_t Owner = geteuid() == 0 ? 65534 : geteuid();
  ASSERT_EQ(chown(Real.constData(), Owner, static_cast<gid_t>(-1)), 0);
  ASSERT_TRUE(QFile::link(place.Path("real/x.ini"), place.Path("x.ini")));
  EXPECT_TRUE(ReplaceFile(place.Path("x.ini"), "new"));
  EXPECT_EQ(place.Get("real/x.ini"), "new");
  EXPECT_TRUE(QFileInfo(place.Path("x.ini")).isSymLink());
  struct stat Found {};
  ASSERT_EQ(stat(Real.constData(), &Found), 0);
  EXPECT_EQ(Found.st_mode & 0777, 0600U);
  EXPECT_EQ(Found.st_uid, Owner) << "also when the administrator saves";
}

}  // namespace
}  // namespace blunko::test
