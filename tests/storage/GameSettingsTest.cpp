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

/// What a run holds, in one line.
std::string Held(const GameSettings& s) {
  return testing::PrintToString(std::tuple(int{s.Scanned()}, int{s.ShowWelcome()}, s.DieColour(), s.TextColour(),
                                           FileNameOnly(s.Background()).toStdString(), int{s.SoundDisabled()},
                                           s.ReadPlayToScore(), s.ReadBreakInScore(), s.ComputerSpeed(),
                                           int{s.SortDice()}, int{s.MarkScorers()}, s.GetSound("Undo")));
}

TEST_F(GameSettingsTest, AFirstRunHasTheDefaultsAndWritesNothing) {
  for (const QByteArray Text : {"(no file)", "[Info]\nDieColor=\nBackground=\nSortDice=\ndefPlayToScore=\n"}) {
    const GameSettings Settings = Text.startsWith('[') ? Load(Text) : Load();
    EXPECT_EQ(Held(Settings), "(0, 1, 112, 0, \"Satin.jpg\", 0, 5000, 500, 0, 1, 1, \"/tmp/own/undo.wav\")");
    EXPECT_EQ(Settings.GetSound("undo"), "") << "no such event";
    EXPECT_EQ(place.Get("Game.ini"), Text);
  }
}

TEST_F(GameSettingsTest, TakesWhateverStandsInTheFile) {
  const auto Welcome = [](const GameSettings& s) { return int{s.ShowWelcome()}; };
  const auto Dice = [](const GameSettings& s) { return int{s.DieColour()}; };
  const auto Colour = [](const GameSettings& s) { return static_cast<int>(s.TextColour()); };
  const auto Speed = [](const GameSettings& s) { return s.ComputerSpeed(); };
  const auto PlayTo = [](const GameSettings& s) { return s.ReadPlayToScore(); };
  const auto BreakIn = [](const GameSettings& s) { return s.ReadBreakInScore(); };
  const auto Scale = [this](const GameSettings&) { return ReadScale(Info()); };
  struct Row {
    const char* Line;
    std::function<int(const GameSettings&)> Get;
    int Value;
  };
  const Row Rows[] = {{"ShowWelcomeMessage=0", Welcome, 0},
                      {"showwelcomemessage=-1", Welcome, 1},
                      {"ShowWelcomeMessage=fALSE", Welcome, 0},
                      {"ShowWelcomeMessage=perhaps", Welcome, 1},  // garbage is the default
                      {"DieColor=240 blue", Dice, 240},
                      {"DieColor=blue 240", Dice, 112},
                      {"DieColor=0", Dice, 112},
                      {"DieColor=+240", Dice, 240},
                      {"DieColor=-5", Dice, 112},
                      {"DieColor=113.5", Dice, 114},
                      {"DieColor=114.5", Dice, 114},  // half goes to the even number
                      {"DieColor=1e3", Dice, 1000},
                      {"DieColor=32768", Dice, 112},
                      {"DieColor=1e999", Dice, 112},
                      {"DieColor=nan", Dice, 112},
                      {"TextColor=1", Colour, 0x0000FF},
                      {"TextColor=6", Colour, 0xFFFF80},
                      {"TextColor=16711680", Colour, 0xFF0000},
                      {"TextColor=12345", Colour, 0},
                      {"TextColor=-1", Colour, 0},
                      {"TextColor=99999999999", Colour, 0},
                      {"ComputerFast=7", Speed, 0},
                      {"defPlayToScore=7500", PlayTo, 5000},
                      {"defBreakInScore=501", BreakIn, 500},
                      {"A=1", Scale, 100},
                      {"scale= 101 ", Scale, 101},
                      {"Scale=400", Scale, 400},
                      {"Scale=401", Scale, 100},
                      {"Scale=99", Scale, 100},
                      {"Scale=200 %", Scale, 100}};
  for (const Row& row : Rows) {
    const QByteArray Text = QByteArray("[Info]\n") + row.Line + '\n';
    EXPECT_EQ(row.Get(Load(Text)), row.Value) << row.Line;
    EXPECT_EQ(place.Get("Game.ini"), Text) << row.Line << ": reading repairs nothing";
  }
}

