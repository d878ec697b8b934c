#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "storage/GameSettings.h"
#include "storage/SavedSetup.h"
#include "tests/storage/Place.h"

namespace blunko::test {
namespace {

/// An installation: the program's folder with its default picture.
struct GameSettingsTest : testing::Test {
  GameSettingsTest() { place.Put("Background/Satin.jpg", "a picture"); }

  GameSettings Load() const { return GameSettings(Folders{place.Path(), "Game", place.Path(), "/tmp/own/"}); }
  GameSettings Load(const QByteArray& Keys) const {
    place.Put("Game.ini", "[Info]\n" + Keys);
    return Load();
  }
  /// Text of the info file without its section line, with a bar for each separator.
  QByteArray Keys() const { return place.Get("Game.ini").mid(7).replace('\xA4', '|'); }
  IniInfo Info() const { return IniInfo(place.Path("Game.ini")); }
  QString Satin() const { return place.Path("Background/Satin.jpg"); }
  /// What a run holds, by the keys.
  std::string Held(const GameSettings& s) const {
    std::ostringstream Out;
    Out << " Scanned=" << s.Scanned() << " ShowWelcomeMessage=" << s.ShowWelcome() << " DieColor=" << s.DieColour()
        << " TextColor=" << s.TextColour() << " Background=" << FileNameOnly(s.Background()).toStdString()
        << " SoundFXOFF=" << s.SoundDisabled() << " UndoSound=" << s.GetSound("Undo") << s.GetSound("Nose")
        << " defPlayToScore=" << s.ReadPlayToScore() << " defBreakInScore=" << s.ReadBreakInScore()
        << " ComputerFast=" << s.ComputerSpeed() << " SortDice=" << s.SortDice() << " MarkScorers=" << s.MarkScorers()
        << " Scale=" << ReadScale(Info()) << ' ';
    return Out.str();
  }

