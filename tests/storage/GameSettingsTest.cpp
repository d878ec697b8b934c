#include <functional>
#include <gtest/gtest.h>

#include "storage/GameSettings.h"
#include "storage/SavedSetup.h"
#include "tests/storage/Place.h"

namespace blunko::test {
namespace {

/// An installation: the program's folder with its default picture.
class GameSettingsTest : public testing::Test {
 protected:
  GameSettingsTest() { place.Put("Background/Satin.jpg", "a picture"); }

  GameSettings Load() const { return GameSettings(Folders{place.Path(), "Game", place.Path(), "/tmp/own/"}); }
  GameSettings Load(const QByteArray& Text) const {
    place.Put("Game.ini", Text);
    return Load();
  }
  /// Text of the info file without its section line.
  QByteArray Keys() const {
    const QByteArray Text = place.Get("Game.ini");
    return Text.startsWith("[Info]\n") ? Text.mid(7) : Text;
  }
  IniInfo Info() const { return IniInfo(place.Path("Game.ini")); }
  QString Satin() const { return place.Path("Background/Satin.jpg"); }

  const Place place;
};

TEST_F(GameSettingsTest, AFirstRunHasTheDefaultsAndWritesNothing) {
  for (const bool EmptyKeys : {false, true}) {
    if (EmptyKeys) {
      place.Put("Game.ini",
                "[Info]\nScanned=\nShowWelcomeMessage=\nDieColor=\nTextColor=\nBackground=\nSoundFXOFF=\n"
                "defPlayToScore=\ndefBreakInScore=\nComputerFast=\nSortDice=\nMarkScorers=\nUndoSound=\n");
    }
    const QStringList Before = place.Names();
    const QByteArray Text = place.Get("Game.ini");
    const GameSettings Settings = Load();
    EXPECT_FALSE(Settings.Scanned());
    EXPECT_TRUE(Settings.ShowWelcome());
    EXPECT_EQ(Settings.DieColour(), 112);
    EXPECT_EQ(Settings.TextColourIndex(), 0);
    EXPECT_EQ(Settings.TextColour(), 0U);
    EXPECT_EQ(Settings.Background(), Satin());
    EXPECT_FALSE(Settings.SoundDisabled());
    EXPECT_EQ(Settings.ReadPlayToScore(), 5000);
    EXPECT_EQ(Settings.ReadBreakInScore(), 500);
    EXPECT_EQ(Settings.ComputerSpeed(), 0);
    EXPECT_TRUE(Settings.SortDice());
    EXPECT_TRUE(Settings.MarkScorers());
    static const std::pair<const char*, const char*> Sounds[] = {{"Blunko", "bust.wav"},
                                                                 {"OneDie", "11d.wav"},
                                                                 {"MultiDie", "33d.wav"},
                                                                 {"Passem1", "passem1.wav"},
                                                                 {"Passem2", "passem2.wav"},
                                                                 {"MoveDie", "moveit.wav"},
                                                                 {"Undo", "undo.wav"},
                                                                 {"GameOver", "gameover.wav"},
                                                                 {"Blunder", ""},
                                                                 {"blunko", ""}};
    for (const auto& [Name, File] : Sounds) {
      EXPECT_EQ(Settings.GetSound(Name), *File ? std::string("/tmp/own/") + File : "") << Name;
      EXPECT_EQ(GameSettings::DefaultSoundFile(Name), QString(File)) << Name;
    }
    EXPECT_EQ(place.Names(), Before);
    EXPECT_EQ(place.Get("Game.ini"), Text);
  }
}

TEST_F(GameSettingsTest, TakesWhateverStandsInTheFile) {
  const auto Welcome = [](const GameSettings& s) { return int{s.ShowWelcome()}; };
  const auto Scanned = [](const GameSettings& s) { return int{s.Scanned()}; };
  const auto Dice = [](const GameSettings& s) { return int{s.DieColour()}; };
  const auto Colour = [](const GameSettings& s) { return static_cast<int>(s.TextColour()); };
  const auto Index = [](const GameSettings& s) { return s.TextColourIndex(); };
  const auto Speed = [](const GameSettings& s) { return s.ComputerSpeed(); };
  const auto PlayTo = [](const GameSettings& s) { return s.ReadPlayToScore(); };
  const auto BreakIn = [](const GameSettings& s) { return s.ReadBreakInScore(); };
  struct Row {
    const char* Line;
    std::function<int(const GameSettings&)> Get;
    int Value;
  };
  const Row Rows[] = {
      {"ShowWelcomeMessage=0", Welcome, 0},
      {"ShowWelcomeMessage=1", Welcome, 1},
      {"showwelcomemessage=-1", Welcome, 1},
      {"ShowWelcomeMessage=fALSE", Welcome, 0},
      {"ShowWelcomeMessage=0.0", Welcome, 0},
      {"ShowWelcomeMessage=perhaps", Welcome, 1},  // garbage is the default
      {"Scanned=TRUE", Scanned, 1},
      {"Scanned=2", Scanned, 1},
      {"Scanned=perhaps", Scanned, 0},
      {"DieColor=240", Dice, 240},
      {"DieColor=0", Dice, 112},
      {"DieColor=-0.2", Dice, 112},
      {"DieColor=blue 240", Dice, 112},
      {"DieColor=240 blue", Dice, 240},
      {"DieColor=+240", Dice, 240},
      {"DieColor=-5", Dice, -5},
      {"DieColor=113.5", Dice, 114},
      {"DieColor=114.5", Dice, 114},  // half goes to the even number
      {"DieColor=239.51", Dice, 240},
      {"DieColor=.5e3", Dice, 500},
      {"DieColor=1e3", Dice, 1000},
      {"DieColor=1e", Dice, 1},
      {"DieColor=32767", Dice, 32767},
      {"DieColor=32768", Dice, 112},
      {"DieColor=99999999999999999999", Dice, 112},
      {"DieColor=1e999", Dice, 112},
      {"DieColor=nan", Dice, 112},
      {"DieColor=-inf", Dice, 112},
      {"TextColor=7", Colour, 0xFFFFFF},
      {"TextColor=6", Colour, 0xFFFF80},
      {"TextColor=4", Colour, 0xFF0000},
      {"TextColor=16711680", Index, 4},
      {"TextColor=16711680", Colour, 0xFF0000},
      {"TextColor=16777215", Index, 7},
      {"TextColor=255", Index, 1},
      {"TextColor=8", Colour, 0},
      {"TextColor=12345", Colour, 0},
      {"TextColor=-1", Colour, 0},
      {"TextColor=99999999999", Colour, 0},
      {"TextColor=red", Colour, 0},
      {"ComputerFast=2", Speed, 2},
      {"ComputerFast=7", Speed, 0},
      {"ComputerFast=-1", Speed, 0},
      {"ComputerFast=fast", Speed, 0},
      {"defPlayToScore=10000", PlayTo, 10000},
      {"defPlayToScore=7500", PlayTo, 5000},
      {"defPlayToScore=all", PlayTo, 5000},
      {"defBreakInScore=1000", BreakIn, 1000},
      {"defBreakInScore=501", BreakIn, 500},
  };
  for (const Row& row : Rows) {
    const QByteArray Text = QByteArray("[Info]\n") + row.Line + '\n';
    EXPECT_EQ(row.Get(Load(Text)), row.Value) << row.Line;
    EXPECT_EQ(place.Get("Game.ini"), Text) << row.Line << ": reading repairs nothing";
  }
}

TEST_F(GameSettingsTest, EachSetterWritesItsOwnKeyAtOnce) {
  struct Row {
    std::function<void(GameSettings&)> Set;
    const char* Line;
    std::function<bool(const GameSettings&)> Holds;
  };
  using S = GameSettings;
  const Row Rows[] = {
      {[](S& s) { s.setScanned(true); }, "Scanned=True", [](const S& s) { return s.Scanned(); }},
      {[](S& s) { s.setShowWelcome(false); }, "ShowWelcomeMessage=False", [](const S& s) { return !s.ShowWelcome(); }},
      {[](S& s) { s.setSoundDisabled(true); }, "SoundFXOFF=True", [](const S& s) { return s.SoundDisabled(); }},
      {[](S& s) { s.setSortDice(false); }, "SortDice=False", [](const S& s) { return !s.SortDice(); }},
      {[](S& s) { s.setMarkScorers(false); }, "MarkScorers=False", [](const S& s) { return !s.MarkScorers(); }},
      {[](S& s) { s.setDieColour(240); }, "DieColor=240", [](const S& s) { return s.DieColour() == 240; }},
      {[](S& s) { s.setComputerSpeed(2); }, "ComputerFast=2", [](const S& s) { return s.ComputerSpeed() == 2; }},
      {[](S& s) { s.setTextColourIndex(3); }, "TextColor=3", [](const S& s) { return s.TextColour() == 0x00FFFF; }},
      {[](S& s) { s.setTextColour(0xFFFF80); }, "TextColor=6", [](const S& s) { return s.TextColourIndex() == 6; }},
      {[](S& s) { s.setBackground(NoBackground); }, "Background=(None)",
       [](const S& s) { return s.Background() == NoBackground; }},
      {[](S& s) { s.WritePlayToScore(10000); }, "defPlayToScore=10000",
       [](const S& s) { return s.ReadPlayToScore() == 10000; }},
      {[](S& s) { s.WriteBreakInScore(1000); }, "defBreakInScore=1000",
       [](const S& s) { return s.ReadBreakInScore() == 1000; }},
      {[](S& s) { s.SetSound("Undo", "/my/u.wav"); }, "UndoSound=/my/u.wav",
       [](const S& s) { return s.GetSound("Undo") == "/my/u.wav"; }},
      {[](S& s) { s.SetSound("Nose", "/my/n.wav"); }, "NoseSound=/my/n.wav",
       [](const S& s) { return s.GetSound("Nose").empty(); }},
      {[](S& s) { s.SetSound("Blunko", "/t\xC3\xB6ne/b.wav"); }, "BlunkoSound=/t\xC3\xB6ne/b.wav",
       [](const S& s) { return s.GetSound("Blunko") == "/t\xC3\xB6ne/b.wav"; }},
  };
  for (const Row& row : Rows) {
    QFile::remove(place.Path("Game.ini"));
    GameSettings Settings = Load();
    row.Set(Settings);
    EXPECT_TRUE(row.Holds(Settings)) << row.Line;
    EXPECT_EQ(Keys(), QByteArray(row.Line) + '\n');
    EXPECT_TRUE(row.Holds(Load())) << row.Line << " after a restart";
  }
}

TEST_F(GameSettingsTest, AColourOutsideTheListLastsForTheRunOnly) {
  GameSettings Settings = Load("[Info]\nTextColor=5\n");
  Settings.setTextColour(0x123456);
  EXPECT_EQ(Settings.TextColour(), 0x123456U);
  EXPECT_EQ(Settings.TextColourIndex(), 0);
  EXPECT_EQ(Keys(), QByteArray("TextColor=0\n"));
  EXPECT_EQ(Load().TextColour(), 0U);
}

TEST_F(GameSettingsTest, KeepsTheNewValueForTheRunWhenTheFileTakesNone) {
  place.Mkdir("Game.ini", 0755);
  GameSettings Settings = Load();
  Settings.setDieColour(240);
  Settings.SetSound("Undo", "/my/u.wav");
  Settings.WritePlayToScore(10000);
  EXPECT_EQ(Settings.DieColour(), 240);
  EXPECT_EQ(Settings.GetSound("Undo"), "/my/u.wav");
  EXPECT_EQ(Settings.ReadPlayToScore(), 5000) << "read from the file at every call";
}

TEST_F(GameSettingsTest, ReplacesALostBackground) {
  const QByteArray Lost = "[Info]\nTextColor=3\nBackground=/gone/Old.jpg\n";
  const GameSettings Repaired = Load(Lost);
  EXPECT_EQ(Repaired.Background(), Satin());
  EXPECT_EQ(Repaired.TextColour(), 0xFFFFFFU);
  EXPECT_EQ(Keys(), "TextColor=7\nBackground=" + QFile::encodeName(Satin()) + '\n');

  EXPECT_EQ(Load("[Info]\nBackground=" + QFile::encodeName(place.Path("Background")) + '\n').Background(), Satin())
      << "a folder is no picture";
  EXPECT_EQ(Load("[Info]\nBackground=(None)\nTextColor=3\n").Background(), NoBackground);
  EXPECT_EQ(Keys(), QByteArray("Background=(None)\nTextColor=3\n")) << "no picture at all is a choice";

  QFile::remove(Satin());
  const GameSettings Plain = Load(Lost);
  EXPECT_EQ(Plain.Background(), NoBackground);
  EXPECT_EQ(Plain.TextColour(), 0U);
  EXPECT_EQ(Keys(), QByteArray("TextColor=0\nBackground=(None)\n"));

  QFile::remove(place.Path("Game.ini"));
  EXPECT_EQ(Load().Background(), NoBackground);
  EXPECT_EQ(Keys(), QByteArray("Background=(None)\nTextColor=0\n"));
}

TEST_F(GameSettingsTest, KeepsABackgroundWhoseNameNoSingleByteCarries) {
  const QString Picture = QStringLiteral("\u98A8\u666F/D\u00E4mmerung \u263D.jpg");
  place.Put(Picture, "a picture");
  GameSettings Settings = Load();
  Settings.setTextColourIndex(2);
  Settings.setBackground(place.Path(Picture));
  const GameSettings Again = Load();
  EXPECT_EQ(Again.Background(), place.Path(Picture));
  EXPECT_EQ(Again.TextColourIndex(), 2) << "it wasn't taken for lost";
}

TEST_F(GameSettingsTest, FirstOpeningOfTheDialogWritesTheDefaultSetup) {
  EXPECT_EQ(SavedSetup::Load(Info(), Load()), SavedSetup::ForPlayers(1));
  EXPECT_EQ(Keys(),
            QByteArray("defPlayerNameString=Player1\xA4Player2\xA4Player3\xA4Player4\xA4Player5\xA4Player6\xA4"
                       "Player7\xA4Player8\n"
                       "defPlayerIsCompString=False\xA4True\xA4True\xA4True\xA4True\xA4True\xA4True\xA4True\xA4\n"
                       "defPlayerStyleString=00\xA4"
                       "0\xA4"
                       "22\xA4"
                       "33\xA4"
                       "44\xA4"
                       "55\xA4"
                       "66\xA4"
                       "77\xA4\n"));
  const SavedSetup One = SavedSetup::ForPlayers(1);
  EXPECT_EQ(One.Players[0], (SavedSetup::Seat{"Player1", false, 0}));
  EXPECT_EQ(One.Players[1], (SavedSetup::Seat{"Computer", true, 0}));
}

TEST_F(GameSettingsTest, SavesTheSetupAsItsThreeTexts) {
  SavedSetup Three = SavedSetup::ForPlayers(3);
  Three.Players[1] = {"Deep", true, 5};
  Three.PlayToScore = 10000;
  Three.BreakInScore = 1000;
  Three.Save(Info(), Load());
  EXPECT_EQ(Keys().replace('\xA4', '|'), QByteArray("defPlayToScore=10000\ndefBreakInScore=1000\ndefNumPlayers=3\n"
                                                    "defPlayerNameString=Player1|Deep|Player3|~|~|~|~|~|\n"
                                                    "defPlayerIsCompString=False|True|False|~|~|~|~|~|\n"
                                                    "defPlayerStyleString=00|5|22|33|44|55|66|77|\n"));
  EXPECT_EQ(SavedSetup::Load(Info(), Load()), Three);

  SavedSetup One = SavedSetup::ForPlayers(1);
  One.Players[1].Style = 6;
  One.Save(Info(), Load());
  EXPECT_EQ(Info().ReadInfoValue("defPlayerstyleString").replace(QChar(0xA4), '|'), "00|6|22|33|44|55|66|77|");
  EXPECT_EQ(SavedSetup::Load(Info(), Load()), One);

  SavedSetup Odd = SavedSetup::ForPlayers(8);
  const QString Names[] = {
      " two  blanks ", "\"quoted\"", "", "~", "a=b;[c]", QString::fromLatin1("\xC6gir \xF6\xFE"), "FourteenLetter", ""};
  for (std::size_t i = 0; i < Odd.Players.size(); ++i) {
    Odd.Players[i] = {Names[i], i % 2 == 1, i % 2 == 1 ? static_cast<int>(i) - 1 : 0};
  }
  Odd.Save(Info(), Load());
  EXPECT_EQ(SavedSetup::Load(Info(), Load()), Odd);
}

TEST_F(GameSettingsTest, AHandEditedSetupTakesTheDefaultForEachUnusableField) {
  using Seats = std::vector<SavedSetup::Seat>;
  struct Row {
    const char *Count, *Names, *Computers, *Styles;
    int NumPlayers;
    Seats Players;
  };
  const SavedSetup::Seat Opponent{"Computer", true, 0};
  const Row Rows[] = {
      {"0", "A|", "False|", "00|", 1, {{"A", false, 0}, Opponent}},
      {"9", "A|", "False|", "00|", 1, {{"A", false, 0}, Opponent}},
      {"-3", "A|", "True|", "4|", 1, {{"A", true, 4}, Opponent}},
      {"many", "A|B|", "False|False|", "00|3|", 1, {{"A", false, 0}, {"Computer", true, 3}}},
      {"99999999999", "A|", "False|", "00|9|", 1, {{"A", false, 0}, Opponent}},
      {" 2 ", "A|B", "False|True", "00|2", 2, {{"A", false, 0}, {"B", true, 2}}},
      {"3", "A|", "True|", "1|", 3, {{"A", true, 1}, {"Player2", false, 0}, {"Player3", false, 0}}},
      {"3", "A|B|~|", "False|True|~|", "00|2|22|", 3, {{"A", false, 0}, {"B", true, 2}, {"Player3", false, 0}}},
      {"2", "A|B|", "true|yes|", "1|1|", 2, {{"A", false, 0}, {"B", false, 0}}},
      {"4",
       "A|B|C|D|",
       "True|True|True|True|",
       "7|-1|x|",
       4,
       {{"A", true, 0}, {"B", true, 0}, {"C", true, 0}, {"D", true, 0}}},
      {"2",
       "A\tB\x80\xFF|FifteenLettersX|",
       "False|False|",
       "00|11|",
       2,
       {{"AB", false, 0}, {"FifteenLetters", false, 0}}},
      {"2", "|", "|", "|", 2, {{"", false, 0}, {"Player2", false, 0}}},
  };
  for (const Row& row : Rows) {
    const QByteArray Text = QByteArray("[Info]\ndefNumPlayers=") + row.Count + "\ndefPlayerNameString=" + row.Names +
                            "\ndefPlayerIsCompString=" + row.Computers + "\ndefPlayerStyleString=" + row.Styles + '\n';
    const GameSettings Settings = Load(QByteArray(Text).replace('|', '\xA4'));
    SavedSetup Expected = SavedSetup::ForPlayers(row.NumPlayers);
    std::copy(row.Players.begin(), row.Players.end(), Expected.Players.begin());
    const SavedSetup Loaded = SavedSetup::Load(Info(), Settings);
    EXPECT_EQ(Loaded.NumPlayers, row.NumPlayers) << Text.constData();
    for (std::size_t i = 0; i < Expected.Players.size(); ++i) {
      EXPECT_EQ(Loaded.Players[i], Expected.Players[i])
          << Text.constData() << "seat " << i << ": " << Loaded.Players[i].Name.toStdString();
    }
  }
}

}  // namespace
}  // namespace blunko::test
