#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sstream>

#include "storage/GameSettings.h"
#include "storage/SavedSetup.h"
#include "tests/support/Place.h"
#include "tests/support/Rows.h"

namespace blunko::test {

/// An installation: the program's folder with its default picture.
struct GameSettingsTest : testing::Test {
  GameSettingsTest() { place.Put("Background/Satin.jpg", "a picture"); }

  GameSettings Load() const { return GameSettings({place.Path(), "Game", place.Path(), "/tmp/own/"}, Info()); }
  GameSettings Load(const QByteArray& Keys) const {
    place.Put("Game.ini", "[Info]\n" + Keys);
    return Load();
  }
  /// Text of the info file without its section line, with a bar for each separator.
  QByteArray Keys() const { return place.Get("Game.ini").mid(7).replace('\xA4', '|'); }
  IniInfo Info() const { return IniInfo(place.Path("Game.ini")); }
  /// What a run holds, by the keys.
  std::string Held(const GameSettings& s) const {
    std::ostringstream Out;
    Out << " Scanned=" << s.Scanned << " ShowWelcomeMessage=" << s.ShowWelcome << " DieColor=" << s.DieColour
        << " TextColor=" << s.TextColour() << " Background=" << FileNameOnly(s.Background).toStdString()
        << " SoundFXOFF=" << s.SoundDisabled << " UndoSound=" << s.GetSound("Undo") << s.GetSound("Nose")
        << " defPlayToScore=" << s.ReadPlayToScore() << " defBreakInScore=" << s.ReadBreakInScore()
        << " ComputerFast=" << s.ComputerSpeed << " SortDice=" << s.SortDice << " MarkScorers=" << s.MarkScorers
        << " Scale=" << ReadScale(Info()) << ' ';
    return Out.str();
  }

  const Place place;
};

TEST_F(GameSettingsTest, TakesWhateverStandsInTheFile) {
  for (const auto& [Line, Value, Rule] : RowsOf("storage/settings.txt")) {
    EXPECT_THAT(Held(Load(Line.c_str())), testing::HasSubstr(' ' + Line.substr(0, Line.find('=') + 1) + Value + ' '));
    EXPECT_EQ(Keys(), Line.c_str()) << "reading repairs nothing";
  }
}

TEST_F(GameSettingsTest, EachSetterWritesItsOwnKeyAtOnce) {
  GameSettings s = Load();
  EXPECT_EQ(place.Names(), QStringList("Background")) << "a first run writes nothing";
  s.ShowWelcome = false;
  s.setTextColourIndex(6);
  s.SetSound("Undo", "/t\xC3\xB6ne/u.wav");
  s.SetSound("Nose", "/no/event.wav");
  EXPECT_EQ(Keys(), "ShowWelcomeMessage=False\nTextColor=6\nUndoSound=/t\xC3\xB6ne/u.wav\nNoseSound=/no/event.wav\n");
  EXPECT_EQ(Held(Load()), Held(s));
  s.setTextColour(0x123456);  // not on the list: for the run
  EXPECT_TRUE(s.TextColour() == 0x123456 && Load().TextColour() == 0);
}

TEST_F(GameSettingsTest, ReplacesALostBackground) {
  const QByteArray Lost = "TextColor=3\nBackground=/gone/Old.jpg\n";
  const QString Satin = place.Path("Background/Satin.jpg");
  EXPECT_EQ(Load(Lost).Background, Satin);
  EXPECT_EQ(Keys(), "TextColor=7\nBackground=" + QFile::encodeName(Satin) + '\n');
  QFile::remove(Satin);
  EXPECT_EQ(Load(Lost).Background, NoBackground);
  EXPECT_EQ(Keys(), "TextColor=0\nBackground=(None)\n");
}

TEST_F(GameSettingsTest, SavesTheSetupAsItsThreeTexts) {
  EXPECT_EQ(ReadSetup(Info(), Load()), SetupForPlayers(1));
  EXPECT_EQ(Keys().count('\n'), 3) << "the first opening of the dialog writes them";
  QFile::remove(place.Path("Game.ini"));
  GameSetup Three = SetupForPlayers(3);
  Three.Seats[1] = {"Deep", true, Genius};
  Three.PlayToScore = 10000;
  Three.BreakInScore = 1000;
  WriteSetup(Three, Info(), Load());
  EXPECT_EQ(Keys(),
            "defPlayToScore=10000\ndefBreakInScore=1000\ndefNumPlayers=3\n"
            "defPlayerNameString=Player1|Deep|Player3|~|~|~|~|~|\n"
            "defPlayerIsCompString=False|True|False|~|~|~|~|~|\n"
            "defPlayerStyleString=00|5|22|33|44|55|66|77|\n");
}

TEST_F(GameSettingsTest, AHandEditedSetupTakesTheDefaultForEachUnusableField) {
  // Count, names, computers and styles; the seats that they make.
  static const char* const Rows[][5] = {
      {"9", "A|", "False|", "00|", "A"},
      {"-3", "A|", "True|", "4|", "A*5"},
      {" 2 ", "A|B", "False|True", "00", "A B*1"},
      {"3", "A|B|~|", "False|True|~|", "00|2|22|", "A B*3 Player3"},
      {"8", "A|", "True|", "x|", "A*1 Player2 Player3 Player4 Player5 Player6 Player7 Player8"},
      {"2", "A|B|", "true|True|", "1|7|", "A B*1"},
      {"2", "A ~\x7F\t\xA0\xFE\xF6\xAD\xFF|FifteenLettersX|", "|", "|", "A ~\u00A0\u00FE\u00F6y FifteenLetters"},
      {"2", "|\t\xAD|", "|", "|", " Player2"}};
  for (const auto& Row : Rows) {
    const QByteArray Text = QByteArray("defNumPlayers=") + Row[0] + "\ndefPlayerNameString=" + Row[1] +
                            "\ndefPlayerIsCompString=" + Row[2] + "\ndefPlayerStyleString=" + Row[3];
    const GameSetup Loaded = ReadSetup(Info(), Load(QByteArray(Text).replace('|', '\xA4')));
    std::string Seats;
    for (int i = 0; i < Loaded.NumPlayers; ++i) {
      const GameSetup::Seat& Seat = Loaded.Seats[i];
      Seats += (i > 0 ? " " : "") + Seat.Name + (Seat.IsComputer ? '*' + std::to_string(Seat.Style) : "");
    }
    EXPECT_EQ(Seats, Row[4]) << Text.constData();
  }
}

}  // namespace blunko::test
