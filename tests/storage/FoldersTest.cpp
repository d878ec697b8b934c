#include <functional>
#include <gtest/gtest.h>

#include "storage/Folders.h"
#include "tests/storage/Place.h"

namespace blunko::test {
namespace {

/// The user's folders, all of them below a place of the test's own.
class FoldersTest : public testing::Test {
 protected:
  FoldersTest() {
    for (const char* Name : Variables) before << qgetenv(Name);
    place.Mkdir("", 0755);
    Set("HOME", place.Mkdir("home", 0755));
    Set("TMPDIR", place.Mkdir("tmp", 0777));
    Set("XDG_RUNTIME_DIR", place.Mkdir("run", 0700));
    Set("XDG_CACHE_HOME", place.Path("home/cache"));
    Set("XDG_CONFIG_HOME", place.Path("home/config"));
  }
  ~FoldersTest() override {
    for (qsizetype i = 0; i < before.size(); ++i) {
      before[i].isNull() ? qunsetenv(Variables[i]) : qputenv(Variables[i], before[i]);
    }
  }
  static void Set(const char* Name, const QString& Value) { qputenv(Name, QFile::encodeName(Value)); }
  static int ModeOf(const QString& Path) {
    struct stat Found {};
    return lstat(QFile::encodeName(Path).constData(), &Found) == 0 ? static_cast<int>(Found.st_mode & 0777) : -1;
  }

  const Place place;

 private:
  static constexpr const char* Variables[] = {"HOME", "TMPDIR", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME", "XDG_CONFIG_HOME"};
  QByteArrayList before;
};

TEST_F(FoldersTest, TemporaryFolderIsPrivateAndTheSameAtEveryStart) {
  const QString Folder = GetTempFolder();
  EXPECT_EQ(Folder, place.Path("run/tollmoor-blunko/"));
  EXPECT_EQ(ModeOf(Folder), 0700);
  EXPECT_EQ(GetTempFolder(), Folder);

  const QString InCache = place.Path("home/cache/tollmoor-blunko/");
  const auto Planted = [&](const char* Trouble, const std::function<void()>& Plant) {
    QFile::remove(place.Path("run/tollmoor-blunko"));
    QDir().rmdir(place.Path("run/tollmoor-blunko"));
    Plant();
    EXPECT_EQ(GetTempFolder(), InCache) << Trouble;
    EXPECT_EQ(ModeOf(InCache), 0700) << Trouble;
  };
  Planted("a link", [this] { QFile::link(place.Mkdir("trap", 0700), place.Path("run/tollmoor-blunko")); });
  Planted("a file", [this] { place.Put("run/tollmoor-blunko", ""); });
  Planted("others can read it", [this] { place.Mkdir("run/tollmoor-blunko", 0755); });
  Planted("others can put files beside it", [this] { place.Mkdir("run", 0777); });
  Planted("the runtime folder is gone", [this] { QDir().rmdir(place.Path("run")); });
  Planted("there is no runtime folder", [] { qunsetenv("XDG_RUNTIME_DIR"); });
  EXPECT_TRUE(QDir(place.Path("trap")).isEmpty());
  EXPECT_FALSE(QFileInfo::exists(place.Path("run"))) << "it isn't the game's to make";
}

TEST_F(FoldersTest, WithoutAHomeTheTemporaryFolderIsAFreshOne) {
  const Unprivileged Nobody(place);
  for (const char* Name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME"}) qunsetenv(Name);
  const QString First = GetTempFolder();
  const QString Second = GetTempFolder();
  EXPECT_TRUE(First.startsWith(place.Path("tmp/tollmoor-blunko-"))) << First.toStdString();
  EXPECT_TRUE(First.endsWith('/'));
  EXPECT_EQ(ModeOf(First), 0700);
  EXPECT_NE(First, Second) << "its name can't be guessed";
  Set("TMPDIR", place.Path("no such folder"));
  EXPECT_EQ(GetTempFolder(), QString());
}

TEST_F(FoldersTest, StateLiesBesideTheProgramOrInTheUsersOwnFolder) {
  place.Put("games/TollmoorBlunko", "");
  chmod(QFile::encodeName(place.Path("games")).constData(), 0777);
  const Unprivileged Nobody(place);
  const Folders Beside = Folders::Of(place.Path("games/TollmoorBlunko"));
  EXPECT_EQ(Beside.Program, place.Path("games"));
  EXPECT_EQ(Beside.State, Beside.Program);
  EXPECT_EQ(Beside.BaseName, QStringLiteral("TollmoorBlunko"));
  EXPECT_FALSE(QFileInfo::exists(place.Path("home/config")));

  Set("XDG_CONFIG_HOME", place.Path("config"));
  const QString Installed = QStringLiteral("/proc");  // nobody can write there, not even the administrator
  const Folders Away = Folders::Of(Installed + QStringLiteral("/TollmoorBlunko"));
  EXPECT_EQ(Away.Program, Installed);
  EXPECT_EQ(Away.State, place.Path("config/TollmoorBlunko"));
  EXPECT_TRUE(QFileInfo(Away.State).isDir());
}

TEST_F(FoldersTest, Paths) {
  place.Put("file", "");
  EXPECT_TRUE(FileExists(place.Path("file")));
  for (const QString& Path : {QString(), place.Path("missing"), place.Path("home"), place.Path("file/below")}) {
    EXPECT_FALSE(FileExists(Path)) << Path.toStdString();
  }
  EXPECT_EQ(FileNameOnly("/a.b/Old.Glory.jpg"), "Old.Glory.jpg");
  EXPECT_EQ(FileNameOnly("/a/"), "");
  EXPECT_EQ(FileBaseName("/a.b/Old.Glory.jpg"), "Old");
  EXPECT_EQ(FileBaseName("/a.b/Satin"), "Satin");
}

}  // namespace
}  // namespace blunko::test
