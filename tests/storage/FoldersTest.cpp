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
    place.Mkdir("", 0755);
    Set("HOME", place.Mkdir("home", 0755));
    Set("TMPDIR", place.Mkdir("tmp", 0777));
    Set("XDG_RUNTIME_DIR", place.Mkdir("run", 0700));
    Set("XDG_CACHE_HOME", place.Path("home/cache"));
    Set("XDG_CONFIG_HOME", place.Path("home/config"));
    Set("XDG_DATA_HOME", place.Path("home/data"));
  }
  ~FoldersTest() override { before.isNull() ? qunsetenv("TMPDIR") : qputenv("TMPDIR", before); }
  static void Set(const char* Name, const QString& Value) { qputenv(Name, QFile::encodeName(Value)); }
  static int ModeOf(const QString& Path) {
    struct stat Found {};
    return lstat(QFile::encodeName(Path).constData(), &Found) == 0 ? static_cast<int>(Found.st_mode & 0777) : -1;
  }

  const Place place;

 private:
  const QByteArray before = qgetenv("TMPDIR");  // what the other tests use
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
  EXPECT_EQ(ModeOf(place.Path("home/cache")), 0700) << "made by the game";
  EXPECT_TRUE(QDir(place.Path("trap")).isEmpty());
  EXPECT_FALSE(QFileInfo::exists(place.Path("run"))) << "it isn't the game's to make";
}

TEST_F(FoldersTest, WithoutAHomeTheTemporaryFolderIsTheUsersOwnOne) {
  place.Mkdir("tmp/tollmoor-blunko-AAAAAA", 0755);
  QFile::link(place.Mkdir("trap", 0700), place.Path("tmp/tollmoor-blunko-BBBBBB"));
  const Unprivileged Nobody(place);
  for (const char* Name : {"HOME", "XDG_RUNTIME_DIR", "XDG_CACHE_HOME"}) qunsetenv(Name);
  const QString Folder = GetTempFolder();
  EXPECT_TRUE(Folder.startsWith(place.Path("tmp/tollmoor-blunko-"))) << Folder.toStdString();
  EXPECT_TRUE(Folder.endsWith('/'));
  EXPECT_EQ(ModeOf(Folder), 0700);
  EXPECT_EQ(GetTempFolder(), Folder) << "found again at the next start";
  EXPECT_EQ(QDir(place.Path("tmp")).entryList(QDir::Dirs | QDir::NoDotAndDotDot).size(), 3);
  Set("TMPDIR", place.Path("no such folder"));
  EXPECT_EQ(GetTempFolder(), QString());
}

TEST_F(FoldersTest, StateLiesBesideTheProgramOrInTheUsersOwnFolder) {
  place.Put("games/TollmoorBlunko", "");
  place.Put("games/TollmoorBlunko.ini", "info");
  place.Put("games/highscores.dat", "lists");
  place.Mkdir("home", 0777);
  place.Mkdir("games", 0777);
  const auto Start = [this] {
    const Unprivileged Nobody(place);
    return Folders::Of(place.Path("games/TollmoorBlunko"));
  };
  const Folders Beside = Start();
  EXPECT_EQ(Beside.InfoPath(), place.Path("games/TollmoorBlunko.ini"));
  EXPECT_EQ(Beside.ListsPath(), place.Path("games/highscores.dat"));
  EXPECT_EQ(Beside.Shipped("help"), place.Path("games/help"));
  EXPECT_EQ(Beside.OwnBackground(), QString());
  EXPECT_FALSE(QFileInfo::exists(place.Path("home/config")));

  place.Mkdir("games", 0555);
  const Folders Away = Start();
  EXPECT_EQ(Away.InfoPath(), place.Path("home/config/TollmoorBlunko/TollmoorBlunko.ini"));
  EXPECT_EQ(Away.ListsPath(), place.Path("home/config/TollmoorBlunko/highscores.dat"));
  EXPECT_EQ(ModeOf(Away.State), 0700);
  EXPECT_EQ(place.Get("home/config/TollmoorBlunko/highscores.dat"), "lists") << "taken along";
  place.Mkdir("games", 0755);
}

TEST_F(FoldersTest, AnInstalledProgramKeepsItsStateWithTheUser) {
  const QString Info = "home/config/TollmoorBlunko/game.ini", Lists = "home/data/TollmoorBlunko/highscores.dat";
  place.Put("home/prefix/bin/game", "");
  place.Mkdir("home/prefix/share/tollmoor-blunko", 0755);
  const auto Start = [this] { return Folders::Of(place.Path("home/prefix/bin/game")); };
  const Folders Found = Start();
  EXPECT_EQ(Found.InfoPath(), place.Path(Info));
  EXPECT_EQ(Found.ListsPath(), place.Path(Lists));
  EXPECT_EQ(Found.Shipped("help"), place.Path("home/prefix/share/tollmoor-blunko/help"));
  EXPECT_EQ(Found.OwnBackground(), place.Path("home/data/TollmoorBlunko/Background"));
  EXPECT_EQ(ModeOf(place.Path("home/data")), 0700);
  // What earlier versions left beside the program, and in the folder that the lists had when it was read-only.
  place.Put("home/prefix/bin/game.ini", "info");
  place.Put("home/prefix/bin/highscores.dat", "oldest");
  place.Put("home/config/TollmoorBlunko/highscores.dat", "lists");
  Start();
  EXPECT_EQ(place.Get(Info), "info");
  EXPECT_EQ(place.Get(Lists), "lists");
  place.Put(Info, "new");
  Start();
  EXPECT_EQ(place.Get(Info), "new") << "once";
  EXPECT_EQ(place.Get("home/prefix/bin/game.ini"), "info") << "somebody else may share it";
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