TEST_F(GameSettingsTest, EachSetterWritesItsOwnKeyAtOnce) {
  using S = GameSettings;
  const std::pair<void (*)(S&), const char*> Rows[] = {
      {[](S& s) { s.setScanned(true); }, "Scanned=True"},
      {[](S& s) { s.setShowWelcome(false); }, "ShowWelcomeMessage=False"},
      {[](S& s) { s.setSoundDisabled(true); }, "SoundFXOFF=True"},
      {[](S& s) { s.setSortDice(false); }, "SortDice=False"},
      {[](S& s) { s.setMarkScorers(false); }, "MarkScorers=False"},
      {[](S& s) { s.setDieColour(240); }, "DieColor=240"},
      {[](S& s) { s.setComputerSpeed(2); }, "ComputerFast=2"},
      {[](S& s) { s.setTextColourIndex(3); }, "TextColor=3"},
      {[](S& s) { s.setTextColour(0xFFFF80); }, "TextColor=6"},
      {[](S& s) { s.setBackground(NoBackground); }, "Background=(None)"},
      {[](S& s) { s.WritePlayToScore(10000); }, "defPlayToScore=10000"},
      {[](S& s) { s.WriteBreakInScore(1000); }, "defBreakInScore=1000"},
      {[](S& s) { s.SetSound("Undo", "/t\xC3\xB6ne/u.wav"); }, "UndoSound=/t\xC3\xB6ne/u.wav"},
      {[](S& s) { s.SetSound("Nose", "/my/n.wav"); }, "NoseSound=/my/n.wav"}};
  const std::string Defaults = Held(Load());
  for (const auto& [Set, Line] : Rows) {
    QFile::remove(place.Path("Game.ini"));
    GameSettings Settings = Load();
    Set(Settings);
    EXPECT_EQ(Keys(), QByteArray(Line) + '\n');
    EXPECT_EQ(Held(Settings) == Defaults, QByteArray(Line).startsWith("Nose")) << Line;
    EXPECT_EQ(Held(Load()), Held(Settings)) << Line << " after a restart";
  }
}

TEST_F(GameSettingsTest, WhatTheFileDoesNotTakeLastsForTheRun) {
  GameSettings Settings = Load("[Info]\nBackground=(None)\n");
  Settings.setTextColour(0x123456);  // not on the list
  EXPECT_EQ(Settings.TextColour(), 0x123456U);
  EXPECT_EQ(Load().TextColour(), 0U);
  const QString Long = QString(200, 'x') + '/' + QString(200, 'x');
  Settings.setBackground(Long);
  EXPECT_EQ(Settings.Background(), Long);
  EXPECT_EQ(Load().Background(), NoBackground);
}

TEST_F(GameSettingsTest, ReplacesALostBackground) {
  const QByteArray Lost = "[Info]\nTextColor=3\nBackground=/gone/Old.jpg\n";
  EXPECT_EQ(Load(Lost).Background(), Satin());
  EXPECT_EQ(Keys(), "TextColor=7\nBackground=" + QFile::encodeName(Satin()) + '\n');
  const QByteArray None = "[Info]\nBackground=(None)\nTextColor=3\n";
  EXPECT_EQ(Load(None).Background(), NoBackground);
  EXPECT_EQ(place.Get("Game.ini"), None) << "no picture at all is a choice";
  QFile::remove(Satin());
  EXPECT_EQ(Load(Lost).Background(), NoBackground);
  EXPECT_EQ(Keys(), QByteArray("TextColor=0\nBackground=(None)\n"));
}

