#include <functional>
#include <gtest/gtest.h>

#include "storage/Folders.h"
#include "tests/support/Place.h"

namespace blunko::test {

constexpr QFile::Permissions Private{0x7700};  // rwx for the owner alone

/// The user's folders, all of them below a place of the test's own.
struct FoldersTest : testing::Test {
  FoldersTest() {
    place.Mkdir("", 0755);
    Set("HOME", place.Mkdir("home", 0777));
    Set("XDG_RUNTIME_DIR", place.Mkdir("run", 0700));
    for (const QString Kind : {"CACHE", "CONFIG", "DATA"})
      Set("XDG_" + Kind + "_HOME", place.Path("home/" + Kind.toLower()));
  }
  static void Set(const QString& Name, const QString& Value) { qputenv(Name.toLatin1(), QFile::encodeName(Value)); }
  /// Where a program finds its files, and what its info file and its lists hold.
  std::string Start(const QString& Program) const {
    const Unprivileged Nobody(place);
    const Folders Found = Folders::Of(place.Path(Program));
    QStringList Told{Found.InfoPath(), Found.ListsPath(), Found.Shipped("help"), Found.OwnBackground()};
    Told.replaceInStrings(place.Path() + '/', "");
    for (const int i : {0, 1}) Told[i] += '=' + place.Get(Told[i]);
    return Told.join(' ').toStdString();
  }

  const Place place;
};

TEST_F(FoldersTest, TemporaryFolderIsPrivateAndTheSameAtEveryStart) {
  const QString InRun = place.Path("run/tollmoor-blunko"), InCache = place.Path("home/cache/tollmoor-blunko/");
  for (const char* Start : {"first", "second"}) EXPECT_EQ(GetTempFolder(), InRun + '/') << Start;
  EXPECT_EQ(QFile::permissions(InRun), Private);
  const std::pair<const char*, std::function<void()>> Rows[] = {
      {"a link", [&] { QFile::link(place.Mkdir("trap", 0700), InRun); }},
      {"others can read it", [&] { place.Mkdir("run/tollmoor-blunko", 0755); }},
      {"others can put files beside it", [&] { place.Mkdir("run", 0777); }},
      {"there is no runtime folder", [&] { QDir().rmdir(place.Path("run")); }}};
  for (const auto& [Trouble, Plant] : Rows) {
    QFile::remove(InRun);
    QDir().rmdir(InRun);
    Plant();
    EXPECT_EQ(GetTempFolder(), InCache) << Trouble;
    EXPECT_EQ(QFile::permissions(InCache), Private) << Trouble;
  }
  EXPECT_FALSE(QFileInfo::exists(place.Path("run"))) << "it isn't the game's to make";
  Set("XDG_CACHE_HOME", "/proc");
  Set("TMPDIR", place.Path("none"));
  EXPECT_EQ(GetTempFolder(), "");
  Set("TMPDIR", place.Mkdir("tmp", 0777));
  const QString Last = GetTempFolder();
  EXPECT_TRUE(Last.startsWith(place.Path("tmp/tollmoor-blunko-")) && QFile::permissions(Last) == Private);
  EXPECT_EQ(GetTempFolder(), Last) << "by its owner";
  qunsetenv("TMPDIR");
}

TEST_F(FoldersTest, StateLiesBesideTheProgramOrWithTheUser) {
  place.Put("games/game.ini", "info");
  place.Put("games/highscores.dat", "lists");
  place.Mkdir("games", 0777);
  EXPECT_EQ(Start("games/game"), "games/game.ini=info games/highscores.dat=lists games/help ");
  place.Mkdir("games", 0555);
  const std::string Config = "home/config/TollmoorBlunko/", Data = "home/data/TollmoorBlunko/";
  EXPECT_EQ(Start("games/game"), Config + "game.ini=info " + Config + "highscores.dat=lists games/help ");
  EXPECT_EQ(QFile::permissions(place.Path("home/config")), Private);
  place.Chmod("games", 0777);

  // An installed program takes over what earlier versions left beside it, unless there is something newer.
  place.Put("games/game.ini", "old info");
  place.Put("games/highscores.dat", "old lists");
  place.Mkdir("share/tollmoor-blunko", 0755);
  const std::string Shipped = " share/tollmoor-blunko/help " + Data + "Background";
  EXPECT_EQ(Start("games/game"), Config + "game.ini=info " + Data + "highscores.dat=lists" + Shipped);
  for (const char* Folder : {"home/config", "home/data"}) QDir(place.Path(Folder)).removeRecursively();
  EXPECT_EQ(Start("games/game"), Config + "game.ini=old info " + Data + "highscores.dat=old lists" + Shipped);
  EXPECT_EQ(place.Get("games/game.ini"), "old info") << "somebody else may share it";
}

}  // namespace blunko::test