  const Place place;
};

TEST_F(GameSettingsTest, TakesWhateverStandsInTheFile) {
  static const char* const Rows[] = {"Scanned=|0",
                                     "Scanned=-1|1",
                                     "Scanned=perhaps|0",
                                     "ShowWelcomeMessage=|1",
                                     "ShowWelcomeMessage=0|0",
                                     "SortDice=|1",
                                     "SortDice=fALSE|0",
                                     "MarkScorers=|1",
                                     "SoundFXOFF=|0",
                                     "Background=|Satin.jpg",
                                     "UndoSound=|/tmp/own/undo.wav",
                                     "DieColor=|112",
                                     "DieColor=240 blue|240",
                                     "DieColor=blue 240|112",
                                     "DieColor=0|112",
                                     "DieColor=+240|240",
                                     "DieColor=-5|112",
                                     "DieColor=113.5|114",
                                     "DieColor=114.5|114",
                                     "DieColor=32768|112",
                                     "DieColor=nan|112",
                                     "TextColor=|0",
                                     "TextColor=1|255",
                                     "TextColor=16711680|16711680",
                                     "TextColor=12345|0",
                                     "TextColor=-1|0",
                                     "TextColor=99999999999|0",
                                     "ComputerFast=|0",
                                     "ComputerFast=7|0",
                                     "defPlayToScore=|5000",
                                     "defPlayToScore=7500|5000",
                                     "defBreakInScore=|500",
                                     "defBreakInScore=501|500",
                                     "Scale=|100",
                                     "Scale= 101 |101",
                                     "Scale=401|100",
                                     "Scale=99|100"};
  for (const QByteArray Row : Rows) {
    const QByteArray Line = Row.left(Row.indexOf('|')), Value = Row.mid(Row.indexOf('|') + 1) + ' ';
    EXPECT_THAT(Held(Load(Line)), testing::HasSubstr((' ' + Line.left(Line.indexOf('=') + 1) + Value).toStdString()));
    EXPECT_EQ(Keys(), Line) << "reading repairs nothing";
  }
}

TEST_F(GameSettingsTest, EachSetterWritesItsOwnKeyAtOnce) {
  GameSettings s = Load();
  EXPECT_EQ(place.Names(), QStringList("Background")) << "a first run writes nothing";
  s.setScanned(true);
  s.setShowWelcome(false);
  s.setDieColour(240);
  s.setTextColourIndex(3);
  s.setBackground(NoBackground);
  s.setSoundDisabled(true);
  s.SetSound("Undo", "/t\xC3\xB6ne/u.wav");
  s.SetSound("Nose", "/no/event.wav");
  s.WritePlayToScore(10000);
  s.WriteBreakInScore(1000);
  s.setComputerSpeed(2);
  s.setSortDice(false);
  s.setMarkScorers(false);
  EXPECT_EQ(
      Keys(),
      "Scanned=True\nShowWelcomeMessage=False\nDieColor=240\nTextColor=3\nBackground=(None)\nSoundFXOFF="
      "True\nUndoSound=/t\xC3\xB6ne/u.wav\nNoseSound=/no/"
      "event.wav\ndefPlayToScore=10000\ndefBreakInScore=1000\nComputerFast=2\nSortDice=False\nMarkScorers=False\n");
  EXPECT_EQ(Held(Load()), Held(s));
  s.setTextColour(0xFFFF80);
  EXPECT_EQ(Load().TextColour(), 0xFFFF80U);
  s.setTextColour(0x123456);  // not on the list: for the run
  EXPECT_EQ(s.TextColour(), 0x123456U);
  EXPECT_EQ(Load().TextColour(), 0U);
}

TEST_F(GameSettingsTest, ReplacesALostBackground) {
  const QByteArray Lost = "TextColor=3\nBackground=/gone/Old.jpg\n";
  EXPECT_EQ(Load(Lost).Background(), Satin());
  EXPECT_EQ(Keys(), "TextColor=7\nBackground=" + QFile::encodeName(Satin()) + '\n');
  QFile::remove(Satin());
  EXPECT_EQ(Load(Lost).Background(), NoBackground);
  EXPECT_EQ(Keys(), "TextColor=0\nBackground=(None)\n");
}

TEST_F(GameSettingsTest, SavesTheSetupAsItsThreeTexts) {
  EXPECT_EQ(ReadSetup(Info(), Load()), SetupForPlayers(1));
  EXPECT_EQ(Keys().count('\n'), 3) << "the first opening of the dialog writes them";
  QFile::remove(place.Path("Game.ini"));
  GameSetup Three = SetupForPlayers(3), One = SetupForPlayers(1);
  Three.Seats[1] = {"Deep", true, Genius};
  Three.PlayToScore = 10000;
  Three.BreakInScore = 1000;
  WriteSetup(Three, Info(), Load());
  EXPECT_EQ(Keys(),
            "defPlayToScore=10000\ndefBreakInScore=1000\ndefNumPlayers=3\n"
            "defPlayerNameString=Player1|Deep|Player3|~|~|~|~|~|\n"
            "defPlayerIsCompString=False|True|False|~|~|~|~|~|\n"
            "defPlayerStyleString=00|5|22|33|44|55|66|77|\n");
  EXPECT_EQ(ReadSetup(Info(), Load()), Three);
  One.Seats[1].Style = Moron;
  WriteSetup(One, Info(), Load());
  EXPECT_EQ(ReadSetup(Info(), Load()), One);
}

TEST_F(GameSettingsTest, AHandEditedSetupTakesTheDefaultForEachUnusableField) {
  // Count, names, computers and styles; the seats that they make.
  static const char* const Rows[][5] = {{"9", "A|", "False|", "00|", "A"},
                                        {"-3", "A|", "True|", "4|", "A*5"},
                                        {" 2 ", "A|B", "False|True", "00|2", "A B*3"},
                                        {"3", "A|B|~|", "False|True|~|", "00|2|22|", "A B*3 Player3"},
                                        {"3", "A|", "True|", "x|", "A*1 Player2 Player3"},
                                        {"2", "A|B|", "true|True|", "1|7|", "A B*1"},
                                        {"2", "A\t\xF6\xAD\xFF|FifteenLettersX|", "|", "|", "A\u00F6y FifteenLetters"},
                                        {"2", "|\t\xAD|", "|", "|", " Player2"}};
  for (const auto& Row : Rows) {
    const QByteArray Text = QByteArray("defNumPlayers=") + Row[0] + "\ndefPlayerNameString=" + Row[1] +
                            "\ndefPlayerIsCompString=" + Row[2] + "\ndefPlayerStyleString=" + Row[3];
    const GameSettings Settings = Load(QByteArray(Text).replace('|', '\xA4'));
    const GameSetup Loaded = ReadSetup(Info(), Settings);
    std::string Seats;
    for (int i = 0; i < Loaded.NumPlayers; ++i) {
      const GameSetup::Seat& Seat = Loaded.Seats[i];
      Seats += (i > 0 ? " " : "") + Seat.Name + (Seat.IsComputer ? '*' + std::to_string(Seat.Style) : "");
    }
    EXPECT_EQ(Seats, Row[4]) << Text.constData();
  }
}

}  // namespace
}  // namespace blunko::test