TEST_F(GameSettingsTest, SavesTheSetupAsItsThreeTexts) {
  ReadSetup(Info(), Load());
  EXPECT_EQ(Keys().replace('\xA4', '|'),
            "defPlayerNameString=Player1|Player2|Player3|Player4|Player5|Player6|Player7|Player8\n"
            "defPlayerIsCompString=False|True|True|True|True|True|True|True|\n"
            "defPlayerStyleString=00|0|22|33|44|55|66|77|\n")
      << "the first opening of the dialog";
  QFile::remove(place.Path("Game.ini"));
  GameSetup Three = SetupForPlayers(3);
  Three.Seats[1] = {"Deep", true, Genius};
  Three.PlayToScore = 10000;
  Three.BreakInScore = 1000;
  WriteSetup(Three, Info(), Load());
  EXPECT_EQ(Keys().replace('\xA4', '|'), QByteArray("defPlayToScore=10000\ndefBreakInScore=1000\ndefNumPlayers=3\n"
                                                    "defPlayerNameString=Player1|Deep|Player3|~|~|~|~|~|\n"
                                                    "defPlayerIsCompString=False|True|False|~|~|~|~|~|\n"
                                                    "defPlayerStyleString=00|5|22|33|44|55|66|77|\n"));
  EXPECT_EQ(ReadSetup(Info(), Load()), Three);

  GameSetup One = SetupForPlayers(1);
  One.Seats[1].Style = Moron;
  WriteSetup(One, Info(), Load());
  EXPECT_EQ(Info().ReadInfoValue("defPlayerstyleString").replace(QChar(0xA4), '|'), "00|6|22|33|44|55|66|77|");
  EXPECT_EQ(ReadSetup(Info(), Load()), One);
}

TEST_F(GameSettingsTest, AHandEditedSetupTakesTheDefaultForEachUnusableField) {
  using Seats = std::vector<GameSetup::Seat>;
  struct Row {
    const char *Count, *Names, *Computers, *Styles;
    int NumPlayers;
    Seats Players;
  };
  const GameSetup::Seat Opponent{"Computer", true}, A{"A", false}, B{"B", false};
  const Row Rows[] = {
      {"9", "A|", "False|", "00|", 1, {A, Opponent}},
      {"-3", "A|", "True|", "4|", 1, {{"A", true, Random}, Opponent}},
      {"many", "A|B|", "False|False|", "00|3|", 1, {A, {"Computer", true, Simple}}},
      {" 2 ", "A|B", "False|True", "00|2", 2, {A, {"B", true, Fearless}}},
      {"3", "A|", "True|", "1|", 3, {{"A", true, Cautious}, {"Player2", false}, {"Player3", false}}},
      {"3", "A|B|~|", "False|True|~|", "00|2|22|", 3, {A, {"B", true, Fearless}, {"Player3", false}}},
      {"2", "A|B|", "true|yes|", "1|1|", 2, {A, B}},
      {"2", "A|B|", "True|True|", "7|x|", 2, {{"A", true}, {"B", true}}},
      {"2", "A\t\xF6\xAD\xFF|FifteenLettersX|", "|", "|", 2, {{"A\u00F6y", false}, {"FifteenLetters", false}}},
      {"2", "|\t\xAD|", "|", "|", 2, {{"", false}, {"Player2", false}}}};
  for (const Row& row : Rows) {
    const QByteArray Text = QByteArray("[Info]\ndefNumPlayers=") + row.Count + "\ndefPlayerNameString=" + row.Names +
                            "\ndefPlayerIsCompString=" + row.Computers + "\ndefPlayerStyleString=" + row.Styles + '\n';
    const GameSettings Settings = Load(QByteArray(Text).replace('|', '\xA4'));
    GameSetup Expected = SetupForPlayers(row.NumPlayers);
    std::copy(row.Players.begin(), row.Players.end(), Expected.Seats.begin());
    const GameSetup Loaded = ReadSetup(Info(), Settings);
    EXPECT_EQ(Loaded.NumPlayers, row.NumPlayers) << Text.constData();
    EXPECT_EQ(Loaded.Seats, Expected.Seats) << Text.constData();
  }
}

}  // namespace
}  // namespace blunko::test
